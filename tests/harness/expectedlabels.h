#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QRect>
#include <QString>

/// The labels of a cabinet grid as they are expected, worked out without the library.
struct ExpectedLabels
{
    QSize chart;
    int rows = 9;
    int columns = 16;
    uint mode = 0;
    uint sort = 0;
    uint position = 0;
    int pixelSize = 15;
    QColor color = Qt::black;

    QString rowPart(int row) const
    {
        static const QString letters[3][2] = {
            {QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), QStringLiteral("ZYXWVUTSRQPONMLKJIHGFEDCBA")},
            {QString(), QString()},
            {QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), QStringLiteral("zyxwvutsrqponmlkjihgfedcba")}};
        const bool fromBelow = sort == 2 || sort == 3;
        if (mode == 1)
            return QString::number(fromBelow ? rows - row : row + 1);
        return letters[mode][fromBelow].mid(row % 26, 1);
    }

    QString columnPart(int column) const
    {
        const bool fromTheRight = sort == 1 || sort == 3;
        if (mode != 0)
            return QString::number(fromTheRight ? columns - column : column + 1);
        const QString letters = fromTheRight ? QStringLiteral("ZYXWVUTSRQPONMLKJIHGFEDCBA")
                                             : QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        return letters.mid(column % 26, 1);
    }

    QRect cell(int row, int column) const
    {
        const double width = double(chart.width()) / columns;
        const double height = double(chart.height()) / rows;
        return {int(column * width), int(row * height), int(width), int(height)};
    }

    void drawCell(QPainter& painter, int row, int column) const
    {
        const QRect box = cell(row, column);
        const QSize half = QSize(box.width() / 2, box.height() / 2);
        const QPoint right(half.width(), 0);
        const QPoint down(0, half.height());
        if (position == 0)
            painter.drawText(box, Qt::AlignCenter, rowPart(row) + QLatin1Char('-') + columnPart(column));
        if (position == 1) {
            painter.drawText(QRect(box.topLeft(), half), Qt::AlignLeft | Qt::AlignTop, rowPart(row));
            painter.drawText(QRect(box.topLeft() + right + down, half), Qt::AlignRight | Qt::AlignBottom,
                             columnPart(column));
        }
        if (position == 2) {
            painter.drawText(QRect(box.topLeft() + down, half), Qt::AlignLeft | Qt::AlignBottom,
                             rowPart(row));
            painter.drawText(QRect(box.topLeft() + right, half), Qt::AlignRight | Qt::AlignTop,
                             columnPart(column));
        }
    }

    void draw(QPainter& painter) const
    {
        QFont font = painter.font();
        font.setPixelSize(pixelSize);
        painter.setFont(font);
        painter.setPen(color);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column)
                drawCell(painter, row, column);
        }
    }
};

/// The size that is left of `requested` after stepping down until two letters fit the limits, at least 1.
inline int expectedLabelSize(int requested, const QSize& limits)
{
    QFont font;
    for (int size = requested; size > 1; --size) {
        font.setPixelSize(size);
        const QFontMetrics metrics(font);
        if (metrics.height() <= limits.height() &&
            metrics.horizontalAdvance(QStringLiteral("WW")) <= limits.width())
            return size;
    }
    return 1;
}
