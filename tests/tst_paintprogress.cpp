#include "charttool.h"

#include <QCheckBox>
#include <QSlider>
#include <QTemporaryDir>

using namespace charttool;

namespace {

constexpr auto begining = "PaintTextChartTool is begining";
constexpr auto done = "PaintTextChartTool is done";

/// What one completed repaint cycle logs.
QStringList cycleLog()
{
    return {begining, "PaintBasicWidget is done",  begining, "PaintPublicBrightWidget is done",
            begining, "PaintPublicWidget is done", done};
}

/// Writes down when watched widgets are shown, hidden, enabled and disabled, and when a layer paints.
class Diary : public QObject
{
public:
    explicit Diary(VTestChartTools& tool)
    {
        const User user(tool);
        watch(user.mask(), "mask");
        watch(user.named<QPushButton>("oddColorPushButton"), "basic panel");
        watch(user.publicPanel()->findChild<QSlider*>(), "public panel");
        watch(user.cancel(), "cancel");
        watch(user.addConfirm(), "add confirm");
        watch(user.replaceConfirm(), "replace confirm");
        watch(user.replaceApply(), "replace apply");
        connect(user.painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated, this,
                [this] { note(QStringLiteral("painted")); });
        m_clock.start();
    }

    void clear()
    {
        entries.clear();
        m_times.clear();
        m_clock.start();
    }

    /// Milliseconds from the last `clear` to the first entry `text`, -1 when there is none.
    qint64 timeOf(const QString& text) const
    {
        const int at = entries.indexOf(text);
        return at < 0 ? -1 : m_times.at(at);
    }

    QStringList entries;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::EnabledChange)
            note(watched->property("diary").toString() + (widget->isEnabled() ? " enabled" : " disabled"));
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
            note(watched->property("diary").toString() + (widget->isHidden() ? " hidden" : " shown"));
        return false;
    }

private:
    void watch(QWidget* widget, const char* name)
    {
        widget->setProperty("diary", QLatin1String(name));
        widget->installEventFilter(this);
    }

    void note(const QString& entry)
    {
        entries.append(entry);
        m_times.append(m_clock.elapsed());
    }

    QElapsedTimer m_clock;
    QVector<qint64> m_times;
};

/// The member names by which the layers report, in the order of their numbers.
const QStringList& reporters()
{
    static const QStringList names = {"m_pPaintBasicWidget",        "m_pPaintInLineWidget",
                                      "m_pPaintSelfWidget",         "m_pPaintRowColSequeWidget",
                                      "m_pPaintPublicBrightWidget", "m_pPaintPublicWidget",
                                      "m_pPaintPicLogoWidget",      "m_pPaintTextLogoWidget"};
    return names;
}

/// Every widget of the panels that takes input and that the lock covers.
QList<QWidget*> lockedControls(const User& user)
{
    QList<QWidget*> controls;
    for (const QWidget* panel :
         {static_cast<QWidget*>(user.basicPanel()), static_cast<QWidget*>(user.publicPanel())}) {
        for (auto* control : panel->findChildren<QPushButton*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QCheckBox*>())
            controls.append(control);
        for (auto* control : panel->findChildren<SpinEditBox*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QSlider*>())
            controls.append(control);
    }
    return controls;
}

bool allEnabled(const QList<QWidget*>& widgets)
{
    return std::all_of(widgets.begin(), widgets.end(), [](const QWidget* w) { return w->isEnabled(); });
}

bool noneEnabled(const QList<QWidget*>& widgets)
{
    return std::none_of(widgets.begin(), widgets.end(), [](const QWidget* w) { return w->isEnabled(); });
}

QList<QWidget*> editButtons(const User& user)
{
    return {user.cancel(), user.addConfirm(), user.replaceConfirm(), user.replaceApply()};
}

/// A change that a user makes: one signal of a panel.
void change(const User& user, const QColor& color = Qt::darkBlue)
{
    user.basicPanel()->setColor(color, QStringLiteral("odd"));
}

} // namespace

class TestPaintProgress : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<VTestChartTools> m_tool;
    std::unique_ptr<User> m_user;

    /// Whether a chart of `record` with `odd` as odd colour is shown.
    QString previewDifference(const QColor& odd) const
    {
        TestChartToolsData record = smallRecord();
        record.basicData.oddColor = toRgbaColor(odd);
        return imageDifference(m_user->shownChart(), expectedChart(record));
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
        m_tool = std::make_unique<VTestChartTools>();
        m_user = std::make_unique<User>(*m_tool);
        m_tool->setTestChartToolsData(smallRecord());
        QVERIFY(m_user->show());
        log().clear();
    }

    void cleanup()
    {
        m_user.reset();
        m_tool.reset();
        TestCase::cleanup();
    }

    void cycleRunsInOrder()
    {
        Diary diary(*m_tool);
        change(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(diary.entries,
                 QStringList({"mask shown", "basic panel disabled", "public panel disabled",
                              "cancel disabled", "add confirm disabled", "replace confirm disabled",
                              "replace apply disabled", "painted", "mask hidden", "basic panel enabled",
                              "public panel enabled", "cancel enabled", "add confirm enabled",
                              "replace confirm enabled", "replace apply enabled"}));
        QVERIFY(diary.timeOf("basic panel disabled") >= 9);
        QVERIFY(diary.timeOf("painted") >= 95);
    }

    void maskIsShownAtOnceOverThePanels()
    {
        QVERIFY(!m_user->mask()->isVisible());
        change(*m_user);
        QVERIFY(m_user->mask()->isVisible());
        QCOMPARE(m_user->mask()->size(), QSize(410, 802));
        QVERIFY(allEnabled(editButtons(*m_user)));
        for (QWidget* panel :
             {static_cast<QWidget*>(m_user->basicPanel()), static_cast<QWidget*>(m_user->publicPanel())}) {
            const QPoint centre = panel->mapTo(m_tool.get(), panel->rect().center());
            QCOMPARE(m_tool->childAt(centre), m_user->mask());
        }
    }

    void maskTakesTheClicks()
    {
        qRegisterMetaType<QPushButton*>("QPushButton*");
        const QSignalSpy asked(m_user->basicPanel(), &BasicSettingBox::evenSignal);
        const auto* even = m_user->named<QPushButton>("evenColorPushButton");
        m_user->click(even);
        QCOMPARE(asked.count(), 1);
        change(*m_user);
        QVERIFY(even->isEnabled());
        m_user->click(even);
        QCOMPARE(asked.count(), 1);
        QVERIFY(m_user->settle());
        m_user->click(even);
        QCOMPARE(asked.count(), 2);
    }

    void everyControlIsLockedWhileTheLayersPaint()
    {
        const QList<QWidget*> controls = lockedControls(*m_user);
        QVERIFY(controls.size() > 15);
        QVERIFY(allEnabled(controls));
        QVERIFY(allEnabled(editButtons(*m_user)));
        int looked = 0;
        connect(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated, m_tool.get(), [&] {
            ++looked;
            QVERIFY(noneEnabled(controls));
            QVERIFY(noneEnabled(editButtons(*m_user)));
            QVERIFY(m_user->mask()->isVisible());
        });
        change(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(looked, 1);
        QVERIFY(allEnabled(controls));
        QVERIFY(allEnabled(editButtons(*m_user)));
    }

    void unlockingAsksTheSwitches()
    {
        TestChartToolsData record = smallRecord();
        record.publicData.showOutBorder = false;
        m_tool->setTestChartToolsData(record);
        QVERIFY(m_user->settle());
        QVERIFY(!m_user->named<QPushButton>("outLineColorButton")->isEnabled());
        QVERIFY(m_user->publicPanel()->findChild<QCheckBox*>()->isEnabled());
    }

    void cycleIsLogged()
    {
        change(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
        QVERIFY(log().messages(begining).first().startsWith(QLatin1String(
            "void vardeno::testcharttools::VTestChartTools::slotUpdatePaintEventStatus(QString) ")));
    }

    void snapshotIsTakenAtTheEndOfTheCycle()
    {
        change(*m_user, Qt::darkBlue);
        QVERIFY(!previewDifference(Qt::darkBlue).isEmpty());
        QVERIFY(m_user->settle());
        const QString difference = previewDifference(Qt::darkBlue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void oneChangeCostsOneSnapshot_data()
    {
        QTest::addColumn<int>("signalCount");
        QTest::newRow("one signal") << 1;
        QTest::newRow("several signals") << 5;
    }

    void oneChangeCostsOneSnapshot()
    {
        QFETCH(int, signalCount);
        const QSignalSpy painted(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated);
        const QSignalSpy changed(m_user->basicPanel(), &BasicSettingBox::basicSignal);
        for (int i = 0; i < signalCount; ++i)
            change(*m_user, QColor(i, i, i));
        QCOMPARE(changed.count(), signalCount);
        QVERIFY(m_user->settle());
        QCOMPARE(painted.count(), 1);
    }

    void typedResolutionCostsOneSnapshot()
    {
        const QSignalSpy painted(m_user->painter<PaintPublicWidget>(), &LayerPainter::sigPaintEventUpdated);
        const QSignalSpy changed(m_user->publicPanel(), &PublicSettingBox::publicSignal);
        const QSignalSpy resized(m_user->publicPanel(), &PublicSettingBox::resolutionSignal);
        m_user->enter(m_user->entry("Resolution"), "320");
        QVERIFY(m_user->settle());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(resized.count(), 1);
        QCOMPARE(painted.count(), 1);
    }

    void pushedRecordCostsOneSnapshot_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("shown") << true;
        QTest::newRow("hidden") << false;
    }

    void pushedRecordCostsOneSnapshot()
    {
        QFETCH(bool, shown);
        m_tool->setVisible(shown);
        const QSignalSpy painted(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated);
        TestChartToolsData record;
        record.basicData.oddColor = {1, 2, 3, 255};
        record.publicData.brightness = 50;
        m_tool->setTestChartToolsData(record);
        QVERIFY(m_user->settle());
        QCOMPARE(painted.count(), 1);
        VD_COMPARE_IMAGES(m_user->shownChart(), expectedChart(record));
    }

    void layersAtRestStayAtRest()
    {
        const QSignalSpy painted(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated);
        QTest::qWait(300);
        QCOMPARE(painted.count(), 0);
        QVERIFY(paintLog(log().messages()).isEmpty());
    }

    void changeDuringACycle_data()
    {
        QTest::addColumn<int>("later");
        QTest::newRow("before the lock") << 3;
        QTest::newRow("while locked") << 50;
        QTest::newRow("shortly before the snapshot") << 95;
    }

    void changeDuringACycle()
    {
        QFETCH(int, later);
        change(*m_user, Qt::darkBlue);
        QTimer::singleShot(later, Qt::PreciseTimer, m_tool.get(), [this] { change(*m_user, Qt::darkGreen); });
        QVERIFY(QTest::qWaitFor([this] {
            return m_tool->getTestChartToolsData().basicData.oddColor == toRgbaColor(Qt::darkGreen);
        }));
        QVERIFY(m_user->settle());
        const QString difference = previewDifference(Qt::darkGreen);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QVERIFY(allEnabled(lockedControls(*m_user)));
        QVERIFY(allEnabled(editButtons(*m_user)));
        QCOMPARE(paintLog(log().messages()).last(), QString(done));
    }

    void cycleWaitsForEveryRequiredLayer_data()
    {
        QTest::addColumn<QString>("lastOne");
        QTest::newRow("base pattern") << "m_pPaintBasicWidget";
        QTest::newRow("brightness") << "m_pPaintPublicBrightWidget";
        QTest::newRow("border") << "m_pPaintPublicWidget";
    }

    void cycleWaitsForEveryRequiredLayer()
    {
        QFETCH(QString, lastOne);
        change(*m_user);
        for (const QString& name : reporters()) {
            if (name != lastOne)
                m_tool->slotUpdatePaintEventStatus(name);
        }
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(!paintLog(log().messages()).contains(done));
        m_tool->slotUpdatePaintEventStatus(lastOne);
        QVERIFY(!m_user->mask()->isVisible());
        QCOMPARE(paintLog(log().messages()).last(), QString(done));
    }

    void logoLayersNeverCompleteACycle()
    {
        change(*m_user);
        for (int i = 0; i < 6; ++i) {
            m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPicLogoWidget"));
            m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintTextLogoWidget"));
        }
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(!paintLog(log().messages()).contains(done));
    }

    void cyclesBeginWithNothingPainted()
    {
        change(*m_user);
        QVERIFY(m_user->settle());
        change(*m_user, Qt::darkGreen);
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPublicWidget"));
        QVERIFY(m_user->mask()->isVisible());
    }

    void reportsAreLogged_data()
    {
        QTest::addColumn<QString>("reporter");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("base pattern")
            << "m_pPaintBasicWidget" << QStringList({begining, "PaintBasicWidget is done"});
        QTest::newRow("brightness") << "m_pPaintPublicBrightWidget"
                                    << QStringList({begining, "PaintPublicBrightWidget is done"});
        QTest::newRow("border") << "m_pPaintPublicWidget"
                                << QStringList({begining, "PaintPublicWidget is done"});
        QTest::newRow("no layer") << "m_pPaintNothing" << QStringList(begining);
        QTest::newRow("no name") << "" << QStringList(begining);
        QTest::newRow("other case") << "m_ppaintbasicwidget" << QStringList(begining);
    }

    void reportsAreLogged()
    {
        QFETCH(QString, reporter);
        QFETCH(QStringList, lines);
        change(*m_user);
        m_tool->slotUpdatePaintEventStatus(reporter);
        QCOMPARE(paintLog(log().messages()), lines);
        QVERIFY(m_user->mask()->isVisible());
    }

    void unmatchedNameRunsTheCompletionCheck()
    {
        m_user->mask()->show();
        for (QWidget* button : editButtons(*m_user))
            button->setEnabled(false);
        m_user->basicPanel()->setControlsDisabled(true);
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintNothing"));
        QCOMPARE(paintLog(log().messages()), QStringList({begining, done}));
        QVERIFY(!m_user->mask()->isVisible());
        QVERIFY(allEnabled(editButtons(*m_user)));
        QVERIFY(allEnabled(lockedControls(*m_user)));
    }

    void lateLockHoldsUntilTheLayersPaint()
    {
        Diary diary(*m_tool);
        change(*m_user);
        for (const QString& name : reporters())
            m_tool->slotUpdatePaintEventStatus(name);
        QVERIFY(!m_user->mask()->isVisible());
        QVERIFY(allEnabled(editButtons(*m_user)));

        QTRY_VERIFY(diary.entries.contains("cancel enabled"));
        QCOMPARE(diary.entries.filter("cancel"), QStringList({"cancel disabled", "cancel enabled"}));
        QVERIFY(diary.timeOf("cancel enabled") >= 95);
    }

    void reportsAreIgnoredWhileTheUpdateFlagIsSet()
    {
        m_tool->setUpdateFlag(true);
        change(*m_user);
        QTRY_COMPARE(paintLog(log().messages()).size(), 3);
        QCOMPARE(paintLog(log().messages()), QStringList({begining, begining, begining}));
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(noneEnabled(lockedControls(*m_user)));
        QVERIFY(noneEnabled(editButtons(*m_user)));

        m_tool->setUpdateFlag(false);
        QVERIFY(m_user->mask()->isVisible());
        log().clear();
        change(*m_user, Qt::darkGreen);
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
    }

    void reportsOfASaveAreIgnored()
    {
        m_tool->setSavePath(m_folder.path(), QStringLiteral("preview"));
        Host host(*m_tool);
        change(*m_user);
        m_tool->slotAddConfirmButtonClicked();
        QCOMPARE(paintLog(log().messages()), QStringList({begining, begining, begining}));
        QVERIFY(m_user->mask()->isVisible());
        log().clear();
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
        QVERIFY(host.hears(2));
    }

    void reportsOfAPreviewSaveCount()
    {
        m_tool->setSavePath(m_folder.path(), QStringLiteral("preview"));
        Host host(*m_tool);
        change(*m_user);
        m_tool->slotSaveImage();
        QCOMPARE(paintLog(log().messages()), cycleLog());
        QVERIFY(!m_user->mask()->isVisible());
        QVERIFY(host.hears(1));
        QTRY_VERIFY(log().messages(done).size() > 1); // the snapshot that was still to come
    }

    void hiddenToolTakesItsSnapshotAtOnce()
    {
        m_tool->hide();
        log().clear();
        Diary diary(*m_tool);
        change(*m_user, Qt::darkBlue);
        QCOMPARE(diary.entries, QStringList("painted"));
        const QString difference = previewDifference(Qt::darkBlue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QCOMPARE(paintLog(log().messages()), QStringList({begining, begining, begining}));

        QTest::qWait(150);
        QCOMPARE(diary.entries, QStringList("painted"));
        QVERIFY(allEnabled(lockedControls(*m_user)));
        QVERIFY(allEnabled(editButtons(*m_user)));
    }

    void neverShownToolTakesItsSnapshotAtOnce()
    {
        VTestChartTools hidden;
        const User user(hidden);
        log().clear();
        hidden.setTestChartToolsData(smallRecord());
        VD_COMPARE_IMAGES(user.shownChart(), expectedChart(smallRecord()));
        QVERIFY(user.mask()->isHidden());
        QTest::qWait(30);
        QVERIFY(allEnabled(editButtons(user)));
        QVERIFY(!paintLog(log().messages()).contains(done));
    }

    void toolHiddenInMidCycleRecovers_data()
    {
        QTest::addColumn<int>("hiddenAfter");
        QTest::addColumn<int>("shownAfter");
        QTest::newRow("hidden before the lock") << 1 << 150;
        QTest::newRow("hidden while locked") << 40 << 150;
        QTest::newRow("shown again within the cycle") << 20 << 20;
        QTest::newRow("shown again at once") << 0 << 0;
    }

    void toolHiddenInMidCycleRecovers()
    {
        QFETCH(int, hiddenAfter);
        QFETCH(int, shownAfter);
        change(*m_user, Qt::darkBlue);
        QTest::qWait(hiddenAfter);
        m_tool->hide();
        QTest::qWait(shownAfter);
        m_tool->show();
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(m_user->settle());
        QVERIFY(allEnabled(lockedControls(*m_user)));
        QVERIFY(allEnabled(editButtons(*m_user)));
        const QString difference = previewDifference(Qt::darkBlue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void toolHiddenInMidCycleStaysUntouched()
    {
        change(*m_user);
        m_tool->hide();
        Diary diary(*m_tool);
        QTest::qWait(200);
        QCOMPARE(diary.entries, QStringList());
        QVERIFY(!m_user->mask()->isHidden());
    }

    void showingStartsACycle()
    {
        m_tool->hide();
        log().clear();
        Diary diary(*m_tool);
        m_tool->show();
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
        QCOMPARE(diary.entries.count("painted"), 1);
    }

    void changeLightsTheSaveButtons_data()
    {
        QTest::addColumn<bool>("ofBasicPanel");
        QTest::newRow("basic panel") << true;
        QTest::newRow("public panel") << false;
    }

    void changeLightsTheSaveButtons()
    {
        QFETCH(bool, ofBasicPanel);
        m_tool->updateShowSaveBtnStatus(false);
        QVERIFY(noneEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
        if (ofBasicPanel)
            change(*m_user);
        else
            m_user->publicPanel()->setOutLineColor(Qt::red);
        QVERIFY(allEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
        QVERIFY(m_user->settle());
        QVERIFY(allEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
    }
};

VD_TEST_MAIN(TestPaintProgress)
#include "tst_paintprogress.moc"
