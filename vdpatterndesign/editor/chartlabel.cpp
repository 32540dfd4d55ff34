#include "editor/chartlabel.h"

#include "editor/previewzoom.h"

#include <QPainter>

namespace vardeno::testcharttools {

namespace {

constexpr int leastGridScale = 8;
const QColor gridColor(128, 128, 128, 150); // seen on black and on white

/// `painter`, which draws on a widget at the place `at` of a view, draws on pixels of the screen from now on,
/// from the corner of the view.
void usePixels(QPainter& painter, const QPoint& at)
{
    const QTransform device = painter.deviceTransform();
    const QPoint corner = device.map(QPointF(-at)).toPoint();
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * device.inverted());
}

void drawGrid(QPainter& painter, const QRect& pixels, const QPoint& origin, int scale)
{
    const QRect area(origin + pixels.topLeft() * scale, pixels.size() * scale);
    for (int x = area.left(); x <= area.right(); x += scale)
        painter.fillRect(x, area.top(), 1, area.height(), gridColor);
    for (int y = area.top(); y <= area.bottom(); y += scale)
        painter.fillRect(area.left(), y, area.width(), 1, gridColor);
}

} // namespace

ChartLabel::ChartLabel(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("ViewWidget"));
    setScaledContents(true);
}

void ChartLabel::setZoom(const PreviewZoom* zoom, const QImage* chart, const QPoint& viewCorner)
{
    m_viewCorner = viewCorner;
    m_zoom = zoom;
    m_chart = chart;
    m_reduced = QImage();
    setAttribute(Qt::WA_TransparentForMouseEvents, zoom);
    update();
}

void ChartLabel::paintEvent(QPaintEvent* event)
{
    if (!m_zoom) {
        QLabel::paintEvent(event);
        return;
    }
    const QRect place = m_zoom->place();
    if (m_chart->isNull() || place.isEmpty())
        return;
    QPainter painter(this);
    usePixels(painter, pos() - m_viewCorner);
    const int scale = int(m_zoom->scale());
    if (!m_zoom->isFitted() && scale >= 1)
        drawMagnified(painter, place, scale);
    else
        painter.drawImage(place.topLeft(), reduced(place.size()));
}

/// The pixels that are seen, and no others.
void ChartLabel::drawMagnified(QPainter& painter, const QRect& place, int scale) const
{
    const QRect seen = QRect(QPoint(), m_zoom->view()).intersected(place).translated(-place.topLeft());
    const QPoint last(seen.right() / scale, seen.bottom() / scale);
    const QRect pixels = QRect(QPoint(seen.left() / scale, seen.top() / scale), last)
                             .intersected(m_chart->rect()); // a new chart may not be composed yet
    if (scale == 1) {
        painter.drawImage(place.topLeft() + pixels.topLeft(), *m_chart, pixels);
        return;
    }
    const QImage part = m_chart->copy(pixels).scaled(pixels.size() * scale);
    painter.drawImage(place.topLeft() + pixels.topLeft() * scale, part);
    if (scale >= leastGridScale)
        drawGrid(painter, pixels, place.topLeft(), scale);
}

const QImage& ChartLabel::reduced(const QSize& size)
{
    if (m_reduced.size() != size || m_reducedKey != m_chart->cacheKey()) {
        m_reduced = m_chart->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_reducedKey = m_chart->cacheKey();
    }
    return m_reduced;
}

} // namespace vardeno::testcharttools
