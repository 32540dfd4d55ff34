#pragma once

#include <wallreading.h>

#include <QImage>

/// What the wall shows, with each cabinet that is wrong in a red frame, and those that could not be judged in
/// a grey one.
QImage markedPicture(const WallReading::Reading& reading, const WallReading::Chart& chart);

/// The cabinet of `picture`, which shows the whole chart in any size.
QImage cutOut(const QImage& picture, const WallReading::Chart& chart, const WallReading::Place& cabinet);
