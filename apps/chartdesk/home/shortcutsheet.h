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

    /// The keys of `menus`, and others that no action has.
    ShortcutSheet(const QMenuBar* menus, const Keys& others, QWidget* parent);
    ShortcutSheet(const QList<QAction*>& actions, const Keys& others, QWidget* parent);

private:
    void build(const Keys& others);

    QTreeWidget* m_tree;
};
