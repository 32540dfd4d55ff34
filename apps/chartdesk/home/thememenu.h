#pragma once

#include <QMenu>

class QActionGroup;

/// The themes of the desk. The chosen one is that of the next start.
class ThemeMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ThemeMenu(QWidget* parent);

    void retranslate();

Q_SIGNALS:
    /// It is remembered.
    void chosen();

private:
    QActionGroup* m_choices;
};
