#include "painters/paintpace.h"

#include <QWidget>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr qint64 shortestPause = 50; ///< ms
constexpr qint64 pausePerWork = 60;  ///< 1.6 % of a core
constexpr qint64 longestPause = 60 * 1000;

} // namespace

PaintPace::PaintPace(QWidget* widget)
    : m_widget(widget)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, widget, QOverload<>::of(&QWidget::update));
}

/// The end of the event is awaited: what the window does with the paint is part of its cost.
void PaintPace::begin()
{
    if (!m_widget->isVisible() || m_measuring)
        return;
    m_measuring = true;
    m_begun.start();
    QMetaObject::invokeMethod(
        this, [this] { pause(); }, Qt::QueuedConnection);
}

void PaintPace::pause()
{
    m_measuring = false;
    const qint64 work = m_begun.nsecsElapsed();
    m_next.start(int(std::clamp(work * pausePerWork / 1000000, shortestPause, longestPause)));
}

} // namespace vardeno::testcharttools
