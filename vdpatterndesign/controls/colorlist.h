#pragma once

#include <QColor>

#include <map>
#include <memory>
#include <vector>

class QListWidget;
class QListWidgetItem;

namespace vardeno::testcharttools {

/// The colours of a list whose items show one colour each as their background, by 0-based row. An item whose
/// brush is not solid counts as opaque white.
std::map<int, QColor> listColors(const QListWidget* list);

/// Replaces the list's items by `colors`, in the order of the keys.
void setListColors(QListWidget* list, const std::map<int, QColor>& colors);

/// Appends one colour, as an 18 x 18 item.
void appendListColor(QListWidget* list, const QColor& color);

/// Gives the item `row` another colour.
void setListColor(QListWidget* list, int row, const QColor& color);

/// Moves the current item by `step` places, and tells whether there was one to move and a place for it.
bool moveCurrentColor(QListWidget* list, int step);

/// Makes the item before or after the current one current and brings it into view; stops at the ends.
void stepListLeft(QListWidget* list);
void stepListRight(QListWidget* list);

/// Takes the current item out of a colour list. The item is destroyed only when at least two items remain;
/// the last ones are handed to `leftovers`.
void removeCurrentColor(QListWidget* list, std::vector<std::unique_ptr<QListWidgetItem>>& leftovers);

} // namespace vardeno::testcharttools
