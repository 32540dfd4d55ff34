#include "pngencoder.h"

#include "pictures/colortable.h"
#include "pictures/pngblock.h"

#include <QtEndian>

#include <zlib.h>

#include <deque>
#include <future>
#include <system_error>

namespace vardeno::testcharttools {

namespace {

constexpr char signature[] = "\x89PNG\r\n\x1a\n";
constexpr char zlibHeader[] = "\x78\x01"; ///< a window of 32 KiB, no dictionary
constexpr char colorsPalette = 3;
constexpr char colorsTrue = 2;

QByteArray bigEndian(quint32 value)
{
    const quint32 bytes = qToBigEndian(value);
    return {reinterpret_cast<const char*>(&bytes), int(sizeof(bytes))};
}

QImage plainRows(const PictureRows& picture, int top, int count)
{
    return picture.rows(top, count).convertToFormat(QImage::Format_RGB32);
}

/// Whether there are at most 256.
bool findColors(const PictureRows& picture, ColorTable& table)
{
    const int height = picture.stripHeight();
    for (int top = 0; top < picture.size.height(); top += height) {
        if (!table.add(plainRows(picture, top, qMin(height, picture.size.height() - top))))
            return false;
    }
    return true;
}

/// One at a time: the chunks of a file.
class PngFile
{
public:
    PngFile(const PictureRows& picture, const PngOptions& options, const ByteSink& sink)
        : m_picture(picture)
        , m_options(options)
        , m_sink(sink)
    {
    }

    void write();

private:
    void writeChunk(const char* name, const QByteArray& data);
    void writeHeader();
    void writePalette();
    void writeText(const PngText& text);
    void writePicture();
    void addBlocks(int top, const QImage& strip);
    void begin(const PngBlock& block);
    void writeFirstPending();

    const PictureRows& m_picture;
    const PngOptions& m_options;
    const ByteSink& m_sink;
    ColorTable m_colors;
    bool m_hasPalette = false;
    QImage m_above; ///< the last row of the strip before
    std::deque<std::future<PngBlock::Deflated>> m_pending;
    bool m_begun = false;
    quint32 m_adler = 1;
};

void PngFile::write()
{
    m_hasPalette = findColors(m_picture, m_colors);
    m_sink(signature, sizeof(signature) - 1);
    writeHeader();
    writeChunk("sRGB", QByteArray(1, '\0')); // perceptual: as pictures are mostly shown
    if (m_hasPalette)
        writePalette();
    writeChunk("pHYs", bigEndian(dotsPerMeter) + bigEndian(dotsPerMeter) + '\1');
    for (const PngText& text : m_options.texts)
        writeText(text);
    writePicture();
    writeChunk("IEND", {});
}

void PngFile::writeChunk(const char* name, const QByteArray& data)
{
    const QByteArray body = name + data;
    const auto* const bytes = reinterpret_cast<const Bytef*>(body.constData());
    const QByteArray chunk =
        bigEndian(quint32(data.size())) + body + bigEndian(quint32(crc32(0, bytes, uInt(body.size()))));
    m_sink(chunk.constData(), chunk.size());
}

void PngFile::writeHeader()
{
    QByteArray header =
        bigEndian(quint32(m_picture.size.width())) + bigEndian(quint32(m_picture.size.height()));
    header += '\x08';
    header += m_hasPalette ? colorsPalette : colorsTrue;
    writeChunk("IHDR", header + QByteArray(3, '\0')); // deflate, the five filters, not interlaced
}

void PngFile::writePalette()
{
    QByteArray entries;
    for (const QRgb color : m_colors.colors()) {
        for (const int channel : {qRed(color), qGreen(color), qBlue(color)})
            entries += char(channel);
    }
    writeChunk("PLTE", entries);
}

/// Compressed, in no language, with no keyword in another one.
void PngFile::writeText(const PngText& text)
{
    constexpr int lengthBytes = 4; // which the toolkit puts before what it compresses
    writeChunk("iTXt",
               text.keyword + QByteArray("\0\1\0\0\0", 5) + qCompress(text.text.toUtf8()).mid(lengthBytes));
}

void PngFile::writePicture()
{
    const int height = m_picture.stripHeight();
    for (int top = 0; top < m_picture.size.height(); top += height)
        addBlocks(top, plainRows(m_picture, top, qMin(height, m_picture.size.height() - top)));
    while (!m_pending.empty())
        writeFirstPending();
}

void PngFile::addBlocks(int top, const QImage& strip)
{
    const int rows = blockHeight(strip.width());
    for (int first = 0; first < strip.height(); first += rows) {
        PngBlock block;
        block.strip = strip;
        block.top = first;
        block.count = qMin(rows, strip.height() - first);
        block.above = m_above;
        block.table = m_hasPalette ? &m_colors : nullptr;
        block.compression = m_options.compression;
        block.isLast = top + first + block.count == m_picture.size.height();
        begin(block);
    }
    m_above = strip.copy(0, strip.height() - 1, strip.width(), 1);
}

/// A block that gets no thread is compressed when its turn to be written comes.
void PngFile::begin(const PngBlock& block)
{
    while (int(m_pending.size()) >= qMax(1, m_options.threads))
        writeFirstPending();
    const auto work = [block] { return block.deflated(); };
    try {
        m_pending.push_back(
            std::async(m_options.threads > 1 ? std::launch::async : std::launch::deferred, work));
    } catch (const std::system_error&) {
        m_pending.push_back(std::async(std::launch::deferred, work));
    }
}

/// Blocks are parts of one stream: the first has its header before it, the last its checksum behind it.
void PngFile::writeFirstPending()
{
    const PngBlock::Deflated block = m_pending.front().get();
    m_pending.pop_front();
    m_adler = quint32(adler32_combine(m_adler, block.adler, z_off_t(block.length)));
    QByteArray data = m_begun ? QByteArray() : QByteArray(zlibHeader);
    m_begun = true;
    data += block.bytes;
    if (block.isLast)
        data += bigEndian(m_adler);
    writeChunk("IDAT", data);
}

} // namespace

void encodePng(const PictureRows& picture, const PngOptions& options, const ByteSink& sink)
{
    PngFile(picture, options, sink).write();
}

QByteArray encodePng(const QImage& image, const PngOptions& options)
{
    QByteArray file;
    if (image.isNull())
        return file;
    encodePng(rowsOf(image), options,
              [&file](const char* bytes, qint64 count) { file.append(bytes, int(count)); });
    return file;
}

} // namespace vardeno::testcharttools
