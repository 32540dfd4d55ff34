#include "mainwindow.h"

#include "chartdelegate.h"
#include "chartfolderlist.h"
#include "hosttext.h"
#include "languages.h"

#include <chartrecordfile.h>
#include <translatemanager1.h>

#include <QActionGroup>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

using namespace vardeno::testcharttools;

namespace {

enum Page
{
    ListPage,
    EditorPage
};

constexpr int margin = 15; ///< around the editor
constexpr int imagePathRole = Qt::UserRole;
constexpr int thumbnailWantedRole = Qt::UserRole + 1;

/// The name of a chart in the list: its file's, and when it was saved.
QString chartTitle(const QFileInfo& chart)
{
    const QString folder = chart.dir().dirName();
    const QDateTime saved = QDateTime::fromString(folder, QStringLiteral("yyyyMMdd_HHmmss"));
    const QString when = saved.isValid() ? QLocale().toString(saved, QLocale::ShortFormat) : folder;
    return chart.fileName() + QLatin1Char('\n') + when;
}

QIcon thumbnail(const QString& imagePath)
{
    QImageReader reader(imagePath);
    const QSize size = reader.size().scaled(ChartDelegate::pictureSize, Qt::KeepAspectRatio);
    reader.setScaledSize(size.expandedTo(QSize(1, 1)));
    QPixmap canvas(ChartDelegate::pictureSize);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.drawImage((canvas.width() - size.width()) / 2, (canvas.height() - size.height()) / 2,
                      reader.read());
    return QIcon(canvas);
}

void giveLook(const QAbstractScrollArea* area, const QString& sheet)
{
    area->verticalScrollBar()->setStyleSheet(sheet);
    area->horizontalScrollBar()->setStyleSheet(sheet);
}

/// Where the picture lies within the chart's folder, empty for one that lies elsewhere.
QString pathWithin(const QString& chart, const QString& picture)
{
    const QString path = QFileInfo(chart).absoluteDir().relativeFilePath(picture);
    const bool isWithin = !picture.isEmpty() && QDir::isRelativePath(path) && path != QLatin1String("..") &&
                          !path.startsWith(QLatin1String("../"));
    return isWithin ? path : QString();
}

bool copyFile(const QString& from, const QString& to)
{
    return QDir().mkpath(QFileInfo(to).path()) && (QFile::exists(to) || QFile::copy(from, to));
}

} // namespace

MainWindow::MainWindow(const QString& folder)
    : m_pages(new QStackedWidget(this))
    , m_list(new QListWidget)
    , m_hint(new QLabel)
    , m_editor(nullptr)
    , m_new(new QAction(this))
    , m_edit(new QAction(this))
    , m_choose(new QAction(this))
    , m_quit(new QAction(this))
    , m_languages(new QActionGroup(this))
{
    m_pages->addWidget(createListPage());
    m_pages->addWidget(createEditorPage());
    setCentralWidget(m_pages);
    statusBar()->setSizeGripEnabled(false); // made later, the bar would push the editor aside
    statusBar()->setContentsMargins(margin - 5, 0, margin, 0);
    createActions();
    loadLanguages();

    connect(&TranslateManager1::instance(), &TranslateManager1::languageChanged, this,
            &MainWindow::retranslate);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &MainWindow::listCharts);
    connect(m_list, &QListWidget::itemActivated, this, &MainWindow::editSelectedChart);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
            [this] { m_edit->setEnabled(!m_list->selectedItems().isEmpty()); });
    connect(m_editor, &VTestChartTools::sigTestToolEditDone, this, &MainWindow::finishEdit);
    connect(m_editor, &VTestChartTools::sigFail, this, [this] {
        tellOfFailure(hostText(QStringLiteral("This chart could not be written:")), m_editor->failedPath());
    });

    setFolder(folder);
    retranslate();
    fitToEditor();
}

void MainWindow::switchLanguage(const QString& language)
{
    m_editor->switchLanguage(language);
    const QList<QAction*> choices = m_languages->actions();
    for (QAction* choice : choices)
        choice->setChecked(choice->data() == language);
}

void MainWindow::createActions()
{
    m_new->setShortcut(QKeySequence::New);
    m_edit->setShortcut(Qt::CTRL + Qt::Key_E);
    m_edit->setEnabled(false);
    m_choose->setShortcut(QKeySequence::Open);
    m_quit->setShortcut(QKeySequence::Quit);
    connect(m_new, &QAction::triggered, this, &MainWindow::addChart);
    connect(m_edit, &QAction::triggered, this, &MainWindow::editSelectedChart);
    connect(m_choose, &QAction::triggered, this, &MainWindow::chooseFolder);
    connect(m_quit, &QAction::triggered, this, &QWidget::close);

    QMenu* charts = menuBar()->addMenu(QString());
    charts->addActions({m_new, m_edit, m_choose});
    charts->addSeparator();
    charts->addAction(m_quit);
    QMenu* menu = menuBar()->addMenu(QString());
    for (const Language& language : languages()) {
        QAction* choice = m_languages->addAction(language.name);
        choice->setCheckable(true);
        choice->setData(language.code);
        menu->addAction(choice);
    }
    connect(m_languages, &QActionGroup::triggered, this,
            [this](const QAction* choice) { switchLanguage(choice->data().toString()); });
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
    layout->addWidget(bar);
    m_hint->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_hint, 1);
    m_list->setObjectName(QStringLiteral("chartList"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setMovement(QListView::Static);
    m_list->setItemDelegate(new ChartDelegate(m_list));
    m_list->setMouseTracking(true); // a chart under the pointer shows itself
    m_list->setFrameShape(QFrame::NoFrame);
    layout->addWidget(m_list, 1);
    return page;
}

QWidget* MainWindow::createEditorPage()
{
    auto* scroll = new QScrollArea(m_pages); // for screens smaller than the editor
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAlignment(Qt::AlignCenter);
    m_editor = new VTestChartTools(scroll);
    scroll->setWidget(m_editor);
    giveLook(scroll, m_editor->styleSheet());
    giveLook(m_list, m_editor->styleSheet());
    return scroll;
}

/// A window with the editor and an even margin around it, or as much of it as the screen has room for.
void MainWindow::fitToEditor()
{
    const int bars = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
    const QSize wanted = m_editor->size() + QSize(2 * margin, 2 * margin + bars);
    const QSize room = screen()->availableSize();
    resize(wanted.boundedTo(room));
    if (wanted.boundedTo(room) != wanted)
        setWindowState(Qt::WindowMaximized);
}

void MainWindow::retranslate()
{
    m_new->setText(hostText(QStringLiteral("New chart")));
    m_edit->setText(hostText(QStringLiteral("Edit chart")));
    m_choose->setText(hostText(QStringLiteral("Choose folder…")));
    m_quit->setText(hostText(QStringLiteral("Quit")));
    const QList<QAction*> menus = menuBar()->actions();
    menus.at(0)->setText(hostText(QStringLiteral("Charts")));
    menus.at(1)->setText(hostText(QStringLiteral("Language")));
    m_hint->setText(hostText(QStringLiteral("No charts here yet. Press “New chart” to make the first one.")));
    setWindowTitle(hostText(QStringLiteral("Test charts")) + QStringLiteral(" — ") + m_folder);
}

void MainWindow::setFolder(const QString& folder)
{
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    m_folder = folder;
    m_editor->setSavePath(folder, QStringLiteral("preview"));
    listCharts();
    retranslate();
}

void MainWindow::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, hostText(QStringLiteral("Choose the folder of the charts")), m_folder);
    if (!folder.isEmpty())
        setFolder(folder);
}

void MainWindow::listCharts()
{
    if (m_watcher.directories().isEmpty() && QFileInfo(m_folder).isDir())
        m_watcher.addPath(m_folder);

    const QListWidgetItem* selected = m_list->currentItem();
    const QString selectedPath = selected ? selected->data(imagePathRole).toString() : QString();
    m_list->clear();
    const QFileInfoList charts = ChartFolderList::charts(m_folder);
    for (const QFileInfo& chart : charts) {
        if (chart.filePath() == m_supersededImage)
            continue;
        auto* item = new QListWidgetItem(chartTitle(chart), m_list);
        item->setData(imagePathRole, chart.filePath());
        item->setData(thumbnailWantedRole, true);
        if (chart.filePath() == selectedPath)
            m_list->setCurrentItem(item);
    }
    m_hint->setVisible(m_list->count() == 0);
    m_list->setVisible(m_list->count() > 0);
    loadNextThumbnail();
}

/// One picture each time the window has nothing else to do: a long list of large charts is usable at once.
void MainWindow::loadNextThumbnail()
{
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        if (!item->data(thumbnailWantedRole).toBool())
            continue;
        item->setData(thumbnailWantedRole, false);
        item->setIcon(thumbnail(item->data(imagePathRole).toString()));
        QTimer::singleShot(0, this, &MainWindow::loadNextThumbnail);
        return;
    }
}

void MainWindow::addChart()
{
    m_editedImage.clear();
    m_document = QJsonObject();
    m_editor->setShowForAdd(true);
    m_editor->setTestImageNum(ChartFolderList::nextNumber(m_folder));
    m_editor->applyRecord(TestChartToolsData());
    m_editor->updateShowSaveBtnStatus(true);
    openEditor();
}

void MainWindow::editSelectedChart()
{
    if (const QListWidgetItem* item = m_list->currentItem())
        editChart(item->data(imagePathRole).toString());
}

void MainWindow::editChart(const QString& imagePath)
{
    const auto reading = ChartRecordFile::read(ChartFolderList::recordPath(imagePath));
    if (!reading.problems.isEmpty()) {
        tellOfFailure(hostText(QStringLiteral("The record of this chart cannot be read:")),
                      reading.problems.join(QLatin1Char('\n')));
        return;
    }
    m_editedImage = imagePath;
    m_document = reading.document;
    m_editor->setShowForAdd(false);
    m_editor->setCurrentEditNum(QFileInfo(imagePath).fileName());
    m_editor->setLastSavePath(imagePath);
    m_editor->applyRecord(reading.record);
    openEditor();
}

void MainWindow::openEditor()
{
    m_pages->setCurrentIndex(EditorPage);
    m_new->setEnabled(false);
    m_edit->setEnabled(false);
    m_choose->setEnabled(false);
}

void MainWindow::finishEdit(const TestChartToolsData& record, const QString& imagePath, EditType type)
{
    if (!imagePath.isEmpty()) {
        storeRecord(record, imagePath);
        statusBar()->showMessage(hostText(QStringLiteral("Saved:")) + QLatin1Char(' ') + imagePath, 10000);
        m_supersededImage = m_editedImage;
        m_editedImage = imagePath;
        m_editor->setLastSavePath(imagePath);
    }
    if (type == ReplaceApply)
        return;
    m_pages->setCurrentIndex(ListPage);
    m_new->setEnabled(true);
    m_choose->setEnabled(true);
    listCharts();
    m_list->setFocus();
    selectChart(imagePath);
}

/// Nothing happens without such a chart in the list.
void MainWindow::selectChart(const QString& imagePath)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(imagePathRole) == imagePath)
            m_list->setCurrentRow(row);
    }
}

void MainWindow::storeRecord(TestChartToolsData record, const QString& imagePath)
{
    const bool isMoved = takePictureAlong(record, imagePath);
    const QString problem =
        ChartRecordFile::write(ChartFolderList::recordPath(imagePath), record, m_document);
    if (!problem.isEmpty())
        tellOfFailure(hostText(QStringLiteral("The record of this chart could not be written, so it cannot "
                                              "be edited later:")),
                      problem);
    if (isMoved)
        m_editor->applyRecord(record);
}

/// A picture in the folder of the replaced chart, which is about to be removed, gets a copy in the new one.
bool MainWindow::takePictureAlong(TestChartToolsData& record, const QString& imagePath)
{
    const QString picture = QString::fromStdString(record.logoData.picturePath);
    const QString path = m_editedImage.isEmpty() ? QString() : pathWithin(m_editedImage, picture);
    if (path.isEmpty() || !QFileInfo(picture).isFile())
        return false;
    const QString copy = QFileInfo(imagePath).absoluteDir().filePath(path);
    if (!copyFile(picture, copy)) {
        tellOfFailure(hostText(QStringLiteral("This chart could not be written:")), copy);
        return false;
    }
    record.logoData.picturePath = copy.toStdString();
    return true;
}

void MainWindow::tellOfFailure(const QString& what, const QString& details)
{
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), what, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(details);
    box->open();
}
