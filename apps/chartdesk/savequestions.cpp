#include "savequestions.h"

#include "deskdialogs.h"
#include "editsession.h"
#include "hosttext.h"
#include "messagebox.h"
#include "obstacle.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>

SaveQuestions::SaveQuestions(EditSession* session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
{
    connect(session, &EditSession::cancelled, this, &SaveQuestions::askBeforeEnd);
    connect(session, &EditSession::failed, this, &SaveQuestions::saveFailed);
}

void SaveQuestions::askBeforeEnd()
{
    QMessageBox* box = messageBox(m_window, MessageKind::Question,
                                  hostText(QStringLiteral("This chart has changes that are not saved.")), {});
    QPushButton* save = box->addButton(hostText(QStringLiteral("Save")), QMessageBox::AcceptRole);
    QPushButton* discard =
        box->addButton(hostText(QStringLiteral("Discard changes")), QMessageBox::DestructiveRole);
    QPushButton* stay = box->addButton(hostText(QStringLiteral("Continue editing")), QMessageBox::RejectRole);
    box->setDefaultButton(save);
    box->setEscapeButton(stay);
    connect(save, &QPushButton::clicked, m_session, &EditSession::confirm);
    connect(discard, &QPushButton::clicked, this, &SaveQuestions::discarded);
    connect(stay, &QPushButton::clicked, this, &SaveQuestions::goesOn);
    box->open();
}

void SaveQuestions::saveFailed(const QString& imagePath, const QString& reason)
{
    Q_EMIT goesOn();
    QString why = obstacleText(obstacleIn(m_session->folder()), m_session->folder());
    if (why.isEmpty())
        why = reason;
    const QString what = hostText(QStringLiteral("This chart could not be saved.")) + QLatin1Char(' ') + why;
    QMessageBox* box = messageBox(m_window, MessageKind::Warning, what.trimmed(), imagePath);
    QPushButton* again = box->addButton(hostText(QStringLiteral("Try again")), QMessageBox::AcceptRole);
    QPushButton* elsewhere =
        box->addButton(hostText(QStringLiteral("Save elsewhere…")), QMessageBox::ActionRole);
    box->setEscapeButton(
        box->addButton(hostText(QStringLiteral("Continue editing")), QMessageBox::RejectRole));
    box->setDefaultButton(again);
    connect(again, &QPushButton::clicked, this, [this] { m_session->retry(m_session->folder()); });
    connect(elsewhere, &QPushButton::clicked, this, &SaveQuestions::saveElsewhere);
    box->open();
}

void SaveQuestions::saveElsewhere()
{
    QFileDialog* dialog = DeskDialogs::folderDialog(
        m_window, hostText(QStringLiteral("Choose the folder of the charts")), QDir::homePath());
    connect(dialog, &QFileDialog::fileSelected, m_session, &EditSession::retry);
    dialog->open();
}
