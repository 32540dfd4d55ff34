#include "geometry/logoplacement.h"
#include "testcase.h"

#include <climits>

using namespace vardeno::testcharttools;

namespace {

const std::vector<int> shifts = {0,     1,     -1,     7,       -7,         60,      -60,
                                 12345, 16384, -16384, 1 << 25, -(1 << 25), INT_MAX, INT_MIN};

/// What follows is written down once more from the rules, step by step, along one axis at a time.
enum class Edge
{
    Near,
    Far,
    Middle,
    None
};

Edge horizontalEdge(int anchor)
{
    static const Edge edges[] = {Edge::Middle, Edge::Near, Edge::Near, Edge::Far, Edge::Far};
    return anchor >= 0 && anchor <= 4 ? edges[anchor] : Edge::None;
}

Edge verticalEdge(int anchor)
{
    static const Edge edges[] = {Edge::Middle, Edge::Near, Edge::Far, Edge::Near, Edge::Far};
    return anchor >= 0 && anchor <= 4 ? edges[anchor] : Edge::None;
}

struct Axis
{
    int at;
    int applied;
};

Axis pictureAlong(int side, int pictureSide, Edge edge, int shift)
{
    const auto length = float(pictureSide);
    int origin = 0;
    if (edge == Edge::Middle)
        origin = int(-length * 0.5F);
    else if (edge == Edge::Near)
        origin = -(side / 2);
    else if (edge == Edge::Far)
        origin = int(float(side / 2) - length);

    qint64 at = qint64(origin) + shift;
    if (at < -(side / 2))
        at = -(side / 2);
    if (float(at) > float(side / 2) - length)
        at = qint64(float(side / 2) - length);
    int applied = int(at - origin);
    if (length >= float(side)) {
        applied = 0;
        at = origin;
    }
    return {int(at), applied};
}

Axis textAcross(int side, const TextExtent& text, int anchor, int shift)
{
    const int near = text.lineWidth - side / 2;
    const int far = side / 2 - text.lineWidth - text.advance;
    int origin = 0;
    if (anchor == 0)
        origin = -(text.advance / 2);
    else if (anchor == 1)
        origin = near;
    else if (anchor == 2)
        origin = -(side / 2);
    else if (anchor == 3 || anchor == 4)
        origin = far;

    qint64 at = qint64(origin) + shift;
    if (at < near)
        at = near;
    if (at > far)
        at = far;
    return {int(at), int(at - origin)};
}

Axis textDown(int side, const TextExtent& text, int anchor, int shift)
{
    const double top = text.lineWidth - (side / 2 - text.height / 1.1);
    const int bottom = side / 2 - text.height / 5 - text.lineWidth;
    int origin = 0;
    if (anchor == 0)
        origin = text.height / 2;
    else if (anchor == 1 || anchor == 3)
        origin = int(top);
    else if (anchor == 2 || anchor == 4)
        origin = bottom;

    qint64 at = qint64(origin) + shift;
    if (top > double(at))
        at = qint64(top);
    if (at > bottom)
        at = bottom;
    return {int(at), int(at - origin)};
}

QString told(const LogoPlacement& placement)
{
    return QStringLiteral("at %1, %2, applied %3, %4")
        .arg(placement.at.x())
        .arg(placement.at.y())
        .arg(placement.applied.x())
        .arg(placement.applied.y());
}

QString told(const Axis& x, const Axis& y)
{
    return told(LogoPlacement{{x.at, y.at}, {x.applied, y.applied}});
}

} // namespace

/// Where a logo stands on the chart.
class TestLogoPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picture_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("shift");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QPoint>("applied");
        // On a chart of 1920 x 1080.
        QTest::newRow("centre") << 0 << QSize(200, 100) << QPoint() << QPoint(-100, -50) << QPoint();
        QTest::newRow("centre, odd size")
            << 0 << QSize(333, 217) << QPoint() << QPoint(-166, -108) << QPoint();
        QTest::newRow("left up") << 1 << QSize(200, 100) << QPoint() << QPoint(-960, -540) << QPoint();
        QTest::newRow("left down") << 2 << QSize(200, 100) << QPoint() << QPoint(-960, 440) << QPoint();
        QTest::newRow("right up") << 3 << QSize(200, 100) << QPoint() << QPoint(760, -540) << QPoint();
        QTest::newRow("right down") << 4 << QSize(200, 100) << QPoint() << QPoint(760, 440) << QPoint();
        QTest::newRow("unknown anchor") << 5 << QSize(200, 100) << QPoint() << QPoint(0, 0) << QPoint();
        QTest::newRow("negative anchor") << -1 << QSize(200, 100) << QPoint() << QPoint(0, 0) << QPoint();
        QTest::newRow("no picture") << 0 << QSize(0, 0) << QPoint(3, 4) << QPoint(3, 4) << QPoint(3, 4);
        QTest::newRow("shifted") << 0 << QSize(200, 100) << QPoint(30, -7) << QPoint(-70, -57)
                                 << QPoint(30, -7);
        QTest::newRow("centre, shifted to the far edges")
            << 0 << QSize(200, 100) << QPoint(100000, 100000) << QPoint(760, 440) << QPoint(860, 490);
        QTest::newRow("centre, shifted to the near edges")
            << 0 << QSize(200, 100) << QPoint(-100000, -100000) << QPoint(-960, -540) << QPoint(-860, -490);
        QTest::newRow("shifted off its corner")
            << 1 << QSize(200, 100) << QPoint(-5, -5) << QPoint(-960, -540) << QPoint();
        QTest::newRow("largest shift")
            << 0 << QSize(200, 100) << QPoint(INT_MAX, INT_MAX) << QPoint(760, 440) << QPoint(860, 490);
        QTest::newRow("smallest shift")
            << 4 << QSize(200, 100) << QPoint(INT_MIN, INT_MIN) << QPoint(-960, -540) << QPoint(-1720, -980);
        QTest::newRow("a pixel narrower than the chart")
            << 1 << QSize(1919, 100) << QPoint(50, 0) << QPoint(-959, -540) << QPoint(1, 0);
        QTest::newRow("as wide as the chart")
            << 0 << QSize(1920, 100) << QPoint(50, 9) << QPoint(-960, -41) << QPoint(0, 9);
        QTest::newRow("as high as the chart")
            << 0 << QSize(100, 1080) << QPoint(9, 50) << QPoint(-41, -540) << QPoint(9, 0);
        QTest::newRow("wider than the chart, right")
            << 3 << QSize(2000, 100) << QPoint(-50, 9) << QPoint(-1040, -531) << QPoint(0, 9);
        QTest::newRow("larger than the chart, centre")
            << 0 << QSize(3001, 2001) << QPoint(-50, 9) << QPoint(-1500, -1000) << QPoint();
        QTest::newRow("wider than the room, unknown anchor")
            << 9 << QSize(1900, 1000) << QPoint() << QPoint(-940, -460) << QPoint(-940, -460);
    }

    void picture()
    {
        QFETCH(int, anchor);
        QFETCH(QSize, size);
        QFETCH(QPoint, shift);
        QFETCH(QPoint, at);
        QFETCH(QPoint, applied);
        QCOMPARE(told(placedPicture({1920, 1080}, size, anchor, shift)), told({at, applied}));
    }

    void text_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("advance");
        QTest::addColumn<int>("height");
        QTest::addColumn<QPoint>("shift");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QPoint>("applied");
        // On a chart of 1000 x 600 with a line width of 3: for a height of 61 the top limit is -241.55.
        QTest::newRow("centre") << 0 << 301 << 61 << QPoint() << QPoint(-150, 30) << QPoint();
        QTest::newRow("left up") << 1 << 301 << 61 << QPoint() << QPoint(-497, -241) << QPoint();
        QTest::newRow("left down, which has no margin of its own")
            << 2 << 301 << 61 << QPoint() << QPoint(-497, 285) << QPoint(3, 0);
        QTest::newRow("right up") << 3 << 301 << 61 << QPoint() << QPoint(196, -241) << QPoint();
        QTest::newRow("right down") << 4 << 301 << 61 << QPoint() << QPoint(196, 285) << QPoint();
        QTest::newRow("unknown anchor") << 5 << 301 << 61 << QPoint() << QPoint(0, 0) << QPoint();
        QTest::newRow("negative anchor") << -7 << 301 << 61 << QPoint() << QPoint(0, 0) << QPoint();
        QTest::newRow("shifted") << 0 << 301 << 61 << QPoint(20, -40) << QPoint(-130, -10) << QPoint(20, -40);
        QTest::newRow("left down, shifted by less than the margin")
            << 2 << 301 << 61 << QPoint(2, 0) << QPoint(-497, 285) << QPoint(3, 0);
        QTest::newRow("left down, shifted by more than the margin")
            << 2 << 301 << 61 << QPoint(10, -5) << QPoint(-490, 280) << QPoint(10, -5);
        QTest::newRow("shifted to the far edges")
            << 0 << 301 << 61 << QPoint(INT_MAX, INT_MAX) << QPoint(196, 285) << QPoint(346, 255);
        QTest::newRow("shifted to the near edges")
            << 0 << 301 << 61 << QPoint(INT_MIN, INT_MIN) << QPoint(-497, -241) << QPoint(-347, -271);
        QTest::newRow("a pixel above the top limit")
            << 1 << 301 << 61 << QPoint(0, -1) << QPoint(-497, -241) << QPoint();
        QTest::newRow("just wider than the room: the right limit wins")
            << 1 << 995 << 61 << QPoint() << QPoint(-498, -241) << QPoint(-1, 0);
        QTest::newRow("wider than the chart: the right limit wins")
            << 0 << 1200 << 61 << QPoint(40, 0) << QPoint(-703, 30) << QPoint(-103, 0);
        QTest::newRow("higher than the chart: the bottom limit wins")
            << 0 << 301 << 700 << QPoint() << QPoint(-150, 157) << QPoint(0, -193);
        QTest::newRow("higher than the chart, left up")
            << 1 << 301 << 700 << QPoint() << QPoint(-497, 157) << QPoint(0, -182);
        QTest::newRow("no text") << 4 << 0 << 61 << QPoint() << QPoint(497, 285) << QPoint();
    }

    void text()
    {
        QFETCH(int, anchor);
        QFETCH(int, advance);
        QFETCH(int, height);
        QFETCH(QPoint, shift);
        QFETCH(QPoint, at);
        QFETCH(QPoint, applied);
        QCOMPARE(told(placedText({1000, 600}, {advance, height, 3}, anchor, shift)), told({at, applied}));
    }

    void leftAnchorsShareTheirEdge()
    {
        const TextExtent extent{301, 61, 3};
        QCOMPARE(placedText({1000, 600}, extent, 2, {}).at.x(),
                 placedText({1000, 600}, extent, 1, {}).at.x());
    }

    void everywhere_data()
    {
        QTest::addColumn<QSize>("chart");
        for (const QSize& chart : {QSize(1920, 1080), QSize(1081, 607), QSize(1080, 1920), QSize(4320, 4320),
                                   QSize(16, 16), QSize(17, 5), QSize(1, 1)})
            QTest::newRow(qPrintable(QStringLiteral("%1 x %2").arg(chart.width()).arg(chart.height())))
                << chart;
    }

    /// All anchors, with logos smaller than, equal to and larger than the chart, and all shifts.
    void everywhere()
    {
        QFETCH(QSize, chart);
        const auto lengths = [](int side) {
            return std::vector<int>{0,        1,    2,        side / 2,     side / 2 + 1,
                                    side - 1, side, side + 1, 2 * side + 1, 7680};
        };
        for (int anchor = -1; anchor <= 6; ++anchor) {
            for (const int width : lengths(chart.width())) {
                for (const int height : lengths(chart.height()))
                    compareShifted(chart, {width, height}, anchor);
            }
        }
    }

private:
    static void compareShifted(const QSize& chart, const QSize& logo, int anchor)
    {
        const TextExtent extent{logo.width(), logo.height(), 1 + logo.height() / 16};
        for (std::size_t i = 0; i < shifts.size(); ++i) {
            const QPoint shift(shifts[i], shifts[shifts.size() - 1 - i]);
            const QString place = QStringLiteral("chart %1 x %2, logo %3 x %4, anchor %5, shift %6, %7: ")
                                      .arg(chart.width())
                                      .arg(chart.height())
                                      .arg(logo.width())
                                      .arg(logo.height())
                                      .arg(anchor)
                                      .arg(shift.x())
                                      .arg(shift.y());
            QCOMPARE(place + told(placedPicture(chart, logo, anchor, shift)),
                     place +
                         told(pictureAlong(chart.width(), logo.width(), horizontalEdge(anchor), shift.x()),
                              pictureAlong(chart.height(), logo.height(), verticalEdge(anchor), shift.y())));
            QCOMPARE(place + told(placedText(chart, extent, anchor, shift)),
                     place + told(textAcross(chart.width(), extent, anchor, shift.x()),
                                  textDown(chart.height(), extent, anchor, shift.y())));
        }
    }
};

VD_TEST_MAIN(TestLogoPlacement)
#include "tst_logoplacement.moc"
