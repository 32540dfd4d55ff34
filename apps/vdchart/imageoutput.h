#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// The picture format of a path: "png", "jpg" or "bmp" by its ending in any case, "png" for the standard
/// output,
/// "-". Throws Failure for any other ending.
QString imageFormat(const QString& path);

/// `image` as a file of `format`. `compression` is that of PNG; JPEG has quality 100. Throws Failure where
/// there is not enough memory. For any thread.
QByteArray encodeImage(const QImage& image, const QString& format, int compression);
