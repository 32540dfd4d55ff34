#include "findingjson.h"

#include <QJsonArray>

using namespace ChartComparison;

namespace {

QString kindName(Kind kind)
{
    static const std::array<const char*, 15> names = {
        "oneColor",      "otherSize",      "scaled",          "cropped",        "padded",
        "shifted",       "turned",         "colorsChanged",   "cabinetSwapped", "cabinetMissing",
        "cabinetTurned", "cabinetDiffers", "outsideCabinets", "lossy",          "notThisChart"};
    return QLatin1String(names.at(std::size_t(kind)));
}

QString turnName(Turn turn)
{
    static const std::array<const char*, 7> names = {"mirrored", "flipped",    "half",       "right",
                                                     "left",     "transposed", "transversed"};
    return QLatin1String(names.at(std::size_t(turn)));
}

QString effectName(ColorEffect::Type type)
{
    static const std::array<const char*, 12> names = {
        "channelsExchanged", "channelsMissing", "grey",  "inverted",   "limitedRange", "stretched",
        "brightness",        "channelFactors",  "gamma", "decoded709", "decoded601",   "colorsExchanged"};
    return QLatin1String(names.at(std::size_t(type)));
}

template <typename Numbers>
QJsonArray asArray(const Numbers& numbers)
{
    QJsonArray array;
    for (const auto number : numbers)
        array.append(number);
    return array;
}

QJsonArray asArray(const QSize& size)
{
    return {size.width(), size.height()};
}

QJsonArray asArray(const QRectF& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonObject asObject(const CabinetPlace& cabinet)
{
    return {{QStringLiteral("row"), cabinet.row},
            {QStringLiteral("column"), cabinet.column},
            {QStringLiteral("label"), cabinet.label}};
}

QJsonArray asArray(const std::vector<CabinetPlace>& cabinets)
{
    QJsonArray array;
    for (const CabinetPlace& cabinet : cabinets)
        array.append(asObject(cabinet));
    return array;
}

/// Adds the details of a finding to its object.
struct Members
{
    QJsonObject& object;

    void add(const char* name, const QJsonValue& value) const { object.insert(QLatin1String(name), value); }

    void operator()(std::monostate) const {}
    void operator()(const DiffersBesides&) const {}
    void operator()(const Further& further) const { add("further", further.count); }
    void operator()(const Swap& swap) const { add("mutual", swap.isMutual); }
    void operator()(const Missing& missing) const { add("color", colorName(missing.color)); }
    void operator()(Turn turn) const { add("turn", turnName(turn)); }

    void operator()(const SizeChange& sizes) const
    {
        add("size", asArray(sizes.actual));
        add("expectedSize", asArray(sizes.expected));
    }

    void operator()(const SingleColor& single) const
    {
        add("color", colorName(single.color));
        (*this)(single.sizes);
    }

    void operator()(const ScaleChange& scale) const
    {
        add("part", asArray(scale.part));
        add("content", asArray(QRectF(scale.content)));
        add("smooth", scale.smooth);
        add("factors", QJsonArray{scale.horizontalFactor(), scale.verticalFactor()});
        (*this)(scale.sizes);
    }

    void operator()(const EdgeChange& edges) const
    {
        add("left", edges.margins.left());
        add("right", edges.margins.right());
        add("top", edges.margins.top());
        add("bottom", edges.margins.bottom());
        add("ambiguous", edges.isAmbiguous);
        (*this)(edges.sizes);
    }

    void operator()(const Shift& shift) const
    {
        add("x", shift.by.x());
        add("y", shift.by.y());
        add("wraps", shift.wraps);
        add("ambiguous", shift.isAmbiguous);
    }

    void operator()(const ColorEffect& effect) const
    {
        add("effect", effectName(effect.type));
        if (effect.type == ColorEffect::Type::ChannelsExchanged)
            add("sources", asArray(effect.sources));
        if (effect.type == ColorEffect::Type::Gamma)
            add("gamma", effect.gamma);
        if (effect.factors != std::array<double, 3>{1, 1, 1})
            add("factors", asArray(effect.factors));
        QJsonArray pairs;
        for (const ColorPair& pair : effect.pairs)
            pairs.append(QJsonObject{{QStringLiteral("from"), colorName(pair.from)},
                                     {QStringLiteral("to"), colorName(pair.to)},
                                     {QStringLiteral("pixels"), pair.pixels}});
        if (!pairs.isEmpty())
            add("colors", pairs);
    }

    void operator()(const PixelDifference& pixels) const
    {
        add("differing", pixels.differing);
        add("pixels", pixels.all);
        add("first", QJsonObject{{QStringLiteral("x"), pixels.first.at.x()},
                                 {QStringLiteral("y"), pixels.first.at.y()},
                                 {QStringLiteral("color"), colorName(pixels.first.actual)},
                                 {QStringLiteral("expectedColor"), colorName(pixels.first.expected)}});
        if (pixels.lookalike.empty())
            return;
        add("lookalike", asObject(pixels.lookalike.front()));
        add("moreLookalikes", pixels.moreLookalikes);
    }

    void operator()(const Deviation& deviation) const
    {
        add("greatest", deviation.greatest);
        add("mean", deviation.mean);
        add("differingShare", deviation.differingShare);
    }
};

} // namespace

QJsonObject findingJson(const Finding& finding)
{
    QJsonObject object{{QStringLiteral("kind"), kindName(finding.kind)},
                       {QStringLiteral("text"), sentence(finding)},
                       {QStringLiteral("cabinets"), asArray(finding.cabinets)}};
    std::visit(Members{object}, finding.details);
    QJsonArray alternatives;
    for (const Finding& alternative : finding.alternatives)
        alternatives.append(findingJson(alternative));
    if (!alternatives.isEmpty())
        object.insert(QStringLiteral("alternatives"), alternatives);
    return object;
}
