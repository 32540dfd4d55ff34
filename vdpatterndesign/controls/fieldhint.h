#pragma once

class QString;
class QWidget;

namespace vardeno::testcharttools {

/// Tells what a field is: `name` becomes its name for screen readers and its tool tip, there with the range
/// of a number entry or slider and the length of a text entry. A combo box keeps its tool tip, which tells
/// its current item.
void setHint(QWidget* field, const QString& name);

/// Shows the tool tip of `field` at it for some seconds, once the mouse button is released that would end it.
void showHint(QWidget* field);

} // namespace vardeno::testcharttools
