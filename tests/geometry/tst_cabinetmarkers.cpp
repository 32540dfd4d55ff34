#include "geometry/cabinetmarkers.h"
#include "testcase.h"

#include <chartcabinets.h>
#include <chartpicture.h>
#include <testcharttoolsdata.h>

#include <QSet>

#include <bitset>

using namespace vardeno::testcharttools;

namespace {

constexpr int dataModules = markerModules - 2;
using Code = std::bitset<std::size_t(dataModules) * dataModules>;

/// The marker's modules within its black border, as they are or turned to the right by quarters.
Code codeOf(int marker, int quarters)
{
    Code code;
    for (int row = 0; row < dataModules; ++row) {
        for (int column = 0; column < dataModules; ++column) {
            int y = row;
            int x = column;
            for (int i = 0; i < quarters; ++i) {
                const int turned = dataModules - 1 - x;
                x = y;
                y = turned;
            }
            code[std::size_t(row * dataModules + column)] = isMarkerWhite(marker, y + 1, x + 1);
        }
    }
    return code;
}

TestChartToolsData recordWith(const QSize& size, int columns, int rows)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = size.width();
    record.publicData.resolutionHeight = size.height();
    record.publicData.boxCol = columns;
    record.publicData.boxRow = rows;
    record.publicData.showOutBorder = false;
    record.inLineData.showCircle = record.inLineData.showDiagonal = record.inLineData.showSerialNumber =
        false;
    record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = false;
    return record;
}

QImage pictureOf(const TestChartToolsData& record)
{
    return ChartPicture(record, {}, {true}).image();
}

} // namespace

class TestCabinetMarkers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// What the family promises: no marker is near another one, nor near itself turned.
    void anyTwoDifferInElevenModules()
    {
        std::vector<std::array<Code, 4>> codes;
        for (int marker = 0; marker < markerCount; ++marker)
            codes.push_back({codeOf(marker, 0), codeOf(marker, 1), codeOf(marker, 2), codeOf(marker, 3)});
        std::size_t least = Code().size();
        for (std::size_t i = 0; i < codes.size(); ++i) {
            for (std::size_t quarters = 1; quarters < 4; ++quarters)
                least = std::min(least, (codes[i][0] ^ codes[i][quarters]).count());
            for (std::size_t j = i + 1; j < codes.size(); ++j) {
                for (const Code& turned : codes[j])
                    least = std::min(least, (codes[i][0] ^ turned).count());
            }
        }
        QCOMPARE(int(least), 11);
    }

    void theBorderIsBlack()
    {
        for (int i = 0; i < markerModules; ++i) {
            QVERIFY(!isMarkerWhite(0, 0, i) && !isMarkerWhite(0, i, 0));
            QVERIFY(!isMarkerWhite(0, markerModules - 1, i) && !isMarkerWhite(0, i, markerModules - 1));
        }
        QVERIFY(!isMarkerWhite(-1, 3, 3) && !isMarkerWhite(markerCount, 3, 3));
    }

    /// In each round, and the distance of two neighbours tells the round.
    void roundsHaveAllOfThem()
    {
        for (const int round : {0, 1, 2, 585, 586}) {
            QSet<int> markers;
            for (int i = 0; i < markerCount; ++i)
                markers.insert(markerOf(round * markerCount + i));
            QCOMPARE(int(markers.size()), markerCount);
            const int distance = markerOf(round * markerCount + 1) - markerOf(round * markerCount);
            QCOMPARE((distance + markerCount) % markerCount, round % (markerCount - 1) + 1);
        }
        QCOMPARE(markerOf(586), 586);
        QCOMPARE(markerOf(588), 2);
        QVERIFY(markerOf(999999) >= 0 && markerOf(999999) < markerCount);
    }

    void squares_data()
    {
        QTest::addColumn<QSize>("cell");
        QTest::addColumn<int>("labelHeight");
        QTest::addColumn<int>("position");
        QTest::addColumn<QRect>("square");
        QTest::newRow("half of a cabinet") << QSize(120, 120) << 0 << 0 << QRect(36, 36, 48, 48);
        QTest::newRow("the smaller side counts") << QSize(256, 128) << 0 << 0 << QRect(104, 40, 48, 48);
        QTest::newRow("above a label") << QSize(120, 120) << 24 << 0 << QRect(44, 8, 32, 32);
        QTest::newRow("between labels") << QSize(120, 120) << 24 << 1 << QRect(36, 36, 48, 48);
        QTest::newRow("between large labels") << QSize(120, 120) << 36 << 2 << QRect(44, 44, 32, 32);
        QTest::newRow("labels leave no room") << QSize(120, 120) << 50 << 1 << QRect();
        QTest::newRow("the smallest") << QSize(40, 40) << 0 << 0 << QRect(12, 12, 16, 16);
        QTest::newRow("too small") << QSize(40, 39) << 0 << 0 << QRect();
        QTest::newRow("no label, no position") << QSize(40, 40) << 0 << 7 << QRect(12, 12, 16, 16);
    }

    void squares()
    {
        QFETCH(QSize, cell);
        QFETCH(int, labelHeight);
        QFETCH(int, position);
        QFETCH(QRect, square);
        const QRect made = markerSquare({QPoint(), cell}, {labelHeight, position});
        QCOMPARE(made.isEmpty(), square.isEmpty());
        if (!square.isEmpty())
            QCOMPARE(made, square);
        const QRect moved = markerSquare({QPoint(700, 300), cell}, {labelHeight, position});
        QCOMPARE(moved, made.translated(700, 300));
    }

    /// Each module is whole pixels of black or white, and white is around the square.
    void theChartHasThem()
    {
        const TestChartToolsData record = recordWith({600, 240}, 5, 2);
        const QImage chart = pictureOf(record);
        const std::vector<CabinetMarker> markers = cabinetMarkers(record);
        QCOMPARE(int(markers.size()), 10);
        for (std::size_t i = 0; i < markers.size(); ++i) {
            QCOMPARE(markers[i].marker, int(i));
            const QRect square = markers[i].square;
            const int module = 6;
            QCOMPARE(square.size(), QSize(module, module) * markerModules);
            QVERIFY(ChartCabinets::rect(record, int(i) / 5, int(i) % 5).contains(square));
            for (int y = -module; y < square.height() + module; ++y) {
                for (int x = -module; x < square.width() + module; ++x) {
                    const bool isInside = QRect({}, square.size()).contains(x, y);
                    const bool isWhite = !isInside || isMarkerWhite(int(i), y / module, x / module);
                    QCOMPARE(chart.pixelColor(square.topLeft() + QPoint(x, y)),
                             QColor(isWhite ? Qt::white : Qt::black));
                }
            }
        }
    }

    void labelsStayFree_data()
    {
        QTest::addColumn<int>("position");
        QTest::newRow("in the centre") << 0;
        QTest::newRow("left up") << 1;
        QTest::newRow("left down") << 2;
    }

    /// With markers, nothing else of the chart changes than what lies under them.
    void labelsStayFree()
    {
        QFETCH(int, position);
        TestChartToolsData record = recordWith({960, 720}, 4, 3);
        record.inLineData.showSerialNumber = true;
        record.inLineData.serialPosition = position;
        record.inLineData.serialSize = 48;
        const QImage without = ChartPicture(record).image();
        QImage labels = without;
        QImage covered = pictureOf(record);
        const std::vector<CabinetMarker> markers = cabinetMarkers(record);
        QCOMPARE(int(markers.size()), 12);
        for (const CabinetMarker& marker : markers) {
            const int module = marker.square.width() / markerModules;
            const QRect quiet = marker.square.adjusted(-module, -module, module, module);
            for (int y = quiet.top(); y <= quiet.bottom(); ++y) {
                for (int x = quiet.left(); x <= quiet.right(); ++x) {
                    QVERIFY(labels.pixelColor(x, y) == labels.pixelColor(quiet.topLeft()));
                    covered.setPixel(x, y, without.pixel(x, y));
                }
            }
        }
        VD_COMPARE_IMAGES(covered, without);
    }

    void noneWhereTheyDoNotFit()
    {
        const TestChartToolsData record = recordWith({390, 390}, 10, 10);
        QVERIFY(cabinetMarkers(record).empty());
        VD_COMPARE_IMAGES(pictureOf(record), ChartPicture(record).image());
    }

    /// Drawn in tiles, it has the pixels that the square has elsewhere.
    void onALargeChart()
    {
        const TestChartToolsData record = recordWith({8400, 120}, 70, 1);
        const QImage chart = pictureOf(record);
        const std::vector<CabinetMarker> markers = cabinetMarkers(record);
        for (const std::size_t i : {std::size_t(0), std::size_t(34), std::size_t(69)}) {
            const QRect square = markers[i].square;
            for (int y = 0; y < square.height(); ++y) {
                for (int x = 0; x < square.width(); ++x)
                    QCOMPARE(chart.pixelColor(square.topLeft() + QPoint(x, y)) == QColor(Qt::white),
                             isMarkerWhite(int(i), y / 6, x / 6));
            }
        }
    }
};

VD_TEST_MAIN(TestCabinetMarkers)
#include "tst_cabinetmarkers.moc"
