#include "testcase.h"
#include "testwalls.h"

#include <placedpart.h>
#include <showpicture.h>
#include <wallpicture.h>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

ShowFile::PlacedWall placedWall(const WallDocument& wall)
{
    return {wall, WallFile::chartOf(wall, {}).record, {}, {}};
}

/// Pixels that are told apart: a chessboard with labels, circles and numbers.
WallDocument markedWall()
{
    WallDocument wall = wallOf({64, 32, 48}, {32, 48});
    wall.layers.names = true;
    wall.layers.outlines = true;
    return wall;
}

/// Wider than what is drawn at once.
WallDocument largeWall()
{
    WallDocument wall = wallOf(std::vector<int>(70, 64), {64, 64});
    wall.layers.names = true;
    wall.layers.dataRuns = true;
    return wall;
}

ShowDocument showOn(int width, int height, const std::vector<WallPlacement>& placements)
{
    ShowDocument show;
    show.outputs.list = {{"A", width, height, 60, {}}};
    show.walls.list = {{"Main", "main.wall.json", {}, {}}, {"Side", "side.wall.json", {}, {}}};
    show.placements.list = placements;
    return show;
}

WallPlacement placed(const char* wall, int x, int y, int degrees = 0, bool mirrored = false,
                     const QRect& part = {})
{
    WallPlacement placement;
    placement.wall = wall;
    placement.output = "A";
    placement.x = x;
    placement.y = y;
    placement.turned.degrees = degrees;
    placement.mirrored = mirrored;
    placement.part.rect = part;
    return placement;
}

QImage wallImage(const WallDocument& wall)
{
    const ShowFile::PlacedWall chart = placedWall(wall);
    return WallPicture(wall, chart.record).image();
}

/// Where the pixel of an untouched wall goes, worked out pixel by pixel from what the words mean: left and
/// right are exchanged, then it is turned clockwise in steps of 90 degrees.
QImage turnedByHand(QImage wall, int degrees, bool mirrored)
{
    if (mirrored) {
        QImage exchanged(wall.size(), wall.format());
        for (int y = 0; y < wall.height(); ++y) {
            for (int x = 0; x < wall.width(); ++x)
                exchanged.setPixel(wall.width() - 1 - x, y, wall.pixel(x, y));
        }
        wall = exchanged;
    }
    for (int turn = 0; turn < degrees / 90; ++turn) {
        QImage turned(wall.height(), wall.width(), wall.format());
        for (int y = 0; y < wall.height(); ++y) {
            for (int x = 0; x < wall.width(); ++x)
                turned.setPixel(wall.height() - 1 - y, x, wall.pixel(x, y));
        }
        wall = turned;
    }
    return wall;
}

QImage pasted(const QSize& size, const QPoint& at, const QImage& image)
{
    QImage output(size, QImage::Format_RGB32);
    output.fill(Qt::black);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (output.rect().contains(at + QPoint(x, y)))
                output.setPixel(at + QPoint(x, y), image.pixel(x, y));
        }
    }
    return output;
}

void addTurns()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<bool>("mirrored");
    for (const int degrees : {0, 90, 180, 270}) {
        for (const bool mirrored : {false, true})
            QTest::addRow("%d%s", degrees, mirrored ? " mirrored" : "") << degrees << mirrored;
    }
}

} // namespace

class TestShowPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wallsLieWhereTheyArePlaced_data() { addTurns(); }

    void wallsLieWhereTheyArePlaced()
    {
        QFETCH(int, degrees);
        QFETCH(bool, mirrored);
        const WallDocument wall = markedWall();
        const ShowDocument show = showOn(256, 200, {placed("Main", 20, 30, degrees, mirrored)});
        const ShowPicture picture(show, {placedWall(wall), placedWall(wall)}, 0);
        QCOMPARE(picture.size(), QSize(256, 200));
        VD_COMPARE_IMAGES(picture.image(),
                          pasted({256, 200}, {20, 30}, turnedByHand(wallImage(wall), degrees, mirrored)));
    }

    void partsLieWhereTheyArePlaced_data() { addTurns(); }

    /// Also where the output ends within them.
    void partsLieWhereTheyArePlaced()
    {
        QFETCH(int, degrees);
        QFETCH(bool, mirrored);
        const WallDocument wall = markedWall();
        const QRect part(21, 7, 100, 61);
        const ShowDocument show = showOn(80, 64, {placed("Main", -11, 9, degrees, mirrored, part)});
        const ShowPicture picture(show, {placedWall(wall), placedWall(wall)}, 0);
        const QImage turned = turnedByHand(wallImage(wall).copy(part), degrees, mirrored);
        VD_COMPARE_IMAGES(picture.image(), pasted({80, 64}, {-11, 9}, turned));
    }

    /// What the wall does not have is black.
    void aPartBeyondTheWallIsBlack()
    {
        const WallDocument wall = markedWall();
        const QRect part(100, 40, 100, 60);
        const ShowDocument show = showOn(256, 200, {placed("Main", 5, 6, 90, false, part)});
        QImage beyond(part.size(), QImage::Format_RGB32);
        beyond.fill(Qt::black);
        const QImage inside = wallImage(wall).copy(QRect(100, 40, 44, 40));
        beyond = pasted(part.size(), {0, 0}, inside);
        VD_COMPARE_IMAGES(ShowPicture(show, {placedWall(wall), placedWall(wall)}, 0).image(),
                          pasted({256, 200}, {5, 6}, turnedByHand(beyond, 90, false)));
    }

    void aLaterOneLiesOverThoseBefore()
    {
        const WallDocument main = markedWall();
        const WallDocument side = wallOf({32, 32}, {32, 32});
        const ShowDocument show = showOn(256, 200, {placed("Main", 0, 0), placed("Side", 100, 40)});
        const QImage picture = ShowPicture(show, {placedWall(main), placedWall(side)}, 0).image();
        VD_COMPARE_IMAGES(picture.copy(100, 40, 64, 64), wallImage(side));
        VD_COMPARE_IMAGES(picture.copy(0, 0, 100, 80), wallImage(main).copy(0, 0, 100, 80));
    }

    void otherOutputsShowTheirOwn()
    {
        ShowDocument show = showOn(256, 200, {placed("Main", 0, 0)});
        show.outputs.list.push_back({"B", 64, 64, 60, {}});
        const WallDocument wall = markedWall();
        const QImage other = ShowPicture(show, {placedWall(wall), placedWall(wall)}, 1).image();
        VD_COMPARE_IMAGES(other, pasted({64, 64}, {}, QImage()));
    }

    /// Each channel is mixed, and rounded to the nearest.
    void colorsTellWallsApart()
    {
        const WallDocument wall = markedWall();
        ShowDocument show = showOn(256, 200, {placed("Main", 0, 0), placed("Side", 0, 100)});
        show.layers.wallColors = true;
        show.layers.colorPercent = 30;
        show.walls.list[0].color = {true, {200, 100, 0, 255}};
        const QImage plain = wallImage(wall);
        const QImage picture = ShowPicture(show, {placedWall(wall), placedWall(wall)}, 0).image();
        for (const QPoint& at : {QPoint(0, 0), QPoint(70, 20), QPoint(140, 70), QPoint(5, 5)}) {
            const QRgb own = plain.pixel(at);
            const auto mixed = [](int channel, int color) {
                return qRound(channel * 0.7 + color * 0.3 + 1e-9);
            };
            QCOMPARE(QColor(picture.pixel(at)),
                     QColor(mixed(qRed(own), 200), mixed(qGreen(own), 100), mixed(qBlue(own), 0)));
        }
        QVERIFY(picture.copy(0, 0, 144, 80) != picture.copy(0, 100, 144, 80));
        QCOMPARE(QColor(picture.pixel(200, 50)), QColor(Qt::black)); // no wall, no color
    }

    /// A large wall, and a large output, are drawn in parts: the pixels are those of the whole, at all turns.
    void largeOnesAreDrawnInParts_data() { addTurns(); }

    void largeOnesAreDrawnInParts()
    {
        QFETCH(int, degrees);
        QFETCH(bool, mirrored);
        const WallDocument wall = largeWall();
        const QSize size(600, 4500);
        const ShowDocument show =
            showOn(size.width(), size.height(), {placed("Main", 40, 10, degrees, mirrored)});
        const ShowPicture picture(show, {placedWall(wall), placedWall(wall)}, 0);
        QVERIFY(picture.isDrawnInParts());
        const QImage expected = pasted(size, {40, 10}, turnedByHand(wallImage(wall), degrees, mirrored));
        for (int top = 0; top < size.height(); top += 700) {
            const int count = qMin(700, size.height() - top);
            VD_COMPARE_IMAGES(picture.rows(top, count), expected.copy(0, top, size.width(), count));
        }
    }

    /// A small wall on a large output is drawn once, and the same in each strip.
    void smallWallsOnLargeOutputs()
    {
        const WallDocument wall = markedWall();
        const ShowDocument show = showOn(64, 5000, {placed("Main", 0, 30, 90)});
        const ShowPicture picture(show, {placedWall(wall), placedWall(wall)}, 0);
        const QImage whole = picture.image();
        const PictureRows strips = picture.strips();
        QCOMPARE(strips.size, whole.size());
        for (int top = 0; top < 200; top += 25) {
            VD_COMPARE_IMAGES(picture.rows(top, 25), whole.copy(0, top, 64, 25));
            VD_COMPARE_IMAGES(strips.rows(top, 25), whole.copy(0, top, 64, 25));
        }
    }

    void thereAndBack_data() { addTurns(); }

    void thereAndBack()
    {
        QFETCH(int, degrees);
        QFETCH(bool, mirrored);
        const PlacedPart part(placed("Main", -7, 13, degrees, mirrored, {5, 9, 31, 17}), {100, 100});
        for (int y = 9; y < 26; ++y) {
            for (int x = 5; x < 36; ++x) {
                const QPoint at = part.toOutput(QPoint(x, y));
                QVERIFY(part.placed().contains(at));
                QCOMPARE(part.toWall(at), QPoint(x, y));
            }
        }
        QCOMPARE(part.toOutput(part.part()), part.placed());
        QCOMPARE(part.toWall(part.placed()), part.part());
        QVERIFY(part.toWall(QRect()).isEmpty());
    }
};

VD_TEST_MAIN(TestShowPicture)
#include "tst_showpicture.moc"
