#include "pictures/pngblock.h"

#include "pictures/colortable.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

namespace vardeno::testcharttools {

namespace {

constexpr uchar filterNone = 0;
constexpr uchar filterUp = 2;

/// Run lengths alone need fewest bits where hardly anything but runs is left, so much on the average.
constexpr qint64 longRun = 128;

/// From this level on zlib finds the same runs without being told to look for nothing else.
constexpr int thoroughLevel = 4;

using Bytes = std::vector<uchar>;

/// The rows as PNG has them, with the byte that names the filter before each.
class FilteredRows
{
public:
    explicit FilteredRows(const PngBlock& block);

    const Bytes& bytes() const { return m_bytes; }
    bool hasLongRuns() const { return m_changes * longRun < qint64(m_bytes.size()); }

private:
    const QRgb* row(int y) const;
    void addRow(int y);
    void addFiltered();
    void toSamples(const QRgb* pixels, Bytes& samples) const;
    static qint64 changes(const Bytes& bytes);

    const PngBlock& m_block;
    const int m_width;
    Bytes m_bytes;
    Bytes m_samples; ///< of the row
    Bytes m_above;   ///< of the one above
    Bytes m_differences;
    qint64 m_changes = 0; ///< bytes that are not the same as the one before
};

FilteredRows::FilteredRows(const PngBlock& block)
    : m_block(block)
    , m_width(block.strip.width())
{
    const auto rowBytes = std::size_t(m_width) * (block.table ? 1 : 3);
    m_samples.resize(rowBytes);
    m_above.resize(rowBytes);
    m_differences.resize(rowBytes);
    m_bytes.reserve((rowBytes + 1) * std::size_t(block.count));
    if (const QRgb* const above = row(-1))
        toSamples(above, m_above);
    for (int y = 0; y < block.count; ++y)
        addRow(y);
}

/// Of the block; the row -1 is that above it, or null.
const QRgb* FilteredRows::row(int y) const
{
    const int inStrip = m_block.top + y;
    if (inStrip < 0 && m_block.above.isNull())
        return nullptr;
    return reinterpret_cast<const QRgb*>(inStrip < 0 ? m_block.above.constScanLine(0)
                                                     : m_block.strip.constScanLine(inStrip));
}

void FilteredRows::addRow(int y)
{
    const QRgb* const pixels = row(y);
    const QRgb* const above = row(y - 1);
    if (above && std::equal(pixels, pixels + m_width, above)) {
        m_bytes.push_back(filterUp);
        m_bytes.insert(m_bytes.end(), m_samples.size(), 0);
        return;
    }
    toSamples(pixels, m_samples);
    addFiltered();
    m_above.swap(m_samples);
}

/// The filter that leaves the longer runs.
void FilteredRows::addFiltered()
{
    std::transform(m_samples.begin(), m_samples.end(), m_above.begin(), m_differences.begin(),
                   [](uchar sample, uchar above) { return uchar(sample - above); });
    const qint64 plain = changes(m_samples);
    const qint64 up = changes(m_differences);
    const Bytes& chosen = plain < up ? m_samples : m_differences;
    m_bytes.push_back(plain < up ? filterNone : filterUp);
    m_bytes.insert(m_bytes.end(), chosen.begin(), chosen.end());
    m_changes += std::min(plain, up);
}

void FilteredRows::toSamples(const QRgb* pixels, Bytes& samples) const
{
    uchar* sample = samples.data();
    if (!m_block.table) {
        for (int x = 0; x < m_width; ++x) {
            *sample++ = uchar(qRed(pixels[x]));
            *sample++ = uchar(qGreen(pixels[x]));
            *sample++ = uchar(qBlue(pixels[x]));
        }
        return;
    }
    for (int x = 0; x < m_width; ++x) {
        const bool repeats = x > 0 && pixels[x] == pixels[x - 1];
        sample[x] = repeats ? sample[x - 1] : m_block.table->indexOf(pixels[x]);
    }
}

/// Bytes that differ from the one before, summed up in bytes themselves, for the compiler to do many at once.
qint64 FilteredRows::changes(const Bytes& bytes)
{
    qint64 count = 0;
    constexpr std::size_t atOnce = 255;
    for (std::size_t i = 1; i < bytes.size(); i += atOnce) {
        uchar changed = 0;
        const uchar* const from = &bytes[i];
        for (std::size_t j = 0, end = std::min(atOnce, bytes.size() - i); j < end; ++j)
            changed = uchar(changed + (from[j] != from[int(j) - 1] ? 1 : 0));
        count += changed;
    }
    return count;
}

/// Without a header of its own.
QByteArray deflateRaw(const Bytes& bytes, int level, int strategy, bool isLast)
{
    z_stream stream{};
    constexpr int rawWindow = -15;
    if (deflateInit2(&stream, level, Z_DEFLATED, rawWindow, MAX_MEM_LEVEL, strategy) != Z_OK)
        throw std::bad_alloc();
    QByteArray deflated;
    try {
        constexpr int flushBytes = 16; // more than an empty block and its alignment
        deflated.resize(int(deflateBound(&stream, uLong(bytes.size()))) + flushBytes);
    } catch (...) {
        deflateEnd(&stream);
        throw;
    }
    stream.next_in = const_cast<Bytef*>(bytes.data());
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(deflated.data());
    stream.avail_out = uInt(deflated.size());
    deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    deflated.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return deflated;
}

} // namespace

PngBlock::Deflated PngBlock::deflated() const
{
    const FilteredRows rows(*this);
    const bool runs = compression < thoroughLevel && rows.hasLongRuns();
    const Bytes& bytes = rows.bytes();
    return {deflateRaw(bytes, compression, runs ? Z_RLE : Z_DEFAULT_STRATEGY, isLast), isLast,
            quint32(adler32(1, bytes.data(), uInt(bytes.size()))), qint64(bytes.size())};
}

} // namespace vardeno::testcharttools
