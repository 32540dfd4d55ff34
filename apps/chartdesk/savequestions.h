#pragma once

#include <QObject>

class EditSession;
class QWidget;

/// What a session has to ask: before changes are lost, and where a chart goes that could not be saved.
class SaveQuestions : public QObject
{
    Q_OBJECT

public:
    /// `window` has the questions.
    SaveQuestions(EditSession* session, QWidget* window);

    void askBeforeEnd();

Q_SIGNALS:
    /// The edit ends without its changes.
    void discarded();
    /// The edit goes on.
    void goesOn();

private:
    void saveFailed(const QString& imagePath, const QString& reason);
    void saveElsewhere();

    EditSession* m_session;
    QWidget* m_window;
};
