#pragma once

#include "chartinput.h"

#include <QImage>
#include <QString>

struct Arguments;

/// What a picture is to show.
struct Wanted
{
    ChartInput chart;
    QString language;
};

/// Looks at the size before the picture takes its memory; turns it as its EXIF data say. Throws Failure.
QImage readPicture(const QString& path, qint64 pixelLimit);

/// From the file `record`, or where that is empty from the picture itself. Throws Failure.
Wanted wantedChart(const QImage& picture, const QString& path, const std::string& record,
                   const Arguments& arguments);
