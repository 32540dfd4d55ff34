#include "shortcutsheet.h"

#include "deskdialogs.h"
#include "hosttext.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// The text of an action carries the key of the output behind a tab.
QString keyOf(const QAction* action)
{
    const QString ofOutput = action->text().section(QLatin1Char('\t'), 1);
    return ofOutput.isEmpty() ? action->shortcut().toString(QKeySequence::NativeText) : ofOutput;
}

void addMenuKeys(QTreeWidget* tree, const QMenu* menu)
{
    auto* group = new QTreeWidgetItem({QString(menu->title()).remove(QLatin1Char('&'))});
    QFont font = tree->font();
    font.setBold(true);
    group->setFont(0, font);
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions) {
        if (!keyOf(action).isEmpty())
            group->addChild(
                new QTreeWidgetItem({action->text().section(QLatin1Char('\t'), 0, 0), keyOf(action)}));
    }
    if (group->childCount() > 0)
        tree->addTopLevelItem(group);
    else
        delete group;
}

} // namespace

ShortcutSheet::ShortcutSheet(const QMenuBar* menus, QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(hostText(QStringLiteral("Keyboard shortcuts")));
    auto* tree = new QTreeWidget;
    tree->setObjectName(QStringLiteral("shortcuts"));
    tree->setAccessibleName(windowTitle());
    tree->setToolTip(windowTitle());
    tree->setColumnCount(2);
    tree->setHeaderHidden(true);
    tree->setRootIsDecorated(false);
    tree->setSelectionMode(QAbstractItemView::NoSelection);
    const QList<QAction*> all = menus->actions();
    for (const QAction* action : all)
        addMenuKeys(tree, action->menu());
    tree->addTopLevelItem(new QTreeWidgetItem(
        {hostText(QStringLiteral("Jump to a chart on the output")), QStringLiteral("1 … 9, 0")}));
    tree->addTopLevelItem(
        new QTreeWidgetItem({hostText(QStringLiteral("Leave the output")),
                             QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText)}));
    tree->expandAll();
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree->resizeColumnToContents(1);
    tree->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    tree->setColumnWidth(1, tree->columnWidth(1) + 4 * tree->fontMetrics().averageCharWidth());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setToolTip(buttons->button(QDialogButtonBox::Close)->text());
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tree);
    layout->addWidget(buttons);
    DeskDialogs::resizeWithinScreen(this, QSize(520, 640));
}
