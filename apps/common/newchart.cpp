#include "newchart.h"

#include <chartcheck.h>
#include <chartink.h>

#include <QRect>
#include <QtGlobal>

#include <algorithm>
#include <string>

using namespace vardeno::testcharttools;

namespace {

constexpr double usualSide = 1080; ///< of the chart that the default sizes are made for
constexpr int letters = 26;        ///< labels of more cabinets would not be unique
constexpr int cabinetShare = 6;    ///< of a cabinet's side, for a label
constexpr int largestLabel = 100;
constexpr int largestText = 200;
constexpr int smallestLogo = 16;       ///< chart pixels
const std::string glyphs = "ÄÇgjpqy|"; ///< as high and as low as texts go

int shortSide(const PublicChartData& wall)
{
    return std::min(wall.resolutionWidth, wall.resolutionHeight);
}

int scaled(const PublicChartData& wall, int usual, int least, int most)
{
    return std::clamp(qRound(usual * shortSide(wall) / usualSide), least, most);
}

void fitLines(TestChartToolsData& record)
{
    const PublicChartData wall = record.publicData;
    record.publicData.outBorderWidth = scaled(wall, wall.outBorderWidth, 1, 100);
    record.inLineData.circleSize = shortSide(wall) / 2;
    record.inLineData.circleWidth = scaled(wall, record.inLineData.circleWidth, 1, 100);
    record.inLineData.diagonalWidth = scaled(wall, record.inLineData.diagonalWidth, 1, 100);
}

void fitLabels(TestChartToolsData& record)
{
    const PublicChartData& wall = record.publicData;
    InLineChartData& labels = record.inLineData;
    const int side = std::min(wall.resolutionWidth / wall.boxCol, wall.resolutionHeight / wall.boxRow);
    labels.serialSize = std::clamp(side / cabinetShare, ChartCheck::readableTextSize, largestLabel);
    labels.letterMode = wall.boxCol <= letters && wall.boxRow <= letters;
    labels.numMode = !labels.letterMode;
    labels.showSerialNumber = ChartInk::labelSize(record) >= ChartCheck::readableTextSize;
}

/// The strip across the chart that a text of that size has to itself, with a little room.
QRect strip(TestChartToolsData record, int size)
{
    const PublicChartData& wall = record.publicData;
    record.selfData.selfText = glyphs;
    record.selfData.selfTextSize = size;
    const QRect ink = ChartInk::customText(record);
    const int room = scaled(wall, 4, 1, 16);
    return {0, ink.top() - room, wall.resolutionWidth, ink.height() + 2 * room};
}

/// The information line is a sixth of the chart below the custom text.
QRect informationStrip(const TestChartToolsData& record, int size)
{
    return strip(record, size).translated(0, record.publicData.resolutionHeight / 6);
}

/// The largest size, down to that of the labels, that covers no label; 0 where there is none.
template <typename StripOf>
int fittedSize(const TestChartToolsData& record, StripOf stripOf)
{
    const int usual = scaled(record.publicData, 50, ChartCheck::readableTextSize, largestText);
    const int least = std::min(usual, record.inLineData.serialSize);
    for (int size = usual; size >= least; --size) {
        if (!ChartInk::coversLabels(record, stripOf(record, size)))
            return size;
    }
    return 0;
}

/// One way to place the labels, and the sizes of the texts that go with it.
struct Arrangement
{
    int position = 0;
    int customText = 0;
    int information = 0;

    /// The line with the resolution tells something of every wall.
    int worth() const { return (information > 0 ? 2 : 0) + (customText > 0 ? 1 : 0); }
};

Arrangement arrangementOf(TestChartToolsData record, int position)
{
    record.inLineData.serialPosition = position;
    return {position, fittedSize(record, &strip), fittedSize(record, &informationStrip)};
}

void fitTexts(TestChartToolsData& record)
{
    Arrangement best;
    for (const int position : {0, 1, 2}) {
        const Arrangement other = arrangementOf(record, position);
        if (other.worth() > best.worth())
            best = other;
    }
    record.inLineData.serialPosition = best.position;
    record.selfData.showSelfText = best.customText > 0;
    record.selfData.showResolution = best.information > 0;
    if (best.customText > 0)
        record.selfData.selfTextSize = best.customText;
    if (best.information > 0)
        record.selfData.resolutionTextSize = best.information;
}

bool coversAnything(const TestChartToolsData& record, const QRect& area)
{
    const SelfChartData& texts = record.selfData;
    return ChartInk::coversLabels(record, area) ||
           (texts.showSelfText && strip(record, texts.selfTextSize).intersects(area)) ||
           (texts.showResolution && informationStrip(record, texts.resolutionTextSize).intersects(area));
}

/// Moves the logo down from the chart's centre to where it covers nothing. Returns whether there is room.
bool placeLogo(TestChartToolsData& record)
{
    const PublicChartData& wall = record.publicData;
    record.logoData.offsetY = 0;
    const QRect ink = ChartInk::logo(record);
    const int step = std::max(1, wall.resolutionHeight / wall.boxRow / 8);
    const int room = scaled(wall, 4, 1, 16);
    for (int down = 0; ink.bottom() + down < wall.resolutionHeight; down += step) {
        if (coversAnything(record, ink.translated(0, down).adjusted(-room, -room, room, room)))
            continue;
        record.logoData.offsetY = down;
        return true;
    }
    return false;
}

void fitLogo(TestChartToolsData& record)
{
    constexpr double smaller = 0.9;
    double scale = scaled(record.publicData, 100, 1, 200);
    for (;; scale *= smaller) {
        record.logoData.scale = int(scale);
        if (record.logoData.scale == 0 || ChartInk::logo(record).height() < smallestLogo) {
            record.logoData.showLogo = false;
            record.logoData.scale = 100;
            return;
        }
        if (placeLogo(record))
            return;
    }
}

/// A small chart has too little width for a text.
void leaveOutWhatIsWarnedOf(TestChartToolsData& record)
{
    for (const QString& warning : ChartCheck::warnings(record)) {
        if (warning.startsWith(QLatin1String("selfData.selfText")))
            record.selfData.showSelfText = false;
        if (warning.startsWith(QLatin1String("selfData.resolution")))
            record.selfData.showResolution = false;
    }
}

} // namespace

TestChartToolsData newChart(const PublicChartData& wall)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = wall.resolutionWidth;
    record.publicData.resolutionHeight = wall.resolutionHeight;
    record.publicData.boxRow = wall.boxRow;
    record.publicData.boxCol = wall.boxCol;
    fitLines(record);
    fitLabels(record);
    fitTexts(record);
    fitLogo(record);
    leaveOutWhatIsWarnedOf(record);
    return record;
}
