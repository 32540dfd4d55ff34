#pragma once

#include <wallreading.h>

#include <QByteArray>
#include <QString>

/// One page of HTML with all its pictures: the plan of the wall, the straightened photograph, and each bad
/// cabinet beside what it should show. `name`: of the picture.
QByteArray readingReport(const WallReading::Reading& reading, const WallReading::Chart& chart,
                         const QString& name);
