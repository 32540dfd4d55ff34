#include "framepacer.h"

#include <algorithm>
#include <cmath>

FramePacer::FramePacer(QObject* parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FramePacer::tick);
}

void FramePacer::start(qreal rate)
{
    m_period = 1000 / (rate >= 1 ? rate : 60);
    m_clock.start();
    m_due = m_period;
    m_late = 0;
    schedule();
}

void FramePacer::stop()
{
    m_timer.stop();
}

void FramePacer::schedule()
{
    const qreal now = qreal(m_clock.nsecsElapsed()) / 1e6;
    m_timer.start(std::max(0, int(std::lround(m_due - now))));
}

void FramePacer::tick()
{
    const qreal now = qreal(m_clock.nsecsElapsed()) / 1e6;
    m_due += m_period;
    if (now > m_due) {
        ++m_late;
        m_due = now + m_period;
    }
    schedule(); // before the frame, which may stop it
    Q_EMIT frame();
}
