#include "language.h"
#include "testcase.h"
#include "vtestcharttools.h"

#include <QRadioButton>
#include <QThread>

#include <memory>

using namespace vardeno;

namespace {

QString lookUp(const QString& source)
{
    return trans::translate(TranslateManager1::instance().translator(), QStringLiteral("TestChartTools"),
                            QStringLiteral("Widget"), source);
}

/// All that a language file has texts for.
QStringList editorSources()
{
    QFile file(sourcePath("translations/en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList sources;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("source"))
            sources.append(xml.readElementText());
    }
    return sources;
}

} // namespace

class TestTranslateManager1 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        TranslateManager1::instance().translator().switchLanguage(QString());
    }

    void withoutFilesTextsTranslateToThemselves_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("before the first switch") << "";
        QTest::newRow("English") << "en";
        QTest::newRow("Chinese") << "zh_CN";
    }

    void withoutFilesTextsTranslateToThemselves()
    {
        QFETCH(QString, language);
        TranslateManager1::instance().switchLanguage(language);
        QCOMPARE(TranslateManager1::instance().translator().language(), language);
        QStringList sources = editorSources();
        QVERIFY(sources.contains(QStringLiteral("DeleteColorBar")));
        sources << QString() << QStringLiteral("no such text") << QStringLiteral("色");
        for (const QString& source : qAsConst(sources))
            QCOMPARE(lookUp(source), source);
    }

    void oneManagerForTheProcess()
    {
        TranslateManager1* inThread = nullptr;
        const std::unique_ptr<QThread> thread(
            QThread::create([&inThread] { inThread = &TranslateManager1::instance(); }));
        thread->start();
        QVERIFY(thread->wait(5000));
        QCOMPARE(inThread, &TranslateManager1::instance());
        QCOMPARE(&inThread->translator(), &TranslateManager1::instance().translator());
    }

    void switchIsAnnouncedOnceAndInForce()
    {
        load("xa", "Chess", "Chess in xa");
        QStringList seen;
        connect(&TranslateManager1::instance(), &TranslateManager1::languageChanged, this,
                [&seen] { seen.append(lookUp(QStringLiteral("Chess"))); });
        TranslateManager1::instance().switchLanguage(QStringLiteral("xa"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("xb"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("xb"));
        disconnect(&TranslateManager1::instance(), nullptr, this, nullptr);
        const QStringList expected = {QStringLiteral("Chess in xa"), QStringLiteral("Chess"),
                                      QStringLiteral("Chess")};
        QCOMPARE(seen, expected);
    }

    void onlyTheToolsOwnSwitchRenewsItsTexts()
    {
        load("xc", "Chess", "Chs");
        testcharttools::VTestChartTools tool;
        const auto* radio = tool.findChild<QRadioButton*>(QStringLiteral("chessRadioButton"));
        QVERIFY(radio);
        QCOMPARE(radio->text(), QStringLiteral("Chess"));

        QSignalSpy spy(&TranslateManager1::instance(), &TranslateManager1::languageChanged);
        TranslateManager1::instance().switchLanguage(QStringLiteral("xc"));
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(radio->text(), QStringLiteral("Chess"));

        tool.switchLanguage(QStringLiteral("xc"));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(radio->text(), QStringLiteral("Chs"));
    }

private:
    void load(const QString& language, const QString& source, const QString& translation)
    {
        QFile file(m_folder.filePath(language + QLatin1String(".ts")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(languageFile(language, {{source, translation}}));
        file.close();
        QVERIFY(TranslateManager1::instance().translator().load(file.fileName()));
    }

    QTemporaryDir m_folder;
};

VD_TEST_MAIN(TestTranslateManager1)
#include "tst_translatemanager1.moc"
