#include "desklibrary.h"

#include "chartlist.h"
#include "charttags.h"
#include "deskdialogs.h"
#include "hosttext.h"
#include "newfromdialog.h"
#include "undobar.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenu>
#include <QUrl>

using namespace vardeno::testcharttools;

namespace {

constexpr const char* librarySource = "sourceText";

} // namespace

DeskLibrary::DeskLibrary(ChartList* list, UndoBar* undo, QWidget* window)
    : QObject(window)
    , m_list(list)
    , m_undo(undo)
    , m_window(window)
    , m_menu(new QMenu(window))
{
    m_pool.setMaxThreadCount(1);
    m_newFrom = add(hostSource("New from…"), Qt::CTRL | Qt::SHIFT | Qt::Key_N, &DeskLibrary::newFrom);
    m_forChart.removeAll(m_newFrom);
    m_menu->addSeparator();
    add(hostSource("Duplicate"), Qt::CTRL | Qt::Key_D, &DeskLibrary::duplicate);
    add(hostSource("Rename…"), Qt::Key_F2, &DeskLibrary::askName);
    add(hostSource("Tags…"), Qt::CTRL | Qt::Key_T, &DeskLibrary::askTags);
    add(hostSource("Delete"), QKeySequence::Delete, &DeskLibrary::remove);
    m_menu->addSeparator();
    add(hostSource("Export…"), Qt::CTRL | Qt::Key_S, &DeskLibrary::askTarget);
    add(hostSource("Copy image"), QKeySequence::Copy, &DeskLibrary::copyImage);
    add(hostSource("Open folder"), Qt::CTRL | Qt::SHIFT | Qt::Key_O, &DeskLibrary::openFolder);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { m_menu->popup(m_list->viewport()->mapToGlobal(at)); });
    connect(list, &ChartList::filesDropped, this, &DeskLibrary::take);
    connect(undo, &UndoBar::restored, this, [this](const QString& image) { done({image, {}}); });
}

DeskLibrary::~DeskLibrary()
{
    m_pool.waitForDone();
}

QAction* DeskLibrary::add(const char* text, const QKeySequence& shortcut, void (DeskLibrary::*does)())
{
    QAction* action = m_menu->addAction(QString());
    action->setProperty(librarySource, QString::fromUtf8(text));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, does);
    m_forChart.append(action);
    return action;
}

void DeskLibrary::retranslate()
{
    m_menu->setTitle(hostText(QStringLiteral("Chart")));
    const QList<QAction*> actions = m_menu->actions();
    for (QAction* action : actions)
        action->setText(hostText(action->property(librarySource).toString()));
}

void DeskLibrary::update(bool isEditing)
{
    m_newFrom->setEnabled(!isEditing);
    const bool hasChart = !isEditing && !m_list->selectedChart().isEmpty();
    for (QAction* action : qAsConst(m_forChart))
        action->setEnabled(hasChart);
}

void DeskLibrary::newFrom()
{
    auto* dialog = new NewFromDialog(m_window);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { Q_EMIT newWanted(dialog->record(), dialog->markers()); });
    dialog->open();
}

void DeskLibrary::duplicate()
{
    inBackground([folder = m_folder, image = m_list->selectedChart()] {
        return ChartShelf::duplicate(folder, image);
    });
}

void DeskLibrary::askName()
{
    const QString image = m_list->selectedChart();
    auto* dialog =
        DeskDialogs::textDialog(m_window, hostTitle(QStringLiteral("Rename…")),
                                hostText(QStringLiteral("Name:")), QFileInfo(image).completeBaseName());
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this, image](const QString& name) { done(ChartShelf::rename(image, name.trimmed())); });
    dialog->open();
}

void DeskLibrary::remove()
{
    const QString image = m_list->selectedChart();
    const QString name = QFileInfo(image).fileName();
    if (m_usesTrash && moveToTrash(image)) {
        m_list->refresh();
        return;
    }
    auto deleted = std::make_unique<DeletedChart>(image);
    if (deleted->isDeleted())
        m_undo->offer(std::move(deleted), name);
    else
        Q_EMIT failed(hostText(QStringLiteral("This chart could not be deleted.")), image);
    m_list->refresh();
}

void DeskLibrary::askTags()
{
    const QString image = m_list->selectedChart();
    auto* dialog = DeskDialogs::textDialog(m_window, hostTitle(QStringLiteral("Tags…")),
                                           hostText(QStringLiteral("Tags, with commas between:")),
                                           ChartTags::of(image).join(QStringLiteral(", ")));
    connect(dialog, &QInputDialog::textValueSelected, this, [this, image](const QString& text) {
        done({image, ChartTags::set(image, ChartTags::fromText(text))});
    });
    dialog->open();
}

void DeskLibrary::askTarget()
{
    const QString image = m_list->selectedChart();
    QFileDialog* dialog =
        DeskDialogs::saveDialog(m_window, hostTitle(QStringLiteral("Export…")), QFileInfo(image).path());
    dialog->setNameFilters({QStringLiteral("PNG (*.png)"), QStringLiteral("JPEG (*.jpg)"),
                            QStringLiteral("BMP (*.bmp)"), QStringLiteral("JSON (*.json)")});
    dialog->setDefaultSuffix(QStringLiteral("png"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.section(QLatin1String("*."), 1).chopped(1));
    });
    dialog->selectFile(QFileInfo(image).completeBaseName());
    connect(dialog, &QFileDialog::fileSelected, this, &DeskLibrary::exportTo);
    dialog->open();
}

void DeskLibrary::exportTo(const QString& target)
{
    inBackground([image = m_list->selectedChart(), target] {
        const QString problem = ChartShelf::exportTo(image, target);
        return ChartShelf::Outcome{problem.isEmpty() ? image : QString(), problem};
    });
}

void DeskLibrary::copyImage()
{
    m_pool.start([this, path = m_list->selectedChart()] {
        const QImage picture(path);
        const auto copy = [picture] { QGuiApplication::clipboard()->setImage(picture); };
        QMetaObject::invokeMethod(this, copy, Qt::QueuedConnection);
    });
}

void DeskLibrary::openFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_list->selectedChart()).path()));
}

void DeskLibrary::take(const QStringList& files)
{
    for (const QString& file : files) {
        inBackground([folder = m_folder, file, captions = ChartCaptions::current()] {
            return ChartShelf::take(folder, file, captions);
        });
    }
}

void DeskLibrary::inBackground(const std::function<ChartShelf::Outcome()>& work)
{
    m_pool.start([this, work] {
        const ChartShelf::Outcome outcome = work();
        QMetaObject::invokeMethod(
            this, [this, outcome] { done(outcome); }, Qt::QueuedConnection);
    });
}

void DeskLibrary::done(const ChartShelf::Outcome& outcome)
{
    m_list->refresh();
    m_list->selectChart(outcome.image);
    if (outcome.note)
        Q_EMIT noted(hostText(QString::fromUtf8(outcome.note)) + QLatin1Char(' ') +
                     QFileInfo(outcome.image).fileName());
    if (!outcome.problem.isEmpty())
        Q_EMIT failed(hostText(QStringLiteral("That could not be done.")), outcome.problem);
}
