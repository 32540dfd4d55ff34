#include "imageoutput.h"

#include "exitcode.h"
#include "pngencoder.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

namespace {

constexpr int quality = 100;

} // namespace

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

QByteArray encodeImage(const QImage& image, const QString& format, int compression)
{
    QByteArray bytes;
    if (format == QLatin1String("png")) {
        bytes = encodePng(image, compression);
    } else {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, format.toLatin1());
        writer.setQuality(quality);
        if (!writer.write(image))
            bytes.clear();
    }
    if (bytes.isEmpty())
        throw Failure{ExitCode::NotWritten, QStringLiteral("not enough memory for the picture")};
    return bytes;
}
