#include "counterpattern.h"

#include "hosttext.h"

#include <QPainter>

#include <algorithm>

namespace {

// In strokes.
constexpr int digitCount = 6;
constexpr int digitWidth = 5;
constexpr int digitHeight = 9;
constexpr int counterGap = 2;
constexpr int boxCount = 10;
constexpr int boxWidth = 3;
constexpr int boxHeight = 3;
constexpr int totalWidth = digitCount * digitWidth + (digitCount - 1) * counterGap;
constexpr int totalHeight = digitHeight + counterGap + boxHeight;
constexpr int counterMargin = 2;

/// The strokes of a digit and where they are.
constexpr QRect strokes[] = {QRect(0, 0, 5, 1), QRect(4, 0, 1, 5), QRect(4, 4, 1, 5), QRect(0, 8, 5, 1),
                             QRect(0, 4, 1, 5), QRect(0, 0, 1, 5), QRect(0, 4, 5, 1)};

/// A bit for each stroke, the first is the lowest.
constexpr int strokesOf[] = {0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};

QString digitsOf(int step)
{
    return QStringLiteral("%1").arg(step, digitCount, 10, QLatin1Char('0'));
}

} // namespace

CounterPattern::CounterPattern(const QSize& chart)
    : m_unit(std::max(1, std::min(chart.width() / (totalWidth + 2 * counterMargin),
                                  chart.height() / (totalHeight + 2 * counterMargin))))
    , m_begin((chart.width() - totalWidth * m_unit) / 2, (chart.height() - totalHeight * m_unit) / 2)
{
}

QRect CounterPattern::digitPlace(int digit) const
{
    return {m_begin + QPoint(digit * (digitWidth + counterGap) * m_unit, 0),
            QSize(digitWidth, digitHeight) * m_unit};
}

QRect CounterPattern::boxPlace(int box) const
{
    const int pitch = (totalWidth - boxWidth) * m_unit / (boxCount - 1);
    return {m_begin + QPoint(box * pitch, (digitHeight + counterGap) * m_unit),
            QSize(boxWidth, boxHeight) * m_unit};
}

void CounterPattern::draw(QPainter& painter, int step, const QRect& place) const
{
    const QString text = digitsOf(step);
    for (int digit = 0; digit < digitCount; ++digit) {
        const QRect cell = digitPlace(digit);
        if (!cell.intersects(place))
            continue;
        const int lit = strokesOf[text.at(digit).digitValue()];
        for (int stroke = 0; stroke < int(std::size(strokes)); ++stroke) {
            const QRect& where = strokes[stroke];
            if (lit & (1 << stroke))
                painter.fillRect(QRect(cell.topLeft() + where.topLeft() * m_unit, where.size() * m_unit),
                                 Qt::white);
        }
    }
    for (int box = 0; box < boxCount; ++box)
        painter.fillRect(boxPlace(box), box == step % boxCount ? QColor(Qt::white) : QColor(48, 48, 48));
}

QRegion CounterPattern::changed(int from, int to) const
{
    QRegion region = QRegion(boxPlace(from % boxCount)) + boxPlace(to % boxCount);
    const QString before = digitsOf(from);
    const QString after = digitsOf(to);
    for (int digit = 0; digit < digitCount; ++digit) {
        if (before.at(digit) != after.at(digit))
            region += digitPlace(digit);
    }
    return region;
}

QString CounterPattern::text(int step) const
{
    return hostText(QStringLiteral("Frame %1")).arg(digitsOf(step));
}
