#pragma once

#include "geometry/chartlines.h"
#include "layers/chartlayer.h"

#include <QColor>
#include <QString>

namespace vardeno::testcharttools {

/// A line of the user's text across the chart, and below it a line with the chart's size in pixels and the
/// number of cabinets.
class VDCHARTCORE_EXPORT TextLayer : public ChartLayer
{
public:
    TextLayer();

    LayerCoverage coverage() const override;
    bool hasTexts() const override { return true; }
    void fit(const QSize& chart) override;
    QVector<QRect> reach(const QSize& chart) const override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    bool selfTextVisible = true;
    bool boxNumVisible = true;     ///< as a part of the information line
    bool resolutionVisible = true; ///< the information line
    QString selfText;              ///< at first the record's default
    QColor selfTextColor = Qt::black;
    QColor resolutionColor = Qt::black;
    ushort selfTextSize = 70;   ///< font pixels, fewer where the line is too long
    ushort resolutionSize = 50; ///< likewise
    ushort rows = 9;
    ushort columns = 16;
    QString resolutionCaption;
    QString boxNumCaption;

    int fittedSelfTextSize = 70;   ///< found by `fit`, and so is
    int fittedResolutionSize = 50; ///< this; each while its line is visible

private:
    QString informationText(const QSize& chart) const;

    ChartLine m_selfLine;
    ChartLine m_informationLine;
};

} // namespace vardeno::testcharttools
