#include "placedpart.h"
#include "require.h"
#include "showfile.h"

#include <QtGlobal>

#include <cstdint>

using namespace vardeno::walls;

namespace {

/// What is placed has a wall and an output, and its corners come back from where they are put.
void checkPlacements(const ShowDocument& show)
{
    for (const WallPlacement& placement : show.placements.list) {
        require(findWall(show, placement.wall) >= 0, "a placement has a wall");
        require(findOutput(show, placement.output) >= 0, "a placement has an output");
        const PlacedPart part(placement, QSize(1920, 1080));
        require(part.toOutput(part.part()) == part.placed(), "the part lies where it is placed");
        for (const QPoint& corner : {part.part().topLeft(), part.part().bottomRight()})
            require(part.toWall(part.toOutput(corner)) == corner, "a pixel is shown where it is looked for");
    }
    for (int wall = 0; wall < int(show.walls.list.size()); ++wall)
        require(colorOf(show, wall).isValid(), "each wall has a color");
}

} // namespace

/// A document that reads well stays itself when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto reading = ShowFile::fromJson(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    if (!reading.problems.isEmpty())
        return 0;
    const QByteArray written = ShowFile::toJson(reading.show, reading.document);
    const auto again = ShowFile::fromJson(written);
    require(again.problems.isEmpty(), "what is written reads well");
    require(ShowFile::toJson(again.show, again.document) == written, "the document is the same");
    require(ShowFile::toJson(again.show) == ShowFile::toJson(reading.show), "the show is the same");
    checkPlacements(reading.show);
    return 0;
}
