#include "chartfiles.h"
#include "chartviewer.h"
#include "editorlimits.h"
#include "testcase.h"

#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

/// Charts that the editor cannot hold, and how they are shown.
class TestEditorLimits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatTheEditorHolds()
    {
        TestChartToolsData record;
        record.publicData.boxRow = 7;
        QCOMPARE(beyondEditor(record, record), QStringList());
        TestChartToolsData shown = record;
        shown.logoData.picturePath = "/elsewhere/logo.png"; // no number
        QCOMPARE(beyondEditor(record, shown), QStringList());
    }

    void whatItWouldCut()
    {
        TestChartToolsData record;
        TestChartToolsData shown = record;
        record.publicData.resolutionWidth = 8192;
        shown.publicData.resolutionWidth = 4320;
        record.inLineData.circleSize = 3000;
        shown.inLineData.circleSize = 2160;
        QStringList fields = beyondEditor(record, shown);
        fields.sort();
        QCOMPARE(fields, QStringList({"inLineData.circleSize: 3000", "publicData.resolutionWidth: 8192"}));
    }

    void theViewerShowsThePictureAndTheReason()
    {
        const QTemporaryDir folder;
        QVERIFY(chartfiles::writePicture(folder.filePath("wall.png"), Qt::red, QSize(1600, 900)));
        auto* viewer = new ChartViewer(folder.filePath("wall.png"), "too <large>", nullptr);
        viewer->show();
        QCOMPARE(viewer->windowTitle(), QString("wall.png"));
        auto* picture = viewer->findChild<QLabel*>("chartPicture");
        QTRY_VERIFY(!picture->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(viewer->frameSize().boundedTo(viewer->screen()->availableSize()) == viewer->frameSize());
        QCOMPARE(picture->grab().toImage().pixelColor(picture->rect().center()), QColor(Qt::red));
        bool isSaid = false;
        for (const QLabel* label : viewer->findChildren<QLabel*>())
            isSaid = isSaid || label->text() == QLatin1String("too <large>");
        QVERIFY(isSaid);
        viewer->close();
        QTest::qWait(1);
    }
};

VD_TEST_MAIN(TestEditorLimits)
#include "tst_editorlimits.moc"
