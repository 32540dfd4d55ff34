#include "referencelogos.h"

#include <QFontMetrics>
#include <QPainter>

namespace vardeno::testcharttools {

void ReferencePictureLogo::setOpacity(int percent)
{
    if (percent * 0.01 == double(m_opacity))
        return;
    m_opacity = float(percent * 0.01);
    renderLayer();
}

void ReferencePictureLogo::setScale(int percent)
{
    if (percent * 0.01 == double(m_scale))
        return;
    m_scale = float(percent * 0.01);
    renderLayer();
}

void ReferencePictureLogo::renderLayer()
{
    QImage image;
    if (!m_picPath.empty()) // loading no file would only warn
        image.load(QString::fromStdString(m_picPath));
    m_scaled = QPixmap(size());
    m_scaled.fill(Qt::transparent);
    const QSize scaledSize(int(float(image.width()) * m_scale), int(float(image.height()) * m_scale));
    m_scaled =
        image.isNull() // scaling it would only warn
            ? QPixmap()
            : QPixmap::fromImage(image.scaled(scaledSize, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    if (m_painting) {
        QPainter painter(this);
        draw(painter);
    }
    setPixmap(m_scaled);
    update();
}

/// Deliberately the plain widget's paint event at the end: the label's picture is not drawn.
void ReferencePictureLogo::paintEvent(QPaintEvent* event)
{
    m_painting = true;
    renderLayer();
    m_painting = false;
    Q_EMIT sigPaintEventUpdated();
    QWidget::paintEvent(event);
}

bool ReferencePictureLogo::draw(QPainter& painter)
{
    painter.translate(QPoint(width() / 2, height() / 2));
    painter.setOpacity(double(m_opacity));
    painter.drawPixmap(place(), m_scaled);
    return true;
}

QPoint ReferencePictureLogo::anchor() const
{
    const auto w = float(m_scaled.width());
    const auto h = float(m_scaled.height());
    const int halfW = width() / 2;
    const int halfH = height() / 2;
    switch (m_position) {
    case 0:
        return {int(-w * 0.5F), int(-h * 0.5F)};
    case 1:
        return {-halfW, -halfH};
    case 2:
        return {-halfW, int(float(halfH) - h)};
    case 3:
        return {int(float(halfW) - w), -halfH};
    case 4:
        return {int(float(halfW) - w), int(float(halfH) - h)};
    default:
        return {0, 0};
    }
}

QPoint ReferencePictureLogo::place() const
{
    const auto w = float(m_scaled.width());
    const auto h = float(m_scaled.height());
    const int halfW = width() / 2;
    const int halfH = height() / 2;
    const QPoint origin = anchor();
    int x = m_moveX + origin.x();
    int y = m_moveY + origin.y();
    if (x < -halfW)
        x = -halfW;
    if (float(x) > float(halfW) - w)
        x = int(float(halfW) - w);
    if (y < -halfH)
        y = -halfH;
    if (float(y) > float(halfH) - h)
        y = int(float(halfH) - h);
    if (w >= float(width()))
        x = origin.x();
    if (h >= float(height()))
        y = origin.y();
    return {x, y};
}

struct ReferenceTextLogo::Extent
{
    int tw;
    int th;
    int lw;
};

bool ReferenceTextLogo::draw(QPainter& painter)
{
    painter.translate(QPoint(width() / 2, height() / 2));
    m_color.setAlpha(int(m_opacity * 2.55));
    painter.setPen(QPen(m_color));
    setFittedFont(painter, m_text, m_textSize, width() * 0.8, height() * 0.8);
    const QFontMetrics metrics(painter.font());
    painter.drawText(place({metrics.horizontalAdvance(m_text), metrics.height(), metrics.lineWidth()}),
                     m_text);
    return true;
}

void ReferenceTextLogo::showEvent(QShowEvent* event)
{
    renderLayer();
    QLabel::showEvent(event);
}

QPoint ReferenceTextLogo::anchor(const Extent& text) const
{
    const int halfW = width() / 2;
    const int halfH = height() / 2;
    const int up = int(text.lw - (halfH - text.th / 1.1));
    const int down = halfH - text.th / 5 - text.lw;
    const int right = halfW - text.lw - text.tw;
    switch (m_position) {
    case 0:
        return {-(text.tw / 2), text.th / 2};
    case 1:
        return {text.lw - halfW, up};
    case 2:
        return {-halfW, down};
    case 3:
        return {right, up};
    case 4:
        return {right, down};
    default:
        return {0, 0};
    }
}

QPoint ReferenceTextLogo::place(const Extent& text) const
{
    const int halfW = width() / 2;
    const int halfH = height() / 2;
    const QPoint origin = anchor(text);
    int x = m_moveX + origin.x();
    int y = m_moveY + origin.y();
    if (x < text.lw - halfW)
        x = text.lw - halfW;
    if (x > halfW - text.lw - text.tw)
        x = halfW - text.lw - text.tw;
    const double top = text.lw - (halfH - text.th / 1.1);
    if (top > y)
        y = int(top);
    if (y > halfH - text.th / 5 - text.lw)
        y = halfH - text.th / 5 - text.lw;
    return {x, y};
}

} // namespace vardeno::testcharttools
