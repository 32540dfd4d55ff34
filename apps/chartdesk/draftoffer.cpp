#include "draftoffer.h"

#include "editsession.h"
#include "hosttext.h"
#include "messagebox.h"

#include <QFileInfo>
#include <QPushButton>

DraftOffer::DraftOffer(QWidget* window)
    : QObject(window)
    , m_window(window)
{
}

void DraftOffer::offerAll()
{
    m_abandoned = DraftFolder::takeAbandoned(draftsRoot());
    offerNext();
}

void DraftOffer::offerNext()
{
    while (!m_abandoned.empty()) {
        bool isValid = false;
        const Draft draft = m_abandoned.front()->read(&isValid);
        if (isValid) {
            ask(draft);
            return;
        }
        take(); // it stays where it is, for who can read it
    }
}

std::unique_ptr<DraftFolder> DraftOffer::take()
{
    auto folder = std::move(m_abandoned.front());
    m_abandoned.erase(m_abandoned.begin());
    return folder;
}

void DraftOffer::discard()
{
    take()->remove();
    offerNext();
}

void DraftOffer::ask(const Draft& draft)
{
    const QString name = draft.editedImage.isEmpty() ? hostText(QStringLiteral("New chart"))
                                                     : QFileInfo(draft.editedImage).fileName();
    const QString when = m_dates.toString(draft.changed, QLocale::ShortFormat);
    QMessageBox* box = messageBox(m_window, MessageKind::Question,
                                  hostText(QStringLiteral("An edit was not finished. Continue with it?")),
                                  hostText(QStringLiteral("%1, last changed %2")).arg(name, when) +
                                      QLatin1Char('\n') + draft.folder);
    QPushButton* resume =
        box->addButton(hostText(QStringLiteral("Continue editing")), QMessageBox::AcceptRole);
    QPushButton* drop =
        box->addButton(hostText(QStringLiteral("Discard changes")), QMessageBox::DestructiveRole);
    QPushButton* later = box->addButton(hostText(QStringLiteral("Later")), QMessageBox::RejectRole);
    box->setDefaultButton(resume);
    box->setEscapeButton(later);
    connect(resume, &QPushButton::clicked, this, [this, draft] { Q_EMIT wanted(draft); });
    connect(drop, &QPushButton::clicked, this, &DraftOffer::discard);
    connect(later, &QPushButton::clicked, this, [this] { m_abandoned.clear(); });
    box->open();
}
