#include "testcase.h"
#include "testwalls.h"

#include <cabinetorder.h>
#include <cableruns.h>
#include <wallfile.h>
#include <wallreport.h>

#include <QTemporaryDir>

#include <map>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

/// Two rows of three cabinets of 100 x 50 pixels, 500 x 250 mm, 200 W; ports and circuits for two of them.
WallDocument wiredWall()
{
    WallDocument wall = wallOf({100, 100, 100}, {50, 50});
    wall.physical = {500, 250, 5000, 4000, 200};
    wall.data.portPixels = 10000;
    wall.data.path.pattern = Pattern::BackAndForth;
    wall.power.circuitWatts = 500;
    wall.power.voltage = 100;
    wall.numbering.style = NameStyle::Numbers;
    return wall;
}

} // namespace

class TestWallReport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ports()
    {
        const auto rows = WallReport::dataRows(wiredWall(), {});
        QCOMPARE(rows.size(), std::size_t(3));
        QCOMPARE(rows[1].number, 2);
        QCOMPARE(rows[1].first, QString("3"));
        QCOMPARE(rows[1].last, QString("6"));
        QCOMPARE(rows[1].cabinets, 2);
        QCOMPARE(rows[1].load, 1.0);
        QCOMPARE(rows[1].linkLength, qint64(250)); // one row down
        QCOMPARE(rows[0].linkLength, qint64(500)); // one column to the right
    }

    void circuits()
    {
        const auto rows = WallReport::powerRows(wiredWall(), {});
        QCOMPARE(rows.size(), std::size_t(3));
        QCOMPARE(rows[0].watts, qint64(400));
        QCOMPARE(rows[0].amperes, 4.0);
        QCOMPARE(rows[0].load, 0.8);
        WallDocument unknown = wiredWall();
        unknown.physical = {};
        QVERIFY(WallReport::powerRows(unknown, {}).empty());
        QCOMPARE(WallReport::dataRows(unknown, {}).front().linkLength, qint64(0));
    }

    void cabinets()
    {
        WallDocument wall = wallOf({100, 50}, {50});
        wall.exceptions.list = {spanning(1, 0, 1, 1, 90)};
        wall.exceptions.list.front().name = "Left, \"upper\"";
        wall.physical.grams = 4001;
        wall.data.path.byHand.runs = {{{1, 0}}};
        const QList<QByteArray> lines = WallReport::csv(wall, {}).split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[0].startsWith("name,column,row,"));
        QCOMPARE(lines[1], QByteArray("A-A,1,1,1,1,0,0,100,50,0,,,,,,4001\r"));
        QCOMPARE(lines[2], QByteArray("\"Left, \"\"upper\"\"\",2,1,1,1,100,0,50,50,90,1,1,,,,2001\r"));
    }

    void cables()
    {
        WallDocument wall = wallOf({100, 50}, {50});
        wall.physical.pitch = 10000;
        wall.physical.watts = 230;
        wall.exceptions.list = {spanning(1, 0, 1, 1)};
        wall.exceptions.list.front().name = "Left, 2";
        wall.data.portPixels = 10000;
        const QList<QByteArray> lines = WallReport::cableCsv(wall, {}).split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[0].startsWith("cable,number,first,"));
        QCOMPARE(lines[1], QByteArray("port,1,A-A,\"Left, 2\",2,7500,75.0,345,1.50,750,750\r"));
        QCOMPARE(lines[2], QByteArray("circuit,1,A-A,\"Left, 2\",2,7500,11.5,345,1.50,750,750\r"));
        wall.physical = {};
        QCOMPARE(WallReport::cableCsv(wall, {}).split('\n').at(1),
                 QByteArray("port,1,A-A,\"Left, 2\",2,7500,75.0,,,,\r"));
    }

    /// Names and cables stay with their cabinets.
    void theBack()
    {
        WallDocument wall = wiredWall();
        wall.columnWidths.pixels = {100, 60, 40};
        wall.exceptions.list = {missing(0, 1), spanning(1, 0, 2, 1, 90)};
        const WallDocument back = WallReport::mirrored(wall, {});
        QCOMPARE(WallFile::fromJson(WallFile::toJson(back)).problems, QStringList());
        const CabinetPlan front(wall);
        const CabinetPlan plan(back);
        QCOMPARE(plan.size(), front.size());
        QCOMPARE(plan.cabinets().size(), front.cabinets().size());
        QCOMPARE(plan.cabinetAt(Place{2, 1}), -1);
        const auto frontNames = cabinetNames(wall, front, {});
        const auto names = cabinetNames(back, plan, {});
        std::map<QString, QRect> rects;
        for (std::size_t i = 0; i < names.size(); ++i)
            rects[names[i]] = plan.cabinets()[i].rect;
        for (std::size_t i = 0; i < frontNames.size(); ++i) {
            const QRect rect = front.cabinets()[i].rect;
            const QRect expected(200 - rect.x() - rect.width(), rect.y(), rect.width(), rect.height());
            QCOMPARE(rects.at(frontNames[i]), expected);
        }
        const auto named = [](const std::vector<CableRun>& runs, const std::vector<QString>& all) {
            QStringList texts;
            for (const CableRun& run : runs) {
                for (const int cabinet : run.cabinets)
                    texts.append(all[std::size_t(cabinet)]);
                texts.append("|");
            }
            return texts;
        };
        QCOMPARE(named(dataRuns(back, plan), names), named(dataRuns(wall, front), frontNames));
    }

    void pdf()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("wall.pdf");
        const WallDocument wall = wiredWall();
        QCOMPARE(WallReport::writePdf(path, wall, WallFile::chartOf(wall, {}).record), QString());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("%PDF-"));
        QVERIFY2(bytes.contains("/Count 5"), "front, back, ports, circuits, cabinets");
        QVERIFY(!WallReport::writePdf(folder.filePath("none/wall.pdf"), wall, {}).isEmpty());
    }
};

VD_TEST_MAIN(TestWallReport)
#include "tst_wallreport.moc"
