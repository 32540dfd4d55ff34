#pragma once

#include <QDialog>

class QMenuBar;

/// Every key of the desk, as its menus have them.
class ShortcutSheet : public QDialog
{
    Q_OBJECT

public:
    ShortcutSheet(const QMenuBar* menus, QWidget* parent);
};
