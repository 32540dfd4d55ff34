#include "support/pngtexts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <zlib.h>

#include <array>

namespace vardeno::testcharttools {

namespace {

constexpr char startOfPng[] = "\x89PNG\r\n\x1a\n";
constexpr int startSize = 8;
constexpr int chunkHeadSize = 8; ///< its length and its type
constexpr int checksumSize = 4;

/// How many bytes come out of a zlib stream; those beyond `limit` are not looked for.
qint64 inflatedSize(const QByteArray& compressed, qint64 limit)
{
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return 0;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(compressed.constData()));
    stream.avail_in = uInt(compressed.size());
    std::array<Bytef, 65536> part{};
    qint64 size = 0;
    for (int state = Z_OK; state == Z_OK && size <= limit;) {
        stream.next_out = part.data();
        stream.avail_out = uInt(part.size());
        state = inflate(&stream, Z_NO_FLUSH);
        size += qint64(part.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return size;
}

/// What stands behind the keyword of a compressed text, or of another one: there it is none that zlib reads.
QByteArray compressedText(const QByteArray& type, const QByteArray& chunk)
{
    int begin = chunk.indexOf('\0') + 2; // the keyword, and how it is compressed
    if (type == "iTXt")                  // and a flag before that, the language, and the keyword in it
        begin = chunk.indexOf('\0', chunk.indexOf('\0', begin + 1) + 1) + 1;
    return chunk.mid(begin);
}

/// Of a chunk of that type, of which `device` stands before the contents.
qint64 textSize(QIODevice& device, const QByteArray& type, qint64 length, qint64 limit)
{
    if (length > limit || type == "tEXt")
        return length;
    const QByteArray chunk = device.read(length);
    return chunk.size() + inflatedSize(compressedText(type, chunk), limit);
}

qint64 allTextSize(QIODevice& device, qint64 limit)
{
    qint64 size = 0;
    while (size <= limit) {
        const QByteArray head = device.read(chunkHeadSize);
        if (head.size() < chunkHeadSize)
            break;
        const qint64 length = qFromBigEndian<quint32>(head.constData());
        const qint64 next = device.pos() + length + checksumSize;
        const QByteArray type = head.mid(4);
        if (type == "tEXt" || type == "zTXt" || type == "iTXt")
            size += textSize(device, type, length, limit);
        if (next > device.size() || !device.seek(next))
            break;
    }
    return size;
}

} // namespace

bool hasTooMuchText(QIODevice& device)
{
    if (device.isSequential() || device.peek(startSize) != QByteArray(startOfPng, startSize))
        return false;
    const qint64 begin = device.pos();
    const bool isTooMuch = device.seek(begin + startSize) && allTextSize(device, mostPngText) > mostPngText;
    device.seek(begin);
    return isTooMuch;
}

bool hasTooMuchText(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && hasTooMuchText(file);
}

} // namespace vardeno::testcharttools
