#pragma once

#include <QColor>

namespace vardeno::walls {

/// One of twelve, far apart from those of the numbers beside it; they begin anew behind the last.
QColor distinctColor(int number);

} // namespace vardeno::walls
