#include "testcase.h"

#include <theme.h>
#include <theming.h>

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <functional>

using namespace vardeno::testcharttools;

namespace {

constexpr char theme[] = "[Colors]\n"
                         "Text01=FFEEEEF9\n"
                         "TspSurface01=80FF0000\n"
                         "[ImageFiles]\n"
                         "chess=:/pictures/chess.png\n"
                         "folder=pics/deep/a.png\n"
                         "dotted=./b.png\n"
                         "rooted=/c.png\n"
                         "late=abc/d.png\n"
                         "endless=pictures/of/the/theme/testcharttools.theme.image.endless\n"
                         "color=:/testcharttools.theme.color.color;\n"
                         "inner=:/x/testcharttools.theme.image.chess\n";

QString sourceFile(const char* path)
{
    QFile file(sourcePath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString inApplicationFolder(const char* path)
{
    return QCoreApplication::applicationDirPath() + QLatin1String(path);
}

/// The text behind each "testcharttools.theme.`kind`." of `sheet`, as far as it is word characters.
QStringList keysIn(const QString& sheet, const char* kind, const char* end)
{
    QStringList keys;
    const QRegularExpression pattern(QStringLiteral("testcharttools\\.theme\\.%1\\.(\\w+)%2")
                                         .arg(QLatin1String(kind), QLatin1String(end)));
    for (auto matches = pattern.globalMatch(sheet); matches.hasNext();)
        keys.append(matches.next().captured(1));
    return keys;
}

/// The replacements of colours and integers once more, without patterns: the first placeholder, again and
/// again.
QString replacedByHand(QString css, const QString& prefix,
                       const std::function<QString(const QString&)>& value)
{
    int begin = css.indexOf(prefix);
    while (begin >= 0) {
        int end = begin + prefix.size();
        while (end < css.size() && (css[end].isLetterOrNumber() || css[end] == QLatin1Char('_')))
            ++end;
        const QString key = css.mid(begin + prefix.size(), end - begin - prefix.size());
        const bool complete = !key.isEmpty() && end < css.size() && css[end] == QLatin1Char(';');
        if (complete)
            css = css.left(begin) + value(key) + css.mid(end);
        begin = css.indexOf(prefix, complete ? 0 : begin + 1);
    }
    return css;
}

QString randomSheet(QRandomGenerator& random)
{
    static const QStringList pieces = {"testcharttools.theme.color.",
                                       "testcharttools.theme.integer.",
                                       "testcharttools.theme.image.",
                                       "testcharttools.theme.",
                                       "testcharttools",
                                       ".theme.",
                                       "color.",
                                       "Text01",
                                       "TspSurface01",
                                       "Text02",
                                       "nothing",
                                       "px",
                                       ";",
                                       "; ",
                                       "}",
                                       "{",
                                       "#",
                                       ".",
                                       "url(",
                                       ")",
                                       "\n",
                                       "_",
                                       "é",
                                       "舞",
                                       "\\",
                                       "\"",
                                       "0"};
    QString sheet;
    for (int left = random.bounded(24); left > 0; --left)
        sheet += pieces.at(random.bounded(pieces.size()));
    return sheet;
}

} // namespace

class TestTheming : public TestCase
{
    Q_OBJECT

    QTemporaryDir folder;

private Q_SLOTS:
    void initTestCase()
    {
        init();
        log().allowWarning(QStringLiteral("Theme Color \\w+ is not set\\."));
        QVERIFY(Theming::themeValues().isEmpty()); // without a theme there is nothing to keep
        QFile file(folder.filePath(QStringLiteral("a.testcharttoolstheme")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(theme);
        file.close();
        auto* current = new Theme(QStringLiteral("testcharttools.theme"), this);
        QSettings settings(file.fileName(), QSettings::IniFormat);
        current->readSettings(settings);
        Theme::setCurrentTheme(current);
        cleanup();
        QCOMPARE(Theming::themeValues().size(), 163 + 8);
    }

    void colors_data()
    {
        QTest::addColumn<QString>("css");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << "QLabel { color: red; }"
                              << "QLabel { color: red; }";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("opaque") << "color:testcharttools.theme.color.Text01;"
                                << "color:#eeeef9;";
        QTest::newRow("translucent") << "color: testcharttools.theme.color.TspSurface01;}"
                                     << "color: #80ff0000;}";
        QTest::newRow("two")
            << "a:testcharttools.theme.color.Text01;b:testcharttools.theme.color.TspSurface01;"
            << "a:#eeeef9;b:#80ff0000;";
        QTest::newRow("without its end") << "testcharttools.theme.color.Text01 ;"
                                         << "testcharttools.theme.color.Text01 ;";
        QTest::newRow("of no theme") << "color:testcharttools.theme.color.Nothing;"
                                     << "color:;";
        QTest::newRow("not read") << "color:testcharttools.theme.color.Text02;"
                                  << "color:;";
        QTest::newRow("upper case prefix") << "Testcharttools.theme.color.Text01;"
                                           << "Testcharttools.theme.color.Text01;";
        QTest::newRow("a dot is a dot") << "testcharttoolsXtheme.color.Text01;"
                                        << "testcharttoolsXtheme.color.Text01;";
        QTest::newRow("nested") << "testcharttools.theme.color.testcharttools.theme.color.Text01;"
                                << "testcharttools.theme.color.#eeeef9;";
    }
    void colors()
    {
        QFETCH(QString, css);
        QFETCH(QString, expected);
        QCOMPARE(Theming::replaceCssColors(css), expected);
        QCOMPARE(Theming::replaceCssImages(css), css);
        QCOMPARE(Theming::replaceCssIntegers(css), css);
    }

    void images_data()
    {
        QTest::addColumn<QString>("css");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << "url(a.png)"
                              << "url(a.png)";
        QTest::newRow("resource") << "url(testcharttools.theme.image.chess)"
                                  << "url(:/pictures/chess.png)";
        QTest::newRow("close behind a short path")
            << "testcharttools.theme.image.chess testcharttools.theme.image.chess"
            << ":/pictures/chess.png testcharttools.theme.image.chess";
        QTest::newRow("farther behind it")
            << "url(testcharttools.theme.image.chess); image: url(testcharttools.theme.image.chess)"
            << "url(:/pictures/chess.png); image: url(:/pictures/chess.png)";
        QTest::newRow("relative") << "url(testcharttools.theme.image.folder)"
                                  << "url(" + inApplicationFolder("/pics/deep/a.png") + ")";
        QTest::newRow("of no theme") << "url(testcharttools.theme.image.nothing)"
                                     << "url(" + QCoreApplication::applicationDirPath() + ")";
        QTest::newRow("a colour of the theme")
            << "testcharttools.theme.image.Text01" << inApplicationFolder("/#eeeef9");
        QTest::newRow("brings one in") << "testcharttools.theme.image.inner"
                                       << ":/x/testcharttools.theme.image.chess";
        QTest::newRow("brings one in after its place")
            << "testcharttools.theme.image.inner;testcharttools.theme.image.chess"
            << ":/x/testcharttools.theme.image.chess;:/pictures/chess.png";
    }
    void images()
    {
        QFETCH(QString, css);
        QFETCH(QString, expected);
        QCOMPARE(Theming::replaceCssImages(css), expected);
    }

    void integers_data()
    {
        QTest::addColumn<QString>("css");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << "width: 3px;"
                              << "width: 3px;";
        QTest::newRow("missing") << "width:testcharttools.theme.integer.ChessLineWidth;"
                                 << "width:px;";
        QTest::newRow("without its end") << "testcharttools.theme.integer.Width}"
                                         << "testcharttools.theme.integer.Width}";
        QTest::newRow("nested") << "testcharttools.theme.integer.testcharttools.theme.integer.k;"
                                << "px;";
    }
    void integers()
    {
        QFETCH(QString, css);
        QFETCH(QString, expected);
        QCOMPARE(Theming::replaceCssIntegers(css), expected);
    }

    void missingPicturesAreLogged()
    {
        Theming::replaceCssImages(
            QStringLiteral("testcharttools.theme.image.chess testcharttools.theme.image.no"));
        const QStringList lines = log().messages(QStringLiteral("is not exist!"));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().endsWith(QStringLiteral("chess\t:/pictures/chess.png is not exist!")),
                 qPrintable(lines.first()));
    }

    void themePaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << "" << QCoreApplication::applicationDirPath();
        QTest::newRow("./") << "./b.png" << inApplicationFolder("/b.png");
        QTest::newRow("/") << "/c.png" << inApplicationFolder("/c.png");
        QTest::newRow("one character before") << "x/c.png" << inApplicationFolder("/c.png");
        QTest::newRow("two characters before") << "ab/c.png" << inApplicationFolder("/ab/c.png");
        QTest::newRow("three characters before") << "abc/d.png" << inApplicationFolder("/abc/d.png");
        QTest::newRow("no slash") << "d.png" << inApplicationFolder("/d.png");
        QTest::newRow("to be cleaned") << "pics//deep/./../d.png" << inApplicationFolder("/pics/d.png");
    }
    void themePaths()
    {
        QFETCH(QString, path);
        QFETCH(QString, expected);
        QCOMPARE(Theming::resolveThemePath(path), expected);
    }

    void aPictureThatBringsItselfInComesToAnEnd()
    {
        log().allowWarning(QStringLiteral("a theme value holds a placeholder of itself"));
        const QString sheet = Theming::replaceCssImages(QStringLiteral("testcharttools.theme.image.endless"));
        QVERIFY(sheet.startsWith(inApplicationFolder("/pictures/")));
        QVERIFY(sheet.size() < 1000000);
        QCOMPARE(log().messages(QStringLiteral("placeholder of itself")).size(), 1);
    }

    void aColorThatBringsItselfInComesToAnEnd()
    {
        log().allowWarning(QStringLiteral("a theme value holds a placeholder of itself"));
        Theming::replaceCssColors(QStringLiteral("testcharttools.theme.color.color;"));
        QCOMPARE(log().messages(QStringLiteral("placeholder of itself")).size(), 1);
    }

    void theValuesAreThoseOfTheFirstTheme()
    {
        auto* second = new Theme(QStringLiteral("second"), this);
        Theme::setCurrentTheme(second);
        QCOMPARE(Theming::replaceCssColors(QStringLiteral("testcharttools.theme.color.Text01;")),
                 QStringLiteral("#eeeef9;"));
        QCOMPARE(Theming::themeValues().size(), 163 + 8);
    }

    void theCompiledInSheet()
    {
        const QString sheet = sourceFile("vdpatterndesign/resources/vtestcharttools.qss");
        const QString defaults = sourceFile("vdpatterndesign/resources/default.testcharttoolstheme");
        const QStringList colors = keysIn(sheet, "color", ";");
        QCOMPARE(colors.size(), 120);
        QCOMPARE(sheet.count(QStringLiteral("testcharttools.theme.color.")), 120);
        for (const QString& key : colors)
            QVERIFY2(defaults.contains(QLatin1Char('\n') + key + QLatin1Char('=')), qPrintable(key));
        const QStringList images = keysIn(sheet, "image", "\\)");
        QCOMPARE(images.size(), sheet.count(QStringLiteral("testcharttools.theme.image.")));
        QVERIFY(images.size() > 20);
        for (const QString& key : images)
            QVERIFY2(defaults.contains(QLatin1Char('\n') + key + QLatin1String("=:/")), qPrintable(key));
        QVERIFY(!sheet.contains(QLatin1String("testcharttools.theme.integer.")));
        const QRegularExpression picture(QStringLiteral("url\\(:(/resources/[^)]+)\\)"));
        for (auto matches = picture.globalMatch(sheet); matches.hasNext();) {
            const QString path = matches.next().captured(1);
            QVERIFY2(QFile::exists(sourcePath("vdpatterndesign") + path), qPrintable(path));
        }
    }

    void theExampleThemeHasEveryKeyOfTheDefault()
    {
        const QString example = sourceFile("examples/themes/light/default.testcharttoolstheme");
        const QStringList lines =
            sourceFile("vdpatterndesign/resources/default.testcharttoolstheme").split(QLatin1Char('\n'));
        for (int i = lines.indexOf(QStringLiteral("[Colors]")); i < lines.indexOf(QStringLiteral("[Flags]"));
             ++i) {
            const QString key = lines.at(i).section(QLatin1Char('='), 0, 0);
            if (lines.at(i).contains(QLatin1Char('=')) && key != QLatin1String("DeleteButtonColor"))
                QVERIFY2(example.contains(QLatin1Char('\n') + key + QLatin1Char('=')), qPrintable(key));
        }
    }

    void randomSheets()
    {
        log().allowWarning(QStringLiteral("a theme value holds a placeholder of itself"));
        QRandomGenerator random(20260101);
        const auto color = [](const QString& key) {
            return key == QLatin1String("Text01")         ? QStringLiteral("#eeeef9")
                   : key == QLatin1String("TspSurface01") ? QStringLiteral("#80ff0000")
                                                          : QString();
        };
        for (int i = 0; i < rounds(100000); ++i) {
            const QString sheet = randomSheet(random);
            const QString colored = Theming::replaceCssColors(sheet);
            const QString expected =
                replacedByHand(sheet, QStringLiteral("testcharttools.theme.color."), color);
            if (colored != expected)
                QFAIL(qPrintable(sheet + QStringLiteral("\ngave\n") + colored));
            const QString pictured = Theming::replaceCssImages(colored);
            const QString done = Theming::replaceCssIntegers(pictured);
            const auto pixels = [](const QString& key) { return color_(key) + QStringLiteral("px"); };
            if (done != replacedByHand(pictured, QStringLiteral("testcharttools.theme.integer."), pixels))
                QFAIL(qPrintable(sheet + QStringLiteral("\ngave\n") + done));
        }
    }

    void randomThemeFiles()
    {
        log().allowWarning(QStringLiteral("."));
        QRandomGenerator random(20260102);
        static const QByteArray pieces[] = {"[Colors]",  "[ImageFiles]",
                                            "[General]", "\n",
                                            "\n",        "\r",
                                            "=",         "Text01",
                                            "Text02",    "ThemeName",
                                            "FF010203",  "@Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff)",
                                            "\\x40",     "\\100",
                                            "\"",        ";",
                                            "\\",        "%",
                                            "@",         ",",
                                            " ",         QByteArray(1, '\0'),
                                            "\xff\xfe",  "é",
                                            "[",         "]",
                                            "/",         "a/b",
                                            "QRect("};
        for (int i = 0; i < rounds(1500); ++i) {
            QFile file(folder.filePath(QStringLiteral("fuzz%1.testcharttoolstheme").arg(i)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            for (int left = random.bounded(60); left > 0; --left)
                file.write(pieces[random.bounded(int(std::size(pieces)))]);
            file.close();
            Theme fuzzed((QString()));
            QSettings settings(file.fileName(), QSettings::IniFormat);
            fuzzed.readSettings(settings);
            QVERIFY(fuzzed.values().size() >= 163);
            QVERIFY(!fuzzed.displayName().contains(QLatin1Char('@')));
            file.remove();
        }
    }

private:
    static QString color_(const QString& key) { return Theming::themeValues().value(key).toString(); }
};

VD_TEST_MAIN(TestTheming)
#include "tst_theming.moc"
