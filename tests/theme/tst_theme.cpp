#include "testcase.h"

#include <theme.h>

#include <QMetaEnum>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using namespace vardeno::testcharttools;

namespace {

const QString defaultTheme = sourcePath("vdpatterndesign/resources/default.testcharttoolstheme");
const QString lightTheme = sourcePath("examples/themes/light/default.testcharttoolstheme");

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QMetaEnum colorKeys()
{
    return QMetaEnum::fromType<Theme::Color>();
}

QStringList keysOf(const QMetaEnum& keys)
{
    QStringList names;
    for (int i = 0; i < keys.keyCount(); ++i)
        names.append(QLatin1String(keys.key(i)));
    return names;
}

} // namespace

class TestTheme : public TestCase
{
    Q_OBJECT

    QTemporaryDir folder;
    int files = 0;

    QString file(const QByteArray& content)
    {
        const QString path = folder.filePath(QStringLiteral("%1.testcharttoolstheme").arg(++files));
        QFile out(path);
        out.open(QIODevice::WriteOnly);
        out.write(content);
        return path;
    }

    static void read(Theme& theme, const QString& path)
    {
        QSettings settings(path, QSettings::IniFormat);
        theme.readSettings(settings);
    }

private Q_SLOTS:
    void colorKeysAreInOrder()
    {
        const QStringList keys = keysOf(colorKeys());
        QCOMPARE(keys.size(), 163);
        QCOMPARE(keys.first(), QStringLiteral("BasiceAttributeBarColor"));
        QCOMPARE(keys.at(24), QStringLiteral("GradientFontColot"));
        QCOMPARE(keys.at(59), QStringLiteral("ShowSequeLineEidtBackgroundColor"));
        QCOMPARE(keys.at(122), QStringLiteral("Primary01"));
        QCOMPARE(keys.at(160), QStringLiteral("B100"));
        QCOMPARE(keys.last(), QStringLiteral("colorStripeRemovePushButtonBorder"));
        QCOMPARE(int(Theme::colorStripeRemovePushButtonBorder), 162);
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), 163);
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(colorKeys().value(i), i);
        QCOMPARE(QMetaEnum::fromType<Theme::Integer>().keyCount(), 0);
    }

    void beginsEmpty()
    {
        const Theme theme(QStringLiteral("testcharttools.theme"));
        QCOMPARE(theme.id(), QStringLiteral("testcharttools.theme"));
        QVERIFY(theme.fileName().isEmpty());
        QVERIFY(theme.displayName().isEmpty());
        const QVariantMap values = theme.values();
        QCOMPARE(values.size(), 163);
        for (const QVariant& value : values) {
            QCOMPARE(value.userType(), int(QMetaType::QColor));
            QVERIFY(!value.value<QColor>().isValid());
        }
    }

    void namedColors_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque") << "FF424247" << QColor(66, 66, 71);
        QTest::newRow("translucent") << "80FF0000" << QColor(255, 0, 0, 128);
        QTest::newRow("lower case") << "ff3abcf0" << QColor(0x3a, 0xbc, 0xf0);
        QTest::newRow("no alpha") << "424247" << QColor(66, 66, 71, 0);
        QTest::newRow("with a prefix") << "0xFF424247" << QColor(66, 66, 71);
        QTest::newRow("more than 32 bits") << "12FF424247" << QColor(66, 66, 71);
    }
    void namedColors()
    {
        QFETCH(QString, text);
        QFETCH(QColor, color);
        const auto named = Theme(QString()).readNamedColor(text);
        QCOMPARE(named.first, color);
        QVERIFY(named.second.isNull());
    }

    void refusedColors_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"#000000", "red", "", "FF42424G", "FFFFFFFFFFFFFFFFF"})
            QTest::newRow(*text ? text : "empty") << text;
    }
    void refusedColors()
    {
        QFETCH(QString, text);
        const QString warning =
            QStringLiteral("Color \"%1\" is neither a named color nor a valid color").arg(text);
        log().allowWarning(QRegularExpression::escape(warning));
        const auto named = Theme(QString()).readNamedColor(text);
        QCOMPARE(named.first, QColor(Qt::black));
        QVERIFY(named.second.isNull());
        QCOMPARE(log().messages(warning).size(), 1);
        QVERIFY(log().messages(warning).first().contains(QLatin1String("Theme::readNamedColor(")));
    }

    void theDefaultThemeIsComplete()
    {
        Theme theme(QStringLiteral("testcharttools.theme"));
        read(theme, defaultTheme);
        QCOMPARE(theme.fileName(), defaultTheme);
        QCOMPARE(theme.displayName(), QStringLiteral("LmTestChartTools"));
        QVERIFY(log().messages(QStringLiteral("Theme Color ")).isEmpty());
        QCOMPARE(log().messages(QStringLiteral("Color \"#000000\"")).size(), 1);
        const QVariantMap values = theme.values();
        for (const QString& key : keysOf(colorKeys()))
            QVERIFY2(values.value(key).value<QColor>().isValid(), qPrintable(key));
    }

    void theDefaultThemesColors_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("BasiceAttributeBarColor") << QColor(0x42, 0x42, 0x47);
        QTest::newRow("BasicAttributeBackgroundColor") << QColor(0x3d, 0x3d, 0x40);
        QTest::newRow("ViewWidgetBackgroundColor") << QColor(8, 8, 8);
        QTest::newRow("AddButtonColor") << QColor(0x3d, 0x7d, 0xd4);
        QTest::newRow("GeneralButtonBackgroundNormal") << QColor(0x3d, 0x7d, 0xd4);
        QTest::newRow("GeneralButtonBackgroundHover") << QColor(0x45, 0x8c, 0xee);
        QTest::newRow("GeneralButtonBackgroundPressed") << QColor(0x35, 0x6c, 0xb8);
        QTest::newRow("SliderColor") << QColor(0x48, 0x9b, 0xc5);
        QTest::newRow("Primary01") << QColor(0x3a, 0xbc, 0xf0);
        QTest::newRow("Text01") << QColor(0xee, 0xee, 0xf9);
        QTest::newRow("Surface01") << QColor(0x48, 0x48, 0x51);
        QTest::newRow("Color_W100") << QColor(Qt::white);
        QTest::newRow("suggestLabel") << QColor(0x82, 0x82, 0x84);
        QTest::newRow("oddDefault") << QColor(0xfe, 0xa9, 0xfe);
        QTest::newRow("evenDefault") << QColor(0x55, 0xa9, 0xff);
        QTest::newRow("B100") << QColor(Qt::black);
    }
    void theDefaultThemesColors()
    {
        QFETCH(QColor, color);
        Theme theme((QString()));
        read(theme, defaultTheme);
        QCOMPARE(theme.values().value(QLatin1String(QTest::currentDataTag())).value<QColor>(), color);
    }

    void textsStandOut_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("ground");
        const std::initializer_list<std::pair<const char*, const char*>> texts = {
            {"Text01", "LayerSettingBackgroundColor"},
            {"Text03", "LayerSettingBackgroundColor"},
            {"LayerSettingFontColor", "LayerSettingBarColor"},
            {"ShowPersonalizationFontColor", "ShowPersonalizationBarBackgroundColor"},
            {"ModelSelectFontColor", "LayerSettingBackgroundColor"},
            {"ChessRadioButtonFontColor", "LayerSettingBackgroundColor"},
            {"ColorStripeRadioButtonFontColor", "LayerSettingBackgroundColor"},
            {"Text01", "EditBackgroundColor"},
            {"Text02", "EditBackgroundColor"},
            {"Text03", "EditBackgroundColor"},
            {"SelfTextInputFontColor", "SelfTextInputLineEditBackgroundColor"},
            {"Text01", "AssistButtonBackgroundNormal"},
            {"Text01", "AssistButtonBackgroundHover"},
            {"Text01", "AssistButtonBackgroundPressed"},
            {"Text01", "BtnColor"},
            {"TextOnPrimary", "GeneralButtonBackgroundNormal"},
            {"TextOnPrimary", "GeneralButtonBackgroundHover"},
            {"Color_W100", "GeneralButtonBackgroundPressed"},
            {"AddFontColor", "AddButtonColor"},
            {"Text02", "Surface05"},
            {"Text01", "CustomDialog"},
            {"Text02", "colorTitleWidgetColor"}};
        for (const QString& path : {defaultTheme, lightTheme}) {
            for (const auto& [text, ground] : texts)
                QTest::addRow("%s on %s, %s", text, ground, path == defaultTheme ? "dark" : "light")
                    << path << QString::fromUtf8(text) << QString::fromUtf8(ground);
        }
    }
    void textsStandOut()
    {
        QFETCH(QString, path);
        QFETCH(QString, text);
        QFETCH(QString, ground);
        Theme theme((QString()));
        read(theme, path);
        const QVariantMap values = theme.values();
        const double reached =
            contrast(values.value(text).value<QColor>(), values.value(ground).value<QColor>());
        QVERIFY2(reached >= 4.5, qPrintable(QString::number(reached)));
    }

    void theDefaultThemesOtherSections()
    {
        QSettings settings(defaultTheme, QSettings::IniFormat);
        const QStringList flags = {"PicLogo",        "SelectChessModel", "SelectLetterModel", "ShowBoxNum",
                                   "ShowCircle",     "ShowDiagonal",     "ShowLogo",          "ShowOutLine",
                                   "ShowResolution", "ShowSelfText",     "ShowSeque"};
        settings.beginGroup(QStringLiteral("Flags"));
        QCOMPARE(settings.allKeys(), flags);
        for (const QString& flag : flags)
            QCOMPARE(settings.value(flag).toString(), QStringLiteral("true"));
        settings.endGroup();
        settings.beginGroup(QStringLiteral("Integers"));
        QCOMPARE(settings.allKeys(), QStringList({"ChessLineWidth", "OpacityLineWidth", "SortLineWidth"}));
        for (const QString& key : settings.allKeys())
            QCOMPARE(settings.value(key).toInt(), 353);
    }

    void theDefaultThemesFileHasItsOddities()
    {
        QFile file(defaultTheme);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QCOMPARE(text.count("\nEditBorderColor="), 2);
        QCOMPARE(text.count("\nEditHighlightBorderColor="), 2);
        QCOMPARE(text.count("\nDeleteButtonColor="), 1);
        QCOMPARE(text.count("\nB100=#000000\n"), 1);
        QCOMPARE(text.count("/*upLogo="), 1);
    }

    void theDefaultThemesPicturesExist()
    {
        Theme theme((QString()));
        read(theme, defaultTheme);
        const QVariantMap values = theme.values();
        int pictures = 0;
        for (const QVariant& value : values) {
            if (value.userType() != QMetaType::QString || !value.toString().startsWith(QLatin1String(":/")))
                continue;
            ++pictures;
            const QString inSources = sourcePath("vdpatterndesign") + value.toString().mid(1);
            QString larger = inSources;
            larger.insert(larger.size() - 4, QLatin1String("@2x"));
            QVERIFY2(QFile::exists(inSources), qPrintable(inSources));
            QVERIFY2(QFile::exists(larger), qPrintable(larger));
        }
        QCOMPARE(pictures, 36 - 1); // the disabled one is none
        QCOMPARE(values.value(QStringLiteral("left_nor")).toString(),
                 QStringLiteral(":/resources/images/icon_zuo_nor.png"));
    }

    void aNameless_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << QByteArray() << "unnamed";
        QTest::newRow("named") << QByteArray("[General]\nThemeName=Stage\n") << "Stage";
        QTest::newRow("UTF-8") << QByteArray("[General]\nThemeName=Bühne 舞台\n")
                               << QStringLiteral("Bühne 舞台");
        QTest::newRow("with a comma") << QByteArray("[General]\nThemeName=Stage, left\n") << "Stage, left";
        QTest::newRow("in another section") << QByteArray("[Colors]\nThemeName=Stage\n") << "unnamed";
    }
    void aNameless()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        log().allowWarning(QStringLiteral("Theme Color \\w+ is not set\\."));
        Theme theme((QString()));
        read(theme, file(content));
        QCOMPARE(theme.displayName(), name);
    }

    void aMissingFileIsOneWithoutKeys()
    {
        log().allowWarning(QStringLiteral("Theme Color \\w+ is not set\\."));
        Theme theme((QString()));
        read(theme, folder.filePath(QStringLiteral("none.testcharttoolstheme")));
        QCOMPARE(theme.displayName(), QStringLiteral("unnamed"));
        QCOMPARE(log().messages(QStringLiteral("is not set.")).size(), 163);
    }

    void theFirstFileIsWarnedOf()
    {
        log().allowWarning(QStringLiteral("Theme Color \\w+ is not set\\."));
        Theme theme((QString()));
        read(theme, file("[Colors]\nText01=FF010203\n"));
        const QStringList warnings = log().messages(QStringLiteral("Theme Color "));
        QCOMPARE(warnings.size(), 162);
        QVERIFY2(warnings.first().contains(QLatin1String("Theme::readSettings(")),
                 qPrintable(warnings.first()));
        QVERIFY(warnings.first().endsWith(QLatin1String(" Theme Color BasiceAttributeBarColor is not set.")));
        QVERIFY(warnings.last().endsWith(
            QLatin1String(" Theme Color colorStripeRemovePushButtonBorder is not set.")));
        QVERIFY(log().messages(QStringLiteral("Theme Color Text01 ")).isEmpty());
    }

    void aSecondFileIsLaidOverTheFirst()
    {
        Theme theme((QString()));
        read(theme, defaultTheme);
        log().clear();
        read(
            theme,
            file("[Colors]\nText01=FF010203\nUnknown=FF000000\n[ImageFiles]\nreset=pics/r.png\nown=o.png\n"));
        QVERIFY(log().messages().isEmpty());
        QCOMPARE(theme.fileName(), defaultTheme);
        QCOMPARE(theme.displayName(), QStringLiteral("LmTestChartTools"));
        const QVariantMap values = theme.values();
        QCOMPARE(values.value(QStringLiteral("Text01")).value<QColor>(), QColor(1, 2, 3));
        QCOMPARE(values.value(QStringLiteral("Primary01")).value<QColor>(), QColor(0x3a, 0xbc, 0xf0));
        QCOMPARE(values.value(QStringLiteral("reset")).toString(), QStringLiteral("pics/r.png"));
        QCOMPARE(values.value(QStringLiteral("own")).toString(), QStringLiteral("o.png"));
        QVERIFY(!values.contains(QStringLiteral("Unknown")));
        read(theme, file("[General]\nThemeName=Second\n"));
        QCOMPARE(theme.displayName(), QStringLiteral("Second"));
    }

    void anEmptyNameFindsTheFirstColor()
    {
        Theme theme((QString()));
        read(theme, defaultTheme);
        QCOMPARE(theme.color(QString()), QColor(0x42, 0x42, 0x47));
        log().allowWarning(QStringLiteral("Not find Color type"));
        QCOMPARE(theme.color(QStringLiteral("Text01")), QColor(Qt::black));
        QCOMPARE(log().messages(QStringLiteral("Not find Color type \"Text01\"")).size(), 1);
    }

    void theCurrentTheme()
    {
        const QPointer<Theme> first = new Theme(QStringLiteral("first"));
        Theme::setCurrentTheme(first);
        Theme::setCurrentTheme(first);
        QVERIFY(first);
        QCOMPARE(Theme::currentTheme(), first.data());
        auto* second = new Theme(QStringLiteral("second"));
        Theme::setCurrentTheme(second);
        QVERIFY(!first);
        QCOMPARE(Theme::currentTheme(), second);
        delete second;
        QVERIFY(!Theme::currentTheme());
    }

    void valuesWithObjectsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("line");
        const QByteArray object = "Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff\\0\\0\\0\\0)";
        QTest::newRow("plain") << QByteArray("@" + object);
        QTest::newRow("quoted") << QByteArray("\"@" + object + "\"");
        QTest::newRow("in a list") << QByteArray("FF000000, @" + object);
        QTest::newRow("hexadecimal escape") << QByteArray("\\x40" + object);
        QTest::newRow("long hexadecimal escape") << QByteArray("\"\\x10040\"" + object);
        QTest::newRow("octal escape") << QByteArray("\\100" + object);
        QTest::newRow("continued") << QByteArray("\\\n@" + object);
        QTest::newRow("byte array") << QByteArray("@ByteArray(abc)");
        QTest::newRow("escaped at sign") << QByteArray("@@text");
    }
    void valuesWithObjectsAreRefused()
    {
        QFETCH(QByteArray, line);
        log().allowWarning(
            QStringLiteral("Theme Color \\w+ is not set\\.|a value with '@' is not read|is neither a"));
        Theme theme((QString()));
        const QString path = file("[General]\nThemeName=" + line + "\nMore=1\n[Colors]\nText02=" + line +
                                  "\n\nText01=FF010203\n[ImageFiles]\nreset=" + line + "\n\nchess=c.png\n");
        read(theme, path);
        QVERIFY(!log().messages(path + QStringLiteral(":")).isEmpty());
        const QVariantMap values = theme.values();
        QCOMPARE(values.value(QStringLiteral("Text01")).value<QColor>(), QColor(1, 2, 3));
        QCOMPARE(values.value(QStringLiteral("chess")).toString(), QStringLiteral("c.png"));
        QVERIFY(!values.value(QStringLiteral("reset")).toString().contains(QLatin1Char('@')));
        QVERIFY(!theme.displayName().contains(QLatin1Char('@')));
    }

    void aCommentMayHoldAnAtSign()
    {
        log().allowWarning(QStringLiteral("Theme Color \\w+ is not set\\."));
        Theme theme((QString()));
        read(theme, file("; by someone@example.com\n[General]\nThemeName=Stage\n"));
        QCOMPARE(theme.displayName(), QStringLiteral("Stage"));
        QVERIFY(log().messages(QStringLiteral("'@'")).isEmpty());
    }
};

VD_TEST_MAIN(TestTheme)
#include "tst_theme.moc"
