#include "namedcolorchange.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace ChartComparison {

namespace {

using Channels = std::array<int, 3>; // red, green, blue
using Pairs = std::vector<ColorPair>;
using Curve = std::function<double(int channel, int value)>;

const std::array<const char*, 3> channelNames = {"red", "green", "blue"};

Channels channels(QRgb color)
{
    return {qRed(color), qGreen(color), qBlue(color)};
}

QRgb color(const Channels& channels)
{
    return qRgb(channels[0], channels[1], channels[2]);
}

/// Less is rounding.
constexpr double leastFactor = 0.005;
constexpr double leastExponent = 0.02;

int rounded(double value)
{
    return int(std::lround(std::clamp(value, 0.0, 255.0)));
}

bool isNear(QRgb a, QRgb b, int most)
{
    const Channels x = channels(a);
    const Channels y = channels(b);
    return std::abs(x[0] - y[0]) <= most && std::abs(x[1] - y[1]) <= most && std::abs(x[2] - y[2]) <= most;
}

/// A change, and by how many steps it may be off.
struct Candidate
{
    NamedColorChange change;
    int tolerance = 0;
};

/// Each channel by a curve of its own.
Candidate curved(const QString& text, const Curve& curve, int tolerance)
{
    const auto map = [curve](QRgb from) {
        const Channels old = channels(from);
        return qRgb(rounded(curve(0, old[0])), rounded(curve(1, old[1])), rounded(curve(2, old[2])));
    };
    return {{text, map}, tolerance};
}

void addExchanges(std::vector<Candidate>& candidates)
{
    struct Exchange
    {
        const char* text;
        Channels source;
    };
    static const std::array<Exchange, 5> exchanges = {
        {{"red and blue are swapped", {2, 1, 0}},
         {"red and green are swapped", {1, 0, 2}},
         {"green and blue are swapped", {0, 2, 1}},
         {"red shows as green, green as blue and blue as red", {2, 0, 1}},
         {"red shows as blue, green as red and blue as green", {1, 2, 0}}}};
    for (const Exchange& exchange : exchanges) {
        const auto map = [source = exchange.source](QRgb from) {
            const Channels old = channels(from);
            return color(
                {old[std::size_t(source[0])], old[std::size_t(source[1])], old[std::size_t(source[2])]});
        };
        candidates.push_back({{QLatin1String(exchange.text), map}, 0});
    }
}

void addMissing(std::vector<Candidate>& candidates)
{
    for (const unsigned missing : {1U, 2U, 4U, 3U, 5U, 6U}) {
        QString names;
        for (unsigned i = 0; i < 3; ++i) {
            if ((missing >> i & 1U) != 0)
                names +=
                    (names.isEmpty() ? QString() : QStringLiteral(" and ")) + QLatin1String(channelNames[i]);
        }
        const QString verb = names.contains(QLatin1Char(' ')) ? QStringLiteral("are") : QStringLiteral("is");
        candidates.push_back(curved(
            QStringLiteral("%1 %2 missing").arg(names, verb),
            [missing](int channel, int value) {
                return (missing >> unsigned(channel) & 1U) != 0 ? 0.0 : value;
            },
            0));
    }
}

void addGreys(std::vector<Candidate>& candidates)
{
    using Weights = std::array<double, 3>;
    for (const Weights& weights :
         {Weights{0.299, 0.587, 0.114}, Weights{0.2126, 0.7152, 0.0722},
          Weights{11 / 32.0, 16 / 32.0, 5 / 32.0}, Weights{1 / 3.0, 1 / 3.0, 1 / 3.0}}) {
        const auto map = [weights](QRgb from) {
            const Channels old = channels(from);
            const int grey = rounded(weights[0] * old[0] + weights[1] * old[1] + weights[2] * old[2]);
            return color({grey, grey, grey});
        };
        candidates.push_back({{QStringLiteral("converted to grey"), map}, 2});
    }
}

void addRanges(std::vector<Candidate>& candidates)
{
    candidates.push_back(curved(
        QStringLiteral("inverted"), [](int, int value) { return 255.0 - value; }, 1));
    candidates.push_back(curved(
        QStringLiteral("in the limited range, 0..255 shows as 16..235"),
        [](int, int value) { return 16 + value * 219.0 / 255; }, 1));
    candidates.push_back(curved(
        QStringLiteral("stretched, 16..235 shows as 0..255"),
        [](int, int value) { return (value - 16) * 255.0 / 219; }, 2));
}

/// The factor of a channel, or of all for channel -1, by least squares; nothing where it cannot be told.
std::optional<double> factor(const Pairs& pairs, int channel)
{
    double products = 0;
    double squares = 0;
    for (const ColorPair& pair : pairs) {
        const Channels from = channels(pair.from);
        const Channels to = channels(pair.to);
        for (int i = 0; i < 3; ++i) {
            const auto at = std::size_t(i);
            if ((channel >= 0 && i != channel) || to[at] == 255)
                continue;
            products += double(from[at]) * to[at] * double(pair.pixels);
            squares += double(from[at]) * from[at] * double(pair.pixels);
        }
    }
    return squares > 0 ? std::optional<double>(products / squares) : std::nullopt;
}

QString percent(double factor)
{
    return QString::number(factor * 100, 'f', 0);
}

void addFactors(std::vector<Candidate>& candidates, const Pairs& pairs)
{
    const auto whole = [](double factor) { return std::round(factor * 100) / 100; }; // what may have been set
    const auto isOne = [](double factor) { return std::abs(factor - 1) <= leastFactor; };
    const double all = factor(pairs, -1).value_or(1);
    std::array<double, 3> each{};
    std::array<double, 3> eachWhole{};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        each[channel] = factor(pairs, int(channel)).value_or(1);
        eachWhole[channel] = whole(each[channel]);
    }
    for (const double common : {whole(all), all}) {
        if (!isOne(common))
            candidates.push_back(curved(
                QStringLiteral("brightness at %1 percent").arg(percent(common)),
                [common](int, int value) { return value * common; }, 1));
    }
    if (std::all_of(each.begin(), each.end(), isOne))
        return;
    for (const auto& factors : {eachWhole, each})
        candidates.push_back(curved(
            QStringLiteral("red at %1, green at %2 and blue at %3 percent")
                .arg(percent(factors[0]), percent(factors[1]), percent(factors[2])),
            [factors](int channel, int value) { return value * factors[std::size_t(channel)]; }, 1));
}

/// From the middle tones, where it shows most.
void addGamma(std::vector<Candidate>& candidates, const Pairs& pairs)
{
    double sum = 0;
    double weights = 0;
    for (const ColorPair& pair : pairs) {
        const Channels from = channels(pair.from);
        const Channels to = channels(pair.to);
        for (std::size_t i = 0; i < 3; ++i) {
            if (from[i] < 32 || from[i] > 224 || to[i] < 4 || to[i] > 251)
                continue;
            sum += std::log(to[i] / 255.0) / std::log(from[i] / 255.0) * double(pair.pixels);
            weights += double(pair.pixels);
        }
    }
    const double measured = weights > 0 ? sum / weights : 1.0;
    if (std::abs(measured - 1) < leastExponent)
        return;
    const double usual = std::round(measured * 10) / 10; // rounding blurs what was meant
    for (const double exponent : {usual, measured})
        candidates.push_back(curved(
            QStringLiteral("middle tones %1, as by a gamma of %2")
                .arg(exponent > 1 ? QStringLiteral("darker") : QStringLiteral("lighter"))
                .arg(exponent, 0, 'f', 2),
            [exponent](int, int value) { return 255 * std::pow(value / 255.0, exponent); },
            exponent == usual ? 1 : 2));
}

bool fits(const Candidate& candidate, const Pairs& pairs, double tolerated)
{
    qint64 all = 0;
    qint64 failing = 0;
    for (const ColorPair& pair : pairs) {
        all += pair.pixels;
        if (!isNear(candidate.change.map(pair.from), pair.to, candidate.tolerance))
            failing += pair.pixels;
        else if (tolerated == 0 && failing > 0)
            return false;
    }
    return double(failing) <= tolerated * double(all);
}

} // namespace

std::optional<NamedColorChange> namedColorChange(const std::vector<ColorPair>& pairs, double tolerated)
{
    const auto stays = [](const ColorPair& pair) { return pair.from == pair.to; };
    if (pairs.size() < 2 || std::all_of(pairs.begin(), pairs.end(), stays))
        return std::nullopt;
    std::vector<Candidate> candidates;
    addExchanges(candidates);
    addRanges(candidates);
    addMissing(candidates);
    addGreys(candidates);
    addFactors(candidates, pairs);
    addGamma(candidates, pairs);
    for (const Candidate& candidate : candidates) {
        if (fits(candidate, pairs, tolerated))
            return candidate.change;
    }
    return std::nullopt;
}

} // namespace ChartComparison
