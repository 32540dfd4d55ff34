#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QtEndian>

/// A chunk of a PNG file.
inline QByteArray pngChunk(const QByteArray& type, const QByteArray& contents)
{
    const QByteArray checked = type + contents;
    quint32 crc = 0xffffffffU;
    for (const char byte : checked) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) ? 0xedb88320U : 0);
    }
    QByteArray chunk(8, '\0');
    qToBigEndian(quint32(contents.size()), chunk.data());
    qToBigEndian(~crc, chunk.data() + 4);
    return chunk.left(4) + checked + chunk.mid(4);
}

/// As PNG has it, without the length that Qt puts before it.
inline QByteArray zlibStream(const QByteArray& bytes)
{
    return qCompress(bytes, 9).mid(4);
}

/// A red picture of 4 x 4 pixels with `chunks` behind its header.
inline QByteArray pngWith(const QByteArray& chunks)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    constexpr int behindHeader = 8 + 25;
    return png.insert(behindHeader, chunks);
}

/// Such a picture of which a few kilobytes are 12 MB of text.
inline QByteArray pngBomb()
{
    const QByteArray text = zlibStream(QByteArray(6000000, ' '));
    return pngWith(pngChunk("zTXt", QByteArray("a\0\0", 3) + text) +
                   pngChunk("zTXt", QByteArray("b\0\0", 3) + text));
}
