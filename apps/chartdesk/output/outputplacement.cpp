#include "outputplacement.h"

#include "hosttext.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// How far `inner` stands out of `outer` at each side.
QMargins excess(const QRect& inner, const QRect& outer)
{
    return {std::clamp(outer.left() - inner.left(), 0, inner.width()),
            std::clamp(outer.top() - inner.top(), 0, inner.height()),
            std::clamp(inner.right() - outer.right(), 0, inner.width()),
            std::clamp(inner.bottom() - outer.bottom(), 0, inner.height())};
}

QString sides(const QMargins& margins)
{
    QStringList parts;
    const auto add = [&](int pixels, const QString& side) {
        if (pixels > 0)
            parts.append(side.arg(pixels));
    };
    add(margins.left(), hostText(QStringLiteral("%1 left")));
    add(margins.top(), hostText(QStringLiteral("%1 above")));
    add(margins.right(), hostText(QStringLiteral("%1 right")));
    add(margins.bottom(), hostText(QStringLiteral("%1 below")));
    return parts.join(QStringLiteral(", "));
}

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

QRect OutputPlacement::shown() const
{
    return QRect(at, chart) & QRect(QPoint(), display);
}

PlacementDifference OutputPlacement::difference() const
{
    const QRect wall(at, chart);
    const QRect screen(QPoint(), display);
    return {excess(wall, screen), excess(screen, wall)};
}

QPoint placeFrom(const QString& text, bool* isValid)
{
    static const QRegularExpression place(QStringLiteral("^(-?[0-9]{1,6}),(-?[0-9]{1,6})$"));
    const QRegularExpressionMatch match = place.match(text);
    *isValid = match.hasMatch();
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

QString differenceText(const OutputPlacement& placement)
{
    const PlacementDifference difference = placement.difference();
    if (difference.isNone())
        return {};
    QStringList sentences = {hostText(QStringLiteral("The chart has %1 pixels, the display %2."))
                                 .arg(sizeText(placement.chart), sizeText(placement.display))};
    if (placement.shown().isEmpty())
        sentences.append(hostText(QStringLiteral("Nothing of the chart is on the display.")));
    else if (!difference.cut.isNull())
        sentences.append(hostText(QStringLiteral("Pixels cut off: %1.")).arg(sides(difference.cut)));
    if (!placement.shown().isEmpty() && !difference.black.isNull())
        sentences.append(
            hostText(QStringLiteral("Pixels that stay black: %1.")).arg(sides(difference.black)));
    return sentences.join(QLatin1Char(' '));
}
