#include "testcase.h"
#include "testwalls.h"

#include <showcheck.h>

using namespace vardeno::walls;

namespace {

/// A wall that nothing is said of.
ShowFile::PlacedWall quietWall(int columns, int rows)
{
    WallDocument wall =
        wallOf(std::vector<int>(std::size_t(columns), 128), std::vector<int>(std::size_t(rows), 128));
    vardeno::testcharttools::TestChartToolsData record = WallFile::chartOf(wall, {}).record;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    record.inLineData.showCircle = false;
    record.inLineData.showSerialNumber = false;
    return {wall, record, {}, {}};
}

WallPlacement leftOf(const char* wall, int x, int y, const QRect& part = {}, int degrees = 0)
{
    WallPlacement placement;
    placement.wall = wall;
    placement.output = "Left";
    placement.x = x;
    placement.y = y;
    placement.part.rect = part;
    placement.turned.degrees = degrees;
    return placement;
}

ShowDocument showOf(const std::vector<WallPlacement>& placements)
{
    ShowDocument show;
    show.outputs.list = {{"Left", 1920, 1080, 60, {}}, {"Right", 1920, 1080, 60, {}}};
    show.walls.list = {{"Main", "main.wall.json", {}, {}}};
    show.placements.list = placements;
    return show;
}

} // namespace

class TestShowCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void warnings_data()
    {
        QTest::addColumn<ShowDocument>("show");
        QTest::addColumn<QString>("warning");
        QTest::newRow("as it should be") << showOf({leftOf("Main", 0, 0)}) << "";
        QTest::newRow("to the last pixel") << showOf({leftOf("Main", 1920 - 640, 1080 - 384)}) << "";
        QTest::newRow("a pixel beyond")
            << showOf({leftOf("Main", 1920 - 639, 0)})
            << "show.placements: (placement 1) wall \"Main\" at 1281, 0 is 640 x 384 pixels large and lies "
               "partly "
               "outside of output \"Left\", which is 1920 x 1080: pixels beyond it: 1 right\n"
               "show.walls: wall \"Main\": 384 of its 245760 pixels lie on no output";
        QTest::newRow("turned and beyond two sides")
            << showOf({leftOf("Main", -3, 1080 - 600, {}, 90)})
            << "show.placements: (placement 1) wall \"Main\" at -3, 480 is 384 x 640 pixels large and lies "
               "partly "
               "outside of output \"Left\", which is 1920 x 1080: pixels beyond it: 3 left, 40 below\n"
               "show.walls: wall \"Main\": 17160 of its 245760 pixels lie on no output";
        QTest::newRow("outside") << showOf({leftOf("Main", 1920, 0)})
                                 << "show.placements: (placement 1) wall \"Main\" at 1920, 0 is 640 x 384 "
                                    "pixels large and lies outside "
                                    "of output \"Left\", which is 1920 x 1080: pixels beyond it: 640 right\n"
                                    "show.walls: wall \"Main\" lies on no output";
        QTest::newRow("nowhere") << showOf({}) << "show.walls: wall \"Main\" lies on no output";
        QTest::newRow("beside one another")
            << showOf({leftOf("Main", 0, 0, {0, 0, 320, 384}), leftOf("Main", 320, 0, {320, 0, 320, 384})})
            << "";
        QTest::newRow("overlap") << showOf({leftOf("Main", 0, 0, {0, 0, 320, 384}),
                                            leftOf("Main", 310, 380, {320, 0, 320, 384})})
                                 << "show.placements: (placement 2) and (placement 1) overlap on output "
                                    "\"Left\": 10 x 4 pixels at 310, "
                                    "380";
        QTest::newRow("a part beyond the wall")
            << showOf({leftOf("Main", 0, 0), leftOf("Main", 0, 400, {600, 0, 41, 10})})
            << "show.placements: (placement 2) the part of 41 x 10 pixels at 600, 0 lies partly outside of "
               "wall "
               "\"Main\", which is 640 x 384";
    }

    void warnings()
    {
        QFETCH(ShowDocument, show);
        QTEST(ShowCheck::warnings(show, {quietWall(5, 3)}).join('\n'), "warning");
    }

    void twoOutputsDoNotOverlap()
    {
        ShowDocument show = showOf({leftOf("Main", 0, 0), leftOf("Main", 0, 0)});
        show.placements.list[1].output = "Right";
        QCOMPARE(ShowCheck::warnings(show, {quietWall(5, 3)}), QStringList());
    }

    /// Where the output is faster than what the ports are reckoned for.
    void frameRates()
    {
        ShowFile::PlacedWall wall = quietWall(5, 3);
        wall.wall.data.frameRate = 50;
        ShowDocument show = showOf({leftOf("Main", 0, 0)});
        QCOMPARE(
            ShowCheck::warnings(show, {wall}),
            QStringList(
                "show.placements: (placement 1) wall \"Main\" is wired for 50 Hz, output \"Left\" has 60 "
                "Hz"));
        show.outputs.list[0].frameRate = 51;
        QCOMPARE(ShowCheck::warnings(show, {wall}).size(), 1);
        show.outputs.list[0].frameRate = 50;
        QCOMPARE(ShowCheck::warnings(show, {wall}), QStringList());
    }

    void warningsOfWallsTellWhichOne()
    {
        ShowFile::PlacedWall wall = quietWall(5, 3);
        wall.wall.data.portPixels = 16000;
        const QStringList warnings = ShowCheck::warnings(showOf({leftOf("Main", 0, 0)}), {wall});
        QVERIFY(!warnings.isEmpty());
        QVERIFY2(warnings.front().startsWith("show.walls: (wall 1) main.wall.json: data.portPixels: port 1 "),
                 qPrintable(warnings.front()));
    }

    /// Thousands of overlaps are told by their number.
    void ofManyTheFirstAreTold()
    {
        const ShowDocument show = showOf(std::vector<WallPlacement>(100, leftOf("Main", 0, 0)));
        const QStringList warnings = ShowCheck::warnings(show, {quietWall(5, 3)});
        QCOMPARE(warnings.size(), 21);
        QCOMPARE(warnings.back(), QString("show.placements: 4930 more of this kind"));
    }
};

VD_TEST_MAIN(TestShowCheck)
#include "tst_showcheck.moc"
