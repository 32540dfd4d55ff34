#pragma once

#include <QPoint>
#include <QString>

/// Prints the displays, a line each.
int listDisplays();

/// Shows `file`, a record or a picture, on a whole display until it is left; the exit code of the program. An
/// empty `display` is the last one. The arrow keys go through the charts of the folder that it belongs to.
int showOnDisplay(const QString& file, const QString& display, const QPoint& at);

/// The charts among which `file` stands: those of its folder of charts, or itself alone.
QStringList chartsAround(const QString& file);
