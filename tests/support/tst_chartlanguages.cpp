#include "testcase.h"

#include <chartlanguages.h>
#include <translatemanager1.h>

#include <QFile>
#include <QLocale>

using namespace vardeno::testcharttools;

namespace {

QString editorText(const QString& source)
{
    return TranslateManager1::instance().translator().text(QStringLiteral("TestChartTools"),
                                                           QStringLiteral("Widget"), source);
}

} // namespace

class TestChartLanguages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void eachNamesItselfAndHasItsFile()
    {
        QStringList codes;
        QStringList names;
        for (const ChartLanguages::Language& language : ChartLanguages::list()) {
            codes.append(language.code);
            names.append(language.name);
            QVERIFY2(QFile::exists(language.file), qPrintable(language.file));
        }
        QCOMPARE(codes, QStringList({"de", "en", "es", "ja", "zh_CN"}));
        QCOMPARE(codes, ChartLanguages::codes());
        QCOMPARE(names,
                 QStringList({QStringLiteral("Deutsch"), QStringLiteral("English"), QStringLiteral("Español"),
                              QStringLiteral("日本語"), QStringLiteral("简体中文")}));
    }

    void oneCallLoadsThemAll()
    {
        log().allowWarning(QStringLiteral("xx.ts is not read: No such file"));
        QVERIFY(!ChartLanguages::load(QStringLiteral("xx")));
        QVERIFY(ChartLanguages::load());
        TranslateManager1::instance().switchLanguage(QStringLiteral("en"));
        QCOMPARE(editorText(QStringLiteral("BoxNumShow")), QStringLiteral("Cabinets"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("es"));
        QCOMPARE(editorText(QStringLiteral("BoxNumShow")), QStringLiteral("Gabinetes"));
    }

    void suitsTheSystem_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("code");
        QTest::newRow("language and country") << "zh_CN"
                                              << "zh_CN";
        QTest::newRow("another country") << "de_AT"
                                         << "de";
        QTest::newRow("one of the language") << "zh_TW"
                                             << "zh_CN";
        QTest::newRow("none") << "fi_FI"
                              << "en";
    }

    void suitsTheSystem()
    {
        QFETCH(QString, system);
        QFETCH(QString, code);
        QCOMPARE(ChartLanguages::codeFor(QLocale(system)), code);
    }
};

VD_TEST_MAIN(TestChartLanguages)
#include "tst_chartlanguages.moc"
