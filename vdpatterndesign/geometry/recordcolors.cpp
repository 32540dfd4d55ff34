#include "geometry/recordcolors.h"

#include "chartcabinets.h"

#include <QRect>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace vardeno::testcharttools {

namespace {

constexpr int leastDifference = 16; ///< of 255 levels, in the color that differs most

int mixed(int from, int to, double share)
{
    return int(from + (to - from) * share);
}

QColor mixed(const QColor& from, const QColor& to, double share)
{
    return {mixed(from.red(), to.red(), share), mixed(from.green(), to.green(), share),
            mixed(from.blue(), to.blue(), share)};
}

/// As it is on the black that lies below everything.
QColor opaque(const QColor& color)
{
    return mixed(Qt::black, color, color.alphaF());
}

int difference(const QColor& a, const QColor& b)
{
    return std::max(
        {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

std::vector<QColor> barColors(const BasicChartData& data)
{
    std::vector<QColor> colors;
    for (const auto& [row, color] : data.colorStripeColors)
        colors.push_back(opaque(color));
    return colors;
}

QColor stripeAt(const std::vector<QColor>& colors, int x, int width)
{
    const std::size_t stripe = std::size_t(width) / colors.size();
    const std::size_t index = stripe == 0 ? colors.size() : std::size_t(x) / stripe;
    return index < colors.size() ? colors[index] : QColor(Qt::black);
}

QColor gradientAt(const std::vector<QColor>& colors, int x, int width)
{
    if (colors.size() == 1)
        return colors.front();
    const double place = double(colors.size() - 1) * x / width;
    const std::size_t left = std::min(std::size_t(place), colors.size() - 2);
    return mixed(colors[left], colors[left + 1], place - double(left));
}

QColor chessAt(const BasicChartData& data, int row, int column)
{
    return opaque(toQColor((row + column) % 2 == 0 ? data.oddColor : data.evenColor));
}

/// The pattern of a record, at hand for every cabinet.
class Pattern
{
public:
    explicit Pattern(const TestChartToolsData& record)
        : m_record(record)
        , m_bar(record.basicData.colorBarChecked ? barColors(record.basicData) : std::vector<QColor>())
    {
    }

    QColor at(int row, int column) const
    {
        const BasicChartData& data = m_record.basicData;
        if (!data.colorBarChecked)
            return chessAt(data, row, column);
        if (m_bar.empty())
            return Qt::black;
        const int x = ChartCabinets::rect(m_record, row, column).center().x();
        const int width = m_record.publicData.resolutionWidth;
        return data.gradientChecked ? gradientAt(m_bar, x, width) : stripeAt(m_bar, x, width);
    }

private:
    const TestChartToolsData& m_record;
    std::vector<QColor> m_bar;
};

} // namespace

QColor cabinetColor(const TestChartToolsData& record, int row, int column)
{
    return Pattern(record).at(row, column);
}

bool hasPlainChess(const BasicChartData& data)
{
    return !data.colorBarChecked && chessAt(data, 0, 0) == chessAt(data, 0, 1);
}

HiddenLabels hiddenLabels(const TestChartToolsData& record)
{
    const Pattern pattern(record);
    const QColor color = toQColor(record.inLineData.serialColor);
    HiddenLabels hidden;
    for (int row = 0; row < record.publicData.boxRow; ++row) {
        for (int column = 0; column < record.publicData.boxCol; ++column) {
            const QColor cabinet = pattern.at(row, column);
            if (difference(mixed(cabinet, color, color.alphaF()), cabinet) >= leastDifference)
                continue;
            if (hidden.count++ == 0)
                hidden.first = ChartCabinets::label(record, row, column);
        }
    }
    return hidden;
}

} // namespace vardeno::testcharttools
