#include "wallwindow.h"

#include "deskdialogs.h"
#include "hosttext.h"
#include "messagebox.h"
#include "shortcutsheet.h"
#include "wallcanvas.h"
#include "wallfieldpane.h"
#include "wallmodel.h"

#include <translatemanager1.h>

#include <QActionGroup>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

using namespace vardeno::walls;

namespace {

constexpr QSize windowSize(1280, 760); ///< on a large screen two thirds of it
constexpr int fieldsWidth = 300;

} // namespace

WallWindow::WallWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_model(new WallModel(this))
    , m_canvas(new WallCanvas(m_model))
    , m_fields(new WallFieldPane(m_model, m_canvas))
    , m_state(new QLabel)
    , m_place(new QLabel)
{
    auto* scroll = new QScrollArea;
    scroll->setWidget(m_fields);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(m_fields->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());
    auto* parts = new QSplitter;
    parts->addWidget(m_canvas);
    parts->addWidget(scroll);
    parts->setStretchFactor(0, 1);
    parts->setSizes({windowSize.width() - fieldsWidth, fieldsWidth});
    parts->setChildrenCollapsible(false);
    setCentralWidget(parts);
    statusBar()->addWidget(m_place, 1);
    statusBar()->addPermanentWidget(m_state);
    createActions();
    connect(m_model, &WallModel::changed, this, &WallWindow::showState);
    connect(m_canvas, &WallCanvas::zoomChanged, this, &WallWindow::showState);
    connect(m_canvas, &WallCanvas::selectionChanged, this, &WallWindow::showState);
    connect(m_model->history(), &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
    connect(m_canvas, &WallCanvas::pointed, this, [this](Place place) {
        const int cabinet = place.column < 0 ? -1 : m_model->plan().cabinetAt(place);
        m_place->setText(cabinet < 0 ? QString() : m_model->names()[std::size_t(cabinet)]);
    });
    connect(&TranslateManager1::instance(), &TranslateManager1::languageChanged, this,
            &WallWindow::retranslate);
    DeskDialogs::resizeWithinScreen(this, windowSize.expandedTo(screen()->availableSize() * 2 / 3));
    retranslate();
    m_canvas->setFocus();
}

template <typename Slot>
QAction* WallWindow::add(const char* name, const char* source, const QKeySequence& shortcut, Slot slot)
{
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    m_actions.push_back({action, source});
    return action;
}

void WallWindow::createActions()
{
    auto* bar = addToolBar(QString());
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addAction(add("wallSave", hostSource("Save"), QKeySequence::Save, [this] { save(); }));
    bar->addAction(add("wallChart", hostSource("Edit chart"), Qt::CTRL + Qt::Key_E,
                       [this] { Q_EMIT chartWanted(m_model->chart().record, m_model->markers()); }));
    auto* undo =
        add("wallUndo", hostSource("Undo"), QKeySequence::Undo, [this] { m_model->history()->undo(); });
    auto* redo = add("wallRedo", hostSource("Redo"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z),
                     [this] { m_model->history()->redo(); });
    connect(m_model->history(), &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(m_model->history(), &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    undo->setEnabled(false);
    redo->setEnabled(false);
    bar->addActions({undo, redo});
    bar->addSeparator();
    createTools();
    bar->addSeparator();
    bar->addAction(add("wallRemove", hostSource("Remove or restore"), QKeySequence::Delete,
                       [this] { m_canvas->removeOrRestore(); }));
    bar->addAction(add("wallTurn", hostSource("Turn"), Qt::Key_T, [this] { m_canvas->turn(); }));
    addAction(
        add("wallAll", hostSource("Select all"), QKeySequence::SelectAll, [this] { m_canvas->selectAll(); }));
    bar->addAction(
        add("wallWhole", hostSource("Whole wall"), Qt::CTRL + Qt::Key_0, [this] { m_canvas->showWhole(); }));
    const auto buttons = bar->findChildren<QToolButton*>();
    for (QToolButton* button : buttons)
        button->setFocusPolicy(Qt::TabFocus); // a tool bar has it otherwise
    addAction(add("wallKeys", hostSource("Keyboard shortcuts"), Qt::Key_F1, [this] { showKeys(); }));
    addAction(add("wallClose", hostSource("Close"), QKeySequence::Close, [this] { close(); }));
}

void WallWindow::createTools()
{
    auto* bar = findChild<QToolBar*>();
    auto* tools = new QActionGroup(this);
    const auto tool = [&](const char* name, const char* source, const QKeySequence& shortcut,
                          WallCanvas::Tool what) {
        QAction* action = add(name, source, shortcut, [this, what] { m_canvas->setTool(what); });
        action->setCheckable(true);
        tools->addAction(action);
        bar->addAction(action);
        return action;
    };
    tool("wallSelect", hostSource("Select"), Qt::Key_S, WallCanvas::Tool::Select)->setChecked(true);
    tool("wallDrawData", hostSource("Draw data cable"), Qt::Key_D, WallCanvas::Tool::DataCable);
    tool("wallDrawPower", hostSource("Draw power cable"), Qt::Key_P, WallCanvas::Tool::PowerCable);
    bar->addAction(add("wallPattern", hostSource("Cables by the pattern"), {}, [this] {
        const WallDocument plain = WallEdit::withoutRuns(m_model->wall(), WallEdit::Cable::Data);
        m_model->change(hostText(QStringLiteral("Cables by the pattern")),
                        WallEdit::withoutRuns(plain, WallEdit::Cable::Power));
    }));
}

QStringList WallWindow::open(const QString& path)
{
    const QStringList problems = m_model->open(path);
    if (problems.isEmpty())
        retranslate();
    return problems;
}

/// By the path from the wall's folder, so that both can be taken elsewhere.
void WallWindow::takeChart(const QString& path)
{
    WallDocument wall = m_model->wall();
    wall.chart.path = QFileInfo(m_model->path()).absoluteDir().relativeFilePath(path).toStdString();
    wall.chart.record = {};
    m_model->change(hostText(QStringLiteral("Edit chart")), wall);
}

void WallWindow::save()
{
    const QString problem = m_model->save();
    if (problem.isEmpty())
        return;
    QMessageBox* box = messageBox(this, MessageKind::Warning,
                                  hostText(QStringLiteral("The wall could not be saved:")), problem);
    box->addButton(QMessageBox::Ok);
    box->open();
}

void WallWindow::showState()
{
    const WallDocument& wall = m_model->wall();
    m_state->setText(QStringLiteral("%1 x %2   %3 x %4   %5 %")
                         .arg(wall.columnWidths.total())
                         .arg(wall.rowHeights.total())
                         .arg(wall.columnWidths.count())
                         .arg(wall.rowHeights.count())
                         .arg(qRound(100 * m_canvas->zoom())));
    for (const char* name : {"wallRemove", "wallTurn"})
        findChild<QAction*>(QLatin1String(name))->setEnabled(!m_canvas->selection().empty());
}

void WallWindow::retranslate()
{
    for (const NamedAction& named : m_actions) {
        const QString text = hostText(QLatin1String(named.source));
        named.action->setText(text);
        const QString keys = named.action->shortcut().toString(QKeySequence::NativeText);
        named.action->setToolTip(keys.isEmpty() ? text
                                                : text + QLatin1String(" (") + keys + QLatin1Char(')'));
    }
    m_canvas->setAccessibleName(hostText(QStringLiteral("The wall")));
    m_canvas->setToolTip(hostText(QStringLiteral("Arrows change the size by one pixel, with Shift by ten")));
    m_fields->retranslate();
    setWindowTitle(QFileInfo(m_model->path()).fileName() + QStringLiteral("[*] — ") +
                   hostText(QStringLiteral("Edit wall")));
    showState();
}

void WallWindow::showKeys()
{
    QList<QAction*> actions;
    for (const NamedAction& named : m_actions)
        actions.append(named.action);
    const auto native = [](int key) { return QKeySequence(key).toString(QKeySequence::NativeText); };
    const QString arrows = QStringLiteral("← → ↑ ↓");
    const auto arrowsWith = [&](int modifiers) {
        return native(modifiers | Qt::Key_Left).section(native(Qt::Key_Left), 0, 0) + arrows;
    };
    const ShortcutSheet::Keys others = {
        {hostText(QStringLiteral("Size by one pixel")), arrows},
        {hostText(QStringLiteral("Size by ten pixels")), arrowsWith(Qt::SHIFT)},
        {hostText(QStringLiteral("Next cabinet")), arrowsWith(Qt::CTRL)},
        {hostText(QStringLiteral("Extend the selection")), arrowsWith(Qt::CTRL | Qt::SHIFT)},
        {hostText(QStringLiteral("Zoom in")), QStringLiteral("+")},
        {hostText(QStringLiteral("Zoom out")), QStringLiteral("−")},
    };
    (new ShortcutSheet(actions, others, this))->open();
}

void WallWindow::closeEvent(QCloseEvent* event)
{
    if (m_model->history()->isClean()) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    QMessageBox* box =
        messageBox(this, MessageKind::Question, hostText(QStringLiteral("Save the changes of this wall?")),
                   QFileInfo(m_model->path()).fileName());
    auto* saves = box->addButton(hostText(QStringLiteral("Save")), QMessageBox::AcceptRole);
    auto* discards =
        box->addButton(hostText(QStringLiteral("Discard changes")), QMessageBox::DestructiveRole);
    box->addButton(QMessageBox::Cancel);
    connect(saves, &QPushButton::clicked, this, [this] {
        save();
        if (m_model->history()->isClean())
            close();
    });
    connect(discards, &QPushButton::clicked, this, [this] {
        m_model->history()->setClean();
        close();
    });
    box->open();
}
