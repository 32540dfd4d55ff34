#pragma once

#include <QDialog>
#include <QList>
#include <QPair>

class QAction;
class QMenuBar;
class QTreeWidget;

/// Every key of a window, as its menus or its actions have them.
class ShortcutSheet : public QDialog
{
    Q_OBJECT

public:
    /// What is done, and the keys that do it.
    using Keys = QList<QPair<QString, QString>>;

    /// By the title of their group.
    using Groups = QList<QPair<QString, Keys>>;

    /// The keys of `menus`, and others that no action has, in the group of their title.
    ShortcutSheet(const QMenuBar* menus, const Groups& others, QWidget* parent);
    ShortcutSheet(const QList<QAction*>& actions, const Keys& others, QWidget* parent);

private:
    void build();

    QTreeWidget* m_tree;
};
