#include "layers/textlogolayer.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

void TextLogoLayer::fit(const QSize& chart)
{
    // Not rounded: full opacity gives 254. It is meant.
    color.setAlpha(std::clamp(int(opacity * 2.55), 0, 255));
    m_logo = placedTextLogo(chart, text, textSize, position, {moveX, moveY});
    fittedSize = m_logo.fitted.pixelSize;
    applied = m_logo.placement.applied;
}

QVector<QRect> TextLogoLayer::reach(const QSize& chart) const
{
    const QPoint middle(chart.width() / 2, chart.height() / 2);
    return {lineReach(m_logo.fitted, text).translated(middle + m_logo.placement.at)};
}

void TextLogoLayer::draw(QPainter& painter, const QSize& chart, const QRect&) const
{
    painter.translate(QPoint(chart.width() / 2, chart.height() / 2));
    painter.setPen(color);
    painter.setFont(m_logo.fitted.font);
    painter.drawText(m_logo.placement.at, text);
}

} // namespace vardeno::testcharttools
