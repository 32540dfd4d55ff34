#include "camera.h"
#include "readingmarkers.h"
#include "testcase.h"

#include <chartmarkers.h>

#include <QPainter>

#include <opencv2/aruco.hpp>

using namespace WallReading;
using namespace vardeno;

Q_DECLARE_METATYPE(WallReading::Finding)

/// Charts with coded markers, and what is read by them.
class TestChartMarkers : public TestCase
{
    Q_OBJECT

private:
    Photos::Wall m_wall;

    QRect rectOf(int row, int column) const
    {
        return m_wall.cabinets.cabinets[std::size_t(row * m_wall.cabinets.columns + column)].rect;
    }

    /// Two cabinets swapped, a third turned upside down.
    Photos::Wall wrongWall() const
    {
        Photos::Wall wall = m_wall;
        QPainter painter(&wall.shown);
        painter.drawImage(rectOf(1, 2), m_wall.chart.copy(rectOf(3, 0)));
        painter.drawImage(rectOf(3, 0), m_wall.chart.copy(rectOf(1, 2)));
        painter.drawImage(rectOf(2, 2), m_wall.chart.copy(rectOf(2, 2)).mirrored(true, true));
        return wall;
    }

    static QStringList accused(const Reading& reading)
    {
        QStringList all;
        for (const Finding& finding : reading.findings) {
            if (isAccusation(finding.kind))
                all << finding.label + QLatin1Char(' ') + sentence(finding);
        }
        all.sort();
        return all;
    }

    QString nameOf(int row, int column) const
    {
        return m_wall.cabinets.cabinets[std::size_t(row * m_wall.cabinets.columns + column)].name;
    }

    /// A wall of 40 x 20 cabinets, of 100 pixels each, whose markers go round.
    static Chart largeChart()
    {
        Chart chart;
        chart.picture = QImage(4000, 2000, QImage::Format_RGB32);
        chart.cabinets.columns = 40;
        for (int i = 0; i < 800; ++i)
            chart.cabinets.cabinets.push_back({QRect(i % 40 * 100, i / 40 * 100, 100, 100), QString()});
        return chart;
    }

    static std::vector<Marker> markersOf(const Chart& chart)
    {
        std::vector<Marker> markers;
        for (const auto& cabinet : chart.cabinets.cabinets)
            markers.push_back({testcharttools::markerOf(int(markers.size())), markers.size(),
                               cabinet.rect.adjusted(26, 26, -26, -26)});
        return markers;
    }

    /// As the part of the chart from `row` and `column` on shows them, three times as large.
    static std::vector<SeenMarker> seenIn(const std::vector<Marker>& markers, int row, int column, int rows,
                                          int columns)
    {
        std::vector<SeenMarker> seen;
        for (int i = 0; i < rows * columns; ++i) {
            const Marker& marker = markers[std::size_t((row + i / columns) * 40 + column + i % columns)];
            const QRect square = marker.square.translated(-column * 100, -row * 100);
            const double left = 3.0 * square.left();
            const double top = 3.0 * square.top();
            const double side = 3.0 * square.width();
            seen.push_back({marker.code,
                            {cv::Point2d(left, top), cv::Point2d(left + side, top),
                             cv::Point2d(left + side, top + side), cv::Point2d(left, top + side)}});
        }
        return seen;
    }

private Q_SLOTS:
    void initTestCase() { m_wall = Photos::rightWall("tags", {768, 512, 6, 4}); }

    /// The detector's own table says the same.
    void codesAreTheFamilys()
    {
        const auto family = cv::aruco::getPredefinedDictionary(cv::aruco::DICT_APRILTAG_36h11);
        QCOMPARE(family->bytesList.rows, testcharttools::markerCount);
        for (int marker = 0; marker < testcharttools::markerCount; ++marker) {
            cv::Mat drawn; // a pixel for each module
            family->drawMarker(marker, testcharttools::markerModules, drawn);
            for (int row = 0; row < drawn.rows; ++row) {
                for (int column = 0; column < drawn.cols; ++column)
                    QCOMPARE(testcharttools::isMarkerWhite(marker, row, column),
                             drawn.at<uchar>(row, column) > 0);
            }
        }
    }

    void seenWhereTheyAre()
    {
        const QImage grey = m_wall.chart.convertToFormat(QImage::Format_Grayscale8);
        const cv::Mat picture(grey.height(), grey.width(), CV_8U, const_cast<uchar*>(grey.constBits()),
                              std::size_t(grey.bytesPerLine()));
        const std::vector<SeenMarker> seen = markersIn(picture);
        QCOMPARE(seen.size(), m_wall.markers.size());
        for (const SeenMarker& one : seen) {
            const QRect square = m_wall.markers[std::size_t(one.code)].square;
            QVERIFY(cv::norm(one.corners[0] - cv::Point2d(square.x(), square.y())) < 1);
            QVERIFY(cv::norm(one.corners[2] -
                             cv::Point2d(square.x() + square.width(), square.y() + square.height())) < 1);
        }
    }

    /// A photograph of half of the cabinets. What one of them shows belongs to one that is not in it.
    void aPartOfTheWall()
    {
        Photos::Shot shot;
        shot.angle = 20;
        shot.share = 0.9;
        shot.width = 1600;
        shot.height = 1200;
        Photos::Random random(5);
        const Photos::Wall wall = wrongWall();
        const Photos::Photo photo = Photos::photograph(wall, shot, random);
        const auto at = [&](double x, double y) {
            const QPointF top = photo.corners[0] + (photo.corners[1] - photo.corners[0]) * x;
            const QPointF bottom = photo.corners[3] + (photo.corners[2] - photo.corners[3]) * x;
            return (top + (bottom - top) * y).toPoint();
        };
        const QRect part(at(0.3, 0.02), at(0.98, 0.8));
        const Reading reading = read(photo.picture.copy(part), {wall.chart, wall.cabinets}, wall.markers);
        QVERIFY(reading.isLocated);
        QCOMPARE(int(reading.doubt), int(Doubt::None));
        QStringList expected = {nameOf(1, 2) + " " + nameOf(1, 2) + " shows what belongs to " + nameOf(3, 0),
                                nameOf(2, 2) + " " + nameOf(2, 2) + " is turned by 180 degrees"};
        QCOMPARE(accused(reading), expected);
        for (std::size_t i = 0; i < 4; ++i) {
            const QPointF off = reading.corners[i] + part.topLeft() - photo.corners[i];
            QVERIFY2(std::hypot(off.x(), off.y()) < 12,
                     qPrintable(QString::number(std::hypot(off.x(), off.y()))));
        }
    }

    /// The whole wall, in which both are seen.
    void swapsAndTurnsOfACapture()
    {
        const Photos::Wall wall = wrongWall();
        const QImage capture =
            wall.shown.scaled(wall.shown.size() * 0.8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const Reading reading =
            read(Photos::compressed(capture, 80), {wall.chart, wall.cabinets}, wall.markers);
        QCOMPARE(accused(reading),
                 (QStringList{nameOf(1, 2) + " " + nameOf(1, 2) + " shows what belongs to " + nameOf(3, 0),
                              nameOf(2, 2) + " " + nameOf(2, 2) + " is turned by 180 degrees",
                              nameOf(3, 0) + " " + nameOf(3, 0) + " shows what belongs to " + nameOf(1, 2)}));
        QVERIFY(read(m_wall.chart, {wall.chart, wall.cabinets}, wall.markers).isGood());
    }

    void rounds_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::newRow("in the first round") << 1 << 3;
        QTest::newRow("where the first ends") << 13 << 24;
        QTest::newRow("in the second") << 16 << 30;
    }

    /// Of cabinets with one marker the neighbours tell which it is.
    void rounds()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        const Chart chart = largeChart();
        const std::vector<Marker> markers = markersOf(chart);
        std::vector<SeenMarker> seen = seenIn(markers, row, column, 4, 5);
        std::swap(seen[7].code, seen[18].code);
        const auto lens = placedByMarkers(seen, chart, markers, {1500, 1200});
        QVERIFY(lens);
        for (const cv::Point2d& corner : {cv::Point2d(0, 0), cv::Point2d(500, 400)}) {
            const cv::Point2d at = (*lens)(corner + cv::Point2d(column * 100, row * 100));
            QVERIFY(cv::norm(at - 3 * corner) < 2);
        }
        const MarkedContents contents = contentsByMarkers(seen, chart, markers, *lens);
        const auto cabinetOf = [&](int i) { return std::size_t((row + i / 5) * 40 + column + i % 5); };
        const auto& right = contents[cabinetOf(0)];
        QVERIFY(right && right->turn == 0);
        QCOMPARE(right->cabinets, std::vector<std::size_t>{cabinetOf(0)});
        const auto& swapped = contents[cabinetOf(7)];
        QVERIFY(swapped &&
                std::count(swapped->cabinets.begin(), swapped->cabinets.end(), cabinetOf(18)) == 1);
        QVERIFY(!contents[std::size_t(row * 40 + column + 10)]);
    }

    void tooFewSayNothing()
    {
        const Chart chart = largeChart();
        const std::vector<Marker> markers = markersOf(chart);
        QVERIFY(!placedByMarkers(seenIn(markers, 0, 0, 1, 3), chart, markers, {1500, 1200}));
        QVERIFY(!placedByMarkers({}, chart, markers, {1500, 1200}));
        QVERIFY(placedByMarkers(seenIn(markers, 0, 0, 2, 2), chart, markers, {1500, 1200}));
    }
};

VD_TEST_MAIN(TestChartMarkers)
#include "tst_chartmarkers.moc"
