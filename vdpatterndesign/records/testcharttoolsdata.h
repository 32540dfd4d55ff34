#pragma once

#include "vdchartcore_export.h"

#include <QColor>
#include <QMetaType>

#include <cstdint>
#include <map>
#include <string>

namespace vardeno::testcharttools {

/// A colour of the chart record: red, green, blue and alpha, each 0 to 255.
struct RgbaColor
{
    std::int32_t red = 0;
    std::int32_t green = 0;
    std::int32_t blue = 0;
    std::int32_t alpha = 255;
};

/// The basic pattern: chessboard, gradient or colour stripes.
struct BasicChartData
{
    std::map<int, QColor> colorStripeColors; ///< by 0-based row of the colour stripe list
    std::map<int, QColor> gradientColors;    ///< by 0-based row of the gradient list
    RgbaColor oddColor = {255, 170, 255, 255};
    RgbaColor evenColor = {85, 170, 255, 255};
    bool chessChecked = true;
    bool colorBarChecked = false;
    bool gradientChecked = false; ///< within the colour bar: the gradient rather than the stripes
};

/// What applies to the whole chart.
struct PublicChartData
{
    int brightness = 100;        ///< percent, 0 to 100
    int resolutionWidth = 1920;  ///< chart pixels, 16 to 32768; to 4320 in the editor
    int resolutionHeight = 1080; ///< chart pixels, 16 to 32768; to 4320 in the editor
    int boxRow = 9;              ///< cabinet rows, 1 to 1000; to 100 in the editor
    int boxCol = 16;             ///< cabinet columns, 1 to 1000; to 100 in the editor
    bool showOutBorder = true;
    int outBorderWidth = 2; ///< chart pixels, 1 to 100
    RgbaColor outBorderColor = {255, 255, 255, 255};
};

/// Circles, diagonals and the label in every cabinet.
struct InLineChartData
{
    bool showCircle = true;
    int circleSize = 540; ///< chart pixels, 1 to 16384
    int circleWidth = 2;  ///< chart pixels, 1 to 100
    RgbaColor circleColor = {0, 255, 0, 255};
    bool showDiagonal = true;
    int diagonalWidth = 10; ///< chart pixels, 1 to 100
    RgbaColor diagonalColor = {0, 255, 0, 255};
    bool showSerialNumber = true;
    int serialSize = 20; ///< font pixel size, 1 to 100
    RgbaColor serialColor = {0, 0, 100, 255};
    bool letterMode = true;
    bool numMode = false;
    bool combinationMode = false;
    int serialPosition = 0; ///< 0 centre, 1 left up and right down, 2 left down and right up
    int serialSort = 0;     ///< 0 to 3: down or up, each with rightwards or leftwards
};

/// The logo: a picture or a text.
struct LogoChartData
{
    bool showLogo = true;
    bool pictureLogo = true;
    bool textLogo = false;
    std::string logoText = "Vardeno RT5 Pro"; ///< UTF-8
    int textSize = 100;                       ///< font pixel size, 0 to 100
    RgbaColor textColor = {0, 0, 100, 255};
    int scale = 100;         ///< percent, 0 to 200
    std::string picturePath; ///< UTF-8; empty for the built-in picture
    int displayPosition = 0; ///< 0 centre, 1 left up, 2 left down, 3 right up, 4 right down
    int offsetX = 0;         ///< chart pixels, 0 to 16384
    int offsetY = 0;         ///< chart pixels, 0 to 16384
    int opacity = 100;       ///< percent, 0 to 100
};

/// The custom text and the information line.
struct SelfChartData
{
    bool showSelfText = true;
    std::string selfText = "www.example.com"; ///< UTF-8
    int selfTextSize = 50;                    ///< font pixel size, 1 to 200
    RgbaColor selfTextColor = {0, 0, 100, 255};
    bool showResolution = true;
    int resolutionTextSize = 50; ///< font pixel size, 1 to 200
    RgbaColor resolutionTextColor = {0, 0, 100, 255};
};

/// A complete chart design: what the host stores and hands back for a later edit. A plain value.
struct TestChartToolsData
{
    BasicChartData basicData;
    PublicChartData publicData;
    InLineChartData inLineData;
    LogoChartData logoData;
    SelfChartData selfData;
};

VDCHARTCORE_EXPORT bool operator==(const RgbaColor& a, const RgbaColor& b);
VDCHARTCORE_EXPORT bool operator==(const BasicChartData& a, const BasicChartData& b);
VDCHARTCORE_EXPORT bool operator==(const PublicChartData& a, const PublicChartData& b);
VDCHARTCORE_EXPORT bool operator==(const InLineChartData& a, const InLineChartData& b);
VDCHARTCORE_EXPORT bool operator==(const LogoChartData& a, const LogoChartData& b);
VDCHARTCORE_EXPORT bool operator==(const SelfChartData& a, const SelfChartData& b);
VDCHARTCORE_EXPORT bool operator==(const TestChartToolsData& a, const TestChartToolsData& b);

inline bool operator!=(const RgbaColor& a, const RgbaColor& b)
{
    return !(a == b);
}

inline bool operator!=(const TestChartToolsData& a, const TestChartToolsData& b)
{
    return !(a == b);
}

/// A colour of the record as a colour of the toolkit. Components outside 0 to 255 are cut to the range.
VDCHARTCORE_EXPORT QColor toQColor(const RgbaColor& color);
VDCHARTCORE_EXPORT RgbaColor toRgbaColor(const QColor& color);

/// How an edit ended.
enum EditType
{
    Cancle = 0,                   ///< cancelled; comes with a default record and no file
    AddConfirm = 1,               ///< a new chart was saved
    ReplaceConfirm = 2,           ///< an existing chart was replaced, the editor closes
    ReplaceConfirmOnlyCancle = 3, ///< confirmed with nothing new to save; comes with no file
    ReplaceApply = 4              ///< an existing chart was replaced, the editor stays open
};

} // namespace vardeno::testcharttools

Q_DECLARE_METATYPE(vardeno::testcharttools::TestChartToolsData)
Q_DECLARE_METATYPE(vardeno::testcharttools::EditType)
