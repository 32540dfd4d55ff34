#include "messagebox.h"

#include "hosttext.h"

#include <QPainter>

namespace {

constexpr int iconSize = 40;

/// A disc in the colour of what it is about, with its sign.
QPixmap icon(MessageKind kind, const QPalette& palette, qreal ratio)
{
    QPixmap pixmap(QSize(iconSize, iconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kind == MessageKind::Warning ? QColor("#c9822b") : palette.color(QPalette::Highlight));
    painter.drawEllipse(QRectF(2, 2, iconSize - 4, iconSize - 4));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(24);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const char sign = kind == MessageKind::Question ? '?' : kind == MessageKind::Note ? 'i' : '!';
    painter.drawText(QRectF(0, 0, iconSize, iconSize), Qt::AlignCenter, QString(QLatin1Char(sign)));
    return pixmap;
}

} // namespace

QMessageBox* messageBox(QWidget* parent, MessageKind kind, const QString& text, const QString& details)
{
    auto* box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(hostText(QStringLiteral("Test charts"))); // which folder does not matter
    box->setIconPixmap(icon(kind, box->palette(), parent->devicePixelRatioF()));
    box->setTextFormat(Qt::PlainText); // names of files are shown as they are
    box->setText(text);
    box->setInformativeText(details);
    return box;
}
