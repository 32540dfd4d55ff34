#include "barerecord.h"
#include "testcase.h"
#include "testwalls.h"

#include <chartpicture.h>
#include <chartrecordfile.h>
#include <wallfile.h>
#include <wallmarkers.h>
#include <wallpicture.h>

#include <QTemporaryDir>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

TestChartToolsData recordOf(const WallDocument& wall)
{
    return WallFile::chartOf(wall, {}).record;
}

/// One colour everywhere, so that only what the wall draws is to be seen.
TestChartToolsData plainRecord(const WallDocument& wall)
{
    TestChartToolsData record = charttool::bareRecord(recordOf(wall));
    record.basicData.oddColor = {0, 0, 200, 255};
    record.basicData.evenColor = record.basicData.oddColor;
    record.publicData.showOutBorder = false;
    return record;
}

const QColor plain(0, 0, 200);

void switchAllOn(WallDocument& wall)
{
    wall.physical.watts = 100;
    wall.data.backup = true;
    wall.layers.outlines = true;
    wall.layers.frames = true;
    wall.layers.frameColor = {255, 0, 0, 255};
    wall.layers.dataRuns = true;
    wall.layers.powerRuns = true;
    wall.layers.names = true;
    wall.layers.coordinates = true;
}

/// Columns and rows of several sizes, with holes, spans and a name that is too long.
WallDocument unevenWall(int scale)
{
    WallDocument wall = wallOf({64 * scale, 96 * scale, 64 * scale, 64 * scale, 32 * scale},
                               {64 * scale, 32 * scale, 96 * scale});
    wall.exceptions.list = {spanning(1, 0, 2, 2, 90), missing(4, 2), missing(0, 1)};
    wall.exceptions.list.front().name = "Above the middle of the stage";
    return wall;
}

void paintMarker(QImage& picture, int marker, const QRect& square)
{
    const int module = square.width() / markerModules;
    for (int y = -module; y < square.height() + module && module > 0; ++y) {
        for (int x = -module; x < square.width() + module; ++x) {
            const bool isInside = x >= 0 && y >= 0 && x < square.width() && y < square.height();
            const bool isWhite = !isInside || isMarkerWhite(marker, y / module, x / module);
            picture.setPixelColor(square.topLeft() + QPoint(x, y), isWhite ? Qt::white : Qt::black);
        }
    }
}

} // namespace

class TestWallPicture : public TestCase
{
    Q_OBJECT

private:
    static QImage pictureOf(const WallDocument& wall, const TestChartToolsData& record)
    {
        return WallPicture(wall, record).image();
    }

private Q_SLOTS:
    void uniformWallsHaveTheRecordsPicture_data()
    {
        QTest::addColumn<WallDocument>("wall");
        WallDocument wall = wallOf(std::vector<int>(15, 128), std::vector<int>(9, 128));
        QTest::newRow("usual") << wall;
        wall.exceptions.list = {spanning(2, 2, 1, 1, 90)};
        QTest::newRow("with a turned cabinet") << wall;
        wall.exceptions.list = {missing(3, 3, 4, 2)};
        wall.layers.blackHoles = false;
        QTest::newRow("with holes that are not black") << wall;
        QTest::newRow("large") << wallOf(std::vector<int>(40, 128), std::vector<int>(3, 128));
    }

    void uniformWallsHaveTheRecordsPicture()
    {
        QFETCH(WallDocument, wall);
        const TestChartToolsData record = recordOf(wall);
        const ChartCaptions captions = {"Resolution", "Cabinets"};
        const QImage expected = ChartPicture(record, captions).image();
        QCOMPARE(WallPicture(wall, record, captions).size(), expected.size());
        VD_COMPARE_IMAGES(WallPicture(wall, record, captions).image(), expected);
    }

    void holesAreBlack()
    {
        WallDocument wall = smallWall();
        wall.exceptions.list = {missing(1, 0), missing(2, 2, 2, 1)};
        const QImage picture = pictureOf(wall, plainRecord(wall));
        QImage expected(128, 96, QImage::Format_RGB32);
        expected.fill(plain);
        for (const QRect& hole : {QRect(32, 0, 32, 32), QRect(64, 64, 64, 32)}) {
            for (int y = hole.top(); y <= hole.bottom(); ++y) {
                for (int x = hole.left(); x <= hole.right(); ++x)
                    expected.setPixelColor(x, y, Qt::black);
            }
        }
        VD_COMPARE_IMAGES(picture, expected);
    }

    /// Each edge pixel of a cabinet, once: half transparent ones are half in the corners, too.
    void framesAndOutlines_data()
    {
        QTest::addColumn<bool>("frames");
        QTest::addColumn<int>("width");
        QTest::newRow("frames") << true << 1;
        QTest::newRow("outlines of 1") << false << 1;
        QTest::newRow("outlines of 5") << false << 5;
        QTest::newRow("outlines of half a cabinet") << false << 16;
        QTest::newRow("outlines of more than that") << false << 20;
    }

    void framesAndOutlines()
    {
        QFETCH(bool, frames);
        QFETCH(int, width);
        WallDocument wall = wallOf({32, 33}, {40});
        const RgbaColor color = {255, 0, 0, 128};
        wall.layers.frames = frames;
        wall.layers.outlines = !frames;
        wall.layers.outlineWidth = width;
        wall.layers.frameColor = color;
        wall.layers.outlineColor = color;
        const QImage picture = pictureOf(wall, plainRecord(wall));
        const QColor half = picture.pixelColor(0, 0);
        QVERIFY(half.red() > 100 && half.blue() > 80 && half.blue() < 120);
        const auto isEdge = [width](int at, int length) { return at < width || at >= length - width; };
        QImage expected(65, 40, QImage::Format_RGB32);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 65; ++x) {
                const bool edge = isEdge(y, 40) || (x < 32 ? isEdge(x, 32) : isEdge(x - 32, 33));
                expected.setPixelColor(x, y, edge ? half : plain);
            }
        }
        VD_COMPARE_IMAGES(picture, expected);
    }

    void unevenChess()
    {
        WallDocument wall = wallOf({16, 48, 32}, {20, 40});
        wall.exceptions.list = {spanning(1, 0, 1, 2)};
        TestChartToolsData record = plainRecord(wall);
        record.basicData.evenColor = {200, 0, 0, 255};
        const QImage picture = pictureOf(wall, record);
        const QColor odd(0, 0, 200);
        const QColor even(200, 0, 0);
        QImage expected(96, 60, QImage::Format_RGB32);
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 96; ++x) {
                const bool lower = y >= 20;
                const QColor color = x < 16 ? (lower ? even : odd) : x < 64 ? even : (lower ? even : odd);
                expected.setPixelColor(x, y, color);
            }
        }
        VD_COMPARE_IMAGES(picture, expected);
    }

    /// In the middle of each cabinet, and nowhere near its edges.
    void unevenLabels()
    {
        const WallDocument wall = wallOf({64, 128}, {64, 96});
        TestChartToolsData record = plainRecord(wall);
        record.inLineData.showSerialNumber = true;
        record.inLineData.serialSize = 16;
        record.inLineData.serialColor = {255, 255, 255, 255};
        const QImage picture = pictureOf(wall, record);
        const CabinetPlan plan(wall);
        for (const WallCabinet& cabinet : plan.cabinets()) {
            QRect ink;
            for (int y = cabinet.rect.top(); y <= cabinet.rect.bottom(); ++y) {
                for (int x = cabinet.rect.left(); x <= cabinet.rect.right(); ++x) {
                    if (picture.pixelColor(x, y) != plain)
                        ink |= QRect(x, y, 1, 1);
                }
            }
            QVERIFY(ink.width() > 10 && ink.width() < 40);
            QVERIFY((ink.center() - cabinet.rect.center()).manhattanLength() < 6);
        }
    }

    /// The line goes through the middles of the cabinets, from the round mark to the square one.
    void dataRuns()
    {
        WallDocument wall = wallOf({128, 128, 128}, {128});
        wall.layers.dataRuns = true;
        const QImage picture = pictureOf(wall, plainRecord(wall));
        const QColor color(0xff, 0xd4, 0x00);
        for (const int x : {90, 110, 150, 192, 230, 280, 300}) // beside the arrows
            QVERIFY2(picture.pixelColor(x, 64) == color, qPrintable(QString::number(x)));
        QVERIFY(picture.pixelColor(126, 64 + 5) == color); // of an arrow, which is wider than the line
        QCOMPARE(picture.pixelColor(150, 64 + 6), plain);
        QCOMPARE(picture.pixelColor(192, 40), plain);
        QCOMPARE(picture.pixelColor(46, 64), color);   // of the round mark
        QVERIFY(picture.pixelColor(320, 64) != color); // the middle of the square one
        QCOMPARE(picture.pixelColor(311, 58), color);  // and beside it
        QCOMPARE(picture.pixelColor(64, 100), plain);
        wall.data.portPixels = 2 * 128 * 128;
        const QImage both = pictureOf(wall, plainRecord(wall));
        QCOMPARE(both.pixelColor(90, 64), color);
        QCOMPARE(both.pixelColor(250, 64), plain); // between two ports
        QVERIFY(both.pixelColor(320 - 30, 64) == QColor(0x19, 0xc3, 0xff));
    }

    /// Nothing of its own is drawn by a wall in which each layer is off, and each of them draws something.
    void switches_data()
    {
        QTest::addColumn<int>("layer");
        const char* const names[] = {"outlines", "frames", "data", "power", "names", "coordinates"};
        for (int i = 0; i < 6; ++i)
            QTest::newRow(names[i]) << i;
    }

    void switches()
    {
        QFETCH(int, layer);
        WallDocument wall = unevenWall(1);
        wall.physical.watts = 100;
        const TestChartToolsData record = recordOf(wall);
        const QImage without = pictureOf(wall, record);
        bool* const shown[] = {&wall.layers.outlines,  &wall.layers.frames, &wall.layers.dataRuns,
                               &wall.layers.powerRuns, &wall.layers.names,  &wall.layers.coordinates};
        *shown[layer] = true;
        QVERIFY(pictureOf(wall, record) != without);
        *shown[layer] = false;
        VD_COMPARE_IMAGES(pictureOf(wall, record), without);
    }

    /// A long name of a cabinet's own is smaller; the others do not suffer.
    void longNames()
    {
        WallDocument wall = wallOf({96, 96}, {96});
        wall.layers.names = true;
        const QRect other(0, 0, 96, 96);
        const QImage before = pictureOf(wall, plainRecord(wall)).copy(other);
        wall.exceptions.list = {spanning(1, 0, 1, 1)};
        wall.exceptions.list.front().name = "A very long name of a cabinet";
        VD_COMPARE_IMAGES(pictureOf(wall, plainRecord(wall)).copy(other), before);
    }

    /// A large wall has the same pixels however its rows are asked for, and those of its parts.
    void stripsFitTogether_data()
    {
        QTest::addColumn<WallDocument>("wall");
        WallDocument uneven = unevenWall(16);
        switchAllOn(uneven);
        uneven.layers.nameSize = 100;
        QTest::newRow("uneven") << uneven;
        WallDocument jumps = wallOf(std::vector<int>(50, 100), std::vector<int>(4, 100));
        switchAllOn(jumps);
        jumps.data.path.pattern = Pattern::OneWay;
        jumps.power.path.byHand.runs = {{{0, 0}, {49, 3}, {0, 3}, {20, 0}}};
        QTest::newRow("jumps across it") << jumps;
    }

    void stripsFitTogether()
    {
        QFETCH(WallDocument, wall);
        const WallPicture picture(wall, recordOf(wall));
        QVERIFY(picture.isDrawnInParts());
        const QImage whole = picture.image();
        for (int top = 0; top < whole.height(); top += 37) {
            const int count = std::min(37, whole.height() - top);
            VD_COMPARE_IMAGES(picture.rows(top, count), whole.copy(0, top, whole.width(), count));
        }
    }

    void smallWallsInStrips()
    {
        WallDocument wall = unevenWall(2);
        switchAllOn(wall);
        const WallPicture picture(wall, recordOf(wall));
        QVERIFY(!picture.isDrawnInParts());
        const QImage whole = picture.image();
        VD_COMPARE_IMAGES(picture.rows(100, 50), whole.copy(0, 100, whole.width(), 50));
        const PictureRows strips = picture.strips();
        QCOMPARE(strips.size, whole.size());
        for (const int top : {0, 50, 100})
            VD_COMPARE_IMAGES(strips.rows(top, 50), whole.copy(0, top, whole.width(), 50));
    }

    /// Also where cabinets have several sizes; in the order of the plan, and where they fit.
    void markers()
    {
        const WallDocument wall = unevenWall(1);
        const TestChartToolsData record = plainRecord(wall);
        const CabinetPlan plan(wall);
        const std::vector<CabinetMarker> markers = cabinetMarkers(plan, record);
        const QImage picture = WallPicture(wall, record, {}, {true}).image();
        const QImage without = WallPicture(wall, record).image();
        QCOMPARE(markers.size(), plan.cabinets().size());
        QImage expected = without;
        int drawn = 0;
        for (std::size_t i = 0; i < markers.size(); ++i) {
            QCOMPARE(markers[i].marker, int(i));
            QCOMPARE(markers[i].square, markerSquare(plan.cabinets()[i].rect, {}));
            drawn += markers[i].square.isEmpty() ? 0 : 1;
            paintMarker(expected, int(i), markers[i].square);
        }
        QVERIFY(drawn > 0 && drawn < int(markers.size()));
        VD_COMPARE_IMAGES(picture, expected);
    }

    /// On a uniform wall they are the record's.
    void markersOfAUniformWall()
    {
        const WallDocument wall = wallOf({80, 80, 80}, {80, 80});
        TestChartToolsData record = plainRecord(wall);
        record.inLineData.showSerialNumber = true;
        record.inLineData.serialPosition = 1;
        record.inLineData.serialSize = 12;
        VD_COMPARE_IMAGES(WallPicture(wall, record, {}, {true}).image(),
                          ChartPicture(record, {}, {true}).image());
        const std::vector<CabinetMarker> markers = vardeno::walls::cabinetMarkers(CabinetPlan(wall), record);
        const std::vector<CabinetMarker> ofRecord = vardeno::testcharttools::cabinetMarkers(record);
        QCOMPARE(markers.size(), ofRecord.size());
        for (std::size_t i = 0; i < markers.size(); ++i)
            QVERIFY(markers[i].square == ofRecord[i].square && markers[i].marker == ofRecord[i].marker);
    }

    void whatTheChartSaysOfMarkers()
    {
        WallDocument wall = smallWall();
        QVERIFY(!WallFile::markersOf(wall, {}).showMarkers);
        wall.chart.record.document = ChartRecordFile::withMarkers({}, {true});
        QVERIFY(WallFile::markersOf(wall, {}).showMarkers);
        QTemporaryDir folder;
        const QString file = folder.filePath("chart.json");
        QCOMPARE(ChartRecordFile::write(file, {}, wall.chart.record.document), QString());
        QVERIFY(WallFile::markersOf(smallWall(), file).showMarkers);
    }
};

VD_TEST_MAIN(TestWallPicture)
#include "tst_wallpicture.moc"
