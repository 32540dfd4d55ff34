#include "charttool.h"

#include <propertybox.h>
#include <translatemanager1.h>

#include <QLoggingCategory>
#include <QTemporaryDir>

using namespace charttool;

namespace {

using Texts = QMap<QString, QString>; ///< source text to translation

constexpr auto context = "TestChartTools::Widget";

QByteArray languageFile(const QString& language, const Texts& texts)
{
    QString messages;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        messages += QStringLiteral("<message><source>%1</source><translation>%2</translation></message>\n")
                        .arg(it.key().toHtmlEscaped(), it.value().toHtmlEscaped());
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
               "<TS version=\"2.1\" language=\"%1\">\n<context>\n<name>%2</name>\n%3</context>\n</TS>\n")
        .arg(language, QLatin1String(context), messages)
        .toUtf8();
}

/// What the tool shows in a language of short texts, so that nothing is elided.
Texts shortTexts()
{
    return {{"Apply", "ap"},  {"Cancel", "ca"},    {"Confirm", "co"},       {"Layer settings", "ls"},
            {"Chess", "ch"},  {"Color bar", "cb"}, {"Brightness", "br"},    {"Resolution", "re"},
            {"Delete", "de"}, {"Reset", "rs"},     {"TestImage", "Imagen"}, {"DeleteColorBar", "dc"},
            {"OK", "ok"},     {"Cannel", "cn"}};
}

QStringList buttonTexts(const User& user)
{
    return {user.saveButton()->text(), user.cancel()->text(), user.addConfirm()->text(),
            user.replaceConfirm()->text(), user.replaceApply()->text()};
}

const QStringList& englishButtons()
{
    static const QStringList texts = {"Apply", "Cancel", "Confirm", "Confirm", "Apply"};
    return texts;
}

const QStringList& shortButtons()
{
    static const QStringList texts = {"ap", "ca", "co", "co", "ap"};
    return texts;
}

QString sectionTitle(const User& user)
{
    return user.named<PropertyBox>("basePropertyBox")->titleText();
}

/// The sources of the texts that were looked up in `language` and are lacking there, in order.
QStringList lacking(const QStringList& messages, const QString& language)
{
    const QString start = language + QLatin1String(" lacks ") + QLatin1String(context) + QLatin1Char(' ');
    QStringList sources;
    for (const QString& message : messages) {
        if (message.startsWith(start))
            sources.append(message.mid(start.size()));
    }
    return sources;
}

} // namespace

class TestLanguageSwitching : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Writes a language file and returns its path.
    QString write(const QString& name, const QString& language, const Texts& texts)
    {
        const QString path = m_folder.filePath(name);
        return writeFile(path, languageFile(language, texts)) ? path : QString();
    }

    /// The name of the next added chart.
    QString addedName(VTestChartTools& tool)
    {
        Host host(tool);
        tool.setSavePath(m_folder.filePath(QStringLiteral("charts")), QString());
        tool.setTestImageNum(7);
        tool.slotAddConfirmButtonClicked();
        return host.hears(2) ? QFileInfo(host.last().path).fileName() : QString();
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    void cleanup()
    {
        TranslateManager1::instance().translator().switchLanguage(QString());
        QLoggingCategory::setFilterRules(QString());
        TestCase::cleanup();
    }

    void withoutFilesTextsStayEnglish_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("a language without a file") << "tlh";
        QTest::newRow("none") << "";
    }

    void withoutFilesTextsStayEnglish()
    {
        QFETCH(QString, language);
        VTestChartTools tool;
        const User user(tool);
        tool.setTestChartToolsData(smallRecord());
        tool.switchLanguage(language);
        QCOMPARE(buttonTexts(user), englishButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("Layer settings"));
        QCOMPARE(user.chess()->text(), QStringLiteral("Chess"));
        QVERIFY(user.captionLabel(QStringLiteral("Brightness")));
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
    }

    void switchingSetsEveryText()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("es"), shortTexts())});
        QCOMPARE(buttonTexts(user), englishButtons());

        const QSignalSpy changed(&TranslateManager1::instance(), &TranslateManager1::languageChanged);
        tool.switchLanguage(QStringLiteral("es"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(TranslateManager1::instance().translator().language(), QStringLiteral("es"));
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("ls"));
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
        QCOMPARE(user.colorBar()->text(), QStringLiteral("cb"));
        QVERIFY(user.captionLabel(QStringLiteral("br")));
        QVERIFY(user.captionLabel(QStringLiteral("re")));
        QCOMPARE(user.named<QPushButton>("BrightResetBtn")->toolTip(), QStringLiteral("rs"));
        QCOMPARE(user.basicPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton"))->text(),
                 QStringLiteral("de"));

        tool.switchLanguage(QString());
        QCOMPARE(buttonTexts(user), englishButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("Layer settings"));
        QCOMPARE(user.chess()->text(), QStringLiteral("Chess"));
        QVERIFY(user.captionLabel(QStringLiteral("Brightness")));
    }

    void textsAreSetInOrder()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({write(QStringLiteral("empty.ts"), QStringLiteral("la"), {})});
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        tool.switchLanguage(QStringLiteral("la"));
        const QStringList order = lacking(log().messages(), QStringLiteral("la"));
        QCOMPARE(order.mid(0, 5), englishButtons());
        QVERIFY(order.indexOf("Chess") > 4);
        QVERIFY(order.lastIndexOf("Color bar") < order.indexOf("Brightness"));
        QVERIFY(order.indexOf("Brightness") < order.indexOf("OutBorder"));
        QCOMPARE(order.last(), QStringLiteral("Layer settings"));
        QCOMPARE(order.indexOf("Layer settings"), order.size() - 1);
    }

    void translateLanguageSetsTheSameTexts()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({write(QStringLiteral("empty.ts"), QStringLiteral("la"), {})});
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        tool.switchLanguage(QStringLiteral("la"));
        const QStringList switched = lacking(log().messages(), QStringLiteral("la"));
        log().clear();
        tool.translateLanguage();
        QVERIFY(!switched.isEmpty());
        QCOMPARE(lacking(log().messages(), QStringLiteral("la")), switched);
    }

    void managerAloneRetranslatesNothing()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.setTestChartToolsData(smallRecord());
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("pt"), shortTexts())});
        const QSignalSpy changed(&TranslateManager1::instance(), &TranslateManager1::languageChanged);
        TranslateManager1::instance().switchLanguage(QStringLiteral("pt"));
        QCOMPARE(changed.count(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(buttonTexts(user), englishButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("Layer settings"));
        QCOMPARE(user.chess()->text(), QStringLiteral("Chess"));

        tool.translateLanguage();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("ls"));
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
    }

    void fileNameFollowsTheLanguage_data()
    {
        QTest::addColumn<QString>("translation");
        QTest::addColumn<QString>("name");
        QTest::newRow("Latin letters") << "Testbild"
                                       << "Testbild7.png";
        QTest::newRow("Chinese") << "测试图"
                                 << "测试图7.png";
        QTest::newRow("with a space") << "Test chart "
                                      << "Test chart 7.png";
    }

    void fileNameFollowsTheLanguage()
    {
        QFETCH(QString, translation);
        QFETCH(QString, name);
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
        tool.loadLanguageFiles(
            {write(QStringLiteral("name.ts"), QStringLiteral("de"), {{"TestImage", translation}})});
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
        tool.switchLanguage(QStringLiteral("de"));
        QCOMPARE(addedName(tool), name);
        tool.switchLanguage(QString());
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
    }

    void fileNameIsLookedUpWhenItIsSaved()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        tool.loadLanguageFiles(
            {write(QStringLiteral("name.ts"), QStringLiteral("it"), {{"TestImage", "Immagine"}})});
        TranslateManager1::instance().switchLanguage(QStringLiteral("it"));
        QCOMPARE(addedName(tool), QStringLiteral("Immagine7.png"));
    }

    void filesLoadInOrder()
    {
        VTestChartTools tool;
        const User user(tool);
        const QString broken = m_folder.filePath(QStringLiteral("broken.ts"));
        QVERIFY(writeFile(broken, languageFile(QStringLiteral("fr"), {{"Cancel", "no"}}).chopped(10)));
        tool.loadLanguageFiles({
            write(QStringLiteral("first.ts"), QStringLiteral("fr"), {{"Cancel", "a"}, {"Confirm", "b"}}),
            m_folder.filePath(QStringLiteral("missing.ts")),
            broken,
            write(QStringLiteral("last.ts"), QStringLiteral("fr"), {{"Cancel", "c"}}),
        });
        tool.switchLanguage(QStringLiteral("fr"));
        QCOMPARE(buttonTexts(user), QStringList({"Apply", "c", "b", "b", "Apply"}));
    }

    void noFilesAtAll()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({});
        tool.switchLanguage(QStringLiteral("xx"));
        QCOMPARE(buttonTexts(User(tool)), englishButtons());
    }

    void newToolSpeaksTheCurrentLanguage()
    {
        VTestChartTools first;
        first.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("nl"), shortTexts())});
        first.switchLanguage(QStringLiteral("nl"));
        VTestChartTools second;
        const User user(second);
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitle(user), QStringLiteral("ls"));
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
    }

    void toolsRetranslateThemselvesOnly()
    {
        VTestChartTools first;
        VTestChartTools second;
        first.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("sv"), shortTexts())});
        first.switchLanguage(QStringLiteral("sv"));
        QCOMPARE(buttonTexts(User(first)), shortButtons());
        QCOMPARE(buttonTexts(User(second)), englishButtons());
    }

    void longTextsAreElided()
    {
        VTestChartTools tool;
        User user(tool);
        const QString text = QStringLiteral("Discard every change");
        tool.loadLanguageFiles({write(QStringLiteral("long.ts"), QStringLiteral("fi"), {{"Cancel", text}})});
        QVERIFY(user.show());
        tool.switchLanguage(QStringLiteral("fi"));
        QVERIFY(user.cancel()->text().endsWith(QChar(0x2026)));
        QVERIFY(user.cancel()->fontMetrics().horizontalAdvance(user.cancel()->text()) <=
                user.cancel()->width());
        QCOMPARE(user.cancel()->toolTip(), text);
        tool.switchLanguage(QString());
        QCOMPARE(user.cancel()->text(), QStringLiteral("Cancel"));
        QVERIFY(user.cancel()->toolTip().isEmpty());
    }

    void switchingKeepsTheChart()
    {
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        tool.updateShowSaveBtnStatus(false);
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("da"), shortTexts())});
        tool.switchLanguage(QStringLiteral("da"));
        QCOMPARE(tool.getTestChartToolsData(), smallRecord());
        QVERIFY(!user.replaceApply()->isEnabled());
        QVERIFY(!user.mask()->isVisible());
    }

    void languageFilesLackNothing_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(VD_SOURCE_DIR "/translations"));
        const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.ts")}, QDir::Files);
        for (const QFileInfo& file : files)
            QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
        if (files.isEmpty())
            QTest::newRow("no language file") << QString();
    }

    void languageFilesLackNothing()
    {
        QFETCH(QString, path);
        QVERIFY2(!path.isEmpty(), "there is no .ts file in " VD_SOURCE_DIR "/translations");
        const QString language = QFileInfo(path).completeBaseName();
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));

        // A file that is not loaded, or names another language, lacks nothing either.
        auto& translator = TranslateManager1::instance().translator();
        VTestChartTools tool;
        tool.loadLanguageFiles({path});
        translator.switchLanguage(language);
        translator.text(QStringLiteral("TestChartTools"), QStringLiteral("Widget"),
                        QStringLiteral("no such text"));
        QCOMPARE(lacking(log().messages(), language), QStringList("no such text"));
        log().clear();
        translator.switchLanguage(QString());

        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        tool.switchLanguage(language);
        user.click(user.colorBar());
        QVERIFY(user.settle());
        user.click(user.basicPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton")));
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        const QString name = addedName(tool);
        QVERIFY(name.endsWith(QLatin1String("7.png")));
        VTestChartTools builtInTheLanguage;

        const QStringList missing = log().messages(QStringLiteral(" lacks TestChartTools::"));
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    }
};

VD_TEST_MAIN(TestLanguageSwitching)
#include "tst_languageswitching.moc"
