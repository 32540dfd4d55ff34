#include "referencegrids.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

QString letter(int code)
{
    return QString(QChar(code));
}

} // namespace

QString ReferenceLabels::rowPart(int row) const
{
    const bool descending = sort == 2 || sort == 3;
    if (mode == 1)
        return QString::number(descending ? rows - row : row + 1);
    if (!descending)
        return letter('A' + row % 26);
    return letter((mode == 0 ? 'Z' : 'z') - row % 26);
}

QString ReferenceLabels::columnPart(int column) const
{
    const bool descending = sort == 1 || sort == 3;
    if (mode == 0)
        return letter(descending ? 'Z' - column % 26 : 'A' + column % 26);
    return QString::number(descending ? columns - column : column + 1);
}

void ReferenceLabels::drawCell(QPainter& painter, const QRect& cell, int row, int column) const
{
    if (mode > 2 || sort > 3)
        return;
    const int x = cell.x();
    const int y = cell.y();
    const int w = cell.width() / 2;
    const int h = cell.height() / 2;
    if (position == 0)
        painter.drawText(cell, Qt::AlignCenter, rowPart(row) + QStringLiteral("-") + columnPart(column));
    if (position == 1) {
        painter.drawText(QRect(x, y, w, h), Qt::AlignLeft | Qt::AlignTop, rowPart(row));
        painter.drawText(QRect(x + w, y + h, w, h), Qt::AlignRight | Qt::AlignBottom, columnPart(column));
    }
    if (position == 2) {
        painter.drawText(QRect(x, y + h, w, h), Qt::AlignLeft | Qt::AlignBottom, rowPart(row));
        painter.drawText(QRect(x + w, y, w, h), Qt::AlignRight | Qt::AlignTop, columnPart(column));
    }
}

void ReferenceGridLayer::setLabelFont(QPainter& painter, int requested) const
{
    const int heightLimit = int(cellHeight() * 0.51);
    const int widthLimit = int(cellWidth() * 0.5);
    int size = requested;
    QFont font = painter.font();
    if (size > 0) // a size of 0 would only warn
        font.setPixelSize(size);
    QFontMetrics metrics(font);
    while (size > 1 &&
           (metrics.height() > heightLimit || metrics.horizontalAdvance(QStringLiteral("WW")) > widthLimit)) {
        font.setPixelSize(--size);
        metrics = QFontMetrics(font);
    }
    painter.setFont(font);
}

void ReferenceGridLayer::drawLabels(QPainter& painter, const QColor& color) const
{
    const double h = cellHeight();
    const double w = cellWidth();
    for (int row = 0; row < m_labels.rows; ++row) {
        for (int column = 0; column < m_labels.columns; ++column) {
            painter.setPen(referencePen(color, 1.0));
            m_labels.drawCell(painter, QRect(int(column * w), int(row * h), int(w), int(h)), row, column);
        }
    }
}

bool ReferenceInLine::draw(QPainter& painter)
{
    if (m_diagonalVisible)
        drawDiagonals(painter);
    if (m_circleVisible)
        drawCircles(painter);
    if (m_serialVisible) {
        setLabelFont(painter, m_serialSize);
        drawLabels(painter, m_serialColor);
    }
    return true;
}

void ReferenceInLine::resizeEvent(QResizeEvent* event)
{
    renderLayer();
    QWidget::resizeEvent(event);
}

void ReferenceInLine::drawDiagonals(QPainter& painter) const
{
    painter.setPen(referencePen(m_diagonalColor, m_diagonalLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(0, 0, width(), height());
    painter.drawLine(width(), 0, 0, height());
}

void ReferenceInLine::drawCircles(QPainter& painter) const
{
    const int w = width();
    const int h = height();
    const auto diameter = ushort(m_circleRadius * 2);
    const auto effective = ushort(std::min<int>(diameter, std::min(w, h)));
    const int d = std::max(effective - m_circleLineWidth, 0);
    const int half = m_circleLineWidth / 2;
    painter.setPen(referencePen(m_circleColor, m_circleLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    if (w >= h) {
        const int y = (h - d) / 2;
        painter.drawEllipse(half, y, d, d);
        painter.drawEllipse(w - half - d, y, d, d);
    } else {
        const int x = (w - d) / 2;
        painter.drawEllipse(x, half, d, d);
        painter.drawEllipse(x, h - half - d, d, d);
    }
}

bool ReferenceSequence::draw(QPainter& painter)
{
    if (!m_rowColVisible && !m_sequeVisible)
        return true;
    setLabelFont(painter, m_sequeSize);
    if (m_rowColVisible)
        drawLines(painter);
    if (m_sequeVisible)
        drawLabels(painter, m_sequeColor);
    return true;
}

void ReferenceSequence::drawLines(QPainter& painter) const
{
    painter.setPen(referencePen(m_rowColColor, 1.0));
    for (int i = 1; i < m_labels.rows; ++i) {
        const int y = int(i * cellHeight());
        painter.drawLine(0, y, width(), y);
    }
    for (int j = 1; j < m_labels.columns; ++j) {
        const int x = int(j * cellWidth());
        painter.drawLine(x, 0, x, height());
    }
}

} // namespace vardeno::testcharttools
