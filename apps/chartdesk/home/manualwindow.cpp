#include "manualwindow.h"

#include "deskdialogs.h"
#include "hosttext.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

ManualWindow::ManualWindow(QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(hostText(QStringLiteral("Manual")));
    auto* text = new QTextBrowser;
    text->setObjectName(QStringLiteral("manual"));
    text->setAccessibleName(windowTitle());
    text->setToolTip(windowTitle());
    text->setOpenExternalLinks(true);
    text->setSource(QUrl(QStringLiteral("qrc:/chartdesk/manual/README.md")));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* back = buttons->addButton(hostText(QStringLiteral("Back")), QDialogButtonBox::ActionRole);
    back->setEnabled(false);
    connect(back, &QPushButton::clicked, text, &QTextBrowser::backward);
    connect(text, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QAbstractButton* button : buttons->buttons())
        button->setToolTip(button->text());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    DeskDialogs::resizeWithinScreen(this, QSize(900, 700));
}
