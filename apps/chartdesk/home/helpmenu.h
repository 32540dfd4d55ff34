#pragma once

#include <QMenu>

class QMenuBar;

/// Shortcuts, manual, and what this program is.
class HelpMenu : public QMenu
{
    Q_OBJECT

public:
    /// `menus` is what the shortcut sheet tells of.
    HelpMenu(const QMenuBar* menus, QWidget* window);

    void retranslate();

private:
    void showAbout();

    const QMenuBar* m_menus;
    QWidget* m_window;
    QAction* m_shortcuts;
    QAction* m_manual;
    QAction* m_about;
};
