#include "testcase.h"
#include "walledit.h"
#include "wallmodel.h"

#include <QTemporaryDir>

using namespace vardeno::walls;
using WallEdit::Cable;

namespace {

WallDocument editedWall(int columns, int rows, int pixels = 32)
{
    WallDocument wall;
    wall.columnWidths.pixels.assign(std::size_t(columns), pixels);
    wall.rowHeights.pixels.assign(std::size_t(rows), pixels);
    return wall;
}

/// That the reader would take it.
QString problemsOf(const WallDocument& wall)
{
    return WallFile::fromJson(WallFile::toJson(wall)).problems.join('\n');
}

} // namespace

/// What changes make of walls, and their history.
class TestWallEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAndRowsAreResized()
    {
        const WallDocument wall = editedWall(4, 3);
        const WallDocument wide = WallEdit::widened(wall, {{1, 0}, {1, 2}, {3, 0}}, 10);
        QCOMPARE(wide.columnWidths.pixels, (std::vector<int>{32, 42, 32, 42}));
        QCOMPARE(wide.rowHeights.pixels, wall.rowHeights.pixels);
        QCOMPARE(WallEdit::heightened(wall, {{0, 2}}, -5).rowHeights.pixels, (std::vector<int>{32, 32, 27}));
        QCOMPARE(WallEdit::withWidth(wall, {{0, 0}}, 64).columnWidths.pixels,
                 (std::vector<int>{64, 32, 32, 32}));
        QCOMPARE(WallEdit::withHeight(wall, {{0, 0}}, 8).rowHeights.pixels, (std::vector<int>{8, 32, 32}));
    }

    /// A column keeps a pixel, and a wall is no larger or smaller than a document may be.
    void sizesStayWithinBounds()
    {
        QCOMPARE(WallEdit::widened(editedWall(2, 1), {{0, 0}}, -100).columnWidths.pixels,
                 (std::vector<int>{1, 32}));
        QCOMPARE(WallEdit::widened(editedWall(1, 1, 16), {{0, 0}}, -1).columnWidths.pixels,
                 (std::vector<int>{16}));
        QCOMPARE(WallEdit::widened(editedWall(1, 1, 32768), {{0, 0}}, 1).columnWidths.pixels,
                 (std::vector<int>{32768}));
    }

    void gridsGrowAndShrink()
    {
        WallDocument wall = editedWall(4, 3);
        wall.exceptions.list = {{{2, 0}, false, 0, 2, 1, "Wide", {}}, {{3, 2}, true, 0, 1, 1, {}, {}}};
        wall.data.path.byHand.runs = {{{0, 0}, {1, 0}, {2, 0}}, {{3, 1}}};
        const WallDocument less = WallEdit::withGrid(wall, 3, 2);
        QCOMPARE(problemsOf(less), QString());
        QCOMPARE(less.exceptions.list.size(), std::size_t(1));
        QCOMPARE(less.exceptions.list[0].columns, 1);
        QCOMPARE(less.data.path.byHand.runs.size(), std::size_t(1));
        const WallDocument more = WallEdit::withGrid(wall, 6, 3);
        QCOMPARE(more.columnWidths.pixels, std::vector<int>(6, 32));
        QCOMPARE(problemsOf(more), QString());
        QCOMPARE(WallEdit::withGrid(editedWall(1, 1, 20000), 2, 1).columnWidths.count(), 1); // too wide
    }

    void cabinetsAreRemovedAndRestored()
    {
        WallDocument wall = editedWall(4, 3);
        wall.exceptions.list = {{{1, 1}, false, 90, 2, 1, {}, {}}};
        wall.data.path.byHand.runs = {{{0, 0}, {1, 0}}, {{1, 1}}};
        const WallDocument holes = WallEdit::withMissing(wall, {{0, 0}, {1, 1}, {2, 1}}, true);
        QCOMPARE(problemsOf(holes), QString());
        QCOMPARE(CabinetPlan(holes).cabinets().size(), std::size_t(9));
        QCOMPARE(holes.data.path.byHand.runs.size(), std::size_t(1));
        QVERIFY(holes.data.path.byHand.runs[0].front() == (Place{1, 0}));
        const WallDocument back = WallEdit::withMissing(holes, {{0, 0}, {2, 1}}, false);
        QCOMPARE(back.exceptions.list.size(), std::size_t(1)); // of the usual one nothing is said any more
        QCOMPARE(back.exceptions.list[0].turned, 90);
    }

    void oneCabinetIsLeft()
    {
        const WallDocument wall = editedWall(2, 1);
        QCOMPARE(CabinetPlan(WallEdit::withMissing(wall, {{0, 0}, {1, 0}}, true)).cabinets().size(),
                 std::size_t(2));
    }

    void cabinetsTurn()
    {
        WallDocument wall = editedWall(2, 2);
        for (const int degrees : {90, 180, 270, 0}) {
            wall = WallEdit::turned(wall, {{1, 0}});
            QCOMPARE(WallEdit::exceptionAt(wall, {1, 0}).turned, degrees);
        }
        QVERIFY(wall.exceptions.list.empty());
    }

    void names()
    {
        const WallDocument wall = WallEdit::named(editedWall(2, 2), {1, 1}, "Ende");
        QCOMPARE(WallEdit::exceptionAt(wall, {1, 1}).name, std::string("Ende"));
        QVERIFY(WallEdit::named(wall, {1, 1}, "").exceptions.list.empty());
    }

    /// Cabinets leave the runs that they were in; those of the pattern become runs by hand.
    void runsByHand()
    {
        WallDocument wall = editedWall(4, 2);
        wall.data.path.pattern = vardeno::walls::Pattern::EachLine;
        const WallDocument drawn = WallEdit::withRun(wall, Cable::Data, {{1, 0}, {1, 1}, {1, 0}});
        QCOMPARE(problemsOf(drawn), QString());
        const auto& runs = drawn.data.path.byHand.runs;
        QCOMPARE(runs.size(), std::size_t(3));
        QCOMPARE(runs[0].size(), std::size_t(3));
        QVERIFY(runs[2] == (std::vector<Place>{{1, 0}, {1, 1}}));
        QVERIFY(WallEdit::withoutRuns(drawn, Cable::Data).data.path.byHand.runs.empty());
        QVERIFY(drawn.power.path.byHand.runs.empty());
    }

    void historyGoesThereAndBack()
    {
        WallModel model;
        const QByteArray first = WallFile::toJson(model.wall());
        model.change("wide", WallEdit::widened(model.wall(), {{0, 0}}, 1), "series");
        model.change("wide", WallEdit::widened(model.wall(), {{0, 0}}, 1), "series");
        QCOMPARE(model.history()->count(), 1); // one step
        model.change("turn", WallEdit::turned(model.wall(), {{0, 0}}));
        model.change("turn", WallEdit::turned(model.wall(), {{0, 0}}));
        QCOMPARE(model.history()->count(), 3);
        model.change("nothing", model.wall());
        QCOMPARE(model.history()->count(), 3);
        const QByteArray last = WallFile::toJson(model.wall());
        for (int step = 0; step < 3; ++step)
            model.history()->undo();
        QCOMPARE(WallFile::toJson(model.wall()), first);
        for (int step = 0; step < 3; ++step)
            model.history()->redo();
        QCOMPARE(WallFile::toJson(model.wall()), last);
    }

    /// What is unknown in the file is kept, and a file that cannot be read changes nothing.
    void files()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.wall.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"format": "testwall", "version": 1, "venue": "Berlin"})");
        file.close();
        WallModel model;
        QCOMPARE(model.open(path), QStringList());
        model.change("wide", WallEdit::widened(model.wall(), {{0, 0}}, 8));
        QVERIFY(!model.history()->isClean());
        QCOMPARE(model.save(), QString());
        QVERIFY(model.history()->isClean());
        const WallFile::Reading reading = WallFile::read(path);
        QCOMPARE(reading.wall.columnWidths.pixels[0], 136);
        QCOMPARE(reading.document.value("venue").toString(), QString("Berlin"));
        QVERIFY(!model.open(folder.filePath("none.wall.json")).isEmpty());
        QCOMPARE(model.path(), path);
    }
};

VD_TEST_MAIN(TestWallEdit)
#include "tst_walledit.moc"
