#pragma once

#include <QSize>

class QString;
class QWidget;

namespace vardeno::testcharttools {

/// What a control or caption needs so that its text, each of its items, or the longest of its numbers is seen
/// whole in its font, also where it shows it elided; nothing for one without a text. A text entry needs the
/// height only.
QSize contentSize(const QWidget* widget);

/// What `text` needs in the font of `widget`, with `margin` beside it; nothing without a text.
QSize textSize(const QWidget* widget, const QString& text, int margin);

} // namespace vardeno::testcharttools
