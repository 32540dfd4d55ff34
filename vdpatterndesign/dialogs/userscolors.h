#pragma once

#include <QColor>

namespace vardeno::testcharttools {

/// The custom colours of the toolkit's colour dialog, which all programs of a user share: the toolkit writes
/// them when the program ends.
namespace UsersColors {

/// Fills all of them with `filler` for the time in which the program runs. The user's own come back when the
/// application goes, but where another colour has been put in their place.
void replaceBy(const QColor& filler);

/// Gives them back now.
void giveBack();

} // namespace UsersColors

} // namespace vardeno::testcharttools
