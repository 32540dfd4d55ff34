#pragma once

#include <QImage>
#include <QLabel>

namespace vardeno::testcharttools {

class PreviewZoom;

/// The chart in the preview. Unzoomed it is a label whose pixmap fills it.
class ChartLabel : public QLabel
{
public:
    explicit ChartLabel(QWidget* parent);

    /// Shows the part of `chart` that `zoom` shows in its view, which begins at `viewCorner` of the parent
    /// widget, pixel by pixel of the screen; null shows the label's own pixmap. Both must stay; `update`
    /// after they have changed.
    void setZoom(const PreviewZoom* zoom, const QImage* chart, const QPoint& viewCorner);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawMagnified(QPainter& painter, const QRect& place, int scale) const;
    const QImage& reduced(const QSize& size);

    const PreviewZoom* m_zoom = nullptr;
    const QImage* m_chart = nullptr;
    QPoint m_viewCorner;
    QImage m_reduced; ///< the chart in the size that it was last shown in
    qint64 m_reducedKey = 0;
};

} // namespace vardeno::testcharttools
