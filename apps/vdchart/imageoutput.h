#pragma once

#include <pngencoder.h>

#include <QByteArray>
#include <QImage>
#include <QString>

/// The picture format of a path: "png", "jpg" or "bmp" by its ending in any case, "png" for the standard
/// output, "-". Throws Failure for any other ending.
QString imageFormat(const QString& path);

/// Writes a picture as a file of `format` to `sink`, part by part. `options` are those of PNG; JPEG has
/// quality 100. Throws Failure where there is not enough memory. For any thread.
void encodePicture(const vardeno::testcharttools::PictureRows& picture, const QString& format,
                   const vardeno::testcharttools::PngOptions& options,
                   const vardeno::testcharttools::ByteSink& sink);

/// The same of an image that is there, as the bytes of the file.
QByteArray encodeImage(const QImage& image, const QString& format,
                       const vardeno::testcharttools::PngOptions& options = {});
