#pragma once

#include "framepacer.h"
#include "linepattern.h"
#include "outputpattern.h"
#include "shownchart.h"
#include "walkorder.h"

#include <QObject>

#include <memory>

/// What goes over the output in the place of the chart or on it: step by step with keys, or at a pace of its
/// own. It never changes the chart.
class Walk : public QObject
{
    Q_OBJECT

public:
    enum class Mode
    {
        None,
        Black,
        White,
        Cabinets,
        Alone,
        Chosen, ///< cabinets that somebody chose
        Row,
        Column,
        Line,
        Colors,
        Greys,
        Counter
    };

    explicit Walk(QObject* parent = nullptr);

    /// The chart below it, and the rate of its display in frames a second. What is shown goes on.
    void setChart(const ShownChart& chart);
    void setFrameRate(qreal rate);

    /// Begins at the first step, runs where that belongs to it; nothing happens without what it needs.
    void setMode(Mode mode);
    Mode mode() const { return m_mode; }
    /// Begins to step through these cabinets; those that the chart does not have are left out.
    void walkThrough(const std::vector<CabinetPlace>& cabinets);
    /// Whether keys step through something: not on the chart, on black or on white.
    bool isWalking() const;
    /// Whether the shown chart has cabinets.
    bool hasCabinets() const { return m_chart.record.has_value(); }

    void step(int by);
    int currentStep() const { return m_step; }
    void setRunning(bool runs);
    bool isRunning() const { return m_pacer.isRunning(); }
    /// Faster with a positive number, slower with a negative one.
    void changePace(int by);
    /// Steps a second; of a line pixels a frame.
    QString paceText() const;
    int linePixels() const { return m_linePixels; }
    int stepsPerMinute() const;
    const FramePacer& pacer() const { return m_pacer; }

    void setPath(const WalkPath& path);
    const WalkPath& path() const { return m_path; }
    void setLineDirection(LineDirection direction);
    LineDirection lineDirection() const { return m_direction; }

    /// Null for the chart alone.
    const std::shared_ptr<const OutputPattern>& pattern() const { return m_pattern; }
    /// What the step shows, empty for the chart alone.
    QString text() const;

    /// What the key does; false where it does nothing here.
    bool press(int key);

Q_SIGNALS:
    void patternChanged();
    void stepChanged(int step);
    void runningChanged();

private:
    std::shared_ptr<const OutputPattern> createPattern() const;
    void renewPattern();
    void frame();
    bool pressInMode(int key);

    ShownChart m_chart;
    Mode m_mode = Mode::None;
    WalkPath m_path;
    std::vector<CabinetPlace> m_chosen;
    LineDirection m_direction = LineDirection::Horizontal;
    std::shared_ptr<const OutputPattern> m_pattern;
    FramePacer m_pacer;
    qreal m_rate = 60;
    int m_step = 0;
    int m_pace = 1;         ///< of `paces`
    int m_linePixels = 1;   ///< a frame
    int m_waitedFrames = 0; ///< since the last step
};
