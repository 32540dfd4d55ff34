#pragma once

#include <QPointF>
#include <QRect>

namespace vardeno::testcharttools {

/// How a chart lies in a view: all of it, as large as fits, or its pixels magnified or reduced around a
/// point. A plain value. Scales are pixels of the view for one of the chart, and the view's pixels are those
/// of the screen.
class PreviewZoom
{
public:
    static constexpr double largestScale = 16;

    void setView(const QSize& view);
    void setChart(const QSize& chart);
    QSize view() const { return m_view; }

    bool isFitted() const { return m_fitted; }
    double scale() const { return m_fitted ? fittingScale() : m_scale; }
    /// Of the whole chart in the view, which it may exceed.
    QRect place() const;
    /// The chart's pixel at `place` in the view; outside of the chart it is none of its pixels.
    QPoint pixelAt(const QPointF& place) const;

    void fit() { m_fitted = true; }
    /// One pixel of the chart is one of the screen.
    void showPixels(const QPointF& at) { zoomTo(1, at); }
    /// So many steps nearer, or farther where it is negative, up to where all of the chart is seen; what is
    /// `at` stays there, as far as the chart reaches.
    void zoom(int steps, const QPointF& at);
    /// The chart moves by `way`, as far as there is more of it to be seen.
    void move(const QPointF& way);

private:
    double fittingScale() const;
    double nextScale(bool nearer) const;
    void zoomTo(double scale, const QPointF& at);
    QPointF chartPoint(const QPointF& place) const;
    void keepInside();

    QSize m_view;
    QSize m_chart;
    double m_scale = 1;
    bool m_fitted = true;
    QPointF m_centre; ///< of the view, in pixels of the chart
};

} // namespace vardeno::testcharttools
