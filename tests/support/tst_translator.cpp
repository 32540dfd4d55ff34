#include "testcase.h"

#include <translator.h>

#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <utility>
#include <vector>

using vardeno::trans::Translator;

namespace {

QByteArray document(const QByteArray& language, const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"" +
           language + "\">\n" + content + "</TS>\n";
}

QByteArray context(const QByteArray& name, const QByteArray& messages)
{
    return "<context>\n    <name>" + name + "</name>\n" + messages + "</context>\n";
}

QByteArray message(const QByteArray& source, const QByteArray& translation, const QByteArray& attributes = {})
{
    return "    <message>\n        <source>" + source + "</source>\n        <translation" + attributes + ">" +
           translation + "</translation>\n    </message>\n";
}

QByteArray widgetTexts(const QByteArray& language, const QByteArray& messages)
{
    return document(language, context("TestChartTools::Widget", messages));
}

QByteArray chineseFile()
{
    return document("zh_CN", context("TestChartTools::Widget",
                                     message("Chess", "\xe6\xa3\x8b\xe7\x9b\x98") +
                                         message("Color bar", "\xe8\x89\xb2\xe6\x9d\xa1") +
                                         message("Rows &amp; columns", "\xe8\xa1\x8c &lt;\xe5\x88\x97&gt;")) +
                                 context("ChartDesk::Window", message("Chess", "&#x68cb;")));
}

QString translated(const Translator& translator, const QString& source)
{
    return translate(translator, QStringLiteral("TestChartTools"), QStringLiteral("Widget"), source);
}

/// Everything that `chineseFile` can be asked, and one text that it lacks.
QStringList chineseTexts(const Translator& translator)
{
    return {translated(translator, QStringLiteral("Chess")),
            translated(translator, QStringLiteral("Color bar")),
            translated(translator, QStringLiteral("Rows & columns")),
            translator.text(QStringLiteral("ChartDesk"), QStringLiteral("Window"), QStringLiteral("Chess")),
            translated(translator, QStringLiteral("Added"))};
}

} // namespace

class TestTranslator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QLoggingCategory::setFilterRules(QString());
        TestCase::cleanup();
    }

    void withoutFilesTextsTranslateToThemselves()
    {
        Translator translator;
        QCOMPARE(translator.language(), QString());
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chess"));
        translator.switchLanguage(QStringLiteral("zh_CN"));
        QCOMPARE(translator.language(), QStringLiteral("zh_CN"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chess"));
    }

    void switchesBetweenLanguages()
    {
        Translator translator;
        QVERIFY(translator.load(file("en.ts", widgetTexts("en", message("Chess", "Chessboard")))));
        QVERIFY(translator.load(file("zh.ts", chineseFile())));
        QCOMPARE(translator.language(), QString());
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chess"));

        translator.switchLanguage(QStringLiteral("en"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
        translator.switchLanguage(QStringLiteral("zh_CN"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("棋盘"));
        translator.switchLanguage(QStringLiteral("fr"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chess"));
        translator.switchLanguage(QStringLiteral("en"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
    }

    void anotherFileOfTheCurrentLanguageCountsAtOnce()
    {
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        QVERIFY(translator.load(file("en.ts", widgetTexts("en", message("Chess", "Chessboard")))));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
    }

    void laterFileWinsTextByText()
    {
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        const QByteArray first = message("A", "first A") + message("B", "first B") + message("D", "first D");
        const QByteArray second = message("B", "second B") + message("C", "second C") + message("D", "");
        QVERIFY(translator.load(file("first.ts", widgetTexts("en", first))));
        QVERIFY(translator.load(file("second.ts", widgetTexts("en", second))));
        QCOMPARE(translated(translator, QStringLiteral("A")), QStringLiteral("first A"));
        QCOMPARE(translated(translator, QStringLiteral("B")), QStringLiteral("second B"));
        QCOMPARE(translated(translator, QStringLiteral("C")), QStringLiteral("second C"));
        QCOMPARE(translated(translator, QStringLiteral("D")), QStringLiteral("first D"));
    }

    void anotherLanguageLeavesTheTextsAlone()
    {
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        QVERIFY(translator.load(file("en.ts", widgetTexts("en", message("Chess", "Chessboard")))));
        QVERIFY(translator.load(file("de.ts", widgetTexts("de", message("Chess", "Schachbrett")))));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
    }

    void copiesAreIndependent()
    {
        Translator translator;
        QVERIFY(translator.load(file("en.ts", widgetTexts("en", message("Chess", "Chessboard")))));
        translator.switchLanguage(QStringLiteral("en"));
        Translator copy = translator;
        QVERIFY(copy.load(file("en2.ts", widgetTexts("en", message("Chess", "Checkerboard")))));
        copy.switchLanguage(QStringLiteral("de"));
        QCOMPARE(translator.language(), QStringLiteral("en"));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
    }

    void refusedFiles_data()
    {
        // What a refused file would change if it were read as far as it goes.
        const QByteArray texts = message("Chess", "changed") + message("Added", "changed");
        const QByteArray valid = widgetTexts("zh_CN", texts);
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("only white space") << QByteArray(" \n\n");
        QTest::newRow("cut in the last tag") << valid.left(valid.size() - 3);
        QTest::newRow("cut after the last message") << valid.left(valid.indexOf("</context>"));
        QTest::newRow("cut in a translation") << valid.left(valid.lastIndexOf("changed") + 3);
        QTest::newRow("cut in the declaration") << valid.left(20);
        QTest::newRow("a second root element") << valid + "<TS/>";
        QTest::newRow("text after the root element") << valid + "and more";
        QTest::newRow("tags that cross")
            << QByteArray(valid).replace("</context>\n</TS>", "</TS>\n</context>");
        QTest::newRow("unknown entity") << QByteArray(valid).replace("changed", "&nothing;");
        QTest::newRow("not UTF-8") << QByteArray(valid).replace("changed", "\xff\xfe\xfd");
        QTest::newRow("control character") << QByteArray(valid).replace("changed", "\x01");
        QTest::newRow("plain text") << QByteArray("Chess = changed\n");
        QTest::newRow("JSON") << QByteArray("{\"Chess\": \"changed\"}");
        QTest::newRow("compiled messages")
            << QByteArray("\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf", 12);
        QTest::newRow("another root element")
            << QByteArray(valid).replace("<TS ", "<ts ").replace("</TS>", "</ts>");
        QTest::newRow("no language") << QByteArray(valid).replace(" language=\"zh_CN\"", "");
        QTest::newRow("empty language") << QByteArray(valid).replace("\"zh_CN\"", "\"\"");
    }

    void refusedFiles()
    {
        QFETCH(QByteArray, content);
        const QString path = file("broken.ts", content);
        verifyRefused(path);
        QCOMPARE(log().messages(path + QLatin1String(" is not read: ")).size(), 1);
    }

    void refusedPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing file") << m_folder.filePath(QStringLiteral("none.ts"));
        QTest::newRow("missing folder") << m_folder.filePath(QStringLiteral("none/none.ts"));
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("empty path") << QString();
    }

    void refusedPaths()
    {
        QFETCH(QString, path);
        if (path.isEmpty())
            log().allowWarning(QStringLiteral("^QFSFileEngine::open: "));
        verifyRefused(path);
    }

    void messageStates_data()
    {
        QTest::addColumn<QByteArray>("translation");
        QTest::addColumn<QByteArray>("attributes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("finished") << QByteArray("Chessboard") << QByteArray() << "Chessboard";
        QTest::newRow("unfinished") << QByteArray("Chessboard") << QByteArray(" type=\"unfinished\"")
                                    << "Chessboard";
        QTest::newRow("unfinished and empty")
            << QByteArray() << QByteArray(" type=\"unfinished\"") << "Chess";
        QTest::newRow("empty") << QByteArray() << QByteArray() << "Chess";
        QTest::newRow("obsolete") << QByteArray("Chessboard") << QByteArray(" type=\"obsolete\"") << "Chess";
        QTest::newRow("vanished") << QByteArray("Chessboard") << QByteArray(" type=\"vanished\"") << "Chess";
    }

    void messageStates()
    {
        QFETCH(QByteArray, translation);
        QFETCH(QByteArray, attributes);
        QFETCH(QString, expected);
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        const QByteArray texts = message("Chess", translation, attributes) + message("Color bar", "Bars");
        QVERIFY(translator.load(file("states.ts", widgetTexts("en", texts))));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), expected);
        QCOMPARE(translated(translator, QStringLiteral("Color bar")), QStringLiteral("Bars"));
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("sourceXml");
        QTest::addColumn<QByteArray>("translationXml");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        QTest::newRow("predefined entities")
            << QByteArray("&lt;b&gt; &amp; &quot;c&quot;") << QByteArray("&apos;d&apos;") << "<b> & \"c\""
            << "'d'";
        QTest::newRow("character reference")
            << QByteArray("Chess") << QByteArray("&#x68cb;&#30424;") << "Chess" << QStringLiteral("棋盘");
        QTest::newRow("UTF-8 on both sides")
            << QByteArray("\xe5\xa2\x9e\xe5\x8a\xa0") << QByteArray("\xc3\x84nderung")
            << QStringLiteral("增加") << QStringLiteral("Änderung");
        QTest::newRow("spaces at the ends")
            << QByteArray("Mode selection  ") << QByteArray(" Mode ") << "Mode selection  "
            << " Mode ";
        QTest::newRow("two lines") << QByteArray("first\nsecond") << QByteArray("1\n2") << "first\nsecond"
                                   << "1\n2";
        QTest::newRow("literal section") << QByteArray("Chess") << QByteArray("<![CDATA[a < b]]>") << "Chess"
                                         << "a < b";
        QTest::newRow("comments are no text")
            << QByteArray("Ch<!-- a comment -->ess") << QByteArray("Chess<!-- another -->board") << "Chess"
            << "Chessboard";
        QTest::newRow("instructions are no text")
            << QByteArray("Ch<?a b?>ess") << QByteArray("Chess<?c d?>board") << "Chess"
            << "Chessboard";
        QTest::newRow("text of nested elements")
            << QByteArray("Chess") << QByteArray("<numerusform>Chess</numerusform>board") << "Chess"
            << "Chessboard";
    }

    void texts()
    {
        QFETCH(QByteArray, sourceXml);
        QFETCH(QByteArray, translationXml);
        QFETCH(QString, source);
        QFETCH(QString, translation);
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        QVERIFY(translator.load(file("texts.ts", widgetTexts("en", message(sourceXml, translationXml)))));
        QCOMPARE(translated(translator, source), translation);
    }

    void elementsOfOtherToolsAreSkipped()
    {
        const QByteArray chess =
            "    <message id=\"7\">\n        <location filename=\"a.cpp\" line=\"1\"/>\n"
            "        <source>Chess</source>\n        <comment>the pattern</comment>\n"
            "        <extracomment>x</extracomment>\n        <translation>Chessboard</translation>\n"
            "        <extra-mark>y</extra-mark>\n    </message>\n";
        const QByteArray content = "<dependencies><dependency catalog=\"base\"/></dependencies>\n" +
                                   context("TestChartTools::Widget", "    <comment>z</comment>\n" + chess);
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        QVERIFY(translator.load(file("extras.ts", document("en", content))));
        QCOMPARE(translated(translator, QStringLiteral("Chess")), QStringLiteral("Chessboard"));
    }

    void moduleAndContextAreTheKey_data()
    {
        QTest::addColumn<QString>("module");
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("expected");
        QTest::newRow("both as in the file") << "TestChartTools"
                                             << "Widget"
                                             << "Chess"
                                             << "Chessboard";
        QTest::newRow("the other module") << "ChartDesk"
                                          << "Widget"
                                          << "Chess"
                                          << "Desk";
        QTest::newRow("the other context") << "TestChartTools"
                                           << "Dialog"
                                           << "Chess"
                                           << "Dialog";
        QTest::newRow("a module that no file has") << "Desk"
                                                   << "Widget"
                                                   << "Chess"
                                                   << "Chess";
        QTest::newRow("a context that no file has") << "TestChartTools"
                                                    << "Window"
                                                    << "Chess"
                                                    << "Chess";
        QTest::newRow("module and context swapped") << "Widget"
                                                    << "TestChartTools"
                                                    << "Chess"
                                                    << "Chess";
        QTest::newRow("no module") << ""
                                   << "Widget"
                                   << "Chess"
                                   << "Chess";
        QTest::newRow("no context") << "TestChartTools"
                                    << ""
                                    << "Chess"
                                    << "Chess";
        QTest::newRow("another case of the source") << "TestChartTools"
                                                    << "Widget"
                                                    << "chess"
                                                    << "chess";
        QTest::newRow("context and source run together") << "TestChartTools"
                                                         << "Widge"
                                                         << "tChess"
                                                         << "tChess";
    }

    void moduleAndContextAreTheKey()
    {
        QFETCH(QString, module);
        QFETCH(QString, context);
        QFETCH(QString, source);
        QFETCH(QString, expected);
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        QVERIFY(translator.load(file("keys.ts", threeContexts())));
        QCOMPARE(translate(translator, module, context, source), expected);
        QCOMPARE(translator.text(module, context, source), expected);
    }

    void languageNames_data()
    {
        QTest::addColumn<QByteArray>("inFile");
        QTest::addColumn<QString>("switchedTo");
        QTest::addColumn<bool>("same");
        QTest::newRow("underscore in both") << QByteArray("zh_CN") << "zh_CN" << true;
        QTest::newRow("hyphen in the switch") << QByteArray("zh_CN") << "zh-CN" << true;
        QTest::newRow("hyphen in the file") << QByteArray("zh-CN") << "zh_CN" << true;
        QTest::newRow("hyphen in both") << QByteArray("zh-CN") << "zh-CN" << true;
        QTest::newRow("another country") << QByteArray("zh_CN") << "zh_TW" << false;
        QTest::newRow("no country") << QByteArray("zh_CN") << "zh" << false;
        QTest::newRow("no language") << QByteArray("zh_CN") << "" << false;
    }

    void languageNames()
    {
        QFETCH(QByteArray, inFile);
        QFETCH(QString, switchedTo);
        QFETCH(bool, same);
        Translator translator;
        QVERIFY(translator.load(file("names.ts", widgetTexts(inFile, message("Chess", "Qi")))));
        translator.switchLanguage(switchedTo);
        QCOMPARE(translated(translator, QStringLiteral("Chess")),
                 same ? QStringLiteral("Qi") : QStringLiteral("Chess"));
        if (same)
            QCOMPARE(translator.language(), QStringLiteral("zh_CN"));
    }

    void missingTextIsLoggedByName()
    {
        Translator translator;
        QVERIFY(translator.load(file("zh.ts", chineseFile())));
        translator.switchLanguage(QStringLiteral("zh-CN"));
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        translated(translator, QStringLiteral("Chess"));
        QCOMPARE(log().messages(), QStringList());

        translated(translator, QStringLiteral("Box RowColNum"));
        QCOMPARE(log().messages(),
                 QStringList(QStringLiteral("zh_CN lacks TestChartTools::Widget Box RowColNum")));
    }

    void missingTextIsSilentByDefault()
    {
        Translator translator;
        QVERIFY(translator.load(file("zh.ts", chineseFile())));
        translator.switchLanguage(QStringLiteral("zh_CN"));
        log().clear();
        translated(translator, QStringLiteral("Box RowColNum"));
        QCOMPARE(log().messages(), QStringList());
    }

    void languageWithoutFilesLacksNothing()
    {
        Translator translator;
        QVERIFY(translator.load(file("zh.ts", chineseFile())));
        translator.switchLanguage(QStringLiteral("fr"));
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        translated(translator, QStringLiteral("Box RowColNum"));
        QCOMPARE(log().messages(), QStringList());
    }

    void entityExpansionIsRefusedSoon()
    {
        QByteArray entities = "<!ENTITY e0 \"0123456789\">\n";
        for (int level = 1; level <= 12; ++level) {
            const QByteArray lower = "&e" + QByteArray::number(level - 1) + ";";
            entities += "<!ENTITY e" + QByteArray::number(level) + " \"" + lower.repeated(10) + "\">\n";
        }
        const QByteArray bomb = widgetTexts("zh_CN", message("Chess", "&e12;"))
                                    .replace("<!DOCTYPE TS>", "<!DOCTYPE TS [\n" + entities + "]>");
        QElapsedTimer elapsed;
        elapsed.start();
        verifyRefused(file("bomb.ts", bomb));
        QVERIFY2(elapsed.elapsed() < 10000, qPrintable(QString::number(elapsed.elapsed())));
    }

    void hugeFilesAreRefused()
    {
        const QString path = file("huge.ts", chineseFile());
        QFile huge(path);
        QVERIFY(huge.resize(100LL * 1000 * 1000)); // which takes no room
        verifyRefused(path);
        QCOMPARE(log()
                     .messages(path + QLatin1String(" is not read: 100000000 bytes are more than 4194304"))
                     .size(),
                 1);
    }

    void damagedFilesNeverHarm()
    {
        const QByteArray original = chineseFile();
        Translator intact;
        QVERIFY(intact.load(file("intact.ts", original)));
        intact.switchLanguage(QStringLiteral("zh_CN"));
        const QStringList before = chineseTexts(intact);

        log().allowWarning(QStringLiteral("damaged.ts is not read: "));
        QRandomGenerator random(20240131);
        int refused = 0;
        int loaded = 0;
        QElapsedTimer elapsed;
        elapsed.start();
        for (int round = 0; round < 2000; ++round) {
            Translator translator = intact;
            if (translator.load(file("damaged.ts", damaged(original, random)))) {
                ++loaded;
                continue;
            }
            ++refused;
            QCOMPARE(chineseTexts(translator), before);
            QCOMPARE(translator.language(), QStringLiteral("zh_CN"));
        }
        QVERIFY2(elapsed.elapsed() < 60000, qPrintable(QString::number(elapsed.elapsed())));

        QVERIFY2(refused > 100, qPrintable(QString::number(refused)));
        QVERIFY2(loaded > 100, qPrintable(QString::number(loaded)));
    }

    void deepNestingIsReadOrRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        constexpr int depth = 200000;
        const QByteArray nested =
            QByteArray("<b>").repeated(depth) + "deep" + QByteArray("</b>").repeated(depth);
        QTest::newRow("skipped element") << widgetTexts("en", nested + message("Chess", "deep"));
        QTest::newRow("in a context's name") << document(
            "en", context(nested, {}) + context("TestChartTools::Widget", message("Chess", "deep")));
        QTest::newRow("in a source text")
            << widgetTexts("en", message(nested, "x") + message("Chess", "deep"));
        QTest::newRow("in a translation") << widgetTexts("en", message("Chess", nested));
    }

    void deepNestingIsReadOrRefused()
    {
        QFETCH(QByteArray, content);
        Translator translator;
        translator.switchLanguage(QStringLiteral("en"));
        log().allowWarning(QStringLiteral("deep.ts is not read: "));
        const bool loaded = translator.load(file("deep.ts", content));
        QCOMPARE(translated(translator, QStringLiteral("Chess")),
                 loaded ? QStringLiteral("deep") : QStringLiteral("Chess"));
    }

private:
    /// Writes a file into the test's folder and returns its path.
    QString file(const char* name, const QByteArray& content) const
    {
        QFile device(m_folder.filePath(QLatin1String(name)));
        device.remove(); // a file that is cut and written anew goes to the disk each time
        const bool written = device.open(QIODevice::WriteOnly) && device.write(content) == content.size();
        return written ? device.fileName() : QString();
    }

    /// One to four bytes of `original`, each replaced by any byte or by one of its own.
    static QByteArray damaged(QByteArray original, QRandomGenerator& random)
    {
        const int bytes = random.bounded(1, 5);
        for (int i = 0; i < bytes; ++i) {
            const char any = char(random.bounded(256));
            const char own = original.at(random.bounded(original.size()));
            original[random.bounded(original.size())] = random.bounded(2) == 0 ? any : own;
        }
        return original;
    }

    static QByteArray threeContexts()
    {
        return document("en", context("TestChartTools::Widget", message("Chess", "Chessboard")) +
                                  context("ChartDesk::Widget", message("Chess", "Desk")) +
                                  context("TestChartTools::Dialog", message("Chess", "Dialog")));
    }

    void verifyRefused(const QString& path)
    {
        Translator translator;
        QVERIFY(translator.load(file("intact.ts", chineseFile())));
        translator.switchLanguage(QStringLiteral("zh_CN"));
        const QStringList before = chineseTexts(translator);
        QCOMPARE(before.first(), QStringLiteral("棋盘"));
        log().allowWarning(QStringLiteral(" is not read: "));
        QVERIFY(!translator.load(path));
        QCOMPARE(chineseTexts(translator), before);
        QCOMPARE(translator.language(), QStringLiteral("zh_CN"));
    }

    QTemporaryDir m_folder;
};

VD_TEST_MAIN(TestTranslator)
#include "tst_translator.moc"
