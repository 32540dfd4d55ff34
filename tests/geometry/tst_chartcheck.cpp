#include "testcase.h"

#include <chartcheck.h>
#include <translatemanager1.h>

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <functional>

#include <sys/stat.h>

using namespace vardeno::testcharttools;

namespace {

using Change = std::function<void(TestChartToolsData& record)>;

/// Nothing but a chessboard, border, lines and labels.
TestChartToolsData plainRecord()
{
    TestChartToolsData record;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    return record;
}

std::string pictureFile(const QTemporaryDir& folder, const QSize& size)
{
    const QString path = folder.filePath(QStringLiteral("%1x%2.png").arg(size.width()).arg(size.height()));
    QImage picture(size, QImage::Format_Mono);
    picture.fill(0);
    picture.save(path);
    return path.toStdString();
}

/// With the logo's picture, and no labels for it to lie over.
void showPicture(TestChartToolsData& record, const std::string& path)
{
    record.logoData.showLogo = true;
    record.logoData.picturePath = path;
    record.inLineData.showSerialNumber = false;
}

std::string noiseFile(const QTemporaryDir& folder)
{
    const QString path = folder.filePath(QStringLiteral("noise.png"));
    QImage picture(64, 64, QImage::Format_RGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32*>(picture.bits()), 64 * 64);
    picture.save(path);
    return path.toStdString();
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestChartCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDefaultRecordIsHonestAndQuiet()
    {
        const QStringList expected = {
            "logoData.showLogo: the logo lies over the labels of 12 of 144 cabinets, first D-G",
            "selfData.showSelfText: \"www.example.com\" lies under the logo",
            "selfData.showResolution: the resolution lies over the labels of 4 of 144 cabinets, first H-G"};
        QCOMPARE(ChartCheck::warnings(TestChartToolsData()), expected);
        QCOMPARE(ChartCheck::warnings(plainRecord()), QStringList());
    }

    void theResolutionIsMeasuredInTheLanguage()
    {
        TranslateManager1& languages = TranslateManager1::instance();
        QVERIFY(languages.translator().load(sourcePath("translations/en.ts")));
        languages.switchLanguage(QStringLiteral("en"));
        TestChartToolsData record = plainRecord();
        record.selfData.showResolution = true;
        const QStringList expected = {
            "selfData.showResolution: the resolution lies over the labels of 8 of 144 cabinets, first H-E"};
        QCOMPARE(ChartCheck::warnings(record), expected);
        languages.switchLanguage(QString());
    }

    void pattern_data()
    {
        addColumns();
        add("two patterns", [](auto& r) { r.basicData.colorBarChecked = true; },
            {"basicData.chessChecked: basicData.colorBarChecked is true as well; the color bar is drawn",
             "basicData.colorStripeColors: no colors; no stripes are drawn"});
        add("no pattern", [](auto& r) { r.basicData.chessChecked = false; },
            {"basicData.chessChecked: basicData.colorBarChecked is false as well; the record does not say "
             "what to draw"});
        add("stripes that divide the width", [](auto& r) { showStripes(r, 16); }, {});
        add("stripes with a remainder", [](auto& r) { showStripes(r, 7); },
            {"basicData.colorStripeColors: 1920 pixels / 7 stripes leave a remainder of 2, which stays "
             "black"});
        add("more stripes than pixels",
            [](auto& r) {
                showStripes(r, 17);
                r.publicData.resolutionWidth = 16;
                r.publicData.boxCol = 1;
            },
            {"basicData.colorStripeColors: 17 stripes do not fit 16 pixels; none is drawn",
             "inLineData.serialSize: 20 pixels do not fit a cabinet of 16 x 120 pixels; drawn at 4, below "
             "the "
             "10 that can be read"});
        add("gradient",
            [](auto& r) {
                showStripes(r, 7);
                r.basicData.gradientChecked = true;
            },
            {});
        add("brightness 0 under a border", [](auto& r) { r.publicData.brightness = 0; },
            {"publicData.brightness: 0 percent leaves nothing but the outer border"});
        add("brightness 0",
            [](auto& r) {
                r.publicData.brightness = 0;
                r.publicData.showOutBorder = false;
            },
            {"publicData.brightness: 0 percent leaves a black chart"});
        add("brightness 1", [](auto& r) { r.publicData.brightness = 1; },
            {"publicData.brightness: 1 percent leaves 2 of 255 levels, which are hardly seen"});
        add("brightness 10", [](auto& r) { r.publicData.brightness = 10; }, {});
        add("one colour twice", [](auto& r) { r.basicData.evenColor = r.basicData.oddColor; },
            {"basicData.evenColor: the same as basicData.oddColor; the cabinets cannot be told apart by it"});
        add("one colour twice under alpha 0",
            [](auto& r) {
                r.basicData.oddColor = {9, 9, 9, 0};
                r.basicData.evenColor = {0, 0, 0, 255};
                r.inLineData.serialColor = {255, 255, 255, 255};
            },
            {"basicData.evenColor: the same as basicData.oddColor; the cabinets cannot be told apart by it"});
        add("one cabinet",
            [](auto& r) {
                r.basicData.evenColor = r.basicData.oddColor;
                r.publicData.boxRow = 1;
                r.publicData.boxCol = 1;
            },
            {});
        add("a flood",
            [](auto& r) {
                r.basicData.evenColor = r.basicData.oddColor;
                r.inLineData.showCircle = false;
                r.inLineData.showDiagonal = false;
                r.inLineData.showSerialNumber = false;
            },
            {});
    }
    void pattern() { check(); }

    void grid_data()
    {
        addColumns();
        add("columns", [](auto& r) { r.publicData.boxCol = 7; },
            {"publicData.boxCol: 1920 pixels / 7 cabinets leave a remainder of 2"});
        add("rows", [](auto& r) { r.publicData.boxRow = 11; },
            {"publicData.boxRow: 1080 pixels / 11 cabinets leave a remainder of 2"});
        add("both",
            [](auto& r) {
                r.publicData.resolutionWidth = 1921;
                r.publicData.resolutionHeight = 1081;
            },
            {"publicData.boxRow: 1081 pixels / 9 cabinets leave a remainder of 1",
             "publicData.boxCol: 1921 pixels / 16 cabinets leave a remainder of 1"});
        add("as many as pixels",
            [](auto& r) {
                r.publicData.resolutionWidth = 16;
                r.inLineData.showSerialNumber = false;
            },
            {});
        add("more than pixels",
            [](auto& r) {
                r.publicData.resolutionHeight = 16;
                r.publicData.boxRow = 17;
                r.inLineData.showSerialNumber = false;
            },
            {"publicData.boxRow: 17 cabinets do not fit 16 pixels"});
    }
    void grid() { check(); }

    void labels_data()
    {
        addColumns();
        add("too large, but readable", [](auto& r) { r.inLineData.serialSize = 100; }, {});
        add("small because it was asked for", [](auto& r) { r.inLineData.serialSize = 1; },
            {"inLineData.serialSize: 1 pixels are below the 10 that can be read"});
        add("just readable", [](auto& r) { r.inLineData.serialSize = 10; }, {});
        add("shrunk",
            [](auto& r) {
                r.publicData.boxRow = 60;
                r.inLineData.letterMode = false;
                r.inLineData.numMode = true;
            },
            {QStringLiteral(
                 "inLineData.serialSize: 20 pixels do not fit a cabinet of 120 x 18 pixels; drawn at %1, "
                 "below the 10 that can be read")
                 .arg(QT_VERSION_MAJOR == 5 ? 7 : 8)});
        add("shrunk a little from a small size",
            [](auto& r) {
                r.publicData.boxRow = 60;
                r.inLineData.serialSize = 7;
                r.inLineData.letterMode = false;
                r.inLineData.numMode = true;
            },
            {"inLineData.serialSize: 7 pixels are below the 10 that can be read"});
        add("in the colour of every other cabinet",
            [](auto& r) {
                r.inLineData.serialColor = {85, 175, 255, 255};
            },
            {"inLineData.serialColor: the labels of 72 of 144 cabinets can hardly be told from the cabinet, "
             "first A-B"});
        add("nearly clear", [](auto& r) { r.inLineData.serialColor.alpha = 5; },
            {"inLineData.serialColor: the labels of 144 of 144 cabinets can hardly be told from the cabinet, "
             "first A-A"});
        add("letters wrap",
            [](auto& r) {
                r.publicData.boxRow = 27;
                r.publicData.boxCol = 30;
            },
            {"publicData.boxRow: the letters of 27 rows repeat after 26; labels are not unique",
             "publicData.boxCol: the letters of 30 columns repeat after 26; labels are not unique"});
        add("letters and numbers wrap once",
            [](auto& r) {
                r.publicData.boxRow = 27;
                r.publicData.boxCol = 30;
                r.inLineData.letterMode = false;
                r.inLineData.combinationMode = true;
            },
            {"publicData.boxRow: the letters of 27 rows repeat after 26; labels are not unique"});
        add("two modes", [](auto& r) { r.inLineData.numMode = true; },
            {"inLineData.letterMode, numMode, combinationMode: more than one is true; numMode decides"});
        add("no mode", [](auto& r) { r.inLineData.letterMode = false; },
            {"inLineData.letterMode, numMode, combinationMode: none is true; the record does not say how to "
             "label"});
        add("clear", [](auto& r) { r.inLineData.serialColor.alpha = 0; },
            {"inLineData.serialColor: alpha 0 draws no labels"});
        add("clear and off",
            [](auto& r) {
                r.inLineData.serialColor.alpha = 0;
                r.inLineData.showSerialNumber = false;
            },
            {});
        add("clear lines",
            [](auto& r) {
                r.inLineData.circleColor.alpha = 0;
                r.inLineData.diagonalColor.alpha = 0;
                r.publicData.outBorderColor.alpha = 0;
            },
            {"publicData.outBorderColor: alpha 0 draws no outer border",
             "inLineData.circleColor: alpha 0 draws no circles",
             "inLineData.diagonalColor: alpha 0 draws no diagonals"});
    }
    void labels() { check(); }

    void pictureLogo_data()
    {
        addColumns();
        const std::string wide = pictureFile(m_folder, {1200, 600});
        add("a third exactly", [=](auto& r) { showPicture(r, pictureFile(m_folder, {960, 720})); }, {});
        add("more than a third", [=](auto& r) { showPicture(r, wide); },
            {"logoData.scale: at 100 percent the logo covers 1200 x 600 pixels of the chart, 34 percent, "
             "more "
             "than a third of it"});
        add("scaled", [=](auto& r) { showPicture(r, wide), r.logoData.scale = 150; },
            {"logoData.scale: at 150 percent the logo covers 1800 x 900 pixels of the chart, 78 percent, "
             "more "
             "than a third of it"});
        add("cut by the chart", [=](auto& r) { showPicture(r, wide), r.logoData.scale = 200; },
            {"logoData.scale: at 200 percent the logo covers 1920 x 1080 pixels of the chart, 100 percent, "
             "more than a third of it"});
        add("scaled down", [=](auto& r) { showPicture(r, wide), r.logoData.scale = 97; }, {});
        add("over labels",
            [=](auto& r) {
                showPicture(r, wide);
                r.logoData.scale = 10;
                r.logoData.displayPosition = 1;
                r.inLineData.showSerialNumber = true;
            },
            {"logoData.showLogo: the logo lies over the labels of 1 of 144 cabinets, first A-A"});
        add("moved between labels",
            [=](auto& r) {
                showPicture(r, wide);
                r.logoData.scale = 10;
                r.logoData.displayPosition = 1;
                r.logoData.offsetY = 80;
                r.inLineData.showSerialNumber = true;
            },
            {});
        add("scale 0", [=](auto& r) { showPicture(r, wide), r.logoData.scale = 0; },
            {"logoData.scale: 0 percent draws no logo"});
        add("opacity 0", [=](auto& r) { showPicture(r, wide), r.logoData.opacity = 0; },
            {"logoData.opacity: 0 percent draws no logo"});
        add("two styles", [=](auto& r) { showPicture(r, wide), r.logoData.textLogo = true; },
            {"logoData.pictureLogo: logoData.textLogo is true as well; the text is drawn"});
        add("no style",
            [=](auto& r) {
                showPicture(r, wide);
                r.logoData.scale = 50;
                r.logoData.pictureLogo = false;
            },
            {"logoData.pictureLogo: logoData.textLogo is false as well; the record does not say what to "
             "draw"});
    }
    void pictureLogo() { check(); }

    /// Of which some draw no logo.
    void pictureFiles_data()
    {
        addColumns();
        add("missing", [=](auto& r) { showPicture(r, "/nowhere/logo.png"); },
            {"logoData.picturePath: \"/nowhere/logo.png\" does not exist; no logo is drawn"});
        const std::string source = sourcePath("README.md").toStdString();
        add("no picture", [=](auto& r) { showPicture(r, source); },
            {QStringLiteral(
                 "logoData.picturePath: \"%1\" is not a picture that can be read; no logo is drawn")
                 .arg(QString::fromStdString(source))});
        // Compressed noise, so that what is missing is missed.
        const std::string whole = noiseFile(m_folder);
        const std::string cut = m_folder.filePath(QStringLiteral("cut.png")).toStdString();
        QVERIFY(QFile::copy(QString::fromStdString(whole), QString::fromStdString(cut)));
        QVERIFY(QFile::resize(QString::fromStdString(cut), 5000));
        add("cut off", [=](auto& r) { showPicture(r, cut); },
            {QStringLiteral("logoData.picturePath: \"%1\" cannot be read to its end; no logo is drawn")
                 .arg(QString::fromStdString(cut))});
        add("not cut off", [=](auto& r) { showPicture(r, whole); }, {});
        const std::string pipe = m_folder.filePath(QStringLiteral("pipe.png")).toStdString();
        QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
        add("a pipe, which nobody writes to", [=](auto& r) { showPicture(r, pipe); },
            {QStringLiteral(
                 "logoData.picturePath: \"%1\" is not a picture that can be read; no logo is drawn")
                 .arg(QString::fromStdString(pipe))});
        const std::string large = pictureFile(m_folder, {3841, 8});
        add("too large", [=](auto& r) { showPicture(r, large); },
            {QStringLiteral(
                 "logoData.picturePath: \"%1\" is larger than 3840 x 3840 pixels; no logo is drawn")
                 .arg(QString::fromStdString(large))});
        add("missing and off",
            [=](auto& r) {
                showPicture(r, "/nowhere/logo.png");
                r.logoData.showLogo = false;
            },
            {});
    }
    void pictureFiles() { check(); }

    void textLogo_data()
    {
        addColumns();
        const auto show = [](TestChartToolsData& r, const std::string& text) {
            r.logoData.showLogo = true;
            r.logoData.pictureLogo = false;
            r.logoData.textLogo = true;
            r.logoData.logoText = text;
            r.inLineData.showSerialNumber = false;
        };
        add("usual", [=](auto& r) { show(r, "Logo"); }, {});
        add("large on a small chart",
            [=](auto& r) {
                show(r, "{gQg}");
                r.publicData.resolutionWidth = 240;
                r.publicData.resolutionHeight = 81;
            },
            {QStringLiteral(
                 "logoData.textSize: at 100 pixels the logo covers %1 percent, more than a third of it")
                 .arg(QT_VERSION_MAJOR == 5 ? QStringLiteral("167 x 52 pixels of the chart, 44")
                                            : QStringLiteral("171 x 53 pixels of the chart, 46"))});
        add("over labels",
            [=](auto& r) {
                show(r, "Logo");
                r.inLineData.showSerialNumber = true;
            },
            {"logoData.showLogo: the logo lies over the labels of 2 of 144 cabinets, first E-H"});
        add("too long", [=](auto& r) { show(r, std::string(300, 'M')); },
            {QStringLiteral(
                 "logoData.textSize: 100 pixels are too many for \"%1\u2026\"; drawn at 6, below the "
                 "10 that can be read")
                 .arg(QString(40, 'M'))});
        add("empty", [=](auto& r) { show(r, ""); }, {"logoData.logoText: empty; no logo is drawn"});
        add("size 0", [=](auto& r) { show(r, "Logo"), r.logoData.textSize = 0; },
            {"logoData.textSize: 0 pixels draw no logo"});
        add("alpha", [=](auto& r) { show(r, "Logo"), r.logoData.textColor.alpha = 0; },
            {"logoData.textColor: alpha 0 has no effect; logoData.opacity decides"});
        add("the picture does not matter",
            [=](auto& r) {
                show(r, "Logo");
                r.logoData.picturePath = "/nowhere/logo.png";
                r.logoData.scale = 0;
            },
            {});
    }
    void textLogo() { check(); }

    void lines_data()
    {
        addColumns();
        add("between labels", [](auto& r) { r.selfData.showSelfText = true; }, {});
        add("over labels",
            [](auto& r) {
                r.selfData.showSelfText = true;
                r.selfData.selfTextSize = 200;
            },
            {"selfData.showSelfText: \"www.example.com\" lies over the labels of 16 of 144 cabinets, first "
             "G-A"});
        add("over corners",
            [](auto& r) {
                r.selfData.showSelfText = true;
                r.inLineData.serialPosition = 1;
            },
            {"selfData.showSelfText: \"www.example.com\" lies over the labels of 8 of 144 cabinets, first "
             "F-G"});
        add("over labels that are off",
            [](auto& r) {
                r.selfData.showResolution = true;
                r.inLineData.showSerialNumber = false;
            },
            {});
        add("small because they were asked for",
            [](auto& r) {
                r.selfData.showSelfText = true;
                r.selfData.selfTextSize = 9;
                r.selfData.showResolution = true;
                r.selfData.resolutionTextSize = 1;
                r.inLineData.showSerialNumber = false;
            },
            {"selfData.selfTextSize: 9 pixels are below the 10 that can be read",
             "selfData.resolutionTextSize: 1 pixels are below the 10 that can be read"});
        add("under a picture",
            [=](auto& r) {
                showPicture(r, pictureFile(m_folder, {600, 600}));
                r.selfData.showSelfText = true;
                r.selfData.showResolution = true;
            },
            {"selfData.showSelfText: \"www.example.com\" lies under the logo"});
        add("under a text",
            [=](auto& r) {
                r.logoData.showLogo = true;
                r.logoData.pictureLogo = false;
                r.logoData.textLogo = true;
                r.logoData.offsetY = 360;
                r.inLineData.showSerialNumber = false;
                r.selfData.showResolution = true;
            },
            {"selfData.showResolution: the resolution lies under the logo"});
        add("clear over labels",
            [](auto& r) {
                r.selfData.showResolution = true;
                r.selfData.resolutionTextColor.alpha = 0;
            },
            {"selfData.resolutionTextColor: alpha 0 draws no resolution"});
        add("clear custom text",
            [](auto& r) {
                r.selfData.showSelfText = true;
                r.selfData.selfTextColor.alpha = 0;
            },
            {"selfData.selfTextColor: alpha 0 draws no custom text"});
        add("empty custom text",
            [](auto& r) {
                r.selfData.showSelfText = true;
                r.selfData.selfText.clear();
            },
            {"selfData.selfText: empty; no custom text is drawn"});
        add("shrunk on a small chart",
            [](auto& r) {
                r.selfData.showResolution = true;
                r.publicData.resolutionWidth = 20;
                r.publicData.resolutionHeight = 20;
                r.publicData.boxRow = 1;
                r.publicData.boxCol = 1;
                r.inLineData.showSerialNumber = false;
            },
            {"selfData.resolutionTextSize: 50 pixels are too many for \":20*20 :1\"; "
             "drawn at 4, below the 10 that can be read"});
    }
    void lines() { check(); }

    void markers_data()
    {
        addColumns();
        add("with room", [](auto&) {}, {});
        add("too small",
            [](auto& r) {
                r.publicData.boxCol = 60;
                r.publicData.boxRow = 40;
                r.inLineData.showSerialNumber = false;
            },
            {"markerData.showMarkers: cabinets of 32 x 27 pixels have no room of 24 pixels for a marker; "
             "none "
             "is drawn"});
        add("no room beside the labels",
            [](auto& r) {
                r.publicData.boxCol = 24;
                r.publicData.boxRow = 20;
                r.inLineData.serialSize = 20;
            },
            {"markerData.showMarkers: cabinets of 80 x 54 pixels have no room of 24 pixels beside their "
             "labels "
             "for a marker; none is drawn"});
        add("under the logo",
            [this](auto& r) {
                showPicture(r, pictureFile(m_folder, {100, 100}));
                r.logoData.displayPosition = 0;
            },
            {"markerData.showMarkers: the logo and the texts lie over the markers of 2 of 144 cabinets"});
    }
    void markers()
    {
        QFETCH(Change, change);
        TestChartToolsData record = plainRecord();
        change(record);
        QTEST(ChartCheck::warnings(record, {true}), "warnings");
        QCOMPARE(ChartCheck::warnings(record, {false}), QStringList());
    }

private:
    static void showStripes(TestChartToolsData& record, int count)
    {
        record.basicData.chessChecked = false;
        record.basicData.colorBarChecked = true;
        for (int row = 0; row < count; ++row)
            record.basicData.colorStripeColors[row] = Qt::red;
    }

    static void addColumns()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QStringList>("warnings");
    }

    static void add(const char* name, const Change& change, const QStringList& warnings)
    {
        QTest::newRow(name) << change << warnings;
    }

    static void check()
    {
        QFETCH(Change, change);
        TestChartToolsData record = plainRecord();
        change(record);
        QTEST(ChartCheck::warnings(record), "warnings");
    }

    QTemporaryDir m_folder;
};

VD_TEST_MAIN(TestChartCheck)
#include "tst_chartcheck.moc"
