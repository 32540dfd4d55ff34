#include "showcheck.h"

#include "placedpart.h"
#include "records/recordvalues.h"
#include "wallcheck.h"

#include <QRegion>

#include <numeric>

namespace vardeno::walls::ShowCheck {

using testcharttools::recordvalues::elided;

namespace {

constexpr int mostOfAKind = 20;

/// What is looked at, computed once.
struct ShowLook
{
    struct Item
    {
        int wall;
        int output;
        PlacedPart part;
    };

    ShowLook(const ShowDocument& document, const std::vector<ShowFile::PlacedWall>& placedWalls)
        : show(document)
        , walls(placedWalls)
    {
        for (const ShowFile::PlacedWall& placed : walls)
            sizes.emplace_back(placed.wall.columnWidths.total(), placed.wall.rowHeights.total());
        for (const WallPlacement& placement : show.placements.list) {
            const int wall = findWall(show, placement.wall);
            items.push_back(
                {wall, findOutput(show, placement.output), PlacedPart(placement, sizes[std::size_t(wall)])});
        }
    }

    QString wallName(int wall) const
    {
        return QStringLiteral("wall \"%1\"")
            .arg(elided(QString::fromStdString(show.walls.list[std::size_t(wall)].name)));
    }

    const ShowOutput& output(int number) const { return show.outputs.list[std::size_t(number)]; }

    QString outputName(int number) const
    {
        return QStringLiteral("output \"%1\"").arg(elided(QString::fromStdString(output(number).name)));
    }

    const ShowDocument& show;
    const std::vector<ShowFile::PlacedWall>& walls;
    std::vector<QSize> sizes; ///< of the walls
    std::vector<Item> items;  ///< one for each placement
};

QString placementName(std::size_t index)
{
    return QStringLiteral("(placement %1)").arg(index + 1);
}

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QStringList firstOf(QStringList warnings)
{
    if (const int more = int(warnings.size()) - mostOfAKind; more > 0) {
        warnings = warnings.mid(0, mostOfAKind);
        warnings.append(QStringLiteral("show.placements: %1 more of this kind").arg(more));
    }
    return warnings;
}

/// How many pixels lie beyond each side: "120 pixels right and 80 below".
QString beyond(const QRect& placed, const QSize& output)
{
    QStringList sides;
    const auto add = [&sides](int pixels, const char* side) {
        if (pixels > 0)
            sides.append(QStringLiteral("%1 %2").arg(pixels).arg(QLatin1String(side)));
    };
    add(-placed.left(), "left");
    add(-placed.top(), "above");
    add(placed.right() + 1 - output.width(), "right");
    add(placed.bottom() + 1 - output.height(), "below");
    return sides.join(QStringLiteral(", "));
}

QStringList outsideWarnings(const ShowLook& look)
{
    QStringList warnings;
    for (std::size_t i = 0; i < look.items.size(); ++i) {
        const ShowLook::Item& item = look.items[i];
        const QRect placed = item.part.placed();
        const QSize output = look.output(item.output).size();
        const QString where = beyond(placed, output);
        if (where.isEmpty())
            continue;
        const bool isLost = !placed.intersects(QRect(QPoint(), output));
        warnings.append(
            QStringLiteral("show.placements: %1 %2 at %3, %4 is %5 pixels large and lies %6 %7, which "
                           "is %8: pixels beyond it: %9")
                .arg(placementName(i), look.wallName(item.wall))
                .arg(placed.x())
                .arg(placed.y())
                .arg(sizeText(placed.size()), QLatin1String(isLost ? "outside of" : "partly outside of"),
                     look.outputName(item.output), sizeText(output), where));
    }
    return firstOf(warnings);
}

QStringList overlapWarnings(const ShowLook& look)
{
    QStringList warnings;
    for (std::size_t i = 0; i < look.items.size(); ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            const ShowLook::Item& item = look.items[i];
            const QRect output(QPoint(), look.output(item.output).size());
            const QRect both = item.part.placed() & look.items[other].part.placed() & output;
            if (item.output == look.items[other].output && !both.isEmpty())
                warnings.append(
                    QStringLiteral("show.placements: %1 and %2 overlap on %3: %4 pixels at %5, %6")
                        .arg(placementName(i), placementName(other), look.outputName(item.output),
                             sizeText(both.size()))
                        .arg(both.x())
                        .arg(both.y()));
        }
    }
    return firstOf(warnings);
}

QStringList partWarnings(const ShowLook& look)
{
    QStringList warnings;
    for (std::size_t i = 0; i < look.items.size(); ++i) {
        const ShowLook::Item& item = look.items[i];
        const QRect part = item.part.part();
        const QSize wall = look.sizes[std::size_t(item.wall)];
        if (!QRect(QPoint(), wall).contains(part))
            warnings.append(
                QStringLiteral("show.placements: %1 the part of %2 pixels at %3, %4 lies partly outside "
                               "of %5, which is %6")
                    .arg(placementName(i), sizeText(part.size()))
                    .arg(part.x())
                    .arg(part.y())
                    .arg(look.wallName(item.wall), sizeText(wall)));
    }
    return firstOf(warnings);
}

/// Which output shows which pixel, whatever lies over it there.
QStringList unseenWarnings(const ShowLook& look)
{
    std::vector<QRegion> seen(look.sizes.size());
    for (const ShowLook::Item& item : look.items) {
        const QRect visible = item.part.placed() & QRect(QPoint(), look.output(item.output).size());
        seen[std::size_t(item.wall)] += item.part.toWall(visible);
    }
    QStringList warnings;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const QRegion wall(QRect(QPoint(), look.sizes[i]));
        const QRegion unseen = wall - seen[i];
        const qint64 pixels =
            std::accumulate(unseen.begin(), unseen.end(), qint64(0), [](qint64 sum, const QRect& rect) {
                return sum + qint64(rect.width()) * rect.height();
            });
        if (unseen == wall)
            warnings.append(QStringLiteral("show.walls: %1 lies on no output").arg(look.wallName(int(i))));
        else if (pixels > 0)
            warnings.append(QStringLiteral("show.walls: %1: %2 of its %3 pixels lie on no output")
                                .arg(look.wallName(int(i)))
                                .arg(pixels)
                                .arg(qint64(look.sizes[i].width()) * look.sizes[i].height()));
    }
    return warnings;
}

/// Ports are reckoned for the rate that they are fed with.
QStringList rateWarnings(const ShowLook& look)
{
    QStringList warnings;
    for (std::size_t i = 0; i < look.items.size(); ++i) {
        const ShowLook::Item& item = look.items[i];
        const int rate = look.output(item.output).frameRate;
        const int wired = look.walls[std::size_t(item.wall)].wall.data.frameRate;
        if (rate > wired)
            warnings.append(QStringLiteral("show.placements: %1 %2 is wired for %3 Hz, %4 has %5 Hz")
                                .arg(placementName(i), look.wallName(item.wall))
                                .arg(wired)
                                .arg(look.outputName(item.output))
                                .arg(rate));
    }
    return firstOf(warnings);
}

QStringList warningsOfWalls(const ShowLook& look)
{
    QStringList warnings;
    for (std::size_t i = 0; i < look.walls.size(); ++i) {
        const ShowFile::PlacedWall& wall = look.walls[i];
        const QString place = QStringLiteral("show.walls: (wall %1) %2: ")
                                  .arg(i + 1)
                                  .arg(elided(QString::fromStdString(look.show.walls.list[i].path)));
        for (const QString& warning : WallCheck::warnings(wall.wall, {wall.record, {}, {}, wall.recordFile}))
            warnings.append(place + warning);
    }
    return warnings;
}

} // namespace

QStringList warnings(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls)
{
    const ShowLook look(show, walls);
    return outsideWarnings(look) + overlapWarnings(look) + partWarnings(look) + unseenWarnings(look) +
           rateWarnings(look) + warningsOfWalls(look);
}

} // namespace vardeno::walls::ShowCheck
