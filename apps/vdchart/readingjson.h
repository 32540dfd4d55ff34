#pragma once

#include <wallreading.h>

#include <QJsonObject>

/// What was read of a wall, for programs: `docs/reading.md` describes it.
QJsonObject readingJson(const WallReading::Reading& reading);
