#include "randomrecords.h"
#include "referencechart.h"
#include "testcase.h"

#include <chartpicture.h>
#include <paintinlinewidget.h>
#include <vtestcharttools.h>

using namespace vardeno::testcharttools;

namespace {

/// Larger texts are not the same from one drawing to the next.
const RecordLimits limits = {{320, 320}, 12, 40, 400};

} // namespace

class TestApplyRecord : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRecordDecidesOnAFreshTool()
    {
        TestChartToolsData record;
        record.inLineData.circleWidth = 2; // what the panel shows at first, and its layer does not draw
        VTestChartTools pushed;
        pushed.setTestChartToolsData(record);
        VTestChartTools applied;
        applied.applyRecord(record);
        QVERIFY(!imageDifference(pushed.chartImage(), applied.chartImage()).isEmpty());
        ReferenceChart reference;
        record.selfData.showResolution = false; // its text is larger
        record.logoData.showLogo = false;
        applied.applyRecord(record);
        reference.apply(record);
        VD_COMPARE_IMAGES(applied.chartImage(), reference.snapshot().convertToFormat(QImage::Format_RGB32));
    }

    void thePictureDoesNotDependOnWhatWasShownBefore()
    {
        QTemporaryDir folder;
        QImage picture(61, 40, QImage::Format_ARGB32);
        picture.fill(QColor(200, 30, 30, 120));
        QVERIFY(picture.save(folder.filePath("logo.png")));
        RandomRecords records(20261121, {folder.filePath("logo.png").toStdString()}, limits);
        VTestChartTools used;
        for (int i = 0; i < 25; ++i) {
            const TestChartToolsData record = records.next();
            used.applyRecord(record);
            VTestChartTools fresh;
            fresh.applyRecord(record);
            VD_COMPARE_IMAGES(used.chartImage(), fresh.chartImage());
            QVERIFY(used.getTestChartToolsData() == fresh.getTestChartToolsData());
        }
    }

    void choices_data()
    {
        QTest::addColumn<bool>("all");
        QTest::newRow("nothing is chosen") << false;
        QTest::newRow("everything is chosen") << true;
    }

    /// Where only one can be chosen, a record may choose none or all.
    void choices()
    {
        QFETCH(bool, all);
        TestChartToolsData other;
        other.publicData.resolutionWidth = 320;
        other.publicData.resolutionHeight = 200;
        other.selfData.showResolution = false;
        TestChartToolsData record = other;
        other.basicData.chessChecked = false;
        other.basicData.colorBarChecked = true;
        other.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::blue}};
        other.inLineData.letterMode = false;
        other.inLineData.combinationMode = true;
        other.logoData.pictureLogo = false;
        other.logoData.textLogo = true;
        for (bool* choice :
             {&record.basicData.chessChecked, &record.basicData.colorBarChecked,
              &record.inLineData.letterMode, &record.inLineData.numMode, &record.inLineData.combinationMode,
              &record.logoData.pictureLogo, &record.logoData.textLogo})
            *choice = all;

        VTestChartTools used;
        used.applyRecord(other);
        used.applyRecord(record);
        VTestChartTools fresh;
        fresh.applyRecord(record);
        VD_COMPARE_IMAGES(used.chartImage(), fresh.chartImage());
        QVERIFY(used.getTestChartToolsData() == fresh.getTestChartToolsData());
    }

    void stripesWithoutColors()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 320;
        record.publicData.resolutionHeight = 200;
        record.selfData.showResolution = false;
        record.basicData.chessChecked = false;
        record.basicData.colorBarChecked = true;
        TestChartToolsData colored = record;
        colored.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::blue}};
        VTestChartTools used;
        used.applyRecord(colored);
        used.applyRecord(record);
        VTestChartTools fresh;
        fresh.applyRecord(record);
        VD_COMPARE_IMAGES(used.chartImage(), fresh.chartImage());
        QVERIFY(used.getTestChartToolsData() == fresh.getTestChartToolsData());
    }

    void theImageIsTheChart()
    {
        VTestChartTools tool;
        TestChartToolsData record;
        record.publicData.resolutionWidth = 320;
        record.publicData.resolutionHeight = 200;
        tool.applyRecord(record);
        const QImage image = tool.chartImage();
        QCOMPARE(image.size(), QSize(320, 200));
        QCOMPARE(image.format(), QImage::Format_RGB32);
        QCOMPARE(tool.findChild<QLabel*>(QStringLiteral("ViewWidget"))->pixmap(Qt::ReturnByValue).toImage(),
                 image);
    }

    void aShownToolPaintsOnlyOnce()
    {
        VTestChartTools tool;
        tool.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tool));
        QTest::qWait(300);
        log().clear();
        TestChartToolsData record;
        record.inLineData.diagonalWidth = 3;
        tool.applyRecord(record);
        QTRY_COMPARE(log().messages(QStringLiteral("PaintTextChartTool is done")).size(), 1);
        QTest::qWait(300);
        QCOMPARE(log().messages(QStringLiteral("PaintTextChartTool is done")).size(), 1);
    }

    /// A switch beside the record, which stays until the host turns it.
    void markers()
    {
        VTestChartTools editor;
        QVERIFY(!editor.markersShown());
        editor.applyRecord(TestChartToolsData());
        const QImage without = editor.chartImage();
        VD_COMPARE_IMAGES(without,
                          ChartPicture(editor.getTestChartToolsData(), ChartCaptions::current()).image());
        editor.setMarkersShown(true);
        QVERIFY(editor.markersShown());
        VD_COMPARE_IMAGES(
            editor.chartImage(),
            ChartPicture(editor.getTestChartToolsData(), ChartCaptions::current(), {true}).image());
        editor.applyRecord(TestChartToolsData());
        QVERIFY(editor.markersShown() && editor.chartImage() != without);
        editor.setMarkersShown(false);
        VD_COMPARE_IMAGES(editor.chartImage(), without);
    }
};

VD_TEST_MAIN(TestApplyRecord)
#include "tst_applyrecord.moc"
