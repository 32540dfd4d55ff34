#include "editor/previewzoom.h"

#include "geometry/previewfit.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vardeno::testcharttools {

namespace {

/// From 1 on whole ones: every pixel of the chart is the same number of the screen's.
constexpr double scales[] = {1 / 16.0, 1 / 8.0, 1 / 4.0, 1 / 2.0, 1,  2,
                             3,        4,       6,       8,       12, PreviewZoom::largestScale};

/// The view's middle on one axis: the chart's where all of it is seen, else so that no room is left beside
/// it.
double keptInside(double middle, double seen, double length)
{
    return seen >= length ? length / 2 : std::clamp(middle, seen / 2, length - seen / 2);
}

} // namespace

void PreviewZoom::setView(const QSize& view)
{
    m_view = view;
    keepInside();
}

void PreviewZoom::setChart(const QSize& chart)
{
    m_chart = chart;
    keepInside();
}

QRect PreviewZoom::place() const
{
    if (m_fitted)
        return fittedPreview(m_view, m_chart);
    const QPointF corner = QPointF(m_view.width(), m_view.height()) / 2 - m_centre * m_scale;
    return {qRound(corner.x()), qRound(corner.y()), qRound(m_chart.width() * m_scale),
            qRound(m_chart.height() * m_scale)};
}

QPoint PreviewZoom::pixelAt(const QPointF& place) const
{
    const QPointF point = chartPoint(place);
    return {int(std::floor(point.x())), int(std::floor(point.y()))};
}

void PreviewZoom::zoom(int steps, const QPointF& at)
{
    for (int i = 0; i < std::abs(steps); ++i) {
        const double next = nextScale(steps > 0);
        const double fitting = fittingScale();
        const bool reachesFit =
            steps > 0 ? scale() < fitting && next >= fitting : scale() > fitting && next <= fitting;
        if (reachesFit)
            fit();
        else if (next != scale())
            zoomTo(next, at);
    }
}

void PreviewZoom::move(const QPointF& way)
{
    if (m_fitted)
        return;
    m_centre -= way / m_scale;
    keepInside();
}

double PreviewZoom::fittingScale() const
{
    const QSize fitted = fittedPreview(m_view, m_chart).size();
    return m_chart.isEmpty() || fitted.isEmpty() ? 1 : double(fitted.width()) / m_chart.width();
}

/// A chart that is smaller than the view may be shown with a pixel for each of its own, but not smaller.
double PreviewZoom::nextScale(bool nearer) const
{
    const double now = scale();
    const double least = std::min(fittingScale(), 1.0);
    if (nearer) {
        const auto* next = std::upper_bound(std::begin(scales), std::end(scales), now);
        return next == std::end(scales) ? now : *next;
    }
    const auto* next = std::lower_bound(std::begin(scales), std::end(scales), now);
    return next == std::begin(scales) ? least : std::max(*std::prev(next), least);
}

void PreviewZoom::zoomTo(double scale, const QPointF& at)
{
    const QPointF held = chartPoint(at);
    m_scale = scale;
    m_fitted = false;
    m_centre = held - (at - QPointF(m_view.width(), m_view.height()) / 2) / scale;
    keepInside();
}

QPointF PreviewZoom::chartPoint(const QPointF& place) const
{
    const QRect chart = this->place();
    if (chart.isEmpty())
        return {-1, -1};
    const QPointF way = place - chart.topLeft();
    return {way.x() * m_chart.width() / chart.width(), way.y() * m_chart.height() / chart.height()};
}

void PreviewZoom::keepInside()
{
    m_centre = {keptInside(m_centre.x(), m_view.width() / m_scale, m_chart.width()),
                keptInside(m_centre.y(), m_view.height() / m_scale, m_chart.height())};
}

} // namespace vardeno::testcharttools
