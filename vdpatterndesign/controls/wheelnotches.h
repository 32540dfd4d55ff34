#pragma once

#include <QPoint>
#include <Qt>

namespace vardeno::testcharttools {

/// Counts the notches of a wheel that may report its turning in smaller or larger parts.
class WheelNotches
{
public:
    /// The notches that are full with a turn by `angle` (`QWheelEvent::angleDelta`), positive away from the
    /// user; what is left of them counts for the next turn in the same direction. A wheel that turns
    /// sideways does not count, unless Alt or Shift is held, with which window systems report up and down
    /// as sideways.
    int turn(const QPoint& angle, Qt::KeyboardModifiers modifiers);

private:
    int m_remainder = 0;
};

/// How many steps a notch is worth: 10 with Control, 100 with Shift, 1000 with both, otherwise 1.
double wheelFactor(Qt::KeyboardModifiers modifiers);

} // namespace vardeno::testcharttools
