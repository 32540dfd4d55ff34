#include "geometry/cabinetlabels.h"

#include <QFontMetrics>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int letterCount = 26;

/// Letters wrap after 26: a second letter would not fit the cell.
QString letterFrom(char first, int index)
{
    return QString(QLatin1Char(char(first + index % letterCount)));
}

/// Letters that count down begin with the last of the alphabet in the first row or column, whatever the
/// count; numbers that count down end with 1 in the last. Both are meant.
QString letterBefore(char last, int index)
{
    return QString(QLatin1Char(char(last - index % letterCount)));
}

QString number(int index, int count, bool descending)
{
    return QString::number(descending ? count - index : index + 1);
}

double divided(int length, ushort count)
{
    return length / (ushort(count - 1) + 1.0);
}

} // namespace

double CabinetGrid::cellHeight() const
{
    return divided(chart.height(), rows);
}

double CabinetGrid::cellWidth() const
{
    return divided(chart.width(), columns);
}

QRect CabinetGrid::cell(int row, int column) const
{
    return {int(column * cellWidth()), int(row * cellHeight()), int(cellWidth()), int(cellHeight())};
}

std::optional<CabinetLabel> cabinetLabel(const LabelStyle& style, int row, int column, int rows, int columns)
{
    if (style.sort > 3)
        return std::nullopt;
    const bool rowDescends = style.sort >= 2;
    const bool columnDescends = style.sort % 2 == 1;
    const auto letter = [](int index, bool descends, char last) {
        return descends ? letterBefore(last, index) : letterFrom('A', index);
    };
    switch (style.mode) {
    case 0:
        return CabinetLabel{letter(row, rowDescends, 'Z'), letter(column, columnDescends, 'Z')};
    case 1:
        return CabinetLabel{number(row, rows, rowDescends), number(column, columns, columnDescends)};
    case 2: // beside a number a letter that counts down is a small one
        return CabinetLabel{letter(row, rowDescends, 'z'), number(column, columns, columnDescends)};
    default:
        return std::nullopt;
    }
}

std::vector<PlacedText> placedLabel(const CabinetLabel& label, uint position, const QRect& cell)
{
    const int w = cell.width() / 2;
    const int h = cell.height() / 2;
    const QRect leftUp(cell.x(), cell.y(), w, h);
    const QRect rightUp(cell.x() + w, cell.y(), w, h);
    const QRect leftDown(cell.x(), cell.y() + h, w, h);
    const QRect rightDown(cell.x() + w, cell.y() + h, w, h);
    switch (position) {
    case 0:
        return {{cell, Qt::AlignCenter, label.row + QLatin1Char('-'), label.column}};
    case 1:
        return {{leftUp, Qt::AlignLeft | Qt::AlignTop, label.row, {}},
                {rightDown, Qt::AlignRight | Qt::AlignBottom, label.column, {}}};
    case 2:
        return {{leftDown, Qt::AlignLeft | Qt::AlignBottom, label.row, {}},
                {rightUp, Qt::AlignRight | Qt::AlignTop, label.column, {}}};
    default:
        return {};
    }
}

int fittedLabelSize(int requested, const QFont& font, const CabinetGrid& grid)
{
    const int heightLimit = int(grid.cellHeight() * 0.51);
    const int widthLimit = int(grid.cellWidth() * 0.5);
    int size = requested;
    while (size > 1) {
        QFont sized = font;
        sized.setPixelSize(size);
        const QFontMetrics metrics(sized);
        const int height = metrics.height();
        const int width = metrics.horizontalAdvance(QStringLiteral("WW"));
        if (height <= heightLimit && width <= widthLimit)
            break;
        // Both grow with the size, but for a pixel of rounding: what is in between cannot fit either.
        const double scale = std::min((heightLimit + 2.0) / std::max(height - 1, 1),
                                      (widthLimit + 2.0) / std::max(width - 1, 1));
        size = std::max(1, std::min(size - 1, int(size * scale) + 1));
    }
    return size;
}

} // namespace vardeno::testcharttools
