#include "controls/wheelnotches.h"

namespace vardeno::testcharttools {

namespace {

constexpr int notch = 120; // eighths of a degree

int upwards(const QPoint& angle, Qt::KeyboardModifiers modifiers)
{
    const bool maySwap = modifiers & (Qt::AltModifier | Qt::ShiftModifier);
    return angle.y() == 0 && maySwap ? angle.x() : angle.y();
}

} // namespace

int WheelNotches::turn(const QPoint& angle, Qt::KeyboardModifiers modifiers)
{
    const int turned = upwards(angle, modifiers);
    if ((turned > 0 && m_remainder < 0) || (turned < 0 && m_remainder > 0))
        m_remainder = 0;
    m_remainder += turned;
    const int notches = m_remainder / notch;
    m_remainder %= notch;
    return notches;
}

double wheelFactor(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 100 : 1) *
           (modifiers.testFlag(Qt::ControlModifier) ? 10 : 1);
}

} // namespace vardeno::testcharttools
