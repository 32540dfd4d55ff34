#include "finding.h"

#include "thresholds.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>

/// All words of the comparison.
namespace ChartComparison {

QString colorName(QRgb color)
{
    return QStringLiteral("#%1").arg(color & 0xffffffU, 6, 16, QLatin1Char('0'));
}

QString turnText(Turn turn)
{
    switch (turn) {
    case Turn::Mirrored:
        return QStringLiteral("mirrored left to right");
    case Turn::Flipped:
        return QStringLiteral("mirrored top to bottom");
    case Turn::Half:
        return QStringLiteral("turned by 180 degrees");
    case Turn::Right:
        return QStringLiteral("turned by 90 degrees to the right");
    case Turn::Left:
        return QStringLiteral("turned by 90 degrees to the left");
    case Turn::Transposed:
        return QStringLiteral("mirrored left to right and turned by 90 degrees to the left");
    default:
        return QStringLiteral("mirrored left to right and turned by 90 degrees to the right");
    }
}

namespace {

const std::array<const char*, 3> channelNames = {"red", "green", "blue"};

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString sizesText(const SizeChange& sizes)
{
    return QStringLiteral("%1 instead of %2 pixels").arg(sizeText(sizes.actual), sizeText(sizes.expected));
}

/// Labels that are not unique are told with their place.
QString name(const CabinetPlace& cabinet)
{
    return cabinet.isUnique ? cabinet.label
                            : QStringLiteral("%1 (row %2, column %3)")
                                  .arg(cabinet.label)
                                  .arg(cabinet.row + 1)
                                  .arg(cabinet.column + 1);
}

/// The first names, and `rest` where there are more, with their number for "%1".
QString listed(const std::vector<CabinetPlace>& cabinets, const QString& rest)
{
    QStringList names;
    for (std::size_t i = 0; i < cabinets.size() && i < std::size_t(Thresholds::mostListed); ++i)
        names << name(cabinets[i]);
    const int more = int(cabinets.size()) - names.size();
    const QString all = names.join(QLatin1String(", "));
    if (more == 0)
        return all;
    return all + (rest.contains(QLatin1String("%1")) ? rest.arg(more) : rest);
}

QString percent(double factor)
{
    return QString::number(factor * 100, 'f', 0);
}

QString ambiguous(bool isAmbiguous)
{
    return isAmbiguous ? QStringLiteral(" (other places fit as well)") : QString();
}

/// "10 on the left, 5 at the bottom".
QString marginsText(const QMargins& margins)
{
    QStringList parts;
    const auto add = [&](int pixels, const char* where) {
        if (pixels > 0)
            parts << QStringLiteral("%1 %2").arg(pixels).arg(QLatin1String(where));
    };
    add(margins.left(), "on the left");
    add(margins.right(), "on the right");
    add(margins.top(), "at the top");
    add(margins.bottom(), "at the bottom");
    return parts.join(QLatin1String(", "));
}

QString moveText(const QPoint& by)
{
    QStringList parts;
    const auto add = [&](int move, const char* forwards, const char* backwards) {
        const QString unit = std::abs(move) == 1 ? QStringLiteral("pixel") : QStringLiteral("pixels");
        if (move != 0)
            parts << QStringLiteral("%1 %2 %3")
                         .arg(std::abs(move))
                         .arg(unit, QLatin1String(move > 0 ? forwards : backwards));
    };
    add(by.x(), "to the right", "to the left");
    add(by.y(), "down", "up");
    return parts.join(QLatin1String(" and "));
}

QString factorsText(double x, double y)
{
    const auto text = [](double factor) { return QString::number(factor * 100, 'g', 4); };
    return text(x) == text(y) ? QStringLiteral("to %1 percent").arg(text(x))
                              : QStringLiteral("to %1 x %2 percent").arg(text(x), text(y));
}

QString exchangedChannels(const std::array<int, 3>& sources)
{
    QStringList moved;
    for (std::size_t i = 0; i < 3; ++i) {
        if (sources[i] != int(i))
            moved << QLatin1String(channelNames[i]);
    }
    if (moved.size() == 2)
        return QStringLiteral("%1 are swapped").arg(moved.join(QLatin1String(" and ")));
    return sources[1] == 0 ? QStringLiteral("red shows as green, green as blue and blue as red")
                           : QStringLiteral("red shows as blue, green as red and blue as green");
}

QString missingChannels(const std::array<double, 3>& factors)
{
    QStringList missing;
    for (std::size_t i = 0; i < 3; ++i) {
        if (factors[i] == 0)
            missing << QLatin1String(channelNames[i]);
    }
    return QStringLiteral("%1 %2 missing")
        .arg(missing.join(QLatin1String(" and ")),
             missing.size() > 1 ? QStringLiteral("are") : QStringLiteral("is"));
}

QString exchangedColors(const std::vector<ColorPair>& pairs)
{
    QStringList changes;
    for (std::size_t i = 0; i < pairs.size() && i < std::size_t(Thresholds::mostColorsNamed); ++i)
        changes << QStringLiteral("%1 shows as %2").arg(colorName(pairs[i].from), colorName(pairs[i].to));
    const int more = int(pairs.size()) - changes.size();
    const QString text = changes.join(QLatin1String(", "));
    return more > 0 ? text + QStringLiteral(", \u2026 and %1 more colors").arg(more) : text;
}

QString gammaText(double gamma)
{
    return QStringLiteral("middle tones %1, as by a gamma of %2")
        .arg(gamma > 1 ? QStringLiteral("darker") : QStringLiteral("lighter"))
        .arg(gamma, 0, 'f', 2);
}

QString firstText(const DifferingPixel& first)
{
    return QStringLiteral("first (%1, %2) is %3 instead of %4")
        .arg(first.at.x())
        .arg(first.at.y())
        .arg(colorName(first.actual), colorName(first.expected));
}

/// Puts the details of a finding into words.
struct Words
{
    const Finding& finding;

    QString cabinet(std::size_t index) const { return name(finding.cabinets[index]); }

    QString operator()(std::monostate) const { return QStringLiteral("there is no picture"); }

    QString operator()(const SingleColor& single) const
    {
        const QString text = QStringLiteral("all of the picture is %1").arg(colorName(single.color));
        return single.sizes.actual == single.sizes.expected
                   ? text
                   : QStringLiteral("%1, %2").arg(text, sizesText(single.sizes));
    }

    QString operator()(const SizeChange& sizes) const
    {
        return finding.kind == Kind::OtherSize
                   ? sizesText(sizes) +
                         QStringLiteral("; one color does not tell whether it was scaled, cropped or padded")
                   : QStringLiteral("not this chart: %1, and no part of it was found").arg(sizesText(sizes));
    }

    QString operator()(const ScaleChange& scale) const
    {
        const QString factors = factorsText(scale.horizontalFactor(), scale.verticalFactor());
        const QString how = scale.smooth ? QStringLiteral("smooth") : QStringLiteral("nearest pixels");
        QString text = QStringLiteral("scaled %1 (%2)").arg(factors, how);
        if (scale.part != QRectF(QPointF(), scale.sizes.expected))
            text = QStringLiteral("zoomed in %1 (%2): shows %3 x %4 pixels of the chart from (%5, %6)")
                       .arg(factors, how)
                       .arg(std::lround(scale.part.width()))
                       .arg(std::lround(scale.part.height()))
                       .arg(std::lround(scale.part.left()))
                       .arg(std::lround(scale.part.top()));
        if (scale.content.size() != scale.sizes.actual)
            return text + QStringLiteral(", at (%1, %2) between bars, %3 pixels")
                              .arg(scale.content.left())
                              .arg(scale.content.top())
                              .arg(sizeText(scale.content.size()));
        if (scale.sizes.actual != scale.sizes.expected)
            return text + QStringLiteral(": ") + sizesText(scale.sizes);
        return text;
    }

    QString operator()(const EdgeChange& edges) const
    {
        const QString margins = marginsText(edges.margins);
        const QString text =
            finding.kind == Kind::Cropped
                ? QStringLiteral("cropped by %1: %2 of %3 pixels are left")
                      .arg(margins, sizeText(edges.sizes.actual), sizeText(edges.sizes.expected))
                : QStringLiteral("padded by %1: %2").arg(margins, sizesText(edges.sizes));
        return text + ambiguous(edges.isAmbiguous);
    }

    QString operator()(const Shift& shift) const
    {
        return QStringLiteral("shifted ") + moveText(shift.by) +
               (shift.wraps ? QStringLiteral(", what leaves on one side comes back on the other")
                            : QString()) +
               ambiguous(shift.isAmbiguous);
    }

    QString operator()(Turn turn) const
    {
        if (finding.kind == Kind::Turned)
            return turnText(turn);
        return finding.cabinets.size() < 2 ? QStringLiteral("%1 is %2").arg(cabinet(0), turnText(turn))
                                           : QStringLiteral("%1 shows what belongs to %2, %3")
                                                 .arg(cabinet(0), cabinet(1), turnText(turn));
    }

    QString operator()(const ColorEffect& effect) const
    {
        switch (effect.type) {
        case ColorEffect::Type::ChannelsExchanged:
            return exchangedChannels(effect.sources);
        case ColorEffect::Type::ChannelsMissing:
            return missingChannels(effect.factors);
        case ColorEffect::Type::Grey:
            return QStringLiteral("converted to grey");
        case ColorEffect::Type::Inverted:
            return QStringLiteral("inverted");
        case ColorEffect::Type::LimitedRange:
            return (effect.factors[0] == 1
                        ? QString()
                        : QStringLiteral("brightness at %1 percent and ").arg(percent(effect.factors[0]))) +
                   QStringLiteral("in the limited range, 0..255 shows as 16..235");
        case ColorEffect::Type::Stretched:
            return QStringLiteral("stretched, 16..235 shows as 0..255");
        case ColorEffect::Type::Brightness:
            return QStringLiteral("brightness at %1 percent").arg(percent(effect.factors[0]));
        case ColorEffect::Type::ChannelFactors:
            return QStringLiteral("red at %1, green at %2 and blue at %3 percent")
                .arg(percent(effect.factors[0]), percent(effect.factors[1]), percent(effect.factors[2]));
        case ColorEffect::Type::Gamma:
            return gammaText(effect.gamma);
        case ColorEffect::Type::Decoded709:
            return QStringLiteral("encoded by BT.601, decoded by BT.709");
        case ColorEffect::Type::Decoded601:
            return QStringLiteral("encoded by BT.709, decoded by BT.601");
        default:
            return exchangedColors(effect.pairs);
        }
    }

    QString operator()(const Swap& swap) const
    {
        return (swap.isMutual ? QStringLiteral("%1 and %2 are swapped")
                              : QStringLiteral("%1 shows what belongs to %2"))
            .arg(cabinet(0), cabinet(1));
    }

    QString operator()(const Missing& missing) const
    {
        const bool isBlack = (missing.color & 0xffffffU) == 0;
        const bool several = finding.cabinets.size() > 1;
        const QString what = (isBlack ? QStringLiteral("missing, all %1") : QStringLiteral("nothing but %1"))
                                 .arg(colorName(missing.color));
        if (!several)
            return QStringLiteral("%1 %2 %3")
                .arg(cabinet(0), isBlack ? QStringLiteral("is") : QStringLiteral("shows"), what);
        return QStringLiteral("%1 cabinets %2 %3: ")
                   .arg(int(finding.cabinets.size()))
                   .arg(isBlack ? QStringLiteral("are") : QStringLiteral("show"), what) +
               listed(finding.cabinets, QStringLiteral(", \u2026 and %1 more"));
    }

    QString operator()(const PixelDifference& pixels) const
    {
        if (finding.kind == Kind::OutsideCabinets)
            return (pixels.differing == 1 ? QStringLiteral("1 pixel that belongs to no cabinet differs, ")
                                          : QStringLiteral("%1 pixels that belong to no cabinet differ, ")
                                                .arg(pixels.differing)) +
                   firstText(pixels.first);
        const QString text = QStringLiteral("%1: %2 of %3 pixels differ, ")
                                 .arg(cabinet(0))
                                 .arg(pixels.differing)
                                 .arg(pixels.all) +
                             firstText(pixels.first);
        return pixels.lookalike.empty() ? text
                                        : text + QStringLiteral("; it looks like %1 and %2 more")
                                                     .arg(name(pixels.lookalike.front()))
                                                     .arg(pixels.moreLookalikes);
    }

    QString operator()(const Deviation& deviation) const
    {
        if (finding.kind == Kind::Lossy)
            return QStringLiteral(
                       "a little different everywhere, as after lossy compression: by up to %1 and in "
                       "the mean %2 of 255")
                .arg(deviation.greatest)
                .arg(deviation.mean, 0, 'f', 2);
        return QStringLiteral(
                   "not this chart: %1 percent of the pixels differ, by up to %2 and in the mean %3 of 255")
            .arg(deviation.differingShare * 100, 0, 'f', 1)
            .arg(deviation.greatest)
            .arg(deviation.mean, 0, 'f', 1);
    }

    QString operator()(const Further& further) const
    {
        const QString what = finding.kind == Kind::CabinetSwapped  ? QStringLiteral("swaps")
                             : finding.kind == Kind::CabinetTurned ? QStringLiteral("turned cabinets")
                                                                   : QStringLiteral("cabinets that differ");
        return QStringLiteral("\u2026 and %1 more %2").arg(further.count).arg(what);
    }

    QString operator()(const DiffersBesides&) const
    {
        const int count = int(finding.cabinets.size());
        const QString what = count == 1 ? QStringLiteral("1 cabinet differs")
                                        : QStringLiteral("%1 cabinets differ").arg(count);
        return QStringLiteral("besides, %1: ").arg(what) +
               listed(finding.cabinets, QStringLiteral(", \u2026"));
    }
};

} // namespace

QString sentence(const Finding& finding)
{
    QString text = std::visit(Words{finding}, finding.details);
    for (const Finding& alternative : finding.alternatives)
        text += QStringLiteral("; or %1").arg(sentence(alternative));
    return text;
}

} // namespace ChartComparison
