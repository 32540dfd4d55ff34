#include "editor/livesliders.h"

#include <QSlider>
#include <QTimer>

namespace vardeno::testcharttools {

LiveSliders::LiveSliders(std::function<void(const std::function<void()>&)> apply)
    : m_apply(std::move(apply))
{
}

void LiveSliders::watch(const QWidget* panel)
{
    for (auto* slider : panel->findChildren<QSlider*>())
        connect(slider, &QSlider::sliderMoved, this, [this, slider] { noteMove(slider); });
}

/// The timer comes after all the moves that are waiting.
void LiveSliders::noteMove(QSlider* slider)
{
    if (!m_on)
        return;
    if (!m_moved)
        QTimer::singleShot(0, this, [this] { applyMove(); });
    m_moved = slider;
}

/// The panel takes the value when it is told of a release, and only then; what it does once more at the real
/// one changes nothing.
void LiveSliders::applyMove()
{
    const QPointer<QSlider> slider = m_moved;
    m_moved = nullptr;
    if (slider && slider->isSliderDown())
        m_apply([slider] { Q_EMIT slider->sliderReleased(); });
}

} // namespace vardeno::testcharttools
