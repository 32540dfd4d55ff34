#pragma once

#include "chartshelf.h"

/// Takes walls and shows from elsewhere into a folder of charts, where they stand alone: a wall has its
/// record in it and its logo beside it, a show has its walls in the same folder. Functions without state, for
/// any thread.
namespace WallShelf {

/// Whether the file says to be a wall or a show, good or not.
bool isDocument(const QString& file);

/// Takes all that belongs to it, or nothing. Other files of these names stay: what is taken has a number
/// then. What lies in the folder already stays as it is.
ChartShelf::Outcome take(const QString& folder, const QString& file);

} // namespace WallShelf
