#include "testcharttoolsdata.h"

#include <algorithm>
#include <tuple>

namespace vardeno::testcharttools {

namespace {

auto fields(const RgbaColor& c)
{
    return std::tie(c.red, c.green, c.blue, c.alpha);
}

auto fields(const BasicChartData& d)
{
    return std::tie(d.colorStripeColors, d.gradientColors, d.oddColor, d.evenColor, d.chessChecked,
                    d.colorBarChecked, d.gradientChecked);
}

auto fields(const PublicChartData& d)
{
    return std::tie(d.brightness, d.resolutionWidth, d.resolutionHeight, d.boxRow, d.boxCol, d.showOutBorder,
                    d.outBorderWidth, d.outBorderColor);
}

auto fields(const InLineChartData& d)
{
    return std::tie(d.showCircle, d.circleSize, d.circleWidth, d.circleColor, d.showDiagonal, d.diagonalWidth,
                    d.diagonalColor, d.showSerialNumber, d.serialSize, d.serialColor, d.letterMode, d.numMode,
                    d.combinationMode, d.serialPosition, d.serialSort);
}

auto fields(const LogoChartData& d)
{
    return std::tie(d.showLogo, d.pictureLogo, d.textLogo, d.logoText, d.textSize, d.textColor, d.scale,
                    d.picturePath, d.displayPosition, d.offsetX, d.offsetY, d.opacity);
}

auto fields(const SelfChartData& d)
{
    return std::tie(d.showSelfText, d.selfText, d.selfTextSize, d.selfTextColor, d.showResolution,
                    d.resolutionTextSize, d.resolutionTextColor);
}

auto fields(const TestChartToolsData& d)
{
    return std::tie(d.basicData, d.publicData, d.inLineData, d.logoData, d.selfData);
}

} // namespace

bool operator==(const RgbaColor& a, const RgbaColor& b)
{
    return fields(a) == fields(b);
}

bool operator==(const BasicChartData& a, const BasicChartData& b)
{
    return fields(a) == fields(b);
}

bool operator==(const PublicChartData& a, const PublicChartData& b)
{
    return fields(a) == fields(b);
}

bool operator==(const InLineChartData& a, const InLineChartData& b)
{
    return fields(a) == fields(b);
}

bool operator==(const LogoChartData& a, const LogoChartData& b)
{
    return fields(a) == fields(b);
}

bool operator==(const SelfChartData& a, const SelfChartData& b)
{
    return fields(a) == fields(b);
}

bool operator==(const TestChartToolsData& a, const TestChartToolsData& b)
{
    return fields(a) == fields(b);
}

QColor toQColor(const RgbaColor& color)
{
    const auto component = [](std::int32_t value) { return std::clamp(value, 0, 255); };
    return {component(color.red), component(color.green), component(color.blue), component(color.alpha)};
}

RgbaColor toRgbaColor(const QColor& color)
{
    return {color.red(), color.green(), color.blue(), color.alpha()};
}

} // namespace vardeno::testcharttools
