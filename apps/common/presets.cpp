#include "presets.h"

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr RgbaColor black = {0, 0, 0, 255};
constexpr int tagLabelShare = 6; ///< of a cabinet's smaller side, beside a marker
constexpr RgbaColor white = {255, 255, 255, 255};
constexpr RgbaColor dark = {24, 24, 24, 255};
constexpr RgbaColor lighter = {56, 56, 56, 255};

void applyWall(TestChartToolsData& record, const Preset& preset)
{
    record.publicData.resolutionWidth = preset.resolution.width();
    record.publicData.resolutionHeight = preset.resolution.height();
    record.publicData.boxCol = preset.cabinets.width();
    record.publicData.boxRow = preset.cabinets.height();
}

/// Nothing but the base pattern.
void hideLayers(TestChartToolsData& record)
{
    record.publicData.brightness = 100;
    record.publicData.showOutBorder = false;
    record.inLineData.showCircle = false;
    record.inLineData.showDiagonal = false;
    record.inLineData.showSerialNumber = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
}

/// The chessboard of two colours; a flood where they are the same.
void applyChess(TestChartToolsData& record, const Preset& preset)
{
    hideLayers(record);
    record.basicData.chessChecked = true;
    record.basicData.colorBarChecked = false;
    record.basicData.oddColor = preset.colors.front();
    record.basicData.evenColor = preset.colors.back();
}

/// How many stripes of one width fill `width` pixels so that bars, each of some of them, are as wide as one
/// another but for an eighth.
int stripesFor(int bars, int width)
{
    if (width % bars == 0)
        return bars;
    int stripes = std::min(8 * bars, width);
    while (width % stripes != 0)
        ++stripes;
    return stripes;
}

void showBars(TestChartToolsData& record, const std::vector<RgbaColor>& colors)
{
    hideLayers(record);
    record.basicData.chessChecked = false;
    record.basicData.colorBarChecked = true;
    record.basicData.gradientChecked = false;
    record.basicData.colorStripeColors.clear();
    for (const RgbaColor& color : colors)
        record.basicData.colorStripeColors[int(record.basicData.colorStripeColors.size())] = toQColor(color);
}

/// From edge to edge: what a division leaves would stay black.
void applyBars(TestChartToolsData& record, const Preset& preset)
{
    const std::size_t bars = preset.colors.size();
    const auto stripes = std::size_t(stripesFor(int(bars), record.publicData.resolutionWidth));
    std::vector<RgbaColor> colors;
    for (std::size_t stripe = 0; stripe < stripes; ++stripe)
        colors.push_back(preset.colors[stripe * bars / stripes]);
    showBars(record, colors);
}

void applyGradient(TestChartToolsData& record, const Preset& preset)
{
    showBars(record, preset.colors);
    record.basicData.gradientChecked = true;
}

/// Numbers in every cabinet, on dark cabinets that can be told apart.
void applyNumbering(TestChartToolsData& record, const Preset& preset)
{
    applyChess(record, preset);
    InLineChartData& labels = record.inLineData;
    labels.showSerialNumber = true;
    labels.serialColor = white;
    labels.serialSize = 100;
    labels.letterMode = false;
    labels.numMode = true;
    labels.combinationMode = false;
    labels.serialPosition = 0;
    labels.serialSort = preset.sort;
}

/// The same, with the numbers in the corners: the markers get the middle.
void applyTags(TestChartToolsData& record, const Preset& preset)
{
    applyNumbering(record, preset);
    const PublicChartData& wall = record.publicData;
    const int side = std::min(wall.resolutionWidth / wall.boxCol, wall.resolutionHeight / wall.boxRow);
    record.inLineData.serialSize = std::clamp(side / tagLabelShare, 1, 100);
    record.inLineData.serialPosition = 1;
}

/// From black to white in equal steps of the signal.
std::vector<RgbaColor> greys(int steps)
{
    std::vector<RgbaColor> colors;
    for (int step = 0; step < steps; ++step) {
        const int level = (step * 255 + (steps - 1) / 2) / (steps - 1);
        colors.push_back({level, level, level, 255});
    }
    return colors;
}

/// 100/0/75/0 in the nomenclature of ITU-R BT.471: full white, the colours at three quarters.
std::vector<RgbaColor> barColors()
{
    constexpr int level = 191;
    return {white,
            {level, level, 0, 255},
            {0, level, level, 255},
            {0, level, 0, 255},
            {level, 0, level, 255},
            {level, 0, 0, 255},
            {0, 0, level, 255},
            black};
}

Preset wall(const char* name, const QSize& resolution, const QSize& cabinets, const char* remark = "")
{
    const QString description = QStringLiteral("%1 x %2, %3 x %4 cabinets of %5 x %6%7")
                                    .arg(resolution.width())
                                    .arg(resolution.height())
                                    .arg(cabinets.width())
                                    .arg(cabinets.height())
                                    .arg(resolution.width() / cabinets.width())
                                    .arg(resolution.height() / cabinets.height())
                                    .arg(QLatin1String(remark));
    return {QLatin1String(name), description, &applyWall, resolution, cabinets, {}};
}

Preset flood(const char* name, const RgbaColor& color)
{
    return {QStringLiteral("flood-") + QLatin1String(name),
            QStringLiteral("Everything in %1").arg(QLatin1String(name)),
            &applyChess,
            {},
            {},
            {color}};
}

Preset picture(const char* name, const char* description, decltype(Preset::apply) apply,
               std::vector<RgbaColor> colors)
{
    return {QLatin1String(name), QLatin1String(description), apply, {}, {}, std::move(colors)};
}

/// `sort` is as in the record.
Preset numbering(const char* corner, const char* description, int sort)
{
    return {QStringLiteral("numbering-") + QLatin1String(corner),
            QLatin1String(description),
            &applyNumbering,
            {},
            {},
            {dark, lighter},
            sort};
}

Preset tags()
{
    Preset preset =
        picture("tags", "Cabinet numbers, and a marker in every cabinet that photographs are read by",
                &applyTags, {dark, lighter});
    preset.markers.showMarkers = true;
    return preset;
}

std::vector<Preset> walls()
{
    return {
        wall("1080p", {1920, 1080}, {16, 9}),
        wall("1080p-384x216", {1920, 1080}, {5, 5}),
        wall("1080p-480x270", {1920, 1080}, {4, 4}),
        wall("uhd", {3840, 2160}, {16, 9}, ", 4K UHD"),
        wall("uhd-384x216", {3840, 2160}, {10, 10}, ", 4K UHD"),
        wall("uhd-480x270", {3840, 2160}, {8, 8}, ", 4K UHD"),
        wall("dci-2k", {2048, 1080}, {16, 9}, ", DCI 2K"),
        wall("dci-4k", {4096, 2160}, {16, 9}, ", DCI 4K"),
        wall("square-4320", {4320, 4320}, {24, 24}, ", the largest chart"),
        wall("portrait-1080p", {1080, 1920}, {9, 16}),
        wall("portrait-uhd", {2160, 3840}, {9, 16}),
        wall("stage-128", {1920, 1152}, {15, 9}, ", as at 3.9 mm pitch"),
        wall("stage-168", {2016, 1176}, {12, 7}, ", as at 2.97 mm pitch"),
        wall("stage-192", {1920, 1152}, {10, 6}, ", as at 2.6 mm pitch"),
        wall("banner-128x256", {3840, 512}, {30, 2}, ", tall cabinets"),
    };
}

std::vector<Preset> pictures()
{
    return {
        flood("red", {255, 0, 0, 255}),
        flood("green", {0, 255, 0, 255}),
        flood("blue", {0, 0, 255, 255}),
        flood("white", white),
        flood("black", black),
        flood("grey", {128, 128, 128, 255}),
        picture("ramp-8", "Grey from black to white in 8 steps", &applyBars, greys(8)),
        picture("ramp-16", "Grey from black to white in 16 steps", &applyBars, greys(16)),
        picture("ramp-smooth", "Grey from black to white without steps", &applyGradient, {black, white}),
        picture("bars", "Colour bars in the order of EBU bars, 100/0/75/0", &applyBars, barColors()),
        picture("chess", "Every other cabinet white, the others black", &applyChess, {white, black}),
        numbering("top-left", "Cabinet numbers counted from the top left", 0),
        numbering("top-right", "Cabinet numbers counted from the top right", 1),
        numbering("bottom-left", "Cabinet numbers counted from the bottom left", 2),
        numbering("bottom-right", "Cabinet numbers counted from the bottom right", 3),
        tags(),
    };
}

std::vector<Preset> all()
{
    std::vector<Preset> both = walls();
    for (const Preset& preset : pictures())
        both.push_back(preset);
    return both;
}

} // namespace

const std::vector<Preset>& presets()
{
    static const std::vector<Preset> both = all();
    return both;
}

const Preset* findPreset(const QString& name)
{
    const auto found = std::find_if(presets().begin(), presets().end(),
                                    [&name](const Preset& preset) { return preset.name == name; });
    return found == presets().end() ? nullptr : &*found;
}
