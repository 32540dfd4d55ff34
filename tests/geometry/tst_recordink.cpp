#include "geometry/recordink.h"

#include "barerecord.h"
#include "testcase.h"
#include "testcharttoolsdata.h"
#include "vtestcharttools.h"

#include <cstdlib>
#include <functional>

using namespace vardeno::testcharttools;

namespace {

using Change = std::function<void(TestChartToolsData& record)>;

/// A white chart with nothing on it.
TestChartToolsData emptyRecord()
{
    TestChartToolsData record = charttool::bareRecord();
    record.publicData.resolutionWidth = 400;
    record.publicData.resolutionHeight = 301;
    record.basicData.oddColor = record.basicData.evenColor = {255, 255, 255, 255};
    record.publicData.showOutBorder = false;
    return record;
}

/// Where the chart of `record` is not white.
QRect drawnInk(const TestChartToolsData& record)
{
    VTestChartTools tool;
    tool.applyRecord(record);
    const QImage image = tool.chartImage();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xffffffff)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// Glyph boxes are whole pixels around outlines that are drawn smooth; large text is drawn a little narrower
/// than its metrics tell.
bool nearlyEqual(const QRect& a, const QRect& b)
{
    const auto near = [](int left, int right, int most) { return std::abs(left - right) <= most; };
    return near(a.left(), b.left(), 1) && near(a.top(), b.top(), 1) &&
           near(a.right(), b.right(), 1 + a.width() / 50) && near(a.bottom(), b.bottom(), 1);
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestRecordInk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void inkIsWhereItIsDrawn_data()
    {
        QTest::addColumn<Change>("change");
        const auto add = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
        add("custom text", [](auto& r) { r.selfData.showSelfText = true; });
        add("small custom text",
            [](auto& r) { r.selfData.showSelfText = true, r.selfData.selfTextSize = 12; });
        add("descenders", [](auto& r) { r.selfData.showSelfText = true, r.selfData.selfText = "gyp"; });
        add("information", [](auto& r) { r.selfData.showResolution = true; });
        for (int anchor = 0; anchor < 5; ++anchor) {
            for (const bool text : {true, false}) {
                QTest::addRow("%s logo at %d", text ? "text" : "picture", anchor) << Change([=](auto& r) {
                    r.logoData.showLogo = true;
                    r.logoData.textLogo = text;
                    r.logoData.pictureLogo = !text;
                    r.logoData.picturePath =
                        sourcePath("vdpatterndesign/resources/images/chess.png").toStdString();
                    r.logoData.logoText = "Logo";
                    r.logoData.textSize = 40;
                    r.logoData.displayPosition = anchor;
                    r.logoData.offsetX = 17;
                    r.logoData.offsetY = 31;
                });
            }
        }
        add("logo larger than the chart", [](auto& r) {
            r.logoData.showLogo = true;
            r.logoData.scale = 200;
        });
    }

    void inkIsWhereItIsDrawn()
    {
        QFETCH(Change, change);
        TestChartToolsData record = emptyRecord();
        change(record);
        const QRect ink = customTextInk(record) | informationInk(record) | logoInk(record);
        const QRect drawn = drawnInk(record);
        QVERIFY(!drawn.isEmpty());
        QVERIFY2(nearlyEqual(ink, drawn), qPrintable(QStringLiteral("%1,%2 %3x%4 and drawn %5,%6 %7x%8")
                                                         .arg(ink.x())
                                                         .arg(ink.y())
                                                         .arg(ink.width())
                                                         .arg(ink.height())
                                                         .arg(drawn.x())
                                                         .arg(drawn.y())
                                                         .arg(drawn.width())
                                                         .arg(drawn.height())));
    }

    void nothingHasNoInk()
    {
        QVERIFY(
            (customTextInk(emptyRecord()) | informationInk(emptyRecord()) | logoInk(emptyRecord())).isNull());
        QCOMPARE(coveredLabels(emptyRecord(), QRect(0, 0, 400, 301)).count, 0);
    }

    void labelsAreCoveredWhereTheyAre()
    {
        TestChartToolsData record = emptyRecord();
        record.inLineData.showSerialNumber = true;
        record.publicData.boxRow = 1;
        record.publicData.boxCol = 1;
        const QRect ink = drawnInk(record);
        QVERIFY(ink.isValid());
        QCOMPARE(coveredLabels(record, QRect(0, 0, 400, ink.top() - 1)).count, 0);
        QCOMPARE(coveredLabels(record, QRect(0, 0, 400, ink.top() + 2)).count, 1);
        QCOMPARE(coveredLabels(record, QRect(0, 0, ink.left() - 1, 301)).count, 0);
        QCOMPARE(coveredLabels(record, QRect(0, 0, ink.left() + 2, 301)).first, QStringLiteral("A-A"));
        QCOMPARE(coveredLabels(record, QRect(ink.right() + 2, 0, 400, 301)).count, 0);
        QCOMPARE(coveredLabels(record, QRect(0, ink.bottom() + 2, 400, 301)).count, 0);
    }
};

VD_TEST_MAIN(TestRecordInk)
#include "tst_recordink.moc"
