#include "charttool.h"
#include "editor/editordelays.h"
#include "randomrecords.h"

#include <edithistory.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QSignalSpy>
#include <QSlider>

using namespace charttool;

namespace {

/// A tool in a window, with keys that undo.
struct Desk
{
    Desk()
        : tool(new VTestChartTools(new QWidget(&window)))
        , user(*tool)
    {
        window.setCentralWidget(tool->parentWidget());
        window.resize(1610, 803);
        tool->setUndoKeys(true);
        tool->applyRecord(smallRecord());
        before = shown();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    EditHistory* history() const { return tool->history(); }
    TestChartToolsData shown() const { return tool->getTestChartToolsData(); }
    bool shows(const TestChartToolsData& record) const
    {
        return QTest::qWaitFor([&] { return shown() == record; });
    }

    QMainWindow window;
    VTestChartTools* tool;
    User user;
    TestChartToolsData before;
};

/// Everything in the panels that a person changes the chart with.
QVector<QWidget*> controlsOf(const User& user)
{
    QVector<QWidget*> controls;
    for (const QWidget* panel : user.panels()) {
        for (auto* control : panel->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(control);
            if (qobject_cast<SpinEditBox*>(control) || qobject_cast<QComboBox*>(control) ||
                qobject_cast<QSlider*>(control) || (button && button->isCheckable()) ||
                (qobject_cast<QLineEdit*>(control) && !qobject_cast<SpinEditBox*>(control->parentWidget())))
                controls.append(control);
        }
    }
    return controls;
}

/// Changes what `control` shows, by a key or a click.
void operate(QWidget* control)
{
    if (auto* entry = qobject_cast<SpinEditBox*>(control))
        QTest::keyClick(entry, entry->value() < entry->maximum() ? Qt::Key_Up : Qt::Key_Down);
    else if (auto* slider = qobject_cast<QSlider*>(control))
        QTest::keyClick(slider, slider->value() < slider->maximum() ? Qt::Key_Right : Qt::Key_Left);
    else if (qobject_cast<QComboBox*>(control))
        QTest::keyClick(control, Qt::Key_Down);
    else if (qobject_cast<QLineEdit*>(control))
        QTest::keyClick(control, Qt::Key_X);
    else
        qobject_cast<QAbstractButton*>(control)->click();
}

} // namespace

class TestUndo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    /// Record and picture come back, and come again.
    void everyControl()
    {
        Desk desk;
        TestChartToolsData record = smallRecord();
        record.inLineData.showCircle = record.inLineData.showDiagonal = true;
        record.inLineData.showSerialNumber = true;
        record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = true;
        int changed = 0;
        for (QWidget* control : controlsOf(desk.user)) {
            desk.tool->applyRecord(record);
            const TestChartToolsData before = desk.shown();
            const QImage chartBefore = desk.tool->chartImage();
            operate(control);
            QCoreApplication::processEvents();
            const TestChartToolsData after = desk.shown();
            const QImage chartAfter = desk.tool->chartImage();
            if (after == before)
                continue; // a radio button that was checked; a slider, which changes the chart on release
            ++changed;
            QVERIFY(desk.history()->canUndo());
            desk.history()->undo();
            QVERIFY2(desk.shown() == before, control->metaObject()->className());
            VD_COMPARE_IMAGES(desk.tool->chartImage(), chartBefore);
            QVERIFY(!desk.history()->canUndo() && desk.history()->canRedo());
            desk.history()->redo();
            QVERIFY(desk.shown() == after);
            VD_COMPARE_IMAGES(desk.tool->chartImage(), chartAfter);
        }
        QVERIFY2(changed > 25, qPrintable(QString::number(changed)));
    }

    /// Any chart can be come back to, in both modes.
    void anyRecord_data()
    {
        QTest::addColumn<bool>("adding");
        QTest::newRow("a new chart") << true;
        QTest::newRow("a stored chart") << false;
    }
    void anyRecord()
    {
        QFETCH(bool, adding);
        QTemporaryDir folder;
        QImage picture(61, 40, QImage::Format_ARGB32);
        picture.fill(QColor(200, 30, 30, 120));
        QVERIFY(picture.save(folder.filePath("logo.png")));
        RandomRecords records(20261122, {folder.filePath("logo.png").toStdString()},
                              {{160, 160}, 8, 20, 200});
        Desk desk;
        desk.tool->applyRecord(records.next());
        desk.tool->setShowForAdd(adding);
        std::vector<TestChartToolsData> shown = {desk.shown()};
        for (int i = 0; i < 12; ++i) {
            operate(desk.user.toggle("Show Circle")); // a change of the user's, which the host completes
            desk.tool->amendRecord(records.next());
            shown.push_back(desk.shown());
        }
        for (std::size_t i = shown.size() - 1; i-- > 0;) {
            desk.history()->undo();
            QVERIFY(desk.shown() == shown[i]);
        }
        QVERIFY(!desk.history()->canUndo());
        for (std::size_t i = 1; i < shown.size(); ++i) {
            desk.history()->redo();
            QVERIFY(desk.shown() == shown[i]);
        }
        QVERIFY(!desk.history()->canRedo());
        QCOMPARE(desk.tool->isShowForAdd(), adding);
    }

    void colors()
    {
        Desk desk;
        for (const char* name : {"odd", "circle", "outLineColorButton", "logo", "selfText"}) {
            QPushButton button;
            button.setProperty("btnProperty", QLatin1String(name));
            desk.tool->slotShowColorDialog(&button);
            const auto before = desk.shown();
            for (const QColor& color : {QColor(1, 2, 3), QColor(4, 5, 6), QColor(7, 8, 9)}) {
                for (SettingPanel* panel : desk.user.panels())
                    panel->setRoleColor(QLatin1String(name) == "outLineColorButton" ? "outlineWidth" : name,
                                        color);
                QCoreApplication::processEvents();
            }
            QVERIFY(!(desk.shown() == before));
            desk.history()->undo();
            QVERIFY2(desk.shown() == before, name);
        }
        desk.tool->closeColorDialog();
    }

    void theColorBar()
    {
        Desk desk;
        desk.user.colorBar()->click();
        QCoreApplication::processEvents();
        const auto bar = desk.shown();
        desk.user.basicPanel()->addColor(Qt::blue, QStringLiteral("add"));
        QCoreApplication::processEvents();
        desk.user.basicPanel()->addColor(Qt::gray, QStringLiteral("add"));
        QCoreApplication::processEvents();
        QCOMPARE(desk.user.stripeList()->count(), 7);
        desk.history()->undo();
        QCOMPARE(desk.user.stripeList()->count(), 6);
        desk.history()->undo();
        QVERIFY(desk.shown() == bar);
        desk.history()->undo();
        QVERIFY(desk.shown() == desk.before);
        desk.history()->redo();
        QVERIFY(desk.shown() == bar);
        desk.history()->undo();
        desk.user.colorBar()->click(); // anew
        QVERIFY(desk.shown() == bar);
    }

    void theHostsRecordBeginsAnotherHistory_data()
    {
        QTest::addColumn<bool>("apply");
        QTest::newRow("applied") << true;
        QTest::newRow("set") << false;
    }
    void theHostsRecordBeginsAnotherHistory()
    {
        QFETCH(bool, apply);
        Desk desk;
        desk.user.toggle("Show Circle")->click();
        QCoreApplication::processEvents();
        QVERIFY(desk.history()->canUndo());
        QSignalSpy canUndo(desk.history(), &EditHistory::canUndoChanged);
        desk.user.toggle("Show Diagonal")->click(); // not noted yet
        if (apply)
            desk.tool->applyRecord(bareRecord());
        else
            desk.tool->setTestChartToolsData(bareRecord());
        QCoreApplication::processEvents();
        QVERIFY(!desk.history()->canUndo());
        QCOMPARE(canUndo, (QList<QVariantList>{{false}}));
        const auto shown = desk.shown();
        desk.history()->undo();
        desk.history()->redo();
        QVERIFY(desk.shown() == shown);
    }

    void signalsTellWhatIsPossible()
    {
        Desk desk;
        QSignalSpy canUndo(desk.history(), &EditHistory::canUndoChanged);
        QSignalSpy canRedo(desk.history(), &EditHistory::canRedoChanged);
        desk.user.toggle("Show Circle")->click();
        desk.user.toggle("Show Diagonal")->click(); // in the same event, and so the same step
        QCoreApplication::processEvents();
        QCOMPARE(canUndo, (QList<QVariantList>{{true}}));
        QCOMPARE(canRedo.count(), 0);
        desk.history()->undo();
        QCOMPARE(canUndo.last(), QVariantList{false});
        QCOMPARE(canRedo, (QList<QVariantList>{{true}}));
        desk.history()->redo();
        QCOMPARE(canUndo.count(), 3);
        QCOMPARE(canRedo.last(), QVariantList{false});
        QVERIFY(!(desk.shown() == desk.before));
    }

    /// Undoing is a change that can be saved.
    void undoIsUnsaved()
    {
        Desk desk;
        desk.user.toggle("Show Circle")->click();
        QCoreApplication::processEvents();
        desk.tool->setSaveButtonsFollowState(true);
        desk.tool->updateShowSaveBtnStatus(false);
        QVERIFY(!desk.user.replaceApply()->isEnabled());
        desk.history()->undo();
        QVERIFY(desk.user.replaceApply()->isEnabled());
    }

    void keysUndo()
    {
        Desk desk;
        QVERIFY(desk.user.show());
        desk.user.click(desk.user.toggle("Show Circle"));
        QVERIFY(desk.user.settle());
        const auto after = desk.shown();
        QVERIFY(!(after == desk.before));
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(desk.before));
        QVERIFY(desk.user.settle());
        QCOMPARE(desk.user.shownChart(), desk.tool->chartImage());
        desk.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(desk.shows(after));
        desk.press(Qt::Key_Z); // while the panels are locked
        QVERIFY(desk.shows(desk.before));
        desk.press(Qt::Key_Y);
        QVERIFY(desk.shows(after));
        QVERIFY(desk.user.settle());
        QCOMPARE(desk.user.shownChart(), desk.tool->chartImage());
    }

    void keysAreOffAtFirst()
    {
        Desk desk;
        QVERIFY(!VTestChartTools().undoKeys());
        desk.tool->setUndoKeys(false);
        QVERIFY(desk.user.show());
        desk.user.click(desk.user.toggle("Show Circle"));
        QVERIFY(desk.user.settle());
        const auto after = desk.shown();
        desk.press(Qt::Key_Z);
        QVERIFY(desk.user.settle());
        QVERIFY(desk.shown() == after);
    }

    /// The letters of one text, typed one after the other, and not with the text's own history.
    void aTypedText()
    {
        const QScopedValueRollback<int> slow(editorDelays().burst, 60000);
        Desk desk;
        QVERIFY(desk.user.show());
        desk.user.click(desk.user.toggle("Display custom text"));
        QVERIFY(desk.user.settle());
        const auto before = desk.shown();
        auto* text = desk.user.named<QLineEdit>("selfInputLineEdit");
        desk.user.click(text);
        desk.press(Qt::Key_End, Qt::NoModifier);
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_B, Qt::Key_C}) {
            desk.press(key, Qt::NoModifier);
            QVERIFY(desk.user.settle());
        }
        const auto after = desk.shown();
        QCOMPARE(text->text(), QStringLiteral("www.example.comabc"));
        QVERIFY(text->hasFocus());
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(before));
        QCOMPARE(text->text(), QStringLiteral("www.example.com"));
        QVERIFY(desk.user.settle());
        QVERIFY(text->hasFocus());
        desk.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(desk.shows(after));
    }

    void aTypedNumber_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("entered");
        QTest::addColumn<int>("redone");
        QTest::newRow("that was entered") << Qt::Key_5 << true << 165;
        QTest::newRow("that is being typed") << Qt::Key_5 << false << 165;
        QTest::newRow("that is none") << Qt::Key_X << false << 160;
    }
    void aTypedNumber()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, entered);
        QFETCH(int, redone);
        Desk desk;
        QVERIFY(desk.user.show());
        SpinEditBox* width = desk.user.entry("Resolution");
        desk.user.click(width);
        desk.press(Qt::Key_End, Qt::NoModifier);
        desk.press(Qt::Key_Backspace, Qt::NoModifier);
        desk.press(key, Qt::NoModifier);
        if (entered)
            desk.press(Qt::Key_Return, Qt::NoModifier);
        QVERIFY(desk.user.settle());
        QVERIFY(width->text() != QLatin1String("160"));
        desk.press(Qt::Key_Z);
        QTRY_COMPARE(width->text(), QStringLiteral("160"));
        QVERIFY(desk.shows(desk.before));
        QVERIFY(desk.user.settle());
        desk.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(desk.shown().publicData.resolutionWidth, redone);
        QCOMPARE(width->text(), QString::number(redone));
        QVERIFY(desk.user.settle());
    }

    /// What is typed and no number takes no change before it along.
    void aRefusedNumberIsUndoneAlone()
    {
        Desk desk;
        QVERIFY(desk.user.show());
        desk.user.click(desk.user.toggle("Show Circle"));
        QVERIFY(desk.user.settle());
        const auto after = desk.shown();
        SpinEditBox* width = desk.user.entry("Resolution");
        desk.user.click(width);
        desk.press(Qt::Key_X, Qt::NoModifier);
        desk.press(Qt::Key_Z);
        QTRY_COMPARE(width->text(), QStringLiteral("160"));
        QVERIFY(desk.shown() == after);
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(desk.before));
        QVERIFY(desk.user.settle());
    }

    void oneDragIsOneStep()
    {
        const QScopedValueRollback<int> quick(editorDelays().burst, 0);
        Desk desk;
        desk.tool->setLiveSliders(true);
        QVERIFY(desk.user.show());
        auto* slider = desk.user.publicPanel()->findChild<QSlider*>();
        desk.user.reveal(slider);
        QWindow* window = desk.window.windowHandle();
        const auto at = [&](int percent) {
            return slider->mapTo(&desk.window,
                                 QPoint(6 + percent * (slider->width() - 12) / 100, slider->height() / 2));
        };
        QTest::mousePress(window, Qt::LeftButton, {}, at(100));
        for (const int percent : {80, 60, 40}) {
            QTest::mouseMove(window, at(percent));
            QCoreApplication::processEvents();
            QTRY_VERIFY(qAbs(desk.shown().publicData.brightness - percent) < 5);
            QCoreApplication::processEvents();
        }
        QTest::mouseRelease(window, Qt::LeftButton, {}, at(40));
        QVERIFY(desk.user.settle());
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(desk.before));
        QVERIFY(!desk.history()->canUndo());
        QVERIFY(desk.user.settle());
    }

    void changesFarApartAreSteps()
    {
        const QScopedValueRollback<int> quick(editorDelays().burst, 0);
        Desk desk;
        auto* width = desk.user.publicPanel()->findChild<SpinEditBox*>();
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(width, Qt::Key_Down);
            QCoreApplication::processEvents();
        }
        int steps = 0;
        for (; desk.history()->canUndo(); ++steps)
            desk.history()->undo();
        QCOMPARE(steps, 3);
    }

    /// The menu of a host has the same keys: one key press, one step.
    void aHostsShortcutComesFirst()
    {
        Desk desk;
        QAction undo;
        undo.setShortcut(QKeySequence::Undo);
        desk.window.addAction(&undo);
        QSignalSpy triggered(&undo, &QAction::triggered);
        connect(&undo, &QAction::triggered, desk.history(), &EditHistory::undo);
        QVERIFY(desk.user.show());
        const auto bothOn = desk.before;
        desk.user.click(desk.user.toggle("Show Circle"));
        QVERIFY(desk.user.settle());
        const auto one = desk.shown();
        desk.user.click(desk.user.toggle("Show Diagonal"));
        QVERIFY(desk.user.settle());
        desk.user.click(desk.user.entry("Resolution")); // whose own key it would be
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(one));
        QCOMPARE(triggered.count(), 1);
        undo.setEnabled(false);
        QVERIFY(desk.user.settle());
        desk.press(Qt::Key_Z);
        QVERIFY(desk.shows(bothOn));
        QCOMPARE(triggered.count(), 1);
        QVERIFY(desk.user.settle());
    }

    void aToolThatIsGoneNotesNothing()
    {
        Desk desk;
        desk.user.toggle("Show Circle")->click();
        delete desk.tool;
        QCoreApplication::processEvents();
    }
};

VD_TEST_MAIN(TestUndo)
#include "tst_undo.moc"
