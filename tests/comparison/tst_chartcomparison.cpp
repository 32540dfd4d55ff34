#include "testcase.h"

#include <chartcabinets.h>
#include <chartcomparison.h>
#include <vtestcharttools.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QPainter>

#include <cmath>
#include <functional>
#include <random>

using namespace vardeno::testcharttools;
using ChartComparison::CabinetGrid;
using ChartComparison::compare;
using ChartComparison::Kind;
using ChartComparison::Result;

using Kinds = QVector<int>;
using Disturbance = std::function<QImage(const QImage& chart)>;
Q_DECLARE_METATYPE(Disturbance)

namespace {

/// A chart and its cabinets.
struct Chart
{
    TestChartToolsData record;
    QImage image;
    CabinetGrid grid;

    QRect cabinet(int row, int column) const { return ChartCabinets::rect(record, row, column); }
};

Chart rendered(const TestChartToolsData& record)
{
    VTestChartTools tool;
    tool.applyRecord(record);
    Chart chart{record, tool.chartImage(), {record.publicData.boxCol, {}}};
    for (int row = 0; row < record.publicData.boxRow; ++row) {
        for (int column = 0; column < record.publicData.boxCol; ++column)
            chart.grid.cabinets.push_back(
                {ChartCabinets::rect(record, row, column), ChartCabinets::label(record, row, column)});
    }
    return chart;
}

TestChartToolsData sized(const QSize& size, int rows, int columns)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = size.width();
    record.publicData.resolutionHeight = size.height();
    record.publicData.boxRow = rows;
    record.publicData.boxCol = columns;
    record.inLineData.circleSize = size.height() / 2;
    record.inLineData.diagonalWidth = 3;
    record.logoData.scale = 10;
    record.selfData.selfTextSize = 20;
    record.selfData.resolutionTextSize = 20;
    return record;
}

/// Everything on it, and cabinets that are square.
const Chart& usual()
{
    static const Chart chart = rendered(sized({480, 320}, 4, 6));
    return chart;
}

/// Labels alone on a chessboard.
TestChartToolsData plainRecord(const QSize& size, int rows, int columns)
{
    TestChartToolsData record = sized(size, rows, columns);
    record.publicData.showOutBorder = false;
    record.inLineData.showCircle = false;
    record.inLineData.showDiagonal = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    return record;
}

const Chart& chess()
{
    static const Chart chart = [] {
        TestChartToolsData record = plainRecord({480, 320}, 4, 6);
        record.inLineData.showSerialNumber = false;
        return rendered(record);
    }();
    return chart;
}

QImage mapped(QImage image, const std::function<QRgb(QRgb)>& map)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, map(image.pixel(x, y)));
    }
    return image;
}

/// Each channel by the same curve.
QImage curved(const QImage& image, const std::function<double(int)>& curve)
{
    const auto value = [&](int old) { return qBound(0, int(std::lround(curve(old))), 255); };
    return mapped(image, [&](QRgb c) { return qRgb(value(qRed(c)), value(qGreen(c)), value(qBlue(c))); });
}

QImage placed(const QImage& image, const QSize& size, const QPoint& at, const QColor& around = Qt::black)
{
    QImage canvas(size, QImage::Format_RGB32);
    canvas.fill(around);
    QPainter painter(&canvas);
    painter.drawImage(at, image);
    return canvas;
}

QImage wrapped(const QImage& image, int dx, int dy)
{
    QImage moved = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            moved.setPixel((x + dx + image.width()) % image.width(),
                           (y + dy + image.height()) % image.height(), image.pixel(x, y));
    }
    return moved;
}

QImage compressed(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return QImage::fromData(bytes, "JPG");
}

QImage turned(const QImage& image, int degrees)
{
    return image.transformed(QTransform().rotate(degrees));
}

/// `part` of the chart in its place.
QImage with(QImage image, const QRect& place, const QImage& part)
{
    QPainter painter(&image);
    painter.drawImage(place.topLeft(), part);
    return image;
}

QImage filled(QImage image, const QRect& place, const QColor& color)
{
    QPainter painter(&image);
    painter.fillRect(place, color);
    return image;
}

QImage swapped(const QImage& image, const QRect& a, const QRect& b)
{
    return with(with(image, a, image.copy(b)), b, image.copy(a));
}

QImage zoomedIn(const QImage& image, const QRect& part, Qt::TransformationMode mode)
{
    return image.copy(part).scaled(image.size(), Qt::IgnoreAspectRatio, mode);
}

Kinds kinds(const Result& result)
{
    Kinds all;
    for (const auto& finding : result.findings)
        all << int(finding.kind);
    return all;
}

} // namespace

class TestChartComparison : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void equalColorsAreEqual_data()
    {
        QTest::addColumn<QImage>("actual");
        const QImage& image = usual().image;
        QTest::newRow("itself") << image;
        QTest::newRow("with alpha") << mapped(image.convertToFormat(QImage::Format_ARGB32),
                                              [](QRgb c) { return (c & 0xffffffU) | 0x50000000U; });
        for (const QImage::Format format :
             {QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888, QImage::Format_RGBX64,
              QImage::Format_RGBA64, QImage::Format_RGBA8888, QImage::Format_RGB30, QImage::Format_BGR30})
            QTest::addRow("format %d", int(format)) << image.convertToFormat(format);
        QImage scaledUp = image;
        scaledUp.setDevicePixelRatio(2);
        QTest::newRow("device pixel ratio") << scaledUp;
    }

    void equalColorsAreEqual()
    {
        QFETCH(QImage, actual);
        const Result result = compare(usual().image, actual, usual().grid);
        QCOMPARE(result.sentences(), QStringList());
        QVERIFY(result.equal);
        QVERIFY(result.difference.isNull());
    }

    void aPaletteIsComparedByItsColors()
    {
        QImage indexed(chess().image.size(), QImage::Format_Indexed8);
        indexed.setColorTable({chess().image.pixel(0, 0), chess().image.pixel(80, 0)});
        for (int y = 0; y < indexed.height(); ++y) {
            for (int x = 0; x < indexed.width(); ++x)
                indexed.setPixel(x, y, chess().image.pixel(x, y) == indexed.color(0) ? 0 : 1);
        }
        QVERIFY(compare(chess().image, indexed, chess().grid).equal);
        indexed.setColor(0, qRgb(1, 2, 3));
        QVERIFY(!compare(chess().image, indexed, chess().grid).equal);
    }

    void noPictureIsNotTheChart()
    {
        QCOMPARE(kinds(compare(usual().image, QImage(), usual().grid)), Kinds{int(Kind::NotThisChart)});
    }

    void turnedCharts_data()
    {
        addColumns();
        add("left to right", [](const QImage& i) { return i.mirrored(true, false); }, {Kind::Turned},
            {"mirrored left to right"});
        add("top to bottom", [](const QImage& i) { return i.mirrored(false, true); }, {Kind::Turned},
            {"mirrored top to bottom"});
        add("by 180", [](const QImage& i) { return turned(i, 180); }, {Kind::Turned},
            {"turned by 180 degrees"});
        add("by 90", [](const QImage& i) { return turned(i, 90); }, {Kind::Turned},
            {"turned by 90 degrees to the right"});
        add("by 270", [](const QImage& i) { return turned(i, 270); }, {Kind::Turned},
            {"turned by 90 degrees to the left"});
        add("transposed", [](const QImage& i) { return turned(i.mirrored(true, false), -90); },
            {Kind::Turned}, {"mirrored left to right and turned by 90 degrees to the left"});
        add("transversed", [](const QImage& i) { return turned(i.mirrored(true, false), 90); },
            {Kind::Turned}, {"mirrored left to right and turned by 90 degrees to the right"});
        add("with a cabinet missing on the wall",
            [](const QImage& i) { return filled(i.mirrored(true, false), usual().cabinet(1, 1), Qt::black); },
            {Kind::Turned, Kind::CabinetMissing}, {"mirrored left to right", "B-B is missing, all #000000"});
        add("by 90 with a cabinet missing",
            [](const QImage& i) { return turned(filled(i, usual().cabinet(1, 1), Qt::black), 90); },
            {Kind::Turned, Kind::CabinetMissing},
            {"turned by 90 degrees to the right", "B-B is missing, all #000000"});
        add("with other colors", [](const QImage& i) { return i.mirrored(true, false).rgbSwapped(); },
            {Kind::Turned, Kind::ColorsChanged}, {"mirrored left to right", "red and blue are swapped"});
        add("compressed", [](const QImage& i) { return compressed(i.mirrored(true, false), 95); },
            {Kind::Turned, Kind::Lossy}, {"mirrored left to right", "*"});
    }
    void turnedCharts() { check(usual()); }

    void moved_data()
    {
        addColumns();
        add("shifted",
            [](const QImage& i) {
                return placed(i, i.size(), {13, -7});
            },
            {Kind::Shifted}, {"shifted 13 pixels to the right and 7 pixels up"});
        add("shifted by one pixel",
            [](const QImage& i) {
                return placed(i, i.size(), {-1, 0});
            },
            {Kind::Shifted}, {"shifted 1 pixel to the left"});
        add("shifted by a cabinet",
            [](const QImage& i) {
                return placed(i, i.size(), {80, 0}, Qt::red);
            },
            {Kind::Shifted}, {"shifted 80 pixels to the right"});
        add("shifted far",
            [](const QImage& i) {
                return placed(i, i.size(), {200, 100}, Qt::red);
            },
            {Kind::Shifted}, {"shifted 200 pixels to the right and 100 pixels down"});
        add("wrapped", [](const QImage& i) { return wrapped(i, 13, -7); }, {Kind::Shifted},
            {"shifted 13 pixels to the right and 7 pixels up, what leaves on one side comes back on the "
             "other"});
        add("wrapped by half", [](const QImage& i) { return wrapped(i, 0, 160); }, {Kind::Shifted},
            {"shifted 160 pixels up, what leaves on one side comes back on the other"});
        add("shifted with other colors",
            [](const QImage& i) {
                return placed(i, i.size(), {13, -7}).rgbSwapped();
            },
            {Kind::Shifted, Kind::ColorsChanged},
            {"shifted 13 pixels to the right and 7 pixels up", "red and blue are swapped"});
        add("shifted with a cabinet missing on the wall",
            [](const QImage& i) {
                return filled(placed(i, i.size(), {13, -7}), usual().cabinet(1, 1), Qt::black);
            },
            {Kind::Shifted, Kind::CabinetMissing},
            {"shifted 13 pixels to the right and 7 pixels up", "B-B is missing, all #000000"});
        add("wrapped with a cabinet missing on the wall",
            [](const QImage& i) { return filled(wrapped(i, 30, 0), usual().cabinet(0, 0), Qt::black); },
            {Kind::Shifted, Kind::CabinetMissing},
            {"shifted 30 pixels to the right, what leaves on one side comes back on the other",
             "A-A is missing, all #000000"});
        add("cropped", [](const QImage& i) { return i.copy(10, 20, 300, 200); }, {Kind::Cropped},
            {"cropped by 10 on the left, 170 on the right, 20 at the top, 100 at the bottom: 300 x 200 of "
             "480 x "
             "320 pixels are left"});
        add("cropped by a row", [](const QImage& i) { return i.copy(0, 1, 480, 319); }, {Kind::Cropped},
            {"cropped by 1 at the top: 480 x 319 of 480 x 320 pixels are left"});
        add("cropped with other colors",
            [](const QImage& i) { return curved(i.copy(10, 20, 300, 200), [](int v) { return v * 0.5; }); },
            {Kind::Cropped, Kind::ColorsChanged}, {"*", "brightness at 50 percent"});
        add("cropped with a cabinet missing",
            [](const QImage& i) {
                return filled(i, usual().cabinet(1, 1), Qt::black).copy(10, 20, 300, 250);
            },
            {Kind::Cropped, Kind::CabinetMissing}, {"*", "B-B is missing, all #000000"});
        add("padded",
            [](const QImage& i) {
                return placed(i, {600, 400}, {50, 30});
            },
            {Kind::Padded},
            {"padded by 50 on the left, 70 on the right, 30 at the top, 50 at the bottom: 600 x 400 instead "
             "of 480 "
             "x 320 pixels"});
        add("padded at one side",
            [](const QImage& i) {
                return placed(i, {481, 320}, {0, 0}, Qt::green);
            },
            {Kind::Padded}, {"padded by 1 on the right: 481 x 320 instead of 480 x 320 pixels"});
        add("cropped and padded",
            [](const QImage& i) {
                return placed(i, {400, 400}, {-20, 30});
            },
            {Kind::Cropped, Kind::Padded},
            {"cropped by 20 on the left, 60 on the right: 400 x 320 of 480 x 320 pixels are left",
             "padded by 30 at the top, 50 at the bottom: 400 x 400 instead of 400 x 320 pixels"});
    }
    void moved() { check(usual()); }

    void scaled_data()
    {
        addColumns();
        const auto to = [](int w, int h, Qt::TransformationMode mode) {
            return [=](const QImage& i) { return i.scaled(w, h, Qt::IgnoreAspectRatio, mode); };
        };
        add("twice, nearest", to(960, 640, Qt::FastTransformation), {Kind::Scaled},
            {"scaled to 200 percent (nearest pixels): 960 x 640 instead of 480 x 320 pixels"});
        add("twice, smooth", to(960, 640, Qt::SmoothTransformation), {Kind::Scaled},
            {"scaled to 200 percent (smooth): 960 x 640 instead of 480 x 320 pixels"});
        add("half, nearest", to(240, 160, Qt::FastTransformation), {Kind::Scaled},
            {"scaled to 50 percent (nearest pixels): 240 x 160 instead of 480 x 320 pixels"});
        add("half, smooth", to(240, 160, Qt::SmoothTransformation), {Kind::Scaled},
            {"scaled to 50 percent (smooth): 240 x 160 instead of 480 x 320 pixels"});
        add("odd factor, nearest", to(701, 467, Qt::FastTransformation), {Kind::Scaled},
            {"scaled to 146 x 145.9 percent (nearest pixels): 701 x 467 instead of 480 x 320 pixels"});
        add("a little, smooth", to(528, 352, Qt::SmoothTransformation), {Kind::Scaled},
            {"scaled to 110 percent (smooth): 528 x 352 instead of 480 x 320 pixels"});
        add("one way", to(700, 320, Qt::SmoothTransformation), {Kind::Scaled},
            {"scaled to 145.8 x 100 percent (smooth): 700 x 320 instead of 480 x 320 pixels"});
        add("between bars",
            [](const QImage& i) {
                return placed(i.scaled(480, 240, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), i.size(),
                              {0, 40});
            },
            {Kind::Scaled},
            {"scaled to 100 x 75 percent (smooth), at (0, 40) between bars, 480 x 240 pixels"});
        add("smaller between bars",
            [](const QImage& i) {
                return placed(i.scaled(240, 160), i.size(), {120, 80});
            },
            {Kind::Scaled},
            {"scaled to 50 percent (nearest pixels), at (120, 80) between bars, 240 x 160 pixels"});
        add("between bars of another size",
            [](const QImage& i) {
                return placed(i.scaled(720, 480, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), {800, 480},
                              {40, 0});
            },
            {Kind::Scaled}, {"scaled to 150 percent (smooth), at (40, 0) between bars, 720 x 480 pixels"});
        add("zoomed",
            [](const QImage& i) {
                return zoomedIn(i, {48, 32, 384, 256}, Qt::SmoothTransformation);
            },
            {Kind::Scaled},
            {"zoomed in to 125 percent (smooth): shows 384 x 256 pixels of the chart from (48, 32)"});
        add("zoomed, nearest",
            [](const QImage& i) {
                return zoomedIn(i, {48, 32, 384, 256}, Qt::FastTransformation);
            },
            {Kind::Scaled},
            {"zoomed in to 125 percent (nearest pixels): shows 384 x 256 pixels of the chart from (48, 32)"});
        add("zoomed off centre",
            [](const QImage& i) {
                return zoomedIn(i, {10, 100, 240, 160}, Qt::SmoothTransformation);
            },
            {Kind::Scaled},
            {"zoomed in to 200 percent (smooth): shows 240 x 160 pixels of the chart from (10, 100)"});
        add("overscan",
            [](const QImage& i) {
                return zoomedIn(i, {12, 8, 456, 304}, Qt::SmoothTransformation);
            },
            {Kind::Scaled},
            {"zoomed in to 105.3 percent (smooth): shows 456 x 304 pixels of the chart from (12, 8)"});
        add("with a cabinet missing",
            [](const QImage& i) {
                return filled(i, usual().cabinet(3, 5), Qt::black)
                    .scaled(960, 640, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            },
            {Kind::Scaled, Kind::CabinetDiffers}, {"*", "besides, 1 cabinet differs: D-F"});
    }
    void scaled() { check(usual()); }

    void colors_data()
    {
        addColumns();
        const auto map = [](const std::function<QRgb(QRgb)>& f) {
            return [=](const QImage& i) { return mapped(i, f); };
        };
        const auto curve = [](const std::function<double(int)>& f) {
            return [=](const QImage& i) { return curved(i, f); };
        };
        const auto named = [](const char* name, const Disturbance& disturb, const char* text) {
            add(name, disturb, {Kind::ColorsChanged}, {QLatin1String(text)});
        };
        named(
            "red and blue", [](const QImage& i) { return i.rgbSwapped(); }, "red and blue are swapped");
        named("red and green", map([](QRgb c) { return qRgb(qGreen(c), qRed(c), qBlue(c)); }),
              "red and green are swapped");
        named("green and blue", map([](QRgb c) { return qRgb(qRed(c), qBlue(c), qGreen(c)); }),
              "green and blue are swapped");
        named("around", map([](QRgb c) { return qRgb(qBlue(c), qRed(c), qGreen(c)); }),
              "red shows as green, green as blue and blue as red");
        named("no red", map([](QRgb c) { return c & 0xff00ffffU; }), "red is missing");
        named("no blue", map([](QRgb c) { return c & 0xffffff00U; }), "blue is missing");
        named("green alone", map([](QRgb c) { return c & 0xff00ff00U; }), "red and blue are missing");
        named("inverted", map([](QRgb c) { return c ^ 0xffffffU; }), "inverted");
        named("grey", map([](QRgb c) { return qRgb(qGray(c), qGray(c), qGray(c)); }), "converted to grey");
        named("limited range", curve([](int v) { return 16 + v * 219.0 / 255; }),
              "in the limited range, 0..255 shows as 16..235");
        named("stretched", curve([](int v) { return (v - 16) * 255.0 / 219; }),
              "stretched, 16..235 shows as 0..255");
        named("half", curve([](int v) { return v * 0.5; }), "brightness at 50 percent");
        named("brighter", curve([](int v) { return v * 1.3; }), "brightness at 130 percent");
        named("warm",
              map([](QRgb c) { return qRgb(qRed(c), qRound(qGreen(c) * 0.9), qRound(qBlue(c) * 0.6)); }),
              "red at 100, green at 90 and blue at 60 percent");
        named("gamma", curve([](int v) { return 255 * std::pow(v / 255.0, 2.2); }),
              "middle tones darker, as by a gamma of 2.20");
        named("gamma the other way", curve([](int v) { return 255 * std::pow(v / 255.0, 1 / 2.2); }),
              "middle tones lighter, as by a gamma of 0.45");
        named("one color", map([](QRgb c) { return c == 0xff55aaffU ? 0xff123456U : c; }),
              "#55aaff shows as #123456");
        add("swapped, and a cabinet missing",
            [](const QImage& i) { return filled(i.rgbSwapped(), usual().cabinet(1, 1), Qt::black); },
            {Kind::ColorsChanged, Kind::CabinetMissing},
            {"red and blue are swapped", "B-B is missing, all #000000"});
        add("darker without rounding, and a cabinet missing",
            [](const QImage& i) {
                return filled(curved(i, [](int v) { return v / 2; }), usual().cabinet(1, 1), Qt::black);
            },
            {Kind::ColorsChanged, Kind::CabinetMissing},
            {"brightness at 50 percent", "B-B is missing, all #000000"});
        add("darker, and two cabinets swapped",
            [](const QImage& i) {
                return swapped(curved(i, [](int v) { return v * 0.5; }), usual().cabinet(0, 1),
                               usual().cabinet(3, 2));
            },
            {Kind::ColorsChanged, Kind::CabinetSwapped},
            {"brightness at 50 percent", "A-B and D-C are swapped"});
    }
    void colors() { check(usual()); }

    void cabinets_data()
    {
        addColumns();
        const auto at = [](int row, int column) { return usual().cabinet(row, column); };
        add("swapped", [=](const QImage& i) { return swapped(i, at(0, 0), at(2, 3)); },
            {Kind::CabinetSwapped}, {"A-A and C-D are swapped"});
        add("neighbours swapped", [=](const QImage& i) { return swapped(i, at(0, 0), at(0, 1)); },
            {Kind::CabinetSwapped}, {"A-A and A-B are swapped"});
        add("one for another", [=](const QImage& i) { return with(i, at(0, 0), i.copy(at(2, 3))); },
            {Kind::CabinetSwapped}, {"A-A shows what belongs to C-D"});
        add("three in a ring",
            [=](const QImage& i) { return swapped(swapped(i, at(0, 0), at(1, 1)), at(1, 1), at(2, 2)); },
            {Kind::CabinetSwapped, Kind::CabinetSwapped, Kind::CabinetSwapped},
            {"A-A shows what belongs to B-B", "B-B shows what belongs to C-C",
             "C-C shows what belongs to A-A"});
        add("missing", [=](const QImage& i) { return filled(i, at(1, 1), Qt::black); },
            {Kind::CabinetMissing}, {"B-B is missing, all #000000"});
        add("two missing",
            [=](const QImage& i) { return filled(filled(i, at(1, 1), Qt::black), at(3, 5), Qt::black); },
            {Kind::CabinetMissing}, {"2 cabinets are missing, all #000000: B-B, D-F"});
        add("a row missing", [=](const QImage& i) { return filled(i, at(0, 0) | at(0, 5), Qt::black); },
            {Kind::CabinetMissing}, {"6 cabinets are missing, all #000000: A-A, A-B, A-C, A-D, A-E, A-F"});
        add("a column missing", [=](const QImage& i) { return filled(i, at(0, 0) | at(3, 0), Qt::black); },
            {Kind::CabinetMissing}, {"4 cabinets are missing, all #000000: A-A, B-A, C-A, D-A"});
        add("half of them missing",
            [=](const QImage& i) { return filled(i, at(0, 0) | at(1, 5), Qt::black); },
            {Kind::CabinetMissing},
            {"12 cabinets are missing, all #000000: A-A, A-B, A-C, A-D, A-E, A-F, B-A, B-B, \u2026 and 4 "
             "more"});
        add("another color", [=](const QImage& i) { return filled(i, at(1, 1), Qt::red); },
            {Kind::CabinetMissing}, {"B-B shows nothing but #ff0000"});
        add("turned", [=](const QImage& i) { return with(i, at(1, 1), turned(i.copy(at(1, 1)), 90)); },
            {Kind::CabinetTurned}, {"B-B is turned by 90 degrees to the right"});
        add("mirrored",
            [=](const QImage& i) { return with(i, at(1, 1), i.copy(at(1, 1)).mirrored(true, false)); },
            {Kind::CabinetTurned}, {"B-B is mirrored left to right"});
        add("another one turned",
            [=](const QImage& i) { return with(i, at(1, 1), turned(i.copy(at(2, 3)), 180)); },
            {Kind::CabinetTurned}, {"B-B shows what belongs to C-D, turned by 180 degrees"});
        add("a pixel", [=](const QImage& i) { return filled(i, QRect(100, 100, 1, 1), Qt::black); },
            {Kind::CabinetDiffers},
            {"B-B: 1 of 6400 pixels differ, first (100, 100) is #000000 instead of #ffaaff"});
        add("a line across", [=](const QImage& i) { return filled(i, QRect(0, 7, 480, 1), Qt::black); },
            Kinds(6, int(Kind::CabinetDiffers)), {"*", "*", "*", "*", "*", "*"});
        add("many pixels", [=](const QImage& i) { return withFaults(i); },
            Kinds(9, int(Kind::CabinetDiffers)),
            {"*", "*", "*", "*", "*", "*", "*", "*", "\u2026 and 16 more cabinets that differ"});
        add("all kinds of faults",
            [=](const QImage& i) {
                QImage wall = swapped(i, at(0, 0), at(2, 3));
                wall = filled(wall, at(1, 1), Qt::black);
                wall = with(wall, at(3, 3), turned(i.copy(at(3, 3)), 270));
                return filled(wall, QRect(405, 5, 3, 2), Qt::black);
            },
            {Kind::CabinetSwapped, Kind::CabinetMissing, Kind::CabinetTurned, Kind::CabinetDiffers},
            {"A-A and C-D are swapped", "B-B is missing, all #000000",
             "D-D is turned by 90 degrees to the left",
             "A-F: 6 of 6400 pixels differ, first (405, 5) is #000000 instead of #55aaff"});
        add("all in other places",
            [](const QImage& i) {
                QImage wall = i;
                for (int cabinet = 0; cabinet < 24; ++cabinet) {
                    const int source = (cabinet * 7 + 3) % 24;
                    wall = with(wall, usual().cabinet(cabinet / 6, cabinet % 6),
                                i.copy(usual().cabinet(source / 6, source % 6)));
                }
                return wall;
            },
            Kinds(9, int(Kind::CabinetSwapped)),
            {"*", "*", "*", "*", "*", "*", "*", "*", "\u2026 and 4 more swaps"});
    }
    void cabinets() { check(usual()); }

    void lossy_data()
    {
        addColumns();
        add("hardly", [](const QImage& i) { return compressed(i, 100); }, {Kind::Lossy}, {"*"});
        add("well", [](const QImage& i) { return compressed(i, 90); }, {Kind::Lossy}, {"*"});
        add("strongly", [](const QImage& i) { return compressed(i, 50); }, {Kind::Lossy}, {"*"});
        add("noise",
            [](const QImage& i) {
                std::mt19937 random(1);
                return mapped(i,
                              [&](QRgb c) { return qRgb(qRed(c) ^ int(random() % 4), qGreen(c), qBlue(c)); });
            },
            {Kind::Lossy},
            {"a little different everywhere, as after lossy compression: by up to 3 and in the "
             "mean 0.42 of 255"});
        add("noise in half of the cabinets",
            [](const QImage& i) {
                std::mt19937 random(1);
                const QImage noisy =
                    mapped(i, [&](QRgb c) { return qRgb(qRed(c) ^ int(random() % 4), qGreen(c), qBlue(c)); });
                return with(i, QRect(0, 0, 240, 320), noisy.copy(0, 0, 240, 320));
            },
            Kinds(9, int(Kind::CabinetDiffers)),
            {"*", "*", "*", "*", "*", "*", "*", "*", "\u2026 and 4 more cabinets that differ"});
    }
    void lossy() { check(usual()); }

    void other_data()
    {
        addColumns();
        add("black", [](const QImage& i) { return filled(i, i.rect(), Qt::black); }, {Kind::OneColor},
            {"all of the picture is #000000"});
        add("white of another size",
            [](const QImage&) {
                return filled(QImage(30, 20, QImage::Format_RGB32), {0, 0, 30, 20}, Qt::white);
            },
            {Kind::OneColor}, {"all of the picture is #ffffff, 30 x 20 instead of 480 x 320 pixels"});
        add("a picture", [](const QImage& i) { return noise(i.size()); }, {Kind::NotThisChart}, {"*"});
        add("a picture of another size",
            [](const QImage&) {
                return noise({300, 300});
            },
            {Kind::NotThisChart},
            {"not this chart: 300 x 300 instead of 480 x 320 pixels, and no part of it was found"});
        add("another chart of another size", [](const QImage&) { return chess().image.scaled(123, 456); },
            {Kind::NotThisChart},
            {"not this chart: 123 x 456 instead of 480 x 320 pixels, and no part of it was found"});
        add("the chart without its labels", [](const QImage&) { return chess().image; },
            Kinds(9, int(Kind::CabinetDiffers)),
            {"*", "*", "*", "*", "*", "*", "*", "*", "\u2026 and 16 more cabinets that differ"});
    }
    void other() { check(usual()); }

    /// What looks the same in several places is not told as one of them.
    void ambiguous_data()
    {
        addColumns();
        add("mirrored or shifted or colored", [](const QImage& i) { return i.mirrored(true, false); },
            {Kind::Turned},
            {"mirrored left to right; or mirrored top to bottom; or shifted 80 pixels to the left, what "
             "leaves on one "
             "side comes back on the other (other places fit as well); or #55aaff shows as #ffaaff, #ffaaff "
             "shows as #55aaff"});
        add("shifted",
            [](const QImage& i) {
                return placed(i, i.size(), {13, -7});
            },
            {Kind::Shifted}, {"shifted 13 pixels to the right and 7 pixels up (other places fit as well)"});
        add("neighbours swapped",
            [](const QImage& i) { return swapped(i, chess().cabinet(0, 0), chess().cabinet(0, 1)); },
            {Kind::CabinetMissing, Kind::CabinetMissing},
            {"A-A shows nothing but #55aaff", "A-B shows nothing but #ffaaff"});
        add("twice as large", [](const QImage& i) { return i.scaled(960, 640); }, {Kind::Scaled},
            {"scaled to 200 percent (nearest pixels): 960 x 640 instead of 480 x 320 pixels"});
        add("two columns missing",
            [](const QImage& i) {
                return filled(i, {0, 0, 160, 320}, Qt::black);
            },
            {Kind::CabinetMissing},
            {"8 cabinets are missing, all #000000: A-A, A-B, B-A, B-B, C-A, C-B, D-A, D-B"});
    }
    void ambiguous() { check(chess()); }

    void croppedChessTellsThatOtherPlacesFit()
    {
        const Result result = compare(chess().image, chess().image.copy(10, 20, 300, 200), chess().grid);
        QCOMPARE(kinds(result), Kinds{int(Kind::Cropped)});
        QVERIFY(result.sentences().front().endsWith(QLatin1String("(other places fit as well)")));
    }

    void contentsThatOccurTwiceProveNoSwap()
    {
        Chart chart{TestChartToolsData(), noise({40, 10}), {4, {}}};
        for (int column = 0; column < 4; ++column)
            chart.grid.cabinets.push_back({QRect(column * 10, 0, 10, 10), QString::number(column)});
        const QRect first(0, 0, 10, 10);
        const QRect third(20, 0, 10, 10);
        chart.image = with(chart.image, {10, 0, 10, 10}, chart.image.copy(first)); // 0 and 1 are the same
        const Result result = compare(chart.image, swapped(chart.image, first, third), chart.grid);
        QCOMPARE(kinds(result), (Kinds{int(Kind::CabinetSwapped), int(Kind::CabinetDiffers)}));
        QCOMPARE(result.sentences().front(), QStringLiteral("0 shows what belongs to 2"));
        QVERIFY(result.sentences().back().endsWith(QLatin1String("; it looks like 0 and 1 more")));
    }

    void cabinetsOfOneColorThatAreMissingAreNoColorChange()
    {
        Chart chart{TestChartToolsData(), noise({50, 10}), {5, {}}};
        const QColor colors[] = {Qt::red, Qt::green, Qt::blue, Qt::white, Qt::yellow};
        for (int column = 0; column < 5; ++column) {
            const QRect rect(column * 10, 0, 10, 10);
            chart.image = filled(chart.image, rect, colors[column]);
            chart.grid.cabinets.push_back({rect, QString::number(column)});
        }
        const QImage wall = filled(chart.image, {10, 0, 20, 10}, Qt::black);
        QCOMPARE(compare(chart.image, wall, chart.grid).sentences(),
                 QStringList{"2 cabinets are missing, all #000000: 1, 2"});
    }

    void namesThatOccurTwiceAreToldWithTheirPlace()
    {
        Chart chart{TestChartToolsData(), noise({40, 20}), {2, {}}};
        for (int cabinet = 0; cabinet < 4; ++cabinet)
            chart.grid.cabinets.push_back({QRect(cabinet % 2 * 20, cabinet / 2 * 10, 20, 10), "A"});
        const QImage wall = filled(chart.image, {20, 10, 20, 10}, Qt::black);
        QCOMPARE(compare(chart.image, wall, chart.grid).sentences(),
                 QStringList{"A (row 2, column 2) is missing, all #000000"});
    }

    void unevenGrids_data()
    {
        addColumns();
        add("swapped",
            [](const QImage& i) { return swapped(i, uneven().cabinet(0, 0), uneven().cabinet(4, 6)); },
            {Kind::CabinetSwapped}, {"A-A and E-G are swapped"});
        add("missing", [](const QImage& i) { return filled(i, uneven().cabinet(2, 3), Qt::black); },
            {Kind::CabinetMissing}, {"C-D is missing, all #000000"});
        add("between cabinets",
            [](const QImage& i) {
                return filled(i, {uneven().cabinet(0, 1).right() + 1, 9, 1, 1}, Qt::red);
            },
            {Kind::OutsideCabinets},
            {"1 pixel that belongs to no cabinet differs, first (136, 9) is #ff0000 instead of #55aaff"});
    }
    void unevenGrids() { check(uneven()); }

    void cabinetsThatOverlap()
    {
        const QImage image = noise({59, 30});
        const CabinetGrid grid{3, {{{0, 0, 21, 30}, "1"}, {{20, 0, 20, 30}, "2"}, {{39, 0, 20, 30}, "3"}}};
        QImage wall = with(image, {39, 0, 20, 30}, image.copy(0, 0, 20, 30));
        wall = with(wall, {0, 0, 20, 30}, image.copy(39, 0, 20, 30));
        const QStringList sentences = compare(image, wall, grid).sentences();
        QCOMPARE(sentences, QStringList{"1 and 3 are swapped"});
        QCOMPARE(compare(image, filled(image, {0, 0, 21, 30}, Qt::black), grid).sentences().front(),
                 QStringLiteral("1 is missing, all #000000"));
    }

    void tiny_data()
    {
        addColumns();
        add("shifted",
            [](const QImage& i) {
                return placed(i, i.size(), {2, 1});
            },
            {Kind::Shifted}, {"shifted 2 pixels to the right and 1 pixel down"});
        add("mirrored", [](const QImage& i) { return i.mirrored(true, false); }, {Kind::Turned}, {"*"});
        add("turned", [](const QImage& i) { return turned(i, 90); }, {Kind::Turned},
            {"turned by 90 degrees to the right"});
        add("cropped", [](const QImage& i) { return i.copy(3, 2, 9, 8); }, {Kind::Cropped},
            {"cropped by 3 on the left, 4 on the right, 2 at the top, 6 at the bottom: 9 x 8 of 16 x 16 "
             "pixels are "
             "left"});
        add("padded", [](const QImage& i) { return placed(i, {20, 17}, {3, 1}); }, {Kind::Padded}, {"*"});
        add("scaled", [](const QImage& i) { return i.scaled(64, 64); }, {Kind::Scaled},
            {"scaled to 400 percent (nearest pixels): 64 x 64 instead of 16 x 16 pixels"});
        add("missing",
            [](const QImage& i) {
                return filled(i, {8, 8, 8, 8}, Qt::black);
            },
            {Kind::CabinetMissing}, {"B-B is missing, all #000000"});
        add("swapped",
            [](const QImage& i) {
                return swapped(i, {0, 0, 8, 8}, {8, 8, 8, 8});
            },
            {Kind::CabinetSwapped}, {"A-A and B-B are swapped"});
        add("one pixel", [](const QImage& i) { return i.copy(0, 0, 1, 1); }, {Kind::OneColor}, {"*"});
    }
    void tiny() { check(smallest()); }

    void oneCabinet_data()
    {
        addColumns();
        add("mirrored", [](const QImage& i) { return i.mirrored(true, false); }, {Kind::Turned},
            {"mirrored left to right"});
        add("black", [](const QImage& i) { return filled(i, i.rect(), Qt::black); }, {Kind::OneColor}, {"*"});
        add("a pixel",
            [](const QImage& i) {
                return filled(i, {5, 6, 1, 1}, Qt::black);
            },
            {Kind::CabinetDiffers},
            {"A-A: 1 of 28800 pixels differ, first (5, 6) is #000000 instead of #ffaaff"});
        add("shifted",
            [](const QImage& i) {
                return placed(i, i.size(), {5, 0});
            },
            {Kind::Shifted}, {"shifted 5 pixels to the right"});
    }
    void oneCabinet()
    {
        static const Chart chart = rendered(sized({240, 120}, 1, 1));
        check(chart);
    }

    void flood_data()
    {
        addColumns();
        add("another color", [](const QImage& i) { return filled(i, i.rect(), Qt::blue); },
            {Kind::ColorsChanged}, {"#ff0000 shows as #0000ff"});
        add("another size", [](const QImage& i) { return i.scaled(80, 45); }, {Kind::OtherSize},
            {"80 x 45 instead of 160 x 90 pixels; one color does not tell whether it was scaled, cropped or "
             "padded"});
        add("missing",
            [](const QImage& i) {
                return filled(i, {0, 0, 40, 30}, Qt::black);
            },
            {Kind::CabinetMissing}, {"A-A is missing, all #000000"});
        add("a column missing",
            [](const QImage& i) {
                return filled(i, {0, 0, 40, 90}, Qt::black);
            },
            {Kind::CabinetMissing}, {"3 cabinets are missing, all #000000: A-A, B-A, C-A"});
        add("half of it missing",
            [](const QImage& i) {
                return filled(i, {0, 0, 80, 90}, Qt::black);
            },
            {Kind::CabinetMissing}, {"6 cabinets are missing, all #000000: A-A, A-B, B-A, B-B, C-A, C-B"});
        add("a pixel",
            [](const QImage& i) {
                return filled(i, {0, 0, 1, 1}, Qt::black);
            },
            {Kind::CabinetDiffers},
            {"A-A: 1 of 1200 pixels differ, first (0, 0) is #000000 instead of #ff0000"});
    }
    void flood()
    {
        static const Chart chart = [] {
            TestChartToolsData record = plainRecord({160, 90}, 3, 4);
            record.inLineData.showSerialNumber = false;
            record.basicData.oddColor = record.basicData.evenColor = {255, 0, 0, 255};
            return rendered(record);
        }();
        check(chart);
    }

    void manyCabinetsInOtherPlaces()
    {
        const QImage image = noise({1000, 1000});
        CabinetGrid grid{100, {}};
        QImage wall = image;
        QPainter painter(&wall);
        for (int i = 0; i < 10000; ++i) {
            const int source = int((qint64(i) * 7919 + 13) % 10000);
            grid.cabinets.push_back({QRect(i % 100 * 10, i / 100 * 10, 10, 10), QString::number(i)});
            painter.drawImage(QPoint(i % 100 * 10, i / 100 * 10), image,
                              QRect(source % 100 * 10, source / 100 * 10, 10, 10));
        }
        painter.end();
        QElapsedTimer timer;
        timer.start();
        const Result result = compare(image, wall, grid);
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed()))); // 2 s unoptimised
        QCOMPARE(kinds(result), Kinds(9, int(Kind::CabinetSwapped)));
        QCOMPARE(result.sentences().front(), QStringLiteral("0 shows what belongs to 13"));
    }

    void aChartOfAHundredByAHundred()
    {
        TestChartToolsData record = sized({1600, 1200}, 100, 100);
        record.inLineData.letterMode = false;
        record.inLineData.numMode = true;
        const Chart chart = rendered(record);
        const QImage wall = filled(chart.image, chart.cabinet(42, 17), Qt::black);
        QCOMPARE(compare(chart.image, wall, chart.grid).sentences(),
                 QStringList{"43-18 is missing, all #000000"});
    }

    void theDifferenceIsSeen()
    {
        const QRect missing = usual().cabinet(1, 1);
        const QImage wall = filled(usual().image, QRect(300, 70, 4, 3), Qt::black);
        const QImage both = filled(wall, missing, Qt::black);
        const QImage difference = compare(usual().image, both, usual().grid).difference;
        QCOMPARE(difference.size(), usual().image.size());
        QCOMPARE(difference.pixel(missing.topLeft()), 0xffff0000U);
        QCOMPARE(difference.pixel(missing.bottomRight()), 0xffff0000U);
        QCOMPARE(difference.pixel(missing.center() + QPoint(20, 10)), 0xffffff00U);
        QCOMPARE(difference.pixel(301, 71), 0xffffff00U);
        QCOMPARE(difference.pixel(299, 71), (usual().image.pixel(299, 71) >> 2U & 0x3f3f3fU) | 0xff000000U);
        QCOMPARE(difference.pixel(10, 200), (usual().image.pixel(10, 200) >> 2U & 0x3f3f3fU) | 0xff000000U);
    }

    void theDifferenceOfAnotherSizeShowsBoth()
    {
        const QImage padded = placed(usual().image, {600, 400}, {50, 30});
        const QImage difference = compare(usual().image, padded, usual().grid).difference;
        QCOMPARE(difference.size(), padded.size());
        QCOMPARE(difference.pixel(49, 100), 0xffffff00U);
        QCOMPARE(difference.pixel(530, 100), 0xffffff00U);
        QCOMPARE(difference.pixel(60, 240), (usual().image.pixel(10, 210) >> 2U & 0x3f3f3fU) | 0xff000000U);
        const QImage cropped = usual().image.copy(10, 20, 300, 200);
        const QImage lacking = compare(usual().image, cropped, usual().grid).difference;
        QCOMPARE(lacking.size(), usual().image.size());
        QCOMPARE(lacking.pixel(9, 100), 0xffffff00U);
        QVERIFY(lacking.pixel(10, 100) != 0xffffff00U);
    }

private:
    static const Chart& uneven()
    {
        static const Chart chart = rendered(sized({480, 320}, 5, 7));
        return chart;
    }

    static const Chart& smallest()
    {
        static const Chart chart = [] {
            TestChartToolsData record = plainRecord({16, 16}, 2, 2);
            record.inLineData.showDiagonal = true;
            record.inLineData.diagonalWidth = 1;
            record.publicData.showOutBorder = true;
            record.publicData.outBorderWidth = 1;
            return rendered(record);
        }();
        return chart;
    }

    static QImage noise(const QSize& size)
    {
        std::mt19937 random(7);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::black);
        return mapped(
            image, [&](QRgb) { return qRgb(int(random() % 256), int(random() % 256), int(random() % 256)); });
    }

    /// A pixel in every cabinet is wrong.
    static QImage withFaults(QImage image)
    {
        for (int i = 0; i < 24; ++i)
            image = filled(image, QRect(usual().cabinet(i / 6, i % 6).topLeft() + QPoint(9, 11), QSize(1, 1)),
                           QColor(3, 2, 1));
        return image;
    }

    static void addColumns()
    {
        QTest::addColumn<Disturbance>("disturb");
        QTest::addColumn<Kinds>("expectedKinds");
        QTest::addColumn<QStringList>("sentences"); // "*" for any
    }

    static void add(const char* name, const Disturbance& disturb, const Kinds& kinds,
                    const QStringList& sentences)
    {
        QTest::newRow(name) << disturb << kinds << sentences;
    }

    static void add(const char* name, const Disturbance& disturb, std::initializer_list<Kind> kinds,
                    const QStringList& sentences)
    {
        Kinds numbers;
        for (const Kind kind : kinds)
            numbers << int(kind);
        add(name, disturb, numbers, sentences);
    }

    static void check(const Chart& chart)
    {
        QFETCH(Disturbance, disturb);
        QFETCH(QStringList, sentences);
        const Result result = compare(chart.image, disturb(chart.image), chart.grid);
        QVERIFY(!result.equal);
        QVERIFY(!result.difference.isNull());
        QStringList told = result.sentences();
        for (int i = 0; i < told.size() && i < sentences.size(); ++i) {
            if (sentences.at(i) == QLatin1String("*"))
                told[i] = sentences.at(i);
        }
        QVERIFY2(told == sentences, qPrintable(told.join(QLatin1Char('\n'))));
        QTEST(kinds(result), "expectedKinds");
    }
};

VD_TEST_MAIN(TestChartComparison)
#include "tst_chartcomparison.moc"
