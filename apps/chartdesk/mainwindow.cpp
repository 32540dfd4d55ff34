#include "mainwindow.h"

#include "chartlist.h"
#include "chartviewer.h"
#include "deskdialogs.h"
#include "desklanguage.h"
#include "desklibrary.h"
#include "deskoutput.h"
#include "deskwalls.h"
#include "draftoffer.h"
#include "editorlook.h"
#include "editsession.h"
#include "helpmenu.h"
#include "hosttext.h"
#include "languagemenu.h"
#include "languages.h"
#include "listbar.h"
#include "logorefusal.h"
#include "markerswitch.h"
#include "messagebox.h"
#include "nametips.h"
#include "openedpath.h"
#include "recentfolders.h"
#include "savequestions.h"
#include "thememenu.h"
#include "undobar.h"

#include <chartpreview.h>
#include <translatemanager1.h>

#include <QCloseEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace vardeno::testcharttools;

namespace {

enum Page
{
    ListPage,
    EditorPage
};

constexpr int margin = 15;             ///< around the editor
constexpr QSize editorSize(1610, 803); ///< with which its window begins

void giveLook(const QAbstractScrollArea* area, const QString& sheet)
{
    area->verticalScrollBar()->setStyleSheet(sheet);
    area->horizontalScrollBar()->setStyleSheet(sheet);
}

} // namespace

MainWindow::MainWindow(const QString& folder)
    : m_toolkitTexts(new ToolkitTexts(this))
    , m_pages(new QStackedWidget(this))
    , m_list(new ChartList)
    , m_hint(new QLabel)
    , m_editor(nullptr)
    , m_session(nullptr)
    , m_drafts(new DraftOffer(this))
    , m_new(createAction(QKeySequence::New, &MainWindow::addChart))
    , m_edit(createAction(Qt::CTRL + Qt::Key_E, &MainWindow::editSelectedChart))
    , m_choose(createAction(QKeySequence::Open, &MainWindow::chooseFolder))
    , m_refresh(createAction(Qt::Key_F5, &MainWindow::refresh))
    , m_quit(createAction(QKeySequence::Quit, nullptr))
    , m_markers(nullptr)
    , m_languages(new LanguageMenu(this))
    , m_themes(new ThemeMenu(this))
    , m_recent(new RecentFolders(this))
    , m_help(new HelpMenu(menuBar(), this))
{
    m_pages->addWidget(createListPage());
    m_pages->addWidget(createEditorPage());
    setCentralWidget(m_pages);
    statusBar()->setSizeGripEnabled(false); // made later, the bar would push the editor aside
    statusBar()->setContentsMargins(margin - 5, 0, margin, 0);
    createOutput();
    createLibrary();
    createWalls();
    createMenus();
    loadLanguages();

    connect(&TranslateManager1::instance(), &TranslateManager1::languageChanged, this,
            &MainWindow::retranslate);
    connect(m_list, &ChartList::refreshed, this, &MainWindow::showCount);
    connect(m_list, &ChartList::refreshed, this, &MainWindow::updateActions);
    connect(m_list, &ChartList::itemActivated, this, &MainWindow::editSelectedChart);
    connect(m_list, &ChartList::itemSelectionChanged, this, &MainWindow::updateActions);
    connect(m_drafts, &DraftOffer::wanted, this, &MainWindow::resumeDraft);
    connectSession();

    new NameTips(this);
    setFolder(folder);
    retranslate();
    fitToEditor();
    m_list->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::connectSession()
{
    connect(m_session, &EditSession::saved, this, &MainWindow::chartSaved);
    connect(m_session, &EditSession::ended, this, &MainWindow::editEnded);
    m_questions = new SaveQuestions(m_session, this);
    connect(m_questions, &SaveQuestions::discarded, this, &MainWindow::endEdit);
    connect(m_questions, &SaveQuestions::goesOn, this, [this] { m_isClosing = false; });
    connect(
        m_session, &EditSession::notEditable, this, [this](const QString& image, const QStringList& fields) {
            const QString why = hostText(QStringLiteral("This chart goes beyond what can be edited here:"));
            (new ChartViewer(image, why + QLatin1Char('\n') + fields.join(QLatin1Char('\n')), this))->open();
        });
    connect(m_session, &EditSession::pictureMissing, this, [this](const QString& name) {
        tell(hostText(QStringLiteral("The logo of this chart is missing:")), name);
    });
    connect(m_session, &EditSession::replacedChartKept, this, [this](const QString& image) {
        tell(hostText(QStringLiteral("Somebody changed this chart meanwhile; both are kept:")), image);
    });
}

void MainWindow::createOutput()
{
    const DeskOutput::Charts charts = {[this] { return m_list->charts(); },
                                       [this] { return m_list->selectedChart(); }};
    m_output = new DeskOutput(this, m_session, m_editor, charts);
}

void MainWindow::createLibrary()
{
    auto* undo = new UndoBar;
    statusBar()->addWidget(undo);
    m_library = new DeskLibrary(m_list, undo, this);
    connect(m_library, &DeskLibrary::newWanted, this, &MainWindow::addChartFrom);
    connect(m_library, &DeskLibrary::failed, this, &MainWindow::tell);
    connect(m_library, &DeskLibrary::noted, this,
            [this](const QString& note) { statusBar()->showMessage(note, 10000); });
}

void MainWindow::createWalls()
{
    m_walls = new DeskWalls(m_list, this);
    connect(m_walls, &DeskWalls::failed, this, &MainWindow::tell);
    connect(m_walls, &DeskWalls::chartWanted, this,
            [this](const TestChartToolsData& record, const MarkerData& markers) {
                if (m_session->isOpen())
                    return m_walls->endChart();
                raise();
                activateWindow();
                addChartFrom(record, markers);
            });
    connect(m_session, &EditSession::saved, m_walls, &DeskWalls::takeChart);
    connect(m_session, &EditSession::ended, m_walls, &DeskWalls::endChart);
}

/// What can be done with a chart goes by the selection, and by whether one is being edited.
void MainWindow::updateActions()
{
    const bool isEditing = m_session->isOpen();
    m_new->setEnabled(!isEditing);
    m_choose->setEnabled(!isEditing);
    const bool isAny = !m_list->selectedChart().isEmpty() || !m_list->selectedDocument().isEmpty();
    m_edit->setEnabled(!isEditing && isAny);
    m_markers->update();
    m_library->update(isEditing);
    m_output->update();
}

void MainWindow::addChartFrom(const TestChartToolsData& record, const MarkerData& markers)
{
    m_session->add(m_folder, record, markers);
    openEditor();
}

void MainWindow::switchLanguage(const QString& language)
{
    m_toolkitTexts->switchLanguage(language);
    m_drafts->setDateLocale(localeOf(language));
    m_list->setDateLocale(localeOf(language));
    m_editor->switchLanguage(language);
    m_languages->setCurrent(language);
}

QAction* MainWindow::createAction(const QKeySequence& shortcut, void (MainWindow::*slot)())
{
    auto* action = new QAction(this);
    action->setShortcut(shortcut);
    if (slot)
        connect(action, &QAction::triggered, this, slot);
    else
        connect(action, &QAction::triggered, this, &QWidget::close);
    return action;
}

void MainWindow::createMenus()
{
    QMenu* charts = menuBar()->addMenu(QString());
    charts->addActions({m_new, m_walls->newAction(), m_edit, m_markers, m_choose});
    charts->addMenu(m_recent);
    charts->addAction(m_refresh);
    charts->addSeparator();
    charts->addAction(m_quit);
    for (QMenu* menu : {m_library->menu(), m_output->menu(), static_cast<QMenu*>(m_languages),
                        static_cast<QMenu*>(m_themes), static_cast<QMenu*>(m_help)})
        menuBar()->addMenu(menu);
    connect(m_markers, &MarkerSwitch::noted, this,
            [this](const QString& note) { statusBar()->showMessage(note, 10000); });
    connect(m_recent, &RecentFolders::chosen, this, &MainWindow::openFolder);
    connect(m_languages, &LanguageMenu::chosen, this, [this](const QString& code) {
        switchLanguage(code);
        Q_EMIT languageSwitched(code);
    });
    connect(m_themes, &ThemeMenu::chosen, this, [this] {
        statusBar()->showMessage(hostText(QStringLiteral("The next start has this theme.")), 10000);
    });
}

void MainWindow::loadLanguages()
{
    std::vector<QString> files;
    for (const Language& language : languages())
        files.push_back(language.file);
    m_editor->loadLanguageFiles(files);
}

QWidget* MainWindow::createListPage()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* bar = new QToolBar;
    bar->addActions({m_new, m_edit, m_choose});
    const auto buttons = bar->findChildren<QToolButton*>();
    for (QToolButton* button : buttons)
        button->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(bar);
    m_listBar = new ListBar(m_list);
    layout->addWidget(m_listBar);
    m_hint->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_list, 1);
    return page;
}

QWidget* MainWindow::createEditorPage()
{
    auto* scroll = new QScrollArea(m_pages); // for screens smaller than the editor
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAlignment(Qt::AlignCenter);
    m_editor = new VTestChartTools(scroll);
    tellRefusedLogos(m_editor);
    scroll->setWidget(m_editor);
    scroll->setWidgetResizable(true); // the editor follows
    m_session = new EditSession(m_editor, this);
    m_markers = new MarkerSwitch(m_session, this);
    new EditorLook(m_editor);
    giveLook(scroll, m_editor->styleSheet());
    giveLook(m_list, m_editor->styleSheet());
    return scroll;
}

/// A window with the editor and an even margin around it, or as much of it as the screen has room for; on a
/// large one two thirds of it.
void MainWindow::fitToEditor()
{
    const int bars = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
    const QSize room = screen()->availableSize();
    const QSize wanted = (editorSize + QSize(2 * margin, 2 * margin + bars)).expandedTo(room * 2 / 3);
    resize(wanted.boundedTo(room));
    if (wanted.boundedTo(room) != wanted)
        setWindowState(Qt::WindowMaximized);
}

void MainWindow::retranslate()
{
    m_new->setText(hostText(QStringLiteral("New chart")));
    m_edit->setText(hostText(QStringLiteral("Edit chart")));
    m_markers->retranslate();
    m_choose->setText(hostText(QStringLiteral("Choose folder…")));
    m_refresh->setText(hostText(QStringLiteral("Refresh")));
    m_quit->setText(hostText(QStringLiteral("Quit")));
    menuBar()->actions().first()->setText(hostText(QStringLiteral("Charts")));
    m_recent->setTitle(hostText(QStringLiteral("Recent folders")));
    m_library->retranslate();
    m_walls->retranslate();
    m_output->retranslate();
    m_languages->retranslate();
    m_themes->retranslate();
    m_help->retranslate();
    m_listBar->retranslate();
    m_list->setAccessibleName(hostText(QStringLiteral("Charts")));
    m_list->setToolTip(hostText(QStringLiteral("Two clicks edit a chart")));
    m_hint->setText(hostText(QStringLiteral("No charts here yet. Press “New chart” to make the first one.")));
    setWindowTitle(hostText(QStringLiteral("Test charts")) + QStringLiteral(" — ") + m_folder);
}

void MainWindow::setFolder(const QString& folder)
{
    m_folder = folder;
    m_library->setFolder(folder);
    m_walls->setFolder(folder);
    m_list->setFolder(folder);
    showCount();
    updateActions();
    retranslate();
}

void MainWindow::chooseFolder()
{
    QFileDialog* dialog = DeskDialogs::folderDialog(
        this, hostText(QStringLiteral("Choose the folder of the charts")), m_folder);
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::openFolder);
    dialog->open();
}

void MainWindow::openFolder(const QString& folder)
{
    setFolder(folder);
    m_recent->add(folder);
}

void MainWindow::openPaths(const QStringList& paths)
{
    for (const QString& path : paths) {
        const OpenedPath opened = OpenedPath::of(path);
        if (!opened.problem.isEmpty())
            tell(opened.problem, {});
        if (!opened.folder.isEmpty() && opened.folder != m_folder)
            openFolder(opened.folder);
        m_list->selectChart(opened.chart);
        if (!opened.taken.isEmpty())
            m_library->take({opened.taken});
    }
}

void MainWindow::refresh()
{
    m_list->refresh();
}

void MainWindow::showCount()
{
    const bool isEmpty = m_list->count() == 0 && !m_list->isFilling();
    m_hint->setVisible(isEmpty);
    m_listBar->setVisible(!isEmpty);
    m_list->setVisible(!isEmpty);
}

void MainWindow::addChart()
{
    m_session->add(m_folder);
    openEditor();
}

void MainWindow::editSelectedChart()
{
    if (m_walls->openSelected() || m_list->selectedChart().isEmpty())
        return;
    const QStringList problems = m_session->edit(m_folder, m_list->selectedChart());
    if (m_session->isOpen())
        openEditor();
    else if (!problems.isEmpty())
        tell(hostText(QStringLiteral("The record of this chart cannot be read:")),
             problems.join(QLatin1Char('\n')));
}

void MainWindow::openEditor()
{
    m_editor->preview()->fitToView(); // not as the last chart was looked at
    m_pages->setCurrentIndex(EditorPage);
    updateActions();
}

void MainWindow::chartSaved(const QString& imagePath)
{
    statusBar()->showMessage(hostText(QStringLiteral("Saved:")) + QLatin1Char(' ') + imagePath, 10000);
    if (m_session->folder() != m_folder)
        setFolder(m_session->folder());
    if (m_isClosing)
        QTimer::singleShot(0, this, &QWidget::close);
}

void MainWindow::editEnded(const QString& imagePath)
{
    m_pages->setCurrentIndex(ListPage);
    updateActions();
    m_list->refresh();
    m_list->setFocus();
    m_list->selectChart(imagePath);
    if (!m_isClosing)
        m_drafts->offerNext();
}

void MainWindow::endEdit()
{
    m_session->end();
    if (m_isClosing)
        close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_walls->closeAll()) {
        event->ignore();
        return;
    }
    m_isClosing = true;
    if (m_session->isSaving()) {
        event->ignore(); // what becomes of it is told
    } else if (m_session->isChanged()) {
        event->ignore();
        m_questions->askBeforeEnd();
    } else if (m_session->isOpen()) {
        m_session->end();
    }
}

void MainWindow::offerDrafts()
{
    m_drafts->offerAll();
}

void MainWindow::resumeDraft(const Draft& draft)
{
    if (draft.folder != m_folder)
        setFolder(draft.folder);
    m_session->resume(m_drafts->take(), draft);
    openEditor();
}

QMessageBox* MainWindow::tell(const QString& what, const QString& details)
{
    QMessageBox* box = messageBox(this, MessageKind::Warning, what, details);
    box->addButton(QMessageBox::Ok);
    box->open();
    return box;
}
