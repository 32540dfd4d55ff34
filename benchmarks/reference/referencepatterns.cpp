#include "referencepatterns.h"

#include <QListWidget>
#include <QPainter>

#include <cmath>

namespace vardeno::testcharttools {

bool ReferenceBasic::draw(QPainter& painter)
{
    if (m_mode == 0)
        return drawChess(painter);
    if (m_mode == 1)
        drawGradient(painter);
    if (m_mode == 2)
        drawStripes(painter);
    return true;
}

bool ReferenceBasic::drawChess(QPainter& painter) const
{
    if (m_rows == 0 || m_columns == 0)
        return false;
    const double cellHeight = double(height()) / m_rows;
    const double cellWidth = double(width()) / m_columns;
    if (!(cellHeight > 0.0) || !(cellWidth > 0.0))
        return false;
    for (double y = 0.0; y < height(); y += cellHeight) {
        for (double x = 0.0; x < width(); x += cellWidth) {
            const long column = std::lround(x / cellWidth);
            const long row = std::lround(y / cellHeight);
            const QColor color = (row + column) % 2 == 0 ? m_oddColor : m_evenColor;
            painter.fillRect(QRectF(x, y, cellWidth, cellHeight), color);
        }
    }
    return true;
}

int ReferenceBasic::colorCount() const
{
    return m_colorStripeList ? m_colorStripeList->count() : 0;
}

QColor ReferenceBasic::colorAt(int row) const
{
    return m_colorStripeList->item(row)->background().color();
}

void ReferenceBasic::drawGradient(QPainter& painter) const
{
    QLinearGradient gradient(0, 0, width(), 0);
    const int n = colorCount();
    for (int i = 0; i < n; ++i)
        gradient.setColorAt(i / (n - 1.0), colorAt(i));
    painter.fillRect(rect(), QBrush(gradient));
}

void ReferenceBasic::drawStripes(QPainter& painter) const
{
    const int n = colorCount();
    if (n == 0)
        return;
    const int stripeWidth = width() / n;
    for (int i = 0; i < n; ++i)
        painter.fillRect(QRect(i * stripeWidth, 0, stripeWidth, height()), colorAt(i));
}

bool ReferenceVeil::draw(QPainter& painter)
{
    const int alpha = 255 - (m_brightness * 255 / 100);
    painter.fillRect(rect(), QColor(0, 0, 0, alpha));
    return true;
}

bool ReferenceBorder::draw(QPainter& painter)
{
    if (!m_outBorderVisible)
        return true;
    painter.setPen(referencePen(m_outLineColor, double(m_outLineWidth)));
    const double half = m_outLineWidth * 0.5;
    const int i = int(half);
    const int right = int(width() - half);
    const int bottom = int(height() - half);
    painter.drawLine(i, i, right, i);
    painter.drawLine(i, bottom, right, bottom);
    painter.drawLine(i, i, i, bottom);
    painter.drawLine(right, i, right, bottom);
    return true;
}

} // namespace vardeno::testcharttools
