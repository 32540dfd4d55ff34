#pragma once

#include <QMenu>

class QActionGroup;

/// The languages of the desk, each in its own words.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent);

    void retranslate();
    /// Marks the language of that code.
    void setCurrent(const QString& code);

Q_SIGNALS:
    void chosen(const QString& code);

private:
    QActionGroup* m_choices;
};
