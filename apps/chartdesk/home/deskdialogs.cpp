#include "deskdialogs.h"

#include "desklanguage.h"

#include <translatemanager1.h>

#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace {

constexpr QSize frameRoom(16, 48); ///< what a desktop puts around a window
constexpr QSize fileDialogSize(880, 560);
constexpr int textDialogWidth = 420;
constexpr int placesWidth = 180;
constexpr int columnWidths[] = {260, 100, 120, 150}; ///< name, size, kind, date

enum FileColumn // of the toolkit's model
{
    SizeColumn = 1,
    DateColumn = 3
};

/// Sizes and dates as the desk's language writes them; the toolkit does it as the system.
class FileDetails : public QStyledItemDelegate
{
public:
    explicit FileDetails(QObject* parent)
        : QStyledItemDelegate(parent)
        , m_locale(localeOf(TranslateManager1::instance().translator().language()))
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto* files = qobject_cast<const QFileSystemModel*>(index.model());
        const QString detail = files ? DeskDialogs::fileDetail(*files, index, m_locale) : QString();
        if (!detail.isEmpty())
            option->text = detail;
    }

private:
    QLocale m_locale;
};

void name(QWidget* control, const QString& text)
{
    control->setAccessibleName(text);
    control->setToolTip(text);
}

/// What the label before it says of the control `control`.
void nameByLabel(const QFileDialog* dialog, const char* control, const char* label)
{
    auto* named = dialog->findChild<QWidget*>(QLatin1String(control));
    const auto* caption = dialog->findChild<QLabel*>(QLatin1String(label));
    if (named && caption)
        name(named, caption->text().remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

/// The desktop's own dialog has no such parts, and needs nothing of it.
void arrange(QFileDialog* dialog)
{
    if (auto* splitter = dialog->findChild<QSplitter*>(QStringLiteral("splitter")))
        splitter->setSizes({placesWidth, fileDialogSize.width() - placesWidth});
    if (auto* files = dialog->findChild<QTreeView*>(QStringLiteral("treeView"))) {
        files->setItemDelegate(new FileDetails(files));
        for (int column = 0; column < int(std::size(columnWidths)); ++column)
            files->header()->resizeSection(column, columnWidths[column]);
    }
    auto* kind = dialog->findChild<QWidget*>(QStringLiteral("fileTypeCombo"));
    if (auto* buttons = dialog->findChild<QWidget*>(QStringLiteral("buttonBox"))) {
        buttons->setFocusProxy(nullptr); // which Tab would go to, over the kind of file
        QWidget::setTabOrder(kind, buttons);
    }
    nameByLabel(dialog, "lookInCombo", "lookInLabel");
    nameByLabel(dialog, "fileNameEdit", "fileNameLabel");
    nameByLabel(dialog, "fileTypeCombo", "fileTypeLabel");
    for (const char* list : {"sidebar", "treeView", "listView"}) {
        if (auto* view = dialog->findChild<QWidget*>(QLatin1String(list)))
            name(view, dialog->windowTitle());
    }
}

QFileDialog* fileDialog(QWidget* parent, const QString& title, const QString& folder)
{
    auto* dialog = new QFileDialog(parent, title, folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    DeskDialogs::resizeWithinScreen(dialog, fileDialogSize);
    return dialog;
}

} // namespace

namespace DeskDialogs {

QString fileDetail(const QFileSystemModel& files, const QModelIndex& index, const QLocale& locale)
{
    if (index.column() == DateColumn)
        return locale.toString(files.lastModified(index), QLocale::ShortFormat);
    const bool hasSize = index.column() == SizeColumn && !files.isDir(index);
    return hasSize ? locale.formattedDataSize(files.size(index)) : QString();
}

void resizeWithinScreen(QWidget* window, const QSize& wanted)
{
    window->resize(wanted.boundedTo(window->screen()->availableSize() - frameRoom));
}

QInputDialog* textDialog(QWidget* parent, const QString& title, const QString& label, const QString& text)
{
    auto* dialog = new QInputDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setTextValue(text);
    dialog->resize(textDialogWidth, dialog->height());
    if (auto* entry = dialog->findChild<QLineEdit*>())
        name(entry, QString(label).remove(QLatin1Char(':')));
    return dialog;
}

QFileDialog* saveDialog(QWidget* parent, const QString& title, const QString& folder)
{
    QFileDialog* dialog = fileDialog(parent, title, folder);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    arrange(dialog);
    return dialog;
}

QFileDialog* folderDialog(QWidget* parent, const QString& title, const QString& folder)
{
    QFileDialog* dialog = fileDialog(parent, title, folder);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    arrange(dialog);
    return dialog;
}

QFileDialog* openDialog(QWidget* parent, const QString& title, const QString& filter)
{
    QFileDialog* dialog = fileDialog(parent, title, {});
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(filter);
    arrange(dialog);
    return dialog;
}

} // namespace DeskDialogs
