#include "charttool.h"
#include "editor/editordelays.h"

#include <QStyleOptionSpinBox>

using namespace charttool;

namespace {

/// Counts how often a widget is painted while it is disabled.
class DisabledPaints : public QObject
{
public:
    explicit DisabledPaints(QWidget* widget)
        : m_widget(widget)
    {
        widget->installEventFilter(this);
    }

    int count = 0;
    bool wasDisabled = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        wasDisabled = wasDisabled || !m_widget->isEnabled();
        if (event->type() == QEvent::Paint && !m_widget->isEnabled())
            ++count;
        return false;
    }

private:
    QWidget* m_widget;
};

} // namespace

/// What a lock that is over soon lets a person see of it.
class TestCalmLook : public TestCase
{
    Q_OBJECT

private:
    struct Shown
    {
        VTestChartTools tool;
        User user{tool};
        const bool ready = user.show();

        SpinEditBox* columns() { return tool.findChild<SpinEditBox*>(QStringLiteral("Col")); }
        QPoint up()
        {
            QStyleOptionSpinBox option;
            option.initFrom(columns());
            option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
            option.subControls = QStyle::SC_All;
            const QStyle* const style = columns()->style();
            return style->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, columns())
                .center();
        }
    };

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        editorDelays().patience = 60000; // no lock takes longer, whatever else the machine does
    }

    void cleanup()
    {
        editorDelays() = EditorDelays();
        TestCase::cleanup();
    }

    void aShortLock_data()
    {
        QTest::addColumn<bool>("calm");
        QTest::newRow("calm") << true;
        QTest::newRow("as it is at first") << false;
    }

    void aShortLock()
    {
        QFETCH(bool, calm);
        Shown shown;
        QVERIFY(shown.ready);
        QVERIFY(!shown.tool.calmLock());
        QVERIFY(shown.tool.setProperty("calmLock", calm));
        DisabledPaints entry(shown.columns());
        DisabledPaints button(shown.user.replaceApply());
        shown.user.basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd"));
        QVERIFY(shown.user.mask()->isVisible());
        QCOMPARE(shown.user.mask()->grab().toImage().pixelColor(5, 5).alpha() == 0, calm);
        QVERIFY(shown.user.settle());
        QVERIFY(entry.wasDisabled && button.wasDisabled);
        if (calm)
            QCOMPARE(entry.count + button.count, 0);
    }

    void aLongLockIsSeen()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setCalmLock(true);
        editorDelays().patience = 1000;
        DisabledPaints entry(shown.columns());
        shown.tool.setUpdateFlag(true); // the lock does not end
        shown.tool.slotGetHeightWidth();
        QTRY_VERIFY(!shown.columns()->isEnabled());
        QTest::qWait(150);
        QCOMPARE(entry.count, 0);
        QTRY_VERIFY(entry.count > 0);
        QVERIFY(shown.user.mask()->grab().toImage().pixelColor(5, 5).alpha() > 0);

        editorDelays().patience = 60000;
        shown.tool.setUpdateFlag(false);
        shown.tool.slotGetHeightWidth();
        QVERIFY(shown.user.settle());
        entry.count = 0;
        shown.user.basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd"));
        QVERIFY(shown.user.settle());
        QCOMPARE(entry.count, 0); // calm again
    }

    void whatHasChangedIsSeenAfterwards()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setCalmLock(true);
        shown.columns()->setValue(20);
        QVERIFY(shown.user.settle());
        for (const QWidget* widget : {static_cast<QWidget*>(shown.columns()), shown.user.settings()->widget(),
                                      static_cast<QWidget*>(shown.user.cancel())})
            QVERIFY(widget->updatesEnabled());
    }

    void aHeldArrowDoesNotFlicker()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setCalmLock(true);
        DisabledPaints entry(shown.columns());
        DisabledPaints other(shown.tool.findChild<SpinEditBox*>(QStringLiteral("Row")));
        QTest::mousePress(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QTRY_VERIFY_WITH_TIMEOUT(shown.columns()->value() >= 20.0, 20000);
        QTest::mouseRelease(shown.columns(), Qt::LeftButton, Qt::NoModifier, shown.up());
        QVERIFY(shown.user.settle());
        QVERIFY(entry.wasDisabled && other.wasDisabled);
        QCOMPARE(entry.count, 0);
        QCOMPARE(other.count, 0);
    }

    void switchedOffWhileItHolds()
    {
        Shown shown;
        QVERIFY(shown.ready);
        shown.tool.setCalmLock(true);
        shown.tool.setUpdateFlag(true);
        shown.tool.slotGetHeightWidth();
        QTRY_VERIFY(!shown.columns()->isEnabled());
        QVERIFY(!shown.columns()->updatesEnabled());
        shown.tool.setCalmLock(false);
        QVERIFY(shown.columns()->updatesEnabled());
        QVERIFY(shown.user.mask()->styleSheet().isEmpty());
    }
};

VD_TEST_MAIN(TestCalmLook)
#include "tst_calmlook.moc"
