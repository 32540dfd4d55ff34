#include "showpicture.h"

#include "layers/largechart.h"
#include "placedpart.h"
#include "wallpicture.h"

#include <QCache>
#include <QMutex>

#include <algorithm>
#include <cstring>
#include <map>

namespace vardeno::walls {

namespace {

constexpr int keptKibibytes = 256 * 1024; ///< of small walls, which are drawn whole

/// Each channel of `image` becomes the mean of itself and the colour's, by percent, rounded to the nearest.
void mixColor(QImage& image, const QColor& color, int percent)
{
    const auto mixed = [percent](int own, int other) {
        return (own * (100 - percent) + other * percent + 50) / 100;
    };
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [&](QRgb pixel) {
            return qRgb(mixed(qRed(pixel), color.red()), mixed(qGreen(pixel), color.green()),
                        mixed(qBlue(pixel), color.blue()));
        });
    }
}

void copyTo(QImage& target, const QPoint& at, const QImage& source)
{
    for (int y = 0; y < source.height(); ++y)
        std::memcpy(reinterpret_cast<QRgb*>(target.scanLine(at.y() + y)) + at.x(), source.constScanLine(y),
                    std::size_t(source.width()) * sizeof(QRgb));
}

} // namespace

class ShowPicture::Impl
{
public:
    Impl(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls, int output,
         const testcharttools::ChartCaptions& captions);

    bool drawRows(QImage& rows, int top) const;

    QSize size;

private:
    struct Placed
    {
        int wall;
        PlacedPart part;
        QColor color; ///< invalid for none
    };
    bool draw(const Placed& placed, QImage& rows, int top) const;
    QImage wallArea(int wall, const QRect& area) const;

    std::map<int, WallPicture> m_walls; ///< those that lie on the output
    std::vector<Placed> m_placed;
    int m_percent;
    mutable QMutex m_lock; ///< of what is kept
    mutable QCache<int, QImage> m_kept{keptKibibytes};
};

ShowPicture::Impl::Impl(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls, int output,
                        const testcharttools::ChartCaptions& captions)
    : size(show.outputs.list[std::size_t(output)].size())
    , m_percent(show.layers.colorPercent)
{
    for (const WallPlacement& placement : show.placements.list) {
        if (findOutput(show, placement.output) != output)
            continue;
        const int wall = findWall(show, placement.wall);
        const ShowFile::PlacedWall& placed = walls[std::size_t(wall)];
        const WallPicture& picture = m_walls
                                         .try_emplace(wall, placed.wall, placed.record, captions,
                                                      WallFile::markersOf(placed.wall, placed.recordFile))
                                         .first->second;
        m_placed.push_back({wall, PlacedPart(placement, picture.size()),
                            show.layers.wallColors ? colorOf(show, wall) : QColor()});
    }
}

bool ShowPicture::Impl::drawRows(QImage& rows, int top) const
{
    rows.fill(Qt::black);
    return std::all_of(m_placed.begin(), m_placed.end(),
                       [&](const Placed& placed) { return draw(placed, rows, top); });
}

/// Only what is to be seen of it in these rows.
bool ShowPicture::Impl::draw(const Placed& placed, QImage& rows, int top) const
{
    const QRect seen = placed.part.placed() & QRect(0, top, rows.width(), rows.height());
    const QRect area =
        placed.part.toWall(seen) & QRect(QPoint(), m_walls.at(placed.wall).size()) & placed.part.part();
    if (area.isEmpty())
        return true;
    const QImage drawn = wallArea(placed.wall, area);
    QImage picture = placed.part.turned(drawn);
    if (picture.isNull())
        return false;
    if (placed.color.isValid())
        mixColor(picture, placed.color, m_percent);
    copyTo(rows, placed.part.toOutput(area).topLeft() - QPoint(0, top), picture);
    return true;
}

/// A small wall is drawn whole, and so it is kept for the rows to come.
QImage ShowPicture::Impl::wallArea(int wall, const QRect& area) const
{
    const WallPicture& picture = m_walls.at(wall);
    if (picture.isDrawnInParts())
        return picture.area(area);
    {
        const QMutexLocker lock(&m_lock);
        if (const QImage* kept = m_kept.object(wall))
            return kept->copy(area);
    }
    const QImage whole = picture.image();
    const QMutexLocker lock(&m_lock);
    m_kept.insert(wall, new QImage(whole), int(whole.sizeInBytes() / 1024));
    return whole.copy(area);
}

ShowPicture::ShowPicture(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls, int output,
                         const testcharttools::ChartCaptions& captions)
    : d(std::make_shared<Impl>(show, walls, output, captions))
{
}

ShowPicture::ShowPicture(const ShowPicture& other) = default;
ShowPicture& ShowPicture::operator=(const ShowPicture& other) = default;
ShowPicture::~ShowPicture() = default;

QSize ShowPicture::size() const
{
    return d->size;
}

bool ShowPicture::isDrawnInParts() const
{
    return !testcharttools::isDrawnWhole(d->size);
}

QImage ShowPicture::image() const
{
    return rows(0, d->size.height());
}

QImage ShowPicture::rows(int top, int count) const
{
    QImage rows(d->size.width(), count, QImage::Format_RGB32);
    if (rows.isNull() || !d->drawRows(rows, top))
        return {};
    return rows;
}

testcharttools::PictureRows ShowPicture::strips() const
{
    return testcharttools::inStrips(
        size(), [picture = *this](int top, int count) { return picture.rows(top, count); });
}

} // namespace vardeno::walls
