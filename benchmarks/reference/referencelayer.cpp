#include "referencelayer.h"

#include <QFontMetrics>
#include <QPainter>

namespace vardeno::testcharttools {

namespace {

void setTextFont(QPainter& painter, int pixelSize)
{
    QFont font;
    if (pixelSize > 0) // a size of 0 would only warn
        font.setPixelSize(pixelSize);
    font.setFamily(QStringLiteral("Arail"));
    painter.setFont(font);
}

} // namespace

ReferenceLayer::ReferenceLayer()
{
    // The picture of an earlier size does not hold the layer back.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void ReferenceLayer::renderLayer()
{
    QPixmap layer(size());
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    if (!draw(painter))
        return;
    painter.end();
    setPixmap(layer);
}

void ReferenceLayer::paintEvent(QPaintEvent* event)
{
    renderLayer();
    Q_EMIT sigPaintEventUpdated();
    QLabel::paintEvent(event);
}

QPen referencePen(const QColor& color, double width)
{
    return {QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

int setFittedFont(QPainter& painter, const QString& text, int requested, double widthLimit,
                  double heightLimit)
{
    int size = requested;
    setTextFont(painter, size);
    QFontMetrics metrics(painter.font());
    while (metrics.horizontalAdvance(text) > widthLimit || metrics.height() > heightLimit) {
        if (size < 1)
            break;
        --size;
        if (size > 0) // in size 0 the font stays as it is
            setTextFont(painter, size);
        metrics = QFontMetrics(painter.font());
    }
    return size;
}

} // namespace vardeno::testcharttools
