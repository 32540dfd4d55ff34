#include "desklanguage.h"
#include "languages.h"
#include "testcase.h"

#include <translatemanager1.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QPushButton>

/// Dates and the toolkit's own texts in the language of the window.
class TestDeskLanguage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const Language& language : languages())
            QVERIFY(TranslateManager1::instance().translator().load(language.file));
    }

    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void datesAreOfTheLanguage_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QLocale::Language>("language");
        QTest::newRow("de") << "de" << QLocale::German;
        QTest::newRow("es") << "es" << QLocale::Spanish;
        QTest::newRow("ja") << "ja" << QLocale::Japanese;
        QTest::newRow("zh_CN") << "zh_CN" << QLocale::Chinese;
    }

    void datesAreOfTheLanguage()
    {
        QFETCH(QString, code);
        QFETCH(QLocale::Language, language);
        QCOMPARE(localeOf(code).language(), language);
    }

    void oneWordForCancel_data()
    {
        QTest::addColumn<QString>("code");
        for (const Language& language : languages())
            QTest::newRow(qPrintable(language.code)) << language.code;
    }

    /// That of the editor's button, in the toolkit's dialogs, too.
    void oneWordForCancel()
    {
        QFETCH(QString, code);
        ToolkitTexts texts;
        TranslateManager1::instance().switchLanguage(code);
        texts.switchLanguage(code);
        const QDialogButtonBox box(QDialogButtonBox::Cancel);
        QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(),
                 TranslateManager1::instance().translator().text("TestChartTools", "Widget", "Cancel"));
    }

    void fileDialogsAreOfTheLanguage()
    {
        if (!QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm"))
            QSKIP("the toolkit's translations are not installed");
        ToolkitTexts texts;
        const QString english = QFileDialog::tr("Create New Folder");
        QCOMPARE(english, QString("Create New Folder"));
        texts.switchLanguage("de");
        QVERIFY(QFileDialog::tr("Create New Folder") != english);
        texts.switchLanguage("en");
        QCOMPARE(QFileDialog::tr("Create New Folder"), english);
        texts.switchLanguage("tlh"); // there is none
        QCOMPARE(QFileDialog::tr("Create New Folder"), english);
    }
};

VD_TEST_MAIN(TestDeskLanguage)
#include "tst_desklanguage.moc"
