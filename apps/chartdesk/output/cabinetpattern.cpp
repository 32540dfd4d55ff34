#include "cabinetpattern.h"

#include "hosttext.h"

#include <chartcabinets.h>

#include <QPainter>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr QColor highlightTint(255, 220, 0, 150);

/// Up to the next cabinet, or the edge of the chart: where cabinets do not divide it, what the library tells
/// of them is cut to whole pixels, and some would be no cabinet's.
QRect wholeCabinet(const TestChartToolsData& record, int row, int column)
{
    const auto& wall = record.publicData;
    const QPoint begin = ChartCabinets::rect(record, row, column).topLeft();
    const QPoint below = ChartCabinets::rect(record, row + 1, column).topLeft();
    const QPoint beside = ChartCabinets::rect(record, row, column + 1).topLeft();
    const int right = column + 1 < wall.boxCol ? beside.x() : wall.resolutionWidth;
    const int bottom = row + 1 < wall.boxRow ? below.y() : wall.resolutionHeight;
    return {begin, QPoint(right - 1, bottom - 1)};
}

/// A frame of `width` pixels, within `place`, sharp to the pixel.
void drawFrame(QPainter& painter, const QRect& place, int width, const QColor& color)
{
    for (const QRect& side : QRegion(place) - QRegion(place.adjusted(width, width, -width, -width)))
        painter.fillRect(side, color);
}

} // namespace

CabinetPattern::CabinetPattern(const TestChartToolsData& record, CabinetLook look, const WalkPath& path)
    : m_look(look)
{
    if (look == CabinetLook::Row)
        addRows(record);
    else if (look == CabinetLook::Column)
        addColumns(record);
    else
        addCabinets(record, walkOrder(record.publicData.boxRow, record.publicData.boxCol,
                                      record.inLineData.serialSort, path));
}

CabinetPattern::CabinetPattern(const TestChartToolsData& record, const std::vector<CabinetPlace>& cabinets)
    : m_look(CabinetLook::Highlight)
{
    addCabinets(record, cabinets);
}

void CabinetPattern::addCabinets(const TestChartToolsData& record, const std::vector<CabinetPlace>& cabinets)
{
    for (const CabinetPlace& cabinet : cabinets)
        m_steps.push_back({wholeCabinet(record, cabinet.row, cabinet.column),
                           ChartCabinets::label(record, cabinet.row, cabinet.column)});
}

void CabinetPattern::addRows(const TestChartToolsData& record)
{
    const auto& wall = record.publicData;
    for (const int row : lineOrder(wall.boxRow, countsFromBottom(record.inLineData.serialSort))) {
        const QRect place = wholeCabinet(record, row, 0) | wholeCabinet(record, row, wall.boxCol - 1);
        m_steps.push_back({place, ChartCabinets::label(record, row, 0).section(QLatin1Char('-'), 0, 0)});
    }
}

void CabinetPattern::addColumns(const TestChartToolsData& record)
{
    const auto& wall = record.publicData;
    for (const int column : lineOrder(wall.boxCol, countsFromRight(record.inLineData.serialSort))) {
        const QRect place = wholeCabinet(record, 0, column) | wholeCabinet(record, wall.boxRow - 1, column);
        m_steps.push_back({place, ChartCabinets::label(record, 0, column).section(QLatin1Char('-'), 1)});
    }
}

QRegion CabinetPattern::chartPart(int step, const QRect& chart) const
{
    return m_look == CabinetLook::Highlight ? chart : place(step);
}

void CabinetPattern::draw(QPainter& painter, int step, const QRect&) const
{
    const QRect cabinet = place(step);
    if (m_look != CabinetLook::Highlight) {
        drawFrame(painter, cabinet, 1, Qt::white); // a cabinet of a black chart is seen, too
        return;
    }
    const int width = std::max(1, std::min(cabinet.width(), cabinet.height()) / 24);
    painter.fillRect(cabinet, highlightTint);
    drawFrame(painter, cabinet, 2 * width, Qt::black);
    drawFrame(painter, cabinet, width, Qt::white);
}

QRegion CabinetPattern::changed(int from, int to) const
{
    return QRegion(place(from)) + place(to);
}

QString CabinetPattern::text(int step) const
{
    const QString what = m_look == CabinetLook::Row      ? hostText(QStringLiteral("Row %1 (%2 of %3)"))
                         : m_look == CabinetLook::Column ? hostText(QStringLiteral("Column %1 (%2 of %3)"))
                                                         : hostText(QStringLiteral("Cabinet %1 (%2 of %3)"));
    return what.arg(label(step)).arg(step + 1).arg(steps());
}
