#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Tells of every frame of a display, at its rate. A frame is never left out and none comes twice: after a
/// pause that is longer than a frame it goes on from there.
class FramePacer : public QObject
{
    Q_OBJECT

public:
    explicit FramePacer(QObject* parent = nullptr);

    /// `rate` in frames a second; below 1 it is taken as 60.
    void start(qreal rate);
    void stop();
    bool isRunning() const { return m_timer.isActive(); }
    /// How many frames came later than the next one was due.
    int late() const { return m_late; }

Q_SIGNALS:
    void frame();

private:
    void tick();
    void schedule();

    QTimer m_timer;
    QElapsedTimer m_clock;
    qreal m_period = 0; ///< ms
    qreal m_due = 0;    ///< of the next frame, ms of the clock
    int m_late = 0;
};
