#include "records/recordvalues.h"

#include "records/jsontext.h"

#include <QRegularExpression>

#include <cmath>

namespace vardeno::testcharttools::recordvalues {

namespace {

constexpr int longestShown = 60;

QString colorExpected()
{
    return QStringLiteral("is not a color [r, g, b, a] of numbers in 0..255");
}

QStringList refused(const QJsonValue& value, const QString& why)
{
    return {shown(value) + QLatin1Char(' ') + why};
}

bool readColor(const QJsonValue& value, RgbaColor& color)
{
    const QJsonArray parts = value.toArray();
    if (parts.size() != 4)
        return false;
    for (const QJsonValue& part : parts) {
        if (!isWhole(part) || part.toDouble() < 0 || part.toDouble() > 255)
            return false;
    }
    color = {parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt()};
    return true;
}

} // namespace

QJsonValue toJson(const RgbaColor& color)
{
    return QJsonArray{color.red, color.green, color.blue, color.alpha};
}

QJsonValue toJson(const std::map<int, QColor>& colors)
{
    QJsonArray list;
    for (const auto& [row, color] : colors)
        list.append(toJson(toRgbaColor(color)));
    return list;
}

QStringList take(const QJsonValue& value, bool& target)
{
    if (!value.isBool())
        return refused(value, QStringLiteral("is not true or false"));
    target = value.toBool();
    return {};
}

QStringList take(const QJsonValue& value, int& target, recordfields::Range range)
{
    if (!isWhole(value))
        return refused(value, QStringLiteral("is not a whole number"));
    if (value.toDouble() < range.least || value.toDouble() > range.most)
        return refused(value, QStringLiteral("is not in %1..%2").arg(range.least).arg(range.most));
    target = int(value.toDouble());
    return {};
}

QStringList take(const QJsonValue& value, std::string& target, recordfields::Length longest)
{
    if (!value.isString())
        return refused(value, QStringLiteral("is not a text"));
    const QString text = value.toString();
    if (text.size() > longest.most)
        return refused(value, QStringLiteral("is longer than %1 characters").arg(longest.most));
    if (text.contains(QChar()))
        return refused(value, QStringLiteral("has a character of value 0"));
    const std::string utf8 = text.toStdString();
    if (QString::fromStdString(utf8) != text)
        return refused(value, QStringLiteral("is not Unicode text"));
    target = utf8;
    return {};
}

QStringList take(const QJsonValue& value, RgbaColor& target)
{
    return readColor(value, target) ? QStringList() : refused(value, colorExpected());
}

QStringList take(const QJsonValue& value, std::map<int, QColor>& target)
{
    if (!value.isArray())
        return refused(value, QStringLiteral("is not a list of colors"));
    const QJsonArray list = value.toArray();
    if (list.size() > recordfields::mostColors)
        return {QStringLiteral("%1 colors are more than %2").arg(list.size()).arg(recordfields::mostColors)};
    QStringList problems;
    std::map<int, QColor> colors;
    for (int row = 0; row < list.size(); ++row) {
        RgbaColor color;
        if (readColor(list.at(row), color))
            colors[row] = toQColor(color);
        else
            problems += refused(list.at(row), QStringLiteral("(color %1) ").arg(row + 1) + colorExpected());
    }
    if (problems.isEmpty())
        target = std::move(colors);
    return problems;
}

QJsonObject schema(bool)
{
    return {{QStringLiteral("type"), QStringLiteral("boolean")}};
}

QJsonObject schema(int, recordfields::Range range)
{
    return {{QStringLiteral("type"), QStringLiteral("integer")},
            {QStringLiteral("minimum"), range.least},
            {QStringLiteral("maximum"), range.most}};
}

QJsonObject schema(const std::string&, recordfields::Length longest)
{
    return {{QStringLiteral("type"), QStringLiteral("string")},
            {QStringLiteral("maxLength"), longest.most},
            {QStringLiteral("pattern"), QStringLiteral("^[^\\u0000]*$")}};
}

QJsonObject schema(const RgbaColor&)
{
    return {{QStringLiteral("$ref"), QStringLiteral("#/$defs/color")}};
}

QJsonObject schema(const std::map<int, QColor>&)
{
    return {{QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("items"), schema(RgbaColor())},
            {QStringLiteral("maxItems"), recordfields::mostColors}};
}

QJsonObject colorSchema()
{
    return {{QStringLiteral("description"), QStringLiteral("red, green, blue, alpha")},
            {QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("items"), schema(0, recordfields::Range{0, 255})},
            {QStringLiteral("minItems"), 4},
            {QStringLiteral("maxItems"), 4}};
}

QJsonArray hexColors(const QString& text)
{
    static const QRegularExpression color(QStringLiteral("^#[0-9a-fA-F]{6}$"));
    QJsonArray colors;
    for (const QString& word : text.simplified().split(QLatin1Char(' '))) {
        if (!color.match(word).hasMatch())
            return {};
        colors.append(toJson(toRgbaColor(QColor(word))));
    }
    return colors;
}

QString shown(const QJsonValue& value)
{
    return elided(QString::fromUtf8(jsonLine(value)));
}

QString elided(const QString& text)
{
    return text.size() > longestShown ? text.left(longestShown) + QChar(0x2026) : text;
}

bool isWhole(const QJsonValue& value)
{
    return value.isDouble() && std::trunc(value.toDouble()) == value.toDouble();
}

} // namespace vardeno::testcharttools::recordvalues
