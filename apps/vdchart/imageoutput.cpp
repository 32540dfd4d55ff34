#include "imageoutput.h"

#include "bmpencoder.h"
#include "exitcode.h"
#include "jpegencoder.h"

#include <QFileInfo>

#include <new>

using namespace vardeno::testcharttools;

QString imageFormat(const QString& path)
{
    if (path == QLatin1String("-"))
        return QStringLiteral("png");
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QLatin1String("jpeg"))
        return QStringLiteral("jpg");
    for (const char* known : {"png", "jpg", "bmp"}) {
        if (ending == QLatin1String(known))
            return ending;
    }
    throw Failure{ExitCode::Usage, QStringLiteral("%1: the ending is none of .png, .jpg and .bmp").arg(path)};
}

void encodePicture(const PictureRows& picture, const QString& format, const PngOptions& options,
                   const ByteSink& sink)
{
    try {
        if (format == QLatin1String("png"))
            encodePng(picture, options, sink);
        else if (format == QLatin1String("jpg"))
            encodeJpeg(picture, sink);
        else
            encodeBmp(picture, sink);
    } catch (const std::bad_alloc&) {
        throw Failure{ExitCode::NotWritten, QStringLiteral("not enough memory for the picture")};
    }
}

QByteArray encodeImage(const QImage& image, const QString& format, const PngOptions& options)
{
    QByteArray file;
    encodePicture(rowsOf(image), format, options,
                  [&file](const char* bytes, qint64 count) { file.append(bytes, int(count)); });
    return file;
}
