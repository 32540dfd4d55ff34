#include "imageoutput.h"

#include "exitcode.h"
#include "pngencoder.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

#include <cstdio>

namespace {

constexpr int quality = 100;

Failure notWritten(const QString& name, const QString& reason)
{
    return {ExitCode::NotWritten, QStringLiteral("%1: %2").arg(name, reason)};
}

/// The toolkit does not know every reason.
QString reasonOf(const QFileDevice& file)
{
    return file.error() == QFileDevice::NoError || file.errorString() == QLatin1String("Unknown error")
               ? QStringLiteral("the disk is full, or files may not be that large")
               : file.errorString();
}

/// Pipes and devices take their bytes as they come.
void writeDirectly(QFile& file, bool open, const QString& name, const QByteArray& bytes)
{
    if (!open || file.write(bytes) != bytes.size() || !file.flush())
        throw notWritten(name, reasonOf(file));
}

/// A `commit` alone reports success when there is no room for the last kilobytes.
void writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        throw notWritten(path, reasonOf(file));
}

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

bool wouldWriteOver(const QString& output, const QString& input)
{
    const QFileInfo info(output);
    return output != QLatin1String("-") && info.isFile() && info == QFileInfo(input);
}

void writeOutput(const QString& path, const QByteArray& bytes)
{
    const QFileInfo info(path);
    if (path == QLatin1String("-")) {
        QFile output;
        writeDirectly(output, output.open(stdout, QIODevice::WriteOnly), QStringLiteral("standard output"),
                      bytes);
    } else if (info.exists() && !info.isFile() && !info.isDir()) {
        QFile output(path);
        writeDirectly(output, output.open(QIODevice::WriteOnly), path, bytes);
    } else {
        writeWhole(path, bytes);
    }
}
