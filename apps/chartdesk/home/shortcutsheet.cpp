#include "shortcutsheet.h"

#include "deskdialogs.h"
#include "hosttext.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace {

/// The text of an action carries the key of the output behind a tab.
QString keyOf(const QAction* action)
{
    const QString ofOutput = action->text().section(QLatin1Char('\t'), 1);
    return ofOutput.isEmpty() ? action->shortcut().toString(QKeySequence::NativeText) : ofOutput;
}

QList<QTreeWidgetItem*> keyItems(const QList<QAction*>& actions)
{
    QList<QTreeWidgetItem*> items;
    for (const QAction* action : actions) {
        if (!keyOf(action).isEmpty())
            items.append(
                new QTreeWidgetItem({action->text().section(QLatin1Char('\t'), 0, 0), keyOf(action)}));
    }
    return items;
}

/// That all rows need, so that a short sheet has no empty half.
int heightOf(QTreeWidget* tree)
{
    int rows = 0;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        ++rows;
    return (rows + 1) * tree->sizeHintForRow(0);
}

QList<QTreeWidgetItem*> keyItems(const ShortcutSheet::Keys& keys)
{
    QList<QTreeWidgetItem*> items;
    for (const auto& [what, key] : keys)
        items.append(new QTreeWidgetItem({what, key}));
    return items;
}

/// A group is made at its first keys.
void addGroup(QTreeWidget* tree, const QString& title, const QList<QTreeWidgetItem*>& items)
{
    if (items.isEmpty())
        return;
    QTreeWidgetItem* group = tree->findItems(title, Qt::MatchExactly).value(0);
    if (!group) {
        group = new QTreeWidgetItem({title});
        QFont font = tree->font();
        font.setBold(true);
        group->setFont(0, font);
        tree->addTopLevelItem(group);
    }
    group->addChildren(items);
}

} // namespace

ShortcutSheet::ShortcutSheet(const QMenuBar* menus, const Groups& others, QWidget* parent)
    : QDialog(parent)
    , m_tree(new QTreeWidget)
{
    const QList<QAction*> all = menus->actions();
    for (const QAction* action : all)
        addGroup(m_tree, action->text().remove(QLatin1Char('&')), keyItems(action->menu()->actions()));
    for (const auto& [title, keys] : others)
        addGroup(m_tree, title, keyItems(keys));
    build();
}

ShortcutSheet::ShortcutSheet(const QList<QAction*>& actions, const Keys& others, QWidget* parent)
    : QDialog(parent)
    , m_tree(new QTreeWidget)
{
    m_tree->addTopLevelItems(keyItems(actions));
    m_tree->addTopLevelItems(keyItems(others));
    build();
}

void ShortcutSheet::build()
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(hostText(QStringLiteral("Keyboard shortcuts")));
    m_tree->setObjectName(QStringLiteral("shortcuts"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setToolTip(windowTitle());
    m_tree->setColumnCount(2);
    m_tree->setHeaderHidden(true);
    m_tree->setRootIsDecorated(false);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setSelectionMode(QAbstractItemView::NoSelection);
    m_tree->expandAll();
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->resizeColumnToContents(1);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_tree->setColumnWidth(1, m_tree->columnWidth(1) + 4 * m_tree->fontMetrics().averageCharWidth());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setToolTip(buttons->button(QDialogButtonBox::Close)->text());
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tree);
    layout->addWidget(buttons);
    const int besides = sizeHint().height() - m_tree->sizeHint().height();
    DeskDialogs::resizeWithinScreen(this, QSize(520, qMin(640, heightOf(m_tree) + besides)));
}
