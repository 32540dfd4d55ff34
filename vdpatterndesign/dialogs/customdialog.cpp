#include "customdialog.h"

#include "controls/caption.h"
#include "theme/resources.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vardeno::testcharttools {

namespace {

constexpr QSize dialogSize(198, 100);
constexpr QSize buttonSize(50, 17);
constexpr int iconExtent = 16;

QPushButton* dialogButton(QDialog* dialog, const char* objectName)
{
    auto* button = new QPushButton(dialog);
    button->setObjectName(QLatin1String(objectName));
    button->setFixedSize(buttonSize);
    useFixedFont(button);
    return button;
}

} // namespace

class CustomDialog::Impl : public QObject
{
public:
    explicit Impl(CustomDialog* dialog);
    void arrange(CustomDialog* dialog);

    QLabel* icon;
    QLabel* message;
    QLabel* spacer;
    QPushButton* confirm;
    QPushButton* cancel;
    CaptionSet captions;
};

CustomDialog::Impl::Impl(CustomDialog* dialog)
    : icon(new QLabel(dialog))
    , message(new QLabel(dialog))
    , spacer(new QLabel(dialog))
    , confirm(dialogButton(dialog, "confirmBtn"))
    , cancel(dialogButton(dialog, "cancelBtn"))
{
    icon->setFixedSize(iconExtent, iconExtent);
    icon->setPixmap(QPixmap(QStringLiteral(":/resources/images/icon_ask.png")));
    message->setObjectName(QStringLiteral("messageLabel"));
    message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    spacer->setFixedHeight(iconExtent);
    confirm->setDefault(true);
    captions.add(cancel, QStringLiteral("Cannel"));
    captions.add(confirm, QStringLiteral("OK"));
    captions.add(message, QStringLiteral("DeleteColorBar"));
}

void CustomDialog::Impl::arrange(CustomDialog* dialog)
{
    auto* question = new QHBoxLayout;
    question->addWidget(icon);
    question->addWidget(message);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(confirm);
    buttons->addWidget(cancel);
    auto* column = new QVBoxLayout(dialog);
    column->addLayout(question);
    column->addWidget(spacer);
    column->addLayout(buttons);
    column->activate(); // the message is elided to the width that the layout gives it
}

CustomDialog::CustomDialog(QWidget* parent)
    : QDialog(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
{
    ensureResources();
    setObjectName(QStringLiteral("customDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(dialogSize);
    d = std::make_unique<Impl>(this);
    d->arrange(this);
    connect(d->confirm, &QPushButton::clicked, this, [this] {
        Q_EMIT configDelete();
        accept();
    });
    connect(d->cancel, &QPushButton::clicked, this, &QDialog::reject);
    retranslate();
}

CustomDialog::~CustomDialog() = default;

void CustomDialog::retranslate()
{
    d->captions.retranslate();
}

void CustomDialog::setDialogStyleSheet(const QString& styleSheet)
{
    setStyleSheet(styleSheet);
}

} // namespace vardeno::testcharttools
