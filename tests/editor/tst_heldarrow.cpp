#include "charttool.h"

#include <QDialog>
#include <QProxyStyle>
#include <QStyleOptionSpinBox>

using namespace vardeno::testcharttools;

namespace {

/// Waits longer with the repetition of a held button than any test takes.
class PatientStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override
    {
        return hint == SH_SpinBox_ClickAutoRepeatThreshold
                   ? 60000
                   : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

/// A person holds the arrow of a numeric entry with the mouse, while every step repaints the chart and makes
/// the entry inert.
class TestHeldArrow : public TestCase
{
    Q_OBJECT

private:
    struct Shown
    {
        VTestChartTools tool;
        charttool::User user{tool};
        const bool ready = user.show();

        SpinEditBox* columns() { return tool.findChild<SpinEditBox*>(QStringLiteral("Col")); }

        /// The middle of the entry's upper arrow.
        QPoint up()
        {
            QStyleOptionSpinBox option;
            option.initFrom(columns());
            option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
            option.subControls = QStyle::SC_All;
            return columns()
                ->style()
                ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, columns())
                .center();
        }
    };

private Q_SLOTS:
    void stepsUntilItIsLetGo()
    {
        Shown shown;
        QVERIFY(shown.ready);
        QTest::mousePress(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QCOMPARE(shown.columns()->value(), 17.0);
        QTRY_COMPARE_WITH_TIMEOUT(shown.columns()->value(), 20.0, 20000);
        QTest::mouseRelease(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QVERIFY(shown.user.settle());
        const double value = shown.columns()->value();
        QTest::qWait(1000);
        QCOMPARE(shown.columns()->value(), value);
        QCOMPARE(shown.tool.getTestChartToolsData().publicData.boxCol, int(value));
    }

    void doesNotStepBesideTheEntry()
    {
        Shown shown;
        QVERIFY(shown.ready);
        QTest::mousePress(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        const QPoint beside(-40, 5);
        QMouseEvent move(QEvent::MouseMove, beside, shown.columns()->mapToGlobal(beside), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(shown.columns(), &move);
        QTest::qWait(1200);
        QCOMPARE(shown.columns()->value(), 17.0);
        QTest::mouseRelease(shown.columns(), Qt::LeftButton, Qt::NoModifier, beside);
    }

    /// However long the repaint takes.
    void aClickStepsOnce()
    {
        QApplication::setStyle(new PatientStyle(QStringLiteral("fusion")));
        Shown shown;
        QVERIFY(shown.ready);
        QTest::mousePress(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QVERIFY(shown.user.settle());
        QTest::qWait(500);
        QTest::mouseRelease(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QVERIFY(shown.user.settle());
        QCOMPARE(shown.columns()->value(), 17.0);
        QApplication::setStyle(QStringLiteral("fusion"));
    }

    void theSecondPressOfADoubleClickIsHeldToo()
    {
        Shown shown;
        QVERIFY(shown.ready);
        QTest::mouseClick(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QVERIFY(shown.user.settle());
        const QPoint place = shown.up();
        QMouseEvent second(QEvent::MouseButtonDblClick, place, shown.columns()->mapToGlobal(place),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QTest::mousePress(&shown.tool, Qt::LeftButton, Qt::NoModifier,
                          QPoint(5, 5)); // for the state of the mouse
        QApplication::sendEvent(shown.columns(), &second);
        QTRY_COMPARE_WITH_TIMEOUT(shown.columns()->value(), 20.0, 20000);
        QTest::mouseRelease(shown.columns(), Qt::LeftButton, Qt::NoModifier, place);
    }

    /// A dialog that opens meanwhile keeps the release from the window.
    void aReleaseThatNobodySeesEndsIt()
    {
        Shown shown;
        QVERIFY(shown.ready);
        QTest::mousePress(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QDialog dialog(&shown.tool);
        dialog.setModal(true);
        dialog.show();
        QTest::mouseRelease(&dialog, Qt::LeftButton);
        // What a window under a modal one gets: nothing.
        QMouseEvent press(QEvent::MouseButtonPress, shown.up(), shown.columns()->mapToGlobal(shown.up()),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(shown.columns(), &press);
        const double value = shown.columns()->value();
        QTest::qWait(1500);
        QCOMPARE(shown.columns()->value(), value);
    }
};

VD_TEST_MAIN(TestHeldArrow)
#include "tst_heldarrow.moc"
