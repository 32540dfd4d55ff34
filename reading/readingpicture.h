#pragma once

#include "wallreading.h"

#include <QImage>

namespace WallReading {

/// What the wall shows, with each cabinet that is wrong in a red frame, and those that could not be judged in
/// a grey one.
VDREADING_EXPORT QImage markedPicture(const Reading& reading, const Chart& chart);

/// The cabinet of `picture`, which shows the whole chart in any size.
VDREADING_EXPORT QImage cutOut(const QImage& picture, const Chart& chart, const Place& cabinet);

} // namespace WallReading
