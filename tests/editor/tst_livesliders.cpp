#include "charttool.h"

#include <QSlider>

using namespace charttool;

/// A person drags a slider and looks at the chart.
class TestLiveSliders : public TestCase
{
    Q_OBJECT

private:
    struct Shown
    {
        VTestChartTools tool;
        User user{tool};
        const bool ready = user.show();

        /// Their order is that of the panels: brightness, scale and opacity of the logo.
        QSlider* slider(int index)
        {
            return (index == 0 ? static_cast<QWidget*>(user.publicPanel()) : user.logoPanel())
                ->findChildren<QSlider*>()
                .value(index == 2 ? 1 : 0);
        }
    };

    static void addSliders()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("brightness") << 0;
        QTest::newRow("scale of the logo") << 1;
        QTest::newRow("opacity of the logo") << 2;
    }

    /// What a drag does to a slider.
    static void drag(QSlider* slider, int position)
    {
        slider->setSliderDown(true);
        slider->setSliderPosition(position);
    }

private Q_SLOTS:
    void theChartFollows_data() { addSliders(); }

    void theChartFollows()
    {
        QFETCH(int, index);
        Shown shown;
        QVERIFY(shown.ready);
        QVERIFY(!shown.tool.liveSliders());
        QVERIFY(shown.tool.setProperty("liveSliders", true));
        QSlider* const slider = shown.slider(index);
        log().clear();
        for (const int position : {60, 30}) {
            const QImage before = shown.user.shownChart();
            drag(slider, position);
            QTRY_VERIFY(shown.user.shownChart() != before);
            QCOMPARE(shown.user.shownChart(), shown.tool.chartImage());
        }
        QTest::qWait(200);
        QVERIFY(slider->isSliderDown());
        QVERIFY(shown.user.cancel()->isEnabled());
        QVERIFY(!shown.user.mask()->isVisible());
        QVERIFY(!paintLog(log().messages()).contains("PaintTextChartTool is done"));

        slider->setSliderDown(false);
        QVERIFY(shown.user.settle());
        QVERIFY(paintLog(log().messages()).contains("PaintTextChartTool is done"));
        QCOMPARE(slider->value(), 30);
        QCOMPARE(shown.user.shownChart(), shown.tool.chartImage());
    }

    void theChartWaitsForTheReleaseAtFirst_data() { addSliders(); }

    void theChartWaitsForTheReleaseAtFirst()
    {
        QFETCH(int, index);
        Shown shown;
        QVERIFY(shown.ready);
        const QImage before = shown.tool.chartImage();
        drag(shown.slider(index), 30);
        QTest::qWait(200);
        QCOMPARE(shown.tool.chartImage(), before);
        shown.slider(index)->setSliderDown(false);
        QVERIFY(shown.user.settle());
        QVERIFY(shown.tool.chartImage() != before);
    }

    void movesThatWaitAreDrawnAtOnce()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setLiveSliders(true);
        const QSignalSpy paints(shown.user.painter<PaintPublicBrightWidget>(),
                                &LayerPainter::sigPaintEventUpdated);
        for (int position = 90; position > 40; --position)
            drag(shown.slider(0), position);
        QTest::qWait(200);
        QCOMPARE(paints.count(), 1);
        QCOMPARE(shown.user.shownChart(), shown.tool.chartImage());
    }

    void aMoveThatEndsAtOnceIsTheReleases()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setLiveSliders(true);
        const QSignalSpy releases(shown.slider(0), &QSlider::sliderReleased);
        drag(shown.slider(0), 40);
        shown.slider(0)->setSliderDown(false);
        QVERIFY(shown.user.settle());
        QCOMPARE(releases.count(), 1);
        QCOMPARE(shown.tool.getTestChartToolsData().publicData.brightness, 40);
    }

    void theDraggedChartCanBeSaved()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.updateShowSaveBtnStatus(false);
        shown.tool.setLiveSliders(true);
        drag(shown.slider(0), 40);
        QTRY_VERIFY(shown.user.replaceApply()->isEnabled());
    }
};

VD_TEST_MAIN(TestLiveSliders)
#include "tst_livesliders.moc"
