#pragma once

#include "walkorder.h"

#include <chartpicture.h>

#include <QImage>
#include <QStringList>

#include <atomic>
#include <functional>
#include <vector>

/// What a photo or a capture says of the wall that shows a chart. A plain value.
struct WallRead
{
    QString problem;                 ///< why nothing was read; empty where something was
    QStringList sentences;           ///< what was found, worst first
    std::vector<CabinetPlace> wrong; ///< the cabinets that are wrong, worst first
    QImage plan; ///< the wall straightened, the wrong cabinets framed; null where the chart was not found
};

/// That of the desk, for another thread.
struct ReadLanguage
{
    vardeno::testcharttools::ChartCaptions captions;
    std::function<QString(const char* english)> texts;
};

/// Whether this program was built with the reading of photos.
bool canReadWalls();

/// Reads `photo` for the chart at `chart`, a picture with its record or a record. For any thread; takes
/// seconds, but ends soon once `canceled` is true.
WallRead readWall(const QString& photo, const QString& chart, const ReadLanguage& language,
                  const std::atomic<bool>& canceled);
