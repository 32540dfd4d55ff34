#include "painters/paintpace.h"

#include <QWidget>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr qint64 shortestPause = 50; ///< ms
constexpr qint64 pausePerWork = 60;  ///< 1.6 % of a core
constexpr qint64 longestPause = 60000;

} // namespace

PaintPace::PaintPace(QWidget* widget)
    : m_widget(widget)
{
    m_next.setSingleShot(true);
    m_next.setTimerType(Qt::PreciseTimer); // a coarse one may be early
    connect(&m_next, &QTimer::timeout, this, &PaintPace::ask);
}

/// What the window does before and after the paint is part of its cost.
void PaintPace::ask()
{
    m_asked = m_widget->isVisible();
    m_begun.start();
    m_widget->update();
}

void PaintPace::begin()
{
    if (!m_widget->isVisible() || m_measuring)
        return;
    m_measuring = true;
    if (!m_asked)
        m_begun.start();
    m_asked = false;
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
