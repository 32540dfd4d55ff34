#include "layers/textlayer.h"

#include "testcharttoolsdata.h"

#include <QPainter>

namespace vardeno::testcharttools {

namespace {

void drawLine(QPainter& painter, const ChartLine& line, const QString& text, const QColor& color)
{
    painter.setPen(color);
    painter.setFont(line.fitted.font);
    painter.drawText(line.at, text);
}

} // namespace

TextLayer::TextLayer()
    : selfText(QString::fromStdString(SelfChartData().selfText))
{
}

LayerCoverage TextLayer::coverage() const
{
    return selfTextVisible || resolutionVisible ? LayerCoverage::Unknown : LayerCoverage::Nothing;
}

void TextLayer::fit(const QSize& chart)
{
    if (selfTextVisible) {
        m_selfLine = customTextLine(chart, selfText, selfTextSize);
        fittedSelfTextSize = m_selfLine.fitted.pixelSize;
    }
    if (resolutionVisible) {
        m_informationLine = informationLine(chart, informationText(chart), resolutionSize);
        fittedResolutionSize = m_informationLine.fitted.pixelSize;
    }
}

QVector<QRect> TextLayer::reach(const QSize& chart) const
{
    const QPoint origin = chartLinesOrigin(chart).toPoint();
    QVector<QRect> places;
    if (selfTextVisible)
        places.append(lineReach(m_selfLine.fitted, selfText).translated(origin + m_selfLine.at));
    if (resolutionVisible)
        places.append(lineReach(m_informationLine.fitted, informationText(chart))
                          .translated(origin + m_informationLine.at));
    return places;
}

void TextLayer::draw(QPainter& painter, const QSize& chart, const QRect&) const
{
    painter.translate(chartLinesOrigin(chart));
    if (selfTextVisible)
        drawLine(painter, m_selfLine, selfText, selfTextColor);
    if (resolutionVisible)
        drawLine(painter, m_informationLine, informationText(chart), resolutionColor);
}

QString TextLayer::informationText(const QSize& chart) const
{
    if (!boxNumVisible)
        return testcharttools::informationText(chart, resolutionCaption);
    return testcharttools::informationText(chart, resolutionCaption, boxNumCaption, quint32(rows) * columns);
}

} // namespace vardeno::testcharttools
