#include "geometry/cabinetmarkers.h"

#include "geometry/markercodes.h"
#include "geometry/recordcabinets.h"
#include "geometry/recordink.h"
#include "geometry/textfont.h"
#include "testcharttoolsdata.h"

#include <QFontMetrics>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int quietModules = 1; ///< white around the black square
constexpr int leastModule = 2;  ///< pixels: one for a bit is lost in the first picture that is scaled
constexpr int modulesInAll = markerModules + 2 * quietModules;
constexpr int leastGap = 2;     ///< pixels that edges and labels keep around them
constexpr int largestShare = 2; ///< a marker takes one in so many of the cabinet's side

/// Grows with the marker.
int gapOf(int module)
{
    return std::max(leastGap, module / 2);
}

/// What is left of the cabinet's height.
QRect freeBand(const QRect& cell, const LabelRoom& labels)
{
    if (labels.height <= 0)
        return cell;
    if (labels.position == 0)
        return cell.adjusted(0, 0, 0, -(cell.height() + labels.height + 1) / 2);
    return cell.adjusted(0, labels.height, 0, -labels.height);
}

int moduleIn(const QSize& room, const QSize& cell)
{
    const int side = std::min(room.width(), room.height());
    int module = std::min(cell.width(), cell.height()) / largestShare / modulesInAll;
    while (module > 0 && modulesInAll * module + 2 * gapOf(module) > side)
        --module;
    return module < leastModule ? 0 : module;
}

} // namespace

bool isMarkerWhite(int marker, int row, int column)
{
    constexpr int side = markerModules - 2; // without the black border
    if (marker < 0 || marker >= markerCount || row < 1 || row > side || column < 1 || column > side)
        return false;
    const int bit = (row - 1) * side + column - 1;
    return (markerCodes[std::size_t(marker)] >> (side * side - 1 - bit)) & 1U;
}

int markerOf(int cabinet)
{
    const int step = cabinet / markerCount % (markerCount - 1) + 1;
    return cabinet % markerCount * step % markerCount;
}

QRect markerSquare(const QRect& cell, const LabelRoom& labels)
{
    const QRect band = freeBand(cell, labels);
    const int module = moduleIn(band.size(), cell.size());
    const QSize size = QSize(markerModules, markerModules) * module;
    return {band.x() + (band.width() - size.width()) / 2, band.y() + (band.height() - size.height()) / 2,
            size.width(), size.height()};
}

int leastMarkerRoom()
{
    return modulesInAll * leastModule + 2 * gapOf(leastModule);
}

int labelLineHeight(int pixelSize)
{
    QFont font = textFont();
    font.setPixelSize(std::max(1, pixelSize));
    return QFontMetrics(font).height();
}

LabelRoom labelRoom(const TestChartToolsData& record, int pixelSize)
{
    const InLineChartData& lines = record.inLineData;
    return {lines.showSerialNumber ? labelLineHeight(pixelSize) : 0, lines.serialPosition};
}

std::vector<CabinetMarker> cabinetMarkers(const TestChartToolsData& record)
{
    const CabinetGrid grid = cabinetGrid(record.publicData);
    const LabelRoom labels = labelRoom(record, fittedLabelSize(record));
    std::vector<CabinetMarker> markers;
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const QRect square = markerSquare(grid.cell(row, column), labels);
            if (square.isEmpty())
                return {};
            markers.push_back({markerOf(int(markers.size())), square});
        }
    }
    return markers;
}

} // namespace vardeno::testcharttools
