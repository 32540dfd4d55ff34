#include "charttool.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QTemporaryDir>

using namespace charttool;

namespace {

constexpr auto begining = "PaintTextChartTool is begining";
constexpr auto done = "PaintTextChartTool is done";

/// What one completed repaint cycle logs: the layers from bottom to top, with that of the logo when one is
/// shown.
QStringList cycleLog(const char* logo = nullptr)
{
    QStringList lines = {begining, "PaintBasicWidget is done",  begining, "PaintRowColSequeWidget is done",
                         begining, "PaintInLineWidget is done", begining, "PaintSelfWidget is done"};
    if (logo)
        lines += {begining, logo};
    return lines + QStringList({begining, "PaintPublicBrightWidget is done", begining,
                                "PaintPublicWidget is done", done});
}

/// What the reports of the six layers of a bare chart log that are ignored.
QStringList ignoredLog()
{
    return {begining, begining, begining, begining, begining, begining};
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
        watch(user.toggle("Show Circle"), "inline panel");
        watch(user.toggle("Show Logo"), "logo panel");
        watch(user.publicPanel()->findChild<QSlider*>(), "public panel");
        watch(user.toggle("Show Resolution"), "custom text panel");
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

/// Every widget of the panels that takes input and that the lock covers: all but the basic panel's radio
/// buttons and lists.
QList<QWidget*> lockedControls(const User& user)
{
    QList<QWidget*> controls;
    for (const QWidget* panel : user.panels()) {
        for (auto* control : panel->findChildren<QPushButton*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QCheckBox*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QRadioButton*>()) {
            if (panel != user.basicPanel())
                controls.append(control);
        }
        for (auto* control : panel->findChildren<SpinEditBox*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QSlider*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QComboBox*>())
            controls.append(control);
        for (auto* control : panel->findChildren<QLineEdit*>())
            controls.append(control);
    }
    return controls;
}

QList<QWidget*> enabledOf(const QList<QWidget*>& widgets)
{
    QList<QWidget*> enabled;
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(enabled),
                 [](const QWidget* w) { return w->isEnabled(); });
    return enabled;
}

/// The small chart with every layer shown.
TestChartToolsData fullRecord()
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = 160;
    record.publicData.resolutionHeight = 90;
    return record;
}

bool allEnabled(const QList<QWidget*>& widgets)
{
    return std::all_of(widgets.begin(), widgets.end(), [](const QWidget* w) { return w->isEnabled(); });
}

/// What of `widgets` works, in words.
QStringList namesOfEnabled(const QList<QWidget*>& widgets)
{
    QStringList names;
    for (const QWidget* widget : enabledOf(widgets))
        names.append(QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                     widget->objectName());
    return names;
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
void changeBars(const User& user, const QColor& color = Qt::darkBlue)
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
    QList<QWidget*> m_usable; ///< the panels' controls that work while the tool is idle

    /// Whether the tool is idle: what worked at first works, and nothing else.
    bool isUnlocked() const
    {
        return enabledOf(lockedControls(*m_user)) == m_usable && allEnabled(editButtons(*m_user)) &&
               !m_user->mask()->isVisible();
    }

    bool isLocked() const
    {
        return noneEnabled(lockedControls(*m_user)) && noneEnabled(editButtons(*m_user)) &&
               m_user->mask()->isVisible();
    }

    /// Shows `record` and starts anew.
    bool restart(const TestChartToolsData& record)
    {
        m_tool->setTestChartToolsData(record);
        const bool idle = m_user->settle();
        m_usable = enabledOf(lockedControls(*m_user));
        log().clear();
        return idle;
    }

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
        m_usable = enabledOf(lockedControls(*m_user));
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
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(diary.entries, QStringList({"mask shown",
                                             "basic panel disabled",
                                             "inline panel disabled",
                                             "logo panel disabled",
                                             "public panel disabled",
                                             "custom text panel disabled",
                                             "cancel disabled",
                                             "add confirm disabled",
                                             "replace confirm disabled",
                                             "replace apply disabled",
                                             "painted",
                                             "mask hidden",
                                             "basic panel enabled",
                                             "inline panel enabled",
                                             "logo panel enabled",
                                             "public panel enabled",
                                             "custom text panel enabled",
                                             "cancel enabled",
                                             "add confirm enabled",
                                             "replace confirm enabled",
                                             "replace apply enabled"}));
        QVERIFY(diary.timeOf("basic panel disabled") >= 9);
        QVERIFY(diary.timeOf("painted") >= 95);
    }

    void maskIsShownAtOnceOverThePanels_data()
    {
        QTest::addColumn<int>("panel");
        QTest::newRow("basic") << 0;
        QTest::newRow("inline") << 1;
        QTest::newRow("logo") << 2;
        QTest::newRow("public") << 3;
        QTest::newRow("custom text") << 4;
    }

    void maskIsShownAtOnceOverThePanels()
    {
        QFETCH(int, panel);
        QVERIFY(!m_user->mask()->isVisible());
        QWidget* const covered = m_user->panels().at(panel);
        m_user->reveal(covered);
        changeBars(*m_user);
        QVERIFY(m_user->mask()->isVisible());
        QCOMPARE(m_user->mask()->size(), QSize(410, 802));
        QVERIFY(allEnabled(editButtons(*m_user)));
        const QPoint centre = covered->mapTo(m_tool.get(), covered->rect().center());
        QCOMPARE(m_tool->childAt(centre), m_user->mask());
    }

    void maskCoversWhatIsVisible_data()
    {
        QTest::addColumn<int>("scrolled");
        QTest::newRow("at the top") << 0;
        QTest::newRow("in between") << 100;
        QTest::newRow("at the bottom") << 289;
    }

    void maskCoversWhatIsVisible()
    {
        QFETCH(int, scrolled);
        QScrollBar* const bar = m_user->settings()->verticalScrollBar();
        bar->setValue(scrolled);
        QCOMPARE(bar->value(), scrolled);
        changeBars(*m_user);
        QVERIFY(m_user->mask()->isVisible());
        QCOMPARE(m_user->mask()->pos(), QPoint(0, scrolled));
        const QWidget* const viewport = m_user->settings()->viewport();
        QCOMPARE(QRect(m_user->mask()->mapTo(viewport, QPoint()), m_user->mask()->size()), viewport->rect());
        QVERIFY(m_user->settle());
        QCOMPARE(bar->value(), scrolled);
        bar->setValue(0);
        changeBars(*m_user, Qt::darkGreen);
        QCOMPARE(m_user->mask()->pos(), QPoint(0, 0));
    }

    void maskFollowsTheScrolling()
    {
        changeBars(*m_user);
        QVERIFY(m_user->mask()->isVisible());
        m_user->settings()->verticalScrollBar()->setValue(200);
        QVERIFY(m_user->mask()->isVisible());
        const QWidget* const viewport = m_user->settings()->viewport();
        QCOMPARE(QRect(m_user->mask()->mapTo(viewport, QPoint()), m_user->mask()->size()), viewport->rect());
    }

    void maskTakesTheClicks()
    {
        qRegisterMetaType<QPushButton*>("QPushButton*");
        const QSignalSpy asked(m_user->basicPanel(), &BasicSettingBox::evenSignal);
        const auto* even = m_user->named<QPushButton>("evenColorPushButton");
        m_user->click(even);
        QCOMPARE(asked.count(), 1);
        changeBars(*m_user);
        QVERIFY(even->isEnabled());
        m_user->click(even);
        QCOMPARE(asked.count(), 1);
        QVERIFY(m_user->settle());
        m_user->click(even);
        QCOMPARE(asked.count(), 2);
    }

    void everyControlIsLockedWhileTheLayersPaint()
    {
        QVERIFY(restart(fullRecord()));
        const QList<QWidget*> controls = lockedControls(*m_user);
        QVERIFY(controls.size() > 60);
        QVERIFY(allEnabled(controls));
        QVERIFY(allEnabled(editButtons(*m_user)));
        int looked = 0;
        connect(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated, m_tool.get(), [&] {
            ++looked;
            QCOMPARE(namesOfEnabled(controls), QStringList());
            QVERIFY(noneEnabled(editButtons(*m_user)));
            QVERIFY(allEnabled({m_user->chess(), m_user->colorBar(), m_user->stripeList()}));
            QVERIFY(m_user->mask()->isVisible());
        });
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(looked, 1);
        QVERIFY(allEnabled(controls));
        QVERIFY(allEnabled(editButtons(*m_user)));
    }

    void unlockingAsksTheSwitches_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("border") << "OutBorder" << QStringList("outLineColorButton");
        QTest::newRow("circles") << "Show Circle" << QStringList("circleColorButton");
        QTest::newRow("diagonals") << "Show Diagonal" << QStringList("diagonalColorButton");
        QTest::newRow("labels") << "Show Serial Number" << QStringList("sequeColorBtn");
        QTest::newRow("logo") << "Show Logo"
                              << QStringList({"scalelogoBtn", "textColorBtn", "logoOpacityBtn"});
        QTest::newRow("custom text") << "Display custom text"
                                     << QStringList({"selfTextColorButton", "selfInputLineEdit"});
        QTest::newRow("information line") << "Show Resolution" << QStringList("resolutionColorButton");
    }

    void unlockingAsksTheSwitches()
    {
        QFETCH(QString, caption);
        QFETCH(QStringList, names);
        QVERIFY(restart(fullRecord()));
        QCOMPARE(m_usable, lockedControls(*m_user));
        QAbstractButton* const toggle = m_user->toggle(caption.toLatin1().constData());
        QVERIFY(toggle);
        m_user->click(toggle);
        QVERIFY(!toggle->isChecked());
        QVERIFY(m_user->settle());
        QVERIFY(toggle->isEnabled());
        for (const QString& name : names)
            QVERIFY2(!m_tool->findChild<QWidget*>(name)->isEnabled(), qPrintable(name));
        m_user->click(toggle);
        QVERIFY(m_user->settle());
        QVERIFY(isUnlocked());
    }

    void cycleIsLogged()
    {
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
        QVERIFY(log().messages(begining).first().startsWith(QLatin1String(
            "void vardeno::testcharttools::VTestChartTools::slotUpdatePaintEventStatus(QString) ")));
    }

    void cycleWithALogoIsLogged_data()
    {
        QTest::addColumn<bool>("picture");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("picture") << true << QByteArray("PaintPicLogoWidget is done");
        QTest::newRow("text") << false << QByteArray("PaintTextLogoWidget is done");
    }

    void cycleWithALogoIsLogged()
    {
        QFETCH(bool, picture);
        QFETCH(QByteArray, line);
        TestChartToolsData record = fullRecord();
        record.logoData.pictureLogo = picture;
        record.logoData.textLogo = !picture;
        QVERIFY(restart(record));
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog(line.constData()));
        QVERIFY(isUnlocked());
    }

    void snapshotIsTakenAtTheEndOfTheCycle()
    {
        changeBars(*m_user, Qt::darkBlue);
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
            changeBars(*m_user, QColor(i, i, i));
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
        TestChartToolsData record = bareRecord();
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
        changeBars(*m_user, Qt::darkBlue);
        QTimer::singleShot(later, Qt::PreciseTimer, m_tool.get(),
                           [this] { changeBars(*m_user, Qt::darkGreen); });
        QVERIFY(QTest::qWaitFor([this] {
            return m_tool->getTestChartToolsData().basicData.oddColor == toRgbaColor(Qt::darkGreen);
        }));
        QVERIFY(m_user->settle());
        const QString difference = previewDifference(Qt::darkGreen);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QVERIFY(isUnlocked());
        QCOMPARE(paintLog(log().messages()).last(), QString(done));
    }

    void cycleWaitsForEveryRequiredLayer_data()
    {
        QTest::addColumn<QString>("lastOne");
        QTest::newRow("base pattern") << "m_pPaintBasicWidget";
        QTest::newRow("inline graphics") << "m_pPaintInLineWidget";
        QTest::newRow("custom text") << "m_pPaintSelfWidget";
        QTest::newRow("row and column numbers") << "m_pPaintRowColSequeWidget";
        QTest::newRow("brightness") << "m_pPaintPublicBrightWidget";
        QTest::newRow("border") << "m_pPaintPublicWidget";
    }

    void cycleWaitsForEveryRequiredLayer()
    {
        QFETCH(QString, lastOne);
        changeBars(*m_user);
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
        QVERIFY(restart(fullRecord()));
        changeBars(*m_user);
        for (int i = 0; i < 6; ++i) {
            m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPicLogoWidget"));
            m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintTextLogoWidget"));
            Q_EMIT m_user->painter<PaintPicLogoWidget>()->sigPaintEventUpdated();
            Q_EMIT m_user->painter<PaintTextLogoWidget>()->sigPaintEventUpdated();
        }
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(!paintLog(log().messages()).contains(done));
        QVERIFY(m_user->settle());

        // Nor while locked: a hidden layer never reports.
        m_user->painter<PaintPublicWidget>()->hide();
        changeBars(*m_user, Qt::darkGreen);
        QTest::qWait(200);
        QVERIFY(isLocked());
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPicLogoWidget"));
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintTextLogoWidget"));
        QVERIFY(isLocked());
        m_user->painter<PaintPublicWidget>()->show();
        changeBars(*m_user, Qt::darkCyan);
        QVERIFY(m_user->settle());
        QVERIFY(isUnlocked());
    }

    void cycleEndsWithoutTheLogoLayers()
    {
        changeBars(*m_user);
        for (int number = 0; number < 6; ++number) {
            QVERIFY(m_user->mask()->isVisible());
            m_tool->slotUpdatePaintEventStatus(reporters().at(number));
        }
        QVERIFY(!m_user->mask()->isVisible());
        QCOMPARE(paintLog(log().messages()).last(), QString(done));
    }

    void painterReportsByItsName_data()
    {
        QTest::addColumn<QByteArray>("painter");
        for (const char* name :
             {"PaintBasicWidget", "PaintInLineWidget", "PaintSelfWidget", "PaintRowColSequeWidget",
              "PaintPublicBrightWidget", "PaintPublicWidget", "PaintPicLogoWidget", "PaintTextLogoWidget"})
            QTest::newRow(name) << QByteArray(name);
    }

    void painterReportsByItsName()
    {
        QFETCH(QByteArray, painter);
        changeBars(*m_user);
        int found = 0;
        for (auto* layer : m_user->layerView()->findChildren<LayerPainter*>()) {
            if (!layer->inherits("vardeno::testcharttools::" + painter))
                continue;
            ++found;
            Q_EMIT layer->sigPaintEventUpdated();
        }
        QCOMPARE(found, 1);
        QCOMPARE(paintLog(log().messages()), QStringList({begining, painter + " is done"}));
    }

    void cyclesBeginWithNothingPainted()
    {
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        changeBars(*m_user, Qt::darkGreen);
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPublicWidget"));
        QVERIFY(m_user->mask()->isVisible());
    }

    void reportsAreLogged_data()
    {
        QTest::addColumn<QString>("reporter");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("base pattern")
            << "m_pPaintBasicWidget" << QStringList({begining, "PaintBasicWidget is done"});
        QTest::newRow("inline graphics")
            << "m_pPaintInLineWidget" << QStringList({begining, "PaintInLineWidget is done"});
        QTest::newRow("custom text") << "m_pPaintSelfWidget"
                                     << QStringList({begining, "PaintSelfWidget is done"});
        QTest::newRow("row and column numbers")
            << "m_pPaintRowColSequeWidget" << QStringList({begining, "PaintRowColSequeWidget is done"});
        QTest::newRow("picture logo")
            << "m_pPaintPicLogoWidget" << QStringList({begining, "PaintPicLogoWidget is done"});
        QTest::newRow("text logo") << "m_pPaintTextLogoWidget"
                                   << QStringList({begining, "PaintTextLogoWidget is done"});
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
        changeBars(*m_user);
        m_tool->slotUpdatePaintEventStatus(reporter);
        QCOMPARE(paintLog(log().messages()), lines);
        QVERIFY(m_user->mask()->isVisible());
    }

    void unmatchedNameRunsTheCompletionCheck()
    {
        m_user->mask()->show();
        for (QWidget* button : editButtons(*m_user))
            button->setEnabled(false);
        for (SettingPanel* panel : m_user->panels())
            panel->setControlsDisabled(true);
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintNothing"));
        QCOMPARE(paintLog(log().messages()), QStringList({begining, done}));
        QVERIFY(isUnlocked());
    }

    void lateLockHoldsUntilTheLayersPaint()
    {
        Diary diary(*m_tool);
        changeBars(*m_user);
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
        changeBars(*m_user);
        QTRY_COMPARE(paintLog(log().messages()).size(), 6);
        QCOMPARE(paintLog(log().messages()), ignoredLog());
        QVERIFY(isLocked());

        m_tool->setUpdateFlag(false);
        QVERIFY(m_user->mask()->isVisible());
        log().clear();
        changeBars(*m_user, Qt::darkGreen);
        QVERIFY(m_user->settle());
        QCOMPARE(paintLog(log().messages()), cycleLog());
    }

    void reportsOfASaveAreIgnored()
    {
        m_tool->setSavePath(m_folder.path(), QStringLiteral("preview"));
        Host host(*m_tool);
        changeBars(*m_user);
        m_tool->slotAddConfirmButtonClicked();
        QCOMPARE(paintLog(log().messages()), ignoredLog());
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
        changeBars(*m_user);
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
        changeBars(*m_user, Qt::darkBlue);
        QCOMPARE(diary.entries, QStringList("painted"));
        const QString difference = previewDifference(Qt::darkBlue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QCOMPARE(paintLog(log().messages()), ignoredLog());

        QTest::qWait(150);
        QCOMPARE(diary.entries, QStringList("painted"));
        QVERIFY(isUnlocked());
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
        changeBars(*m_user, Qt::darkBlue);
        QTest::qWait(hiddenAfter);
        m_tool->hide();
        QTest::qWait(shownAfter);
        m_tool->show();
        QVERIFY(m_user->mask()->isVisible());
        QVERIFY(m_user->settle());
        QVERIFY(isUnlocked());
        const QString difference = previewDifference(Qt::darkBlue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void toolHiddenInMidCycleStaysUntouched()
    {
        changeBars(*m_user);
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

    void focusComesBackAfterTheCycle_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::newRow("public panel") << "Resolution";
        QTest::newRow("inline panel") << "Circle";
        QTest::newRow("logo panel") << "Position adjustment";
        QTest::newRow("custom text panel") << "Show Size";
    }

    void focusComesBackAfterTheCycle()
    {
        QFETCH(QString, caption);
        QVERIFY(restart(fullRecord()));
        auto* entry = m_user->entry(caption.toLatin1().constData());
        m_user->click(entry);
        QWidget* const focused = m_tool->focusWidget();
        QVERIFY(focused == entry || entry->isAncestorOf(focused));
        int looked = 0;
        connect(m_user->painter<PaintBasicWidget>(), &LayerPainter::sigPaintEventUpdated, m_tool.get(), [&] {
            ++looked;
            QVERIFY(!entry->isEnabled());
            QVERIFY(m_tool->focusWidget() != focused);
        });
        changeBars(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(looked, 1);
        QCOMPARE(m_tool->focusWidget(), focused);
        QVERIFY(isUnlocked());
    }

    void typedTextArrivesThroughTheLocks_data()
    {
        QTest::addColumn<bool>("logo");
        QTest::newRow("custom text") << false;
        QTest::newRow("logo text") << true;
    }

    void typedTextArrivesThroughTheLocks()
    {
        QFETCH(bool, logo);
        TestChartToolsData record = fullRecord();
        record.logoData.pictureLogo = !logo;
        record.logoData.textLogo = logo;
        QVERIFY(restart(record));
        const SettingPanel* panel =
            logo ? static_cast<SettingPanel*>(m_user->logoPanel()) : m_user->selfPanel();
        QLineEdit* entry = nullptr;
        for (auto* lineEdit : panel->findChildren<QLineEdit*>()) {
            if (!qobject_cast<SpinEditBox*>(lineEdit->parentWidget()))
                entry = lineEdit;
        }
        QVERIFY(entry);
        m_user->click(entry);
        QTest::keyClick(m_tool->windowHandle(), Qt::Key_A, Qt::ControlModifier);
        for (const char character : QByteArray("stage 24x13")) {
            QTest::keyClick(m_tool->windowHandle(), character);
            QTest::qWait(100);
        }
        QVERIFY(m_user->settle());
        QCOMPARE(entry->text(), QStringLiteral("stage 24x13"));
        QCOMPARE(entry->cursorPosition(), 11);
        QCOMPARE(m_tool->focusWidget(), entry);
        const TestChartToolsData typed = m_tool->getTestChartToolsData();
        QCOMPARE(logo ? typed.logoData.logoText : typed.selfData.selfText, std::string("stage 24x13"));
    }

    void changeLightsTheSaveButtons_data()
    {
        QTest::addColumn<QString>("role");
        QTest::newRow("basic panel") << "odd";
        QTest::newRow("inline panel") << "circle";
        QTest::newRow("logo panel") << "logo";
        QTest::newRow("public panel") << "outlineWidth";
        QTest::newRow("custom text panel") << "selfText";
    }

    void changeLightsTheSaveButtons()
    {
        QFETCH(QString, role);
        m_tool->updateShowSaveBtnStatus(false);
        QVERIFY(noneEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
        for (SettingPanel* panel : m_user->panels())
            panel->setRoleColor(role, Qt::red);
        QVERIFY(allEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
        QVERIFY(m_user->settle());
        QVERIFY(allEnabled({m_user->saveButton(), m_user->addConfirm(), m_user->replaceApply()}));
    }
};

VD_TEST_MAIN(TestPaintProgress)
#include "tst_paintprogress.moc"
