#pragma once

#include <QAction>

class EditSession;

/// Whether the chart that is being edited has a coded marker in every cabinet: an entry of a menu.
class MarkerSwitch : public QAction
{
    Q_OBJECT

public:
    MarkerSwitch(EditSession* session, QObject* parent);

    /// By the chart that is being edited, if there is one.
    void update();
    void retranslate();

Q_SIGNALS:
    /// What the user is to know of a change.
    void noted(const QString& note);

private:
    void change(bool shown);

    EditSession* m_session;
};
