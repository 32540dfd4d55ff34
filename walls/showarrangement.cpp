#include "showarrangement.h"

#include "rectpacking.h"

#include <algorithm>

namespace vardeno::walls::ShowArrangement {

namespace {

constexpr int mostOutputs = 256; // of a document
constexpr int mostPlacements = 1000;

struct Piece
{
    std::size_t wall;
    QRect part;
    bool isWhole;
};

QSize sizeOf(const WallDocument& wall)
{
    return {wall.columnWidths.total(), wall.rowHeights.total()};
}

bool fitsIn(const QSize& size, const QSize& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/// [first, end) of each stretch of at most `most` pixels.
std::vector<std::pair<int, int>> stretches(const CabinetSizes& sizes, int most)
{
    std::vector<std::pair<int, int>> cut;
    int begin = 0;
    int end = 0;
    for (const int pixels : sizes.pixels) {
        if (end > begin && end + pixels - begin > most) {
            cut.emplace_back(begin, end);
            begin = end;
        }
        end += pixels;
        for (; end - begin > most; begin += most)
            cut.emplace_back(begin, begin + most);
    }
    if (end > begin)
        cut.emplace_back(begin, end);
    return cut;
}

/// A free name, counted on from that of the last output: "out2" behind "out1".
std::string nextName(const ShowDocument& show)
{
    std::string stem = show.outputs.list.back().name;
    while (!stem.empty() && stem.back() >= '0' && stem.back() <= '9')
        stem.pop_back();
    for (std::size_t number = show.outputs.list.size() + 1;; ++number) {
        std::string name = stem + std::to_string(number);
        if (findOutput(show, name) < 0)
            return name;
    }
}

void addOutputsUntil(ShowDocument& show, int output)
{
    while (int(show.outputs.list.size()) <= output) {
        ShowOutput next = show.outputs.list.back();
        next.name = nextName(show);
        show.outputs.list.push_back(next);
    }
}

std::vector<Piece> piecesOf(const std::vector<WallDocument>& walls, const std::vector<QSize>& outputs,
                            bool mayTurn)
{
    const QSize largest =
        *std::max_element(outputs.begin(), outputs.end(), [](const QSize& a, const QSize& b) {
            return qint64(a.width()) * a.height() < qint64(b.width()) * b.height();
        });
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < walls.size(); ++i) {
        const QSize size = sizeOf(walls[i]);
        const bool isWhole = std::any_of(outputs.begin(), outputs.end(), [&](const QSize& output) {
            return fitsIn(size, output) || (mayTurn && fitsIn(size.transposed(), output));
        });
        if (isWhole) {
            pieces.push_back({i, QRect(QPoint(), size), true});
            continue;
        }
        for (const QRect& part : partsWithin(walls[i], largest))
            pieces.push_back({i, part, false});
    }
    return pieces;
}

std::vector<QSize> roomFor(const ShowDocument& show, std::size_t pieces)
{
    std::vector<QSize> outputs;
    for (const ShowOutput& output : show.outputs.list)
        outputs.push_back(output.size());
    outputs.resize(std::min<std::size_t>(outputs.size() + pieces, mostOutputs), outputs.back());
    return outputs;
}

} // namespace

std::vector<QRect> partsWithin(const WallDocument& wall, const QSize& most)
{
    std::vector<QRect> parts;
    for (const auto& [top, bottom] : stretches(wall.rowHeights, most.height())) {
        for (const auto& [left, right] : stretches(wall.columnWidths, most.width()))
            parts.emplace_back(left, top, right - left, bottom - top);
    }
    return parts;
}

void placeSideBySide(ShowDocument& show, const std::vector<WallDocument>& walls)
{
    show.placements.list.clear();
    for (std::size_t i = 0; i < walls.size(); ++i) {
        addOutputsUntil(show, int(i));
        WallPlacement placement;
        placement.wall = show.walls.list[i].name;
        placement.output = show.outputs.list[i].name;
        show.placements.list.push_back(placement);
    }
}

QString autoPack(ShowDocument& show, const std::vector<WallDocument>& walls, bool mayTurn)
{
    const std::vector<Piece> pieces = piecesOf(walls, roomFor(show, 0), mayTurn);
    if (pieces.size() > mostPlacements)
        return QStringLiteral("%1 parts of walls are more than %2").arg(pieces.size()).arg(mostPlacements);
    std::vector<QSize> sizes;
    for (const Piece& piece : pieces)
        sizes.push_back(piece.part.size());
    const std::vector<PackedRect> packed = packRects(sizes, roomFor(show, pieces.size()), mayTurn);
    show.placements.list.clear();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const std::string& name = show.walls.list[pieces[i].wall].name;
        if (packed[i].bin < 0)
            return QStringLiteral("there is no room for wall \"%1\"").arg(QString::fromStdString(name));
        addOutputsUntil(show, packed[i].bin);
        WallPlacement placement;
        placement.wall = name;
        placement.output = show.outputs.list[std::size_t(packed[i].bin)].name;
        placement.x = packed[i].rect.x();
        placement.y = packed[i].rect.y();
        placement.turned.degrees = packed[i].turned ? 90 : 0;
        placement.part.rect = pieces[i].isWhole ? QRect() : pieces[i].part;
        show.placements.list.push_back(placement);
    }
    return {};
}

} // namespace vardeno::walls::ShowArrangement
