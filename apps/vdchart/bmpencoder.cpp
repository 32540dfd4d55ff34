#include "bmpencoder.h"

#include <QByteArray>
#include <QtEndian>

using namespace vardeno::testcharttools;

namespace {

constexpr quint32 headerBytes = 54;
constexpr quint32 infoBytes = 40;

/// Appends numbers with their low bytes first.
class Header
{
public:
    template <typename Number>
    Header& add(Number value)
    {
        const Number bytes = qToLittleEndian(value);
        m_bytes.append(reinterpret_cast<const char*>(&bytes), int(sizeof(bytes)));
        return *this;
    }
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes = "BM";
};

/// Rows are filled up to a multiple of four bytes.
int rowBytes(int width)
{
    return (width * 3 + 3) / 4 * 4;
}

QByteArray header(const QSize& size)
{
    const auto pixelBytes = quint32(rowBytes(size.width())) * quint32(size.height());
    Header header;
    header.add(headerBytes + pixelBytes).add(quint32(0)).add(headerBytes).add(infoBytes);
    header.add(qint32(size.width())).add(qint32(size.height())).add(quint16(1)).add(quint16(24));
    header.add(quint32(0)).add(pixelBytes).add(qint32(dotsPerMeter)).add(qint32(dotsPerMeter));
    return header.add(quint32(0)).add(quint32(0)).bytes();
}

/// Blue, green and red.
void writeRow(const QImage& pixels, int y, QByteArray& bytes)
{
    const auto* const row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    char* byte = bytes.data();
    for (int x = 0; x < pixels.width(); ++x) {
        *byte++ = char(qBlue(row[x]));
        *byte++ = char(qGreen(row[x]));
        *byte++ = char(qRed(row[x]));
    }
}

} // namespace

void encodeBmp(const PictureRows& picture, const ByteSink& sink)
{
    const QByteArray first = header(picture.size);
    sink(first.constData(), first.size());
    QByteArray row(rowBytes(picture.size.width()), '\0');
    const int height = picture.stripHeight();
    for (int bottom = picture.size.height(); bottom > 0; bottom -= height) {
        const int top = qMax(0, bottom - height);
        const QImage strip = picture.rows(top, bottom - top).convertToFormat(QImage::Format_RGB32);
        for (int y = strip.height() - 1; y >= 0; --y) {
            writeRow(strip, y, row);
            sink(row.constData(), row.size());
        }
    }
}
