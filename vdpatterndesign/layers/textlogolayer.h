#pragma once

#include "geometry/logoplacement.h"
#include "layers/chartlayer.h"

#include <QColor>
#include <QString>

namespace vardeno::testcharttools {

/// A text as the chart's logo.
class VDCHARTCORE_EXPORT TextLogoLayer : public ChartLayer
{
public:
    bool hasTexts() const override { return true; }
    void fit(const QSize& chart) override;
    QVector<QRect> reach(const QSize& chart) const override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    QString text = QStringLiteral("Vardeno_RT5_Pro").remove(QLatin1Char('_'));
    int textSize = 100;       ///< font pixels, fewer where the text is too large
    QColor color = Qt::black; ///< `fit` gives it the opacity
    int opacity = 100;        ///< percent
    int position = 0;         ///< the anchor: 0 centre, 1 left up, 2 left down, 3 right up, 4 right down
    int moveX = 0;            ///< from the anchor; the text stays on the chart
    int moveY = 0;

    int fittedSize = 100; ///< found by `fit`, and so is
    QPoint applied;       ///< what is left of the shift

private:
    TextLogo m_logo;
};

} // namespace vardeno::testcharttools
