#include "referencetexts.h"

#include <QFontMetrics>
#include <QPainter>

namespace vardeno::testcharttools {

void ReferenceTexts::setCaptions(const QString& resolution, const QString& boxNum)
{
    assign(m_resolutionCaption, resolution);
    assign(m_boxNumCaption, boxNum);
}

bool ReferenceTexts::draw(QPainter& painter)
{
    const int middle = width() / 2;
    painter.translate(middle, height() / 1.5);
    if (m_selfTextVisible)
        drawLine(painter, m_selfText, m_selfTextSize, m_selfTextColor, 0);
    if (m_resolutionVisible)
        drawLine(painter, infoText(), m_resolutionSize, m_resolutionColor, height() / 6);
    return true;
}

void ReferenceTexts::showEvent(QShowEvent* event)
{
    renderLayer();
    QLabel::showEvent(event);
}

QString ReferenceTexts::infoText() const
{
    QString text = m_resolutionCaption + QLatin1String(":") + QString::number(width()) + QLatin1String("*") +
                   QString::number(height());
    if (m_boxNumVisible)
        text += QLatin1String(" ") + m_boxNumCaption + QLatin1String(":") +
                QString::number(uint(m_rows) * m_columns);
    return text;
}

void ReferenceTexts::drawLine(QPainter& painter, const QString& text, int requested, const QColor& color,
                              int below) const
{
    painter.setPen(color);
    setFittedFont(painter, text, requested, width(), height());
    const QFontMetrics metrics(painter.font());
    painter.drawText(-(metrics.horizontalAdvance(text) / 2), below + metrics.height() / 2, text);
}

} // namespace vardeno::testcharttools
