#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QSlider;
class QWidget;

namespace vardeno::testcharttools {

/// Has what a slider sets applied while it is dragged: once for all the moves that have arrived when the last
/// picture is drawn. The panels apply it on release otherwise.
class LiveSliders : public QObject
{
public:
    /// `apply` gets what has the panel apply the slider's value.
    explicit LiveSliders(std::function<void(const std::function<void()>&)> apply);

    /// Watches all the sliders in `panel`.
    void watch(const QWidget* panel);

    bool isOn() const { return m_on; }
    void setOn(bool on) { m_on = on; }

private:
    void noteMove(QSlider* slider);
    void applyMove();

    std::function<void(const std::function<void()>&)> m_apply;
    QPointer<QSlider> m_moved; ///< null when there is nothing to apply
    bool m_on = false;
};

} // namespace vardeno::testcharttools
