#include "charttool.h"

#include <QTemporaryDir>

using namespace charttool;

namespace {

QString editLine(const char* type)
{
    return QStringLiteral("TestChartTools EditType is : EditType::") + QLatin1String(type);
}

/// The edit buttons and the save button that are enabled, from left to right.
QStringList enabledButtons(const User& user)
{
    QStringList names;
    const auto add = [&names](const QPushButton* button, const char* name) {
        if (button->isEnabled())
            names.append(QLatin1String(name));
    };
    add(user.cancel(), "cancel");
    add(user.addConfirm(), "add confirm");
    add(user.replaceConfirm(), "replace confirm");
    add(user.replaceApply(), "replace apply");
    add(user.saveButton(), "save");
    return names;
}

const QStringList everyButton = {"cancel", "add confirm", "replace confirm", "replace apply", "save"};

/// Remembers what had been logged about edits when a button was disabled.
class DisabledWatch : public QObject
{
public:
    explicit DisabledWatch(QPushButton* button) { button->installEventFilter(this); }

    QStringList logged = {"never disabled"};

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::EnabledChange)
            logged = editLog(LogRecorder::instance().messages());
        return false;
    }
};

void change(const User& user)
{
    user.basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd"));
}

TestChartToolsData changedRecord()
{
    TestChartToolsData record = smallRecord();
    record.basicData.oddColor = toRgbaColor(Qt::darkBlue);
    return record;
}

/// `record` as a tool shows it that adds a chart.
TestChartToolsData withDefaultStripes(TestChartToolsData record)
{
    record.basicData.colorStripeColors = {
        {0, Qt::yellow}, {1, Qt::green}, {2, Qt::cyan}, {3, Qt::magenta}, {4, Qt::red}};
    return record;
}

} // namespace

class TestEditFlow : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VTestChartTools> m_tool;
    std::unique_ptr<User> m_user;
    std::unique_ptr<Host> m_host;

    QString root() const { return m_folder->filePath(QStringLiteral("root")); }
    QString oldChart() const { return m_folder->filePath(QStringLiteral("root/20200101_000000/chart.png")); }

    QStringList savedFolders() const { return QDir(root()).entryList({QStringLiteral("2*")}, QDir::Dirs); }

    /// The tool as a host opens it: a chart of its own to replace, shown, and idle.
    void open(bool add)
    {
        QVERIFY(writeFile(oldChart(), "old"));
        m_tool->setSavePath(root(), QStringLiteral("preview"));
        m_tool->setCurrentEditNum(QStringLiteral("chart.png"));
        m_tool->setLastSavePath(oldChart());
        m_tool->setTestImageNum(3);
        m_tool->setShowForAdd(add);
        m_tool->setTestChartToolsData(smallRecord());
        QVERIFY(m_user->show());
        m_tool->updateShowSaveBtnStatus(true);
        log().clear();
    }

    /// Nothing more comes from the tool.
    bool staysSilent(std::size_t count) const
    {
        QTest::qWait(200);
        return m_host->messages.size() == count;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
        m_folder = std::make_unique<QTemporaryDir>();
        m_tool = std::make_unique<VTestChartTools>();
        m_user = std::make_unique<User>(*m_tool);
        m_host = std::make_unique<Host>(*m_tool);
    }

    void cleanup()
    {
        m_host.reset();
        m_user.reset();
        m_tool.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void modesShowTheirButtons_data()
    {
        QTest::addColumn<QList<bool>>("modes");
        QTest::newRow("new tool replaces") << QList<bool>();
        QTest::newRow("add") << QList<bool>({true});
        QTest::newRow("replace") << QList<bool>({false});
        QTest::newRow("add, then replace") << QList<bool>({true, false});
        QTest::newRow("replace, then add") << QList<bool>({false, true});
    }

    void modesShowTheirButtons()
    {
        QFETCH(QList<bool>, modes);
        for (const bool mode : modes)
            m_tool->setShowForAdd(mode);
        QVERIFY(m_user->show());
        const bool add = !modes.isEmpty() && modes.last();
        QCOMPARE(m_tool->isShowForAdd(), add);
        QVERIFY(m_user->cancel()->isVisible());
        QCOMPARE(m_user->addConfirm()->isVisible(), add);
        QCOMPARE(m_user->replaceConfirm()->isVisible(), !add);
        QCOMPARE(m_user->replaceApply()->isVisible(), !add);
    }

    void buttonsAreCentredInTheBar()
    {
        open(false);
        const QRect bar = m_user->named<QWidget>("saveWidget")->rect();
        for (const QPushButton* button :
             {m_user->cancel(), m_user->replaceConfirm(), m_user->replaceApply()}) {
            QVERIFY(bar.contains(button->geometry()));
            QCOMPARE(button->y(), (bar.height() - button->height()) / 2);
        }
        QVERIFY(m_user->cancel()->x() < m_user->replaceConfirm()->x());
        QVERIFY(m_user->replaceConfirm()->x() < m_user->replaceApply()->x());
        QVERIFY(bar.right() - m_user->replaceApply()->geometry().right() < 65);
    }

    void modeChangesWhileShown()
    {
        open(false);
        m_tool->setShowForAdd(true);
        QVERIFY(m_user->addConfirm()->isVisible());
        QVERIFY(!m_user->replaceConfirm()->isVisible());
        QVERIFY(!m_user->replaceApply()->isVisible());
        m_tool->setShowForAdd(false);
        QVERIFY(!m_user->addConfirm()->isVisible());
        QVERIFY(m_user->replaceConfirm()->isVisible());
        QVERIFY(m_user->replaceApply()->isVisible());
    }

    void hostDecidesTheInitialState_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QStringList>("buttons");
        QTest::newRow("nothing to save") << false << QStringList({"cancel", "replace confirm"});
        QTest::newRow("changed") << true
                                 << QStringList({"cancel", "add confirm", "replace confirm", "replace apply",
                                                 "save"});
    }

    void hostDecidesTheInitialState()
    {
        QFETCH(bool, enabled);
        QFETCH(QStringList, buttons);
        open(false);
        m_tool->updateShowSaveBtnStatus(!enabled);
        m_tool->updateShowSaveBtnStatus(enabled);
        QCOMPARE(enabledButtons(*m_user), buttons);
    }

    void hostBringsTheButtonsBackAfterAFailure()
    {
        open(false);
        m_tool->setSavePath(oldChart(), QString());
        m_user->click(m_user->replaceConfirm());
        QVERIFY(m_host->hears(1));
        QCOMPARE(enabledButtons(*m_user), QStringList({"cancel", "add confirm", "save"}));
        m_tool->updateShowSaveBtnStatus(true);
        QCOMPARE(enabledButtons(*m_user), everyButton);
        m_tool->setSavePath(root(), QString());
        m_user->click(m_user->replaceConfirm());
        QVERIFY(m_host->hears(3));
        QCOMPARE(m_host->last().type, int(ReplaceConfirm));
    }

    void endOfARepaint_data()
    {
        QTest::addColumn<bool>("followsState");
        QTest::addColumn<bool>("unsaved");
        QTest::addColumn<QStringList>("buttons");
        const QStringList edits = {"cancel", "add confirm", "replace confirm", "replace apply"};
        QTest::newRow("nothing to save") << false << false << edits;
        QTest::newRow("changed") << false << true << everyButton;
        QTest::newRow("nothing to save, following the state")
            << true << false << QStringList({"cancel", "replace confirm"});
        QTest::newRow("changed, following the state") << true << true << everyButton;
    }

    void endOfARepaint()
    {
        QFETCH(bool, followsState);
        QFETCH(bool, unsaved);
        QFETCH(QStringList, buttons);
        QVERIFY(!m_tool->saveButtonsFollowState());
        m_tool->setProperty("saveButtonsFollowState", followsState);
        QCOMPARE(m_tool->saveButtonsFollowState(), followsState);
        open(false);
        m_tool->updateShowSaveBtnStatus(unsaved);
        m_tool->setUpdateFlag(true); // the lock stays
        m_tool->slotGetHeightWidth();
        QTRY_VERIFY(!m_user->cancel()->isEnabled());
        QVERIFY(!m_user->replaceConfirm()->isEnabled());
        QVERIFY(!m_user->replaceApply()->isEnabled());
        m_tool->setUpdateFlag(false);
        m_tool->slotGetHeightWidth();
        QVERIFY(m_user->settle());
        QCOMPARE(enabledButtons(*m_user), buttons);
    }

    void buttonsThatFollowTheStateComeBackAfterAFailure()
    {
        m_tool->setSaveButtonsFollowState(true);
        open(false);
        m_tool->setSavePath(oldChart(), QString());
        m_user->replaceApply()->click(); // and no event before the buttons are looked at
        QCOMPARE(enabledButtons(*m_user), QStringList({"cancel", "save"}));
        QVERIFY(m_host->hears(1));
        QCOMPARE(m_host->heard(), QStringList("sigFail"));
        QCOMPARE(enabledButtons(*m_user), everyButton);
    }

    void buttonsThatFollowTheStateTellOfALaterChange_data()
    {
        QTest::addColumn<bool>("changed");
        QTest::addColumn<QStringList>("buttons");
        QTest::newRow("nothing changed") << false << QStringList({"cancel", "replace confirm"});
        QTest::newRow("changed while it was written") << true << everyButton;
    }

    void buttonsThatFollowTheStateTellOfALaterChange()
    {
        QFETCH(bool, changed);
        QFETCH(QStringList, buttons);
        m_tool->setSaveButtonsFollowState(true);
        open(false);
        m_tool->slotReplaceApplyButtonClicked();
        if (changed)
            change(*m_user);
        QVERIFY(m_host->hears(2));
        QVERIFY(m_user->settle());
        QCOMPARE(enabledButtons(*m_user), buttons);
    }

    void cancel_data()
    {
        QTest::addColumn<bool>("add");
        QTest::newRow("adding") << true;
        QTest::newRow("replacing") << false;
    }

    void cancel()
    {
        QFETCH(bool, add);
        open(add);
        change(*m_user);
        QVERIFY(m_user->settle());
        const QStringList before = enabledButtons(*m_user);
        m_user->click(m_user->cancel());
        QCOMPARE(m_host->heard(), QStringList("sigTestToolEditDone"));
        QCOMPARE(m_host->last().type, int(Cancle));
        QCOMPARE(m_host->last().record, TestChartToolsData());
        QVERIFY(m_host->last().path.isEmpty());
        QCOMPARE(editLog(log().messages()), QStringList(editLine("Cancle")));
        QCOMPARE(enabledButtons(*m_user), before);
        QVERIFY(staysSilent(1));
        QCOMPARE(savedFolders(), QStringList("20200101_000000"));
    }

    void add()
    {
        open(true);
        change(*m_user);
        QVERIFY(m_user->settle());
        m_user->click(m_user->addConfirm());
        QVERIFY(!m_user->addConfirm()->isEnabled());
        QCOMPARE(editLog(log().messages()).first(), editLine("AddConfirm"));
        QVERIFY(m_host->hears(2));
        QCOMPARE(m_host->heard(), QStringList({"sigSave", "sigTestToolEditDone"}));
        QCOMPARE(m_host->last().type, int(AddConfirm));
        QCOMPARE(m_host->last().record, withDefaultStripes(changedRecord()));
        QCOMPARE(m_host->messages.front().record, withDefaultStripes(changedRecord()));
        QVERIFY(m_host->last().path.endsWith(QLatin1String("/TestImage3.png")));
        QVERIFY(QFile::exists(m_host->last().path));
        QCOMPARE(enabledButtons(*m_user), QStringList({"cancel", "replace confirm"}));
        QVERIFY(staysSilent(2));
    }

    void replaceConfirm()
    {
        open(false);
        m_user->click(m_user->replaceConfirm());
        QVERIFY(!m_user->replaceConfirm()->isEnabled());
        QVERIFY(!m_user->replaceApply()->isEnabled());
        QCOMPARE(editLog(log().messages()).first(), editLine("ReplaceConfirm"));
        QVERIFY(m_host->hears(2));
        QCOMPARE(m_host->heard(), QStringList({"sigSave", "sigTestToolEditDone"}));
        QCOMPARE(m_host->last().type, int(ReplaceConfirm));
        QCOMPARE(m_host->last().record, smallRecord());
        QVERIFY(m_host->last().path.endsWith(QLatin1String("/chart.png")));
        QVERIFY(m_host->last().path != oldChart());
        QCOMPARE(enabledButtons(*m_user), QStringList("cancel"));
        QVERIFY(staysSilent(2));
    }

    void replaceApply()
    {
        open(false);
        m_user->click(m_user->replaceApply());
        QVERIFY(!m_user->replaceApply()->isEnabled());
        QVERIFY(m_user->replaceConfirm()->isEnabled());
        QCOMPARE(editLog(log().messages()).first(), editLine("ReplaceApply"));
        QVERIFY(m_host->hears(2));
        QCOMPARE(m_host->heard(), QStringList({"sigSave", "sigTestToolEditDone"}));
        QCOMPARE(m_host->last().type, int(ReplaceApply));
        QCOMPARE(m_host->last().record, smallRecord());
        QVERIFY(m_host->last().path.endsWith(QLatin1String("/chart.png")));
        QCOMPARE(enabledButtons(*m_user), QStringList({"cancel", "replace confirm"}));
        QVERIFY(m_tool->isVisible());
        QVERIFY(staysSilent(2));
    }

    void buttonsAreDisabledBeforeTheHostIsTold()
    {
        open(false);
        QVector<QStringList> states;
        m_host->reaction = [&](const Host::Message&) { states.append(enabledButtons(*m_user)); };
        m_user->click(m_user->replaceApply());
        QVERIFY(m_host->hears(2));
        const QStringList expected = {"cancel", "replace confirm"};
        QCOMPARE(states, QVector<QStringList>({expected, expected}));
    }

    void applyIsDisabledBeforeItIsLogged()
    {
        open(false);
        DisabledWatch watch(m_user->replaceApply());
        m_user->click(m_user->replaceApply());
        QCOMPARE(watch.logged, QStringList());
        QVERIFY(m_host->hears(2));
    }

    void addIsLoggedBeforeItIsDisabled()
    {
        open(true);
        DisabledWatch watch(m_user->addConfirm());
        m_user->click(m_user->addConfirm());
        QCOMPARE(watch.logged, QStringList(editLine("AddConfirm")));
        QVERIFY(m_host->hears(2));
    }

    void confirmAfterApplyOnlySendsTheRecord()
    {
        open(false);
        change(*m_user);
        QVERIFY(m_user->settle());
        m_user->click(m_user->replaceApply());
        QVERIFY(m_host->hears(2));
        const QStringList folders = savedFolders();
        log().clear();

        m_user->click(m_user->replaceConfirm());
        QCOMPARE(m_host->messages.size(), std::size_t(3));
        QCOMPARE(m_host->last().signal, QStringLiteral("sigTestToolEditDone"));
        QCOMPARE(m_host->last().type, int(ReplaceConfirmOnlyCancle));
        QCOMPARE(m_host->last().record, changedRecord());
        QVERIFY(m_host->last().path.isEmpty());
        QCOMPARE(editLog(log().messages()), QStringList(editLine("ReplaceConfirmOnlyCancle")));
        QVERIFY(m_user->replaceConfirm()->isEnabled());

        m_user->click(m_user->replaceConfirm());
        QCOMPARE(m_host->last().type, int(ReplaceConfirmOnlyCancle));
        QVERIFY(staysSilent(4));
        QCOMPARE(savedFolders(), folders);
    }

    void confirmOnlyCollectsAFreshRecord()
    {
        open(false);
        m_user->basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd"));
        QVERIFY(m_user->settle());
        m_tool->updateShowSaveBtnStatus(false);
        m_user->click(m_user->replaceConfirm());
        QCOMPARE(m_host->last().record, changedRecord());
        QCOMPARE(m_host->heard(), QStringList("sigTestToolEditDone"));
    }

    void confirmOnlyDeletesNothing()
    {
        open(false);
        m_tool->updateShowSaveBtnStatus(false);
        m_user->click(m_user->replaceConfirm());
        QCOMPARE(m_host->last().type, int(ReplaceConfirmOnlyCancle));
        QVERIFY(deletionTimers(*m_tool).isEmpty());
        QCOMPARE(savedFolders(), QStringList("20200101_000000"));
    }

    void changeAfterApplySavesAgain()
    {
        open(false);
        m_user->click(m_user->replaceApply());
        QVERIFY(m_host->hears(2));
        change(*m_user);
        QVERIFY(m_user->replaceApply()->isEnabled());
        QVERIFY(m_user->settle());
        m_user->click(m_user->replaceConfirm());
        QVERIFY(m_host->hears(4));
        QCOMPARE(m_host->last().type, int(ReplaceConfirm));
        QCOMPARE(m_host->last().record, changedRecord());
    }

    void secondPressOnADisabledButtonDoesNothing_data()
    {
        QTest::addColumn<bool>("add");
        QTest::addColumn<int>("position");
        QTest::newRow("add confirm") << true << 2;
        QTest::newRow("replace confirm") << false << 3;
        QTest::newRow("replace apply") << false << 4;
    }

    void secondPressOnADisabledButtonDoesNothing()
    {
        QFETCH(bool, add);
        QFETCH(int, position);
        open(add);
        const QPushButton* const button = position == 2   ? m_user->addConfirm()
                                          : position == 3 ? m_user->replaceConfirm()
                                                          : m_user->replaceApply();
        m_user->click(button);
        m_user->click(button);
        QVERIFY(m_host->hears(2));
        m_user->click(button);
        QVERIFY(staysSilent(2));
        QCOMPARE(savedFolders().size(), 2);
    }

    void secondReplaceConfirmOnlySendsTheRecord()
    {
        open(false);
        m_tool->slotReplaceConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        m_tool->slotReplaceConfirmButtonClicked();
        QCOMPARE(m_host->messages.size(), std::size_t(3));
        QCOMPARE(m_host->last().type, int(ReplaceConfirmOnlyCancle));
        QVERIFY(m_host->last().path.isEmpty());
        QCOMPARE(m_host->last().record, smallRecord());
    }

    void secondReplaceConfirmWhileTheFirstIsWritten()
    {
        open(false);
        m_tool->slotReplaceConfirmButtonClicked();
        m_tool->slotReplaceConfirmButtonClicked();
        QCOMPARE(m_host->last().type, int(ReplaceConfirmOnlyCancle));
        QVERIFY(m_host->hears(3));
        QCOMPARE(m_host->heard(), QStringList({"sigTestToolEditDone", "sigSave", "sigTestToolEditDone"}));
        QCOMPARE(m_host->last().type, int(ReplaceConfirm));
    }

    void cancelAfterApply()
    {
        open(false);
        change(*m_user);
        QVERIFY(m_user->settle());
        m_user->click(m_user->replaceApply());
        QVERIFY(m_host->hears(2));
        const QString applied = m_host->last().path;
        m_user->click(m_user->cancel());
        QCOMPARE(m_host->last().type, int(Cancle));
        QCOMPARE(m_host->last().record, TestChartToolsData());
        QVERIFY(m_host->last().path.isEmpty());

        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(oldChart()), 10000);
        QTRY_VERIFY(deletionTimers(*m_tool).isEmpty());
        VD_COMPARE_IMAGES(QImage(applied), expectedChart(changedRecord()));
    }

    void failedWrite_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<int>("edit");
        QTest::addColumn<QStringList>("buttons");
        const QStringList added = {"cancel", "replace confirm", "replace apply", "save"};
        const QStringList confirmed = {"cancel", "add confirm", "save"};
        const QStringList applied = {"cancel", "add confirm", "replace confirm", "save"};
        QTest::newRow("add, the root is a file") << "file" << int(AddConfirm) << added;
        QTest::newRow("add, the root is below a file") << "file/root" << int(AddConfirm) << added;
        QTest::newRow("replace confirm, the root is a file") << "file" << int(ReplaceConfirm) << confirmed;
        QTest::newRow("replace confirm, the root is below a file")
            << "file/root" << int(ReplaceConfirm) << confirmed;
        QTest::newRow("replace apply, the root is a file") << "file" << int(ReplaceApply) << applied;
        QTest::newRow("replace apply, the root is below a file")
            << "file/root" << int(ReplaceApply) << applied;
    }

    void failedWrite()
    {
        QFETCH(QString, root);
        QFETCH(int, edit);
        QFETCH(QStringList, buttons);
        open(edit == AddConfirm);
        QVERIFY(writeFile(m_folder->filePath(QStringLiteral("file")), "not a folder"));
        const QString saveRoot = m_folder->filePath(root);
        m_tool->setSavePath(saveRoot, QString());
        QVERIFY(m_tool->failedPath().isEmpty());
        QVERIFY(m_tool->failedReason().isEmpty());
        QString failedPath;
        m_host->reaction = [&](const Host::Message&) { failedPath = m_tool->failedPath(); };

        m_user->click(edit == AddConfirm       ? m_user->addConfirm()
                      : edit == ReplaceConfirm ? m_user->replaceConfirm()
                                               : m_user->replaceApply());
        QVERIFY(m_host->hears(1));
        QCOMPARE(m_host->heard(), QStringList("sigFail"));
        QCOMPARE(enabledButtons(*m_user), buttons);
        QCOMPARE(m_tool->failedReason(), QStringLiteral("A file or folder of that name is in the way."));
        QVERIFY(failedPath.startsWith(saveRoot + QLatin1Char('/')));
        QVERIFY(failedPath.endsWith(edit == AddConfirm ? "/TestImage3.png" : "/chart.png"));
        QVERIFY(staysSilent(1));
        QCOMPARE(enabledButtons(*m_user), buttons);
        QVERIFY(deletionTimers(*m_tool).isEmpty());
        QVERIFY(QFile::exists(oldChart()));
        QVERIFY(editLog(log().messages()).filter("testChartImage").isEmpty());
        QVERIFY(QFileInfo(m_folder->filePath(QStringLiteral("file"))).isFile());
    }

    void fileInTheWayOfTheChart()
    {
        open(false);
        m_tool->setCurrentEditNum(QStringLiteral("missing/chart.png"));
        m_user->click(m_user->replaceApply());
        QVERIFY(m_host->hears(1));
        QCOMPARE(m_host->heard(), QStringList("sigFail"));
        QVERIFY(m_tool->failedPath().endsWith(QLatin1String("/missing/chart.png")));
        QCOMPARE(m_tool->failedReason(), QStringLiteral("The folder is not there."));
    }

    void changeAfterAFailureLightsTheButtons()
    {
        open(false);
        m_tool->setSavePath(oldChart(), QString());
        m_user->click(m_user->replaceConfirm());
        QVERIFY(m_host->hears(1));
        QCOMPARE(enabledButtons(*m_user), QStringList({"cancel", "add confirm", "save"}));
        change(*m_user);
        QVERIFY(m_user->settle());
        QCOMPARE(enabledButtons(*m_user),
                 QStringList({"cancel", "add confirm", "replace confirm", "replace apply", "save"}));

        m_tool->setSavePath(root(), QString());
        m_user->click(m_user->replaceConfirm());
        QVERIFY(m_host->hears(3));
        QCOMPARE(m_host->heard(), QStringList({"sigFail", "sigSave", "sigTestToolEditDone"}));
        QVERIFY(m_tool->failedPath().startsWith(oldChart()));
    }

    void hostLeavesTheRecordAlone()
    {
        open(true);
        connect(m_tool.get(), &VTestChartTools::sigSave, m_tool.get(),
                [](TestChartToolsData& record) { record = TestChartToolsData(); });
        m_user->click(m_user->addConfirm());
        QVERIFY(m_host->hears(2));
        QCOMPARE(m_host->last().record, withDefaultStripes(smallRecord()));
        QCOMPARE(m_tool->getTestChartToolsData(), withDefaultStripes(smallRecord()));
    }

    void keysReachTheButtons()
    {
        open(false);
        m_user->cancel()->setFocus();
        QTest::keyClick(m_tool->windowHandle(), Qt::Key_Space);
        QCOMPARE(m_host->heard(), QStringList("sigTestToolEditDone"));
        QCOMPARE(m_host->last().type, int(Cancle));

        m_user->replaceApply()->setFocus();
        QTest::keyClick(m_tool->windowHandle(), Qt::Key_Space);
        QVERIFY(m_host->hears(3));
        QCOMPARE(m_host->last().type, int(ReplaceApply));
    }
};

VD_TEST_MAIN(TestEditFlow)
#include "tst_editflow.moc"
