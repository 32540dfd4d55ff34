#include "samplechart.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestSampleChart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLargestChart()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = record.publicData.resolutionHeight = 32768;
        record.publicData.boxRow = record.publicData.boxCol = 4;
        record.publicData.showOutBorder = false;
        record.inLineData.showCircle = record.inLineData.showDiagonal = false;
        record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = false;
        record.inLineData.showSerialNumber = false;
        const QImage picture = sampledChart(record, QSize(80, 80));
        QCOMPARE(picture.size(), QSize(80, 80));
        const QRgb odd = toQColor(record.basicData.oddColor).rgb();
        const QRgb even = toQColor(record.basicData.evenColor).rgb();
        for (const int x : {2, 22, 42, 62}) {
            for (const int y : {2, 22, 42, 62, 79})
                QCOMPARE(picture.pixel(x, y), (x / 20 + y / 20) % 2 == 0 ? odd : even);
        }
    }

    void asLargeAsTheChart()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 5000;
        record.publicData.resolutionHeight = 40;
        record.selfData.showSelfText = false;
        const QImage picture = sampledChart(record, QSize(5000, 40));
        QCOMPARE(picture.pixel(1, 1), toQColor(record.publicData.outBorderColor).rgb());
    }
};

VD_TEST_MAIN(TestSampleChart)
#include "tst_samplechart.moc"
