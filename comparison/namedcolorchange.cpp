#include "namedcolorchange.h"

#include "imagepixels.h"
#include "thresholds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace ChartComparison {

namespace {

using Channels = std::array<int, 3>; // red, green, blue
using Pairs = std::vector<ColorPair>;
using Curve = std::function<double(int channel, int value)>;

Channels channels(QRgb color)
{
    return {qRed(color), qGreen(color), qBlue(color)};
}

QRgb color(const Channels& channels)
{
    return qRgb(channels[0], channels[1], channels[2]);
}

int rounded(double value)
{
    return int(std::lround(std::clamp(value, 0.0, 255.0)));
}

/// A change, and by how many steps it may be off.
struct Candidate
{
    NamedColorChange change;
    int tolerance = 0;
};

/// Each channel by a curve of its own.
Candidate curved(const ColorEffect& effect, const Curve& curve, int tolerance)
{
    const auto map = [curve](QRgb from) {
        const Channels old = channels(from);
        return qRgb(rounded(curve(0, old[0])), rounded(curve(1, old[1])), rounded(curve(2, old[2])));
    };
    return {{effect, map}, tolerance};
}

ColorEffect effect(ColorEffect::Type type)
{
    ColorEffect effect;
    effect.type = type;
    return effect;
}

void addExchanges(std::vector<Candidate>& candidates)
{
    for (const Channels& sources :
         {Channels{2, 1, 0}, Channels{1, 0, 2}, Channels{0, 2, 1}, Channels{2, 0, 1}, Channels{1, 2, 0}}) {
        ColorEffect exchange = effect(ColorEffect::Type::ChannelsExchanged);
        exchange.sources = sources;
        const auto map = [sources](QRgb from) {
            const Channels old = channels(from);
            return color(
                {old[std::size_t(sources[0])], old[std::size_t(sources[1])], old[std::size_t(sources[2])]});
        };
        candidates.push_back({{exchange, map}, 0});
    }
}

void addMissing(std::vector<Candidate>& candidates)
{
    for (const unsigned missing : {1U, 2U, 4U, 3U, 5U, 6U}) {
        ColorEffect lack = effect(ColorEffect::Type::ChannelsMissing);
        for (unsigned i = 0; i < 3; ++i)
            lack.factors[i] = (missing >> i & 1U) != 0 ? 0 : 1;
        candidates.push_back(curved(
            lack,
            [factors = lack.factors](int channel, int value) {
                return value * factors[std::size_t(channel)];
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
        candidates.push_back({{effect(ColorEffect::Type::Grey), map}, 2});
    }
}

void addRanges(std::vector<Candidate>& candidates)
{
    candidates.push_back(curved(
        effect(ColorEffect::Type::Inverted), [](int, int value) { return 255.0 - value; }, 1));
    candidates.push_back(curved(
        effect(ColorEffect::Type::LimitedRange), [](int, int value) { return 16 + value * 219.0 / 255; }, 1));
    candidates.push_back(curved(
        effect(ColorEffect::Type::Stretched), [](int, int value) { return (value - 16) * 255.0 / 219; }, 2));
}

/// Limited range and darker besides. From what is left of the channels' levels after the range is undone.
void addDarkerRanges(std::vector<Candidate>& candidates, const Pairs& pairs)
{
    double products = 0;
    double squares = 0;
    for (const ColorPair& pair : pairs) {
        const Channels from = channels(pair.from);
        const Channels to = channels(pair.to);
        for (std::size_t i = 0; i < 3; ++i) {
            products += from[i] * (to[i] - 16) * 255.0 / 219 * double(pair.pixels);
            squares += double(from[i]) * from[i] * double(pair.pixels);
        }
    }
    const double brightness = squares > 0 ? std::round(products / squares * 100) / 100 : 1;
    if (brightness <= 0 || std::abs(brightness - 1) <= Thresholds::leastFactorChange)
        return;
    ColorEffect darker = effect(ColorEffect::Type::LimitedRange);
    darker.factors = {brightness, brightness, brightness};
    candidates.push_back(curved(
        darker, [brightness](int, int value) { return 16 + value * brightness * 219.0 / 255; }, 1));
}

/// What red and blue weigh in the brightness.
struct Matrix
{
    double red;
    double blue;
};

/// Encoded as brightness and two colour differences by one matrix, decoded by the other.
QRgb mixedUp(QRgb from, const Matrix& encoded, const Matrix& decoded)
{
    const auto brightness = [](const Matrix& matrix, double red, double green, double blue) {
        return matrix.red * red + (1 - matrix.red - matrix.blue) * green + matrix.blue * blue;
    };
    const double y = brightness(encoded, qRed(from), qGreen(from), qBlue(from));
    const double red = y + (qRed(from) - y) * (1 - decoded.red) / (1 - encoded.red);
    const double blue = y + (qBlue(from) - y) * (1 - decoded.blue) / (1 - encoded.blue);
    const double green = (y - decoded.red * red - decoded.blue * blue) / (1 - decoded.red - decoded.blue);
    return qRgb(rounded(red), rounded(green), rounded(blue));
}

void addMatrices(std::vector<Candidate>& candidates)
{
    constexpr Matrix bt601{0.299, 0.114};
    constexpr Matrix bt709{0.2126, 0.0722};
    candidates.push_back(
        {{effect(ColorEffect::Type::Decoded709), [=](QRgb from) { return mixedUp(from, bt601, bt709); }},
         Thresholds::roundingSteps});
    candidates.push_back(
        {{effect(ColorEffect::Type::Decoded601), [=](QRgb from) { return mixedUp(from, bt709, bt601); }},
         Thresholds::roundingSteps});
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

ColorEffect factorEffect(ColorEffect::Type type, const std::array<double, 3>& factors)
{
    ColorEffect change = effect(type);
    change.factors = factors;
    return change;
}

void addFactors(std::vector<Candidate>& candidates, const Pairs& pairs)
{
    const auto whole = [](double factor) { return std::round(factor * 100) / 100; }; // what may have been set
    const auto isOne = [](double factor) { return std::abs(factor - 1) <= Thresholds::leastFactorChange; };
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
                factorEffect(ColorEffect::Type::Brightness, {common, common, common}),
                [common](int, int value) { return value * common; }, 1));
    }
    if (std::all_of(each.begin(), each.end(), isOne))
        return;
    for (const auto& factors : {eachWhole, each})
        candidates.push_back(curved(
            factorEffect(ColorEffect::Type::ChannelFactors, factors),
            [factors](int channel, int value) { return value * factors[std::size_t(channel)]; }, 1));
}

bool isMiddleTone(int from, int to)
{
    return from >= Thresholds::leastMiddleTone && from <= Thresholds::mostMiddleTone &&
           to >= Thresholds::leastShownTone && to <= Thresholds::mostShownTone;
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
            if (!isMiddleTone(from[i], to[i]))
                continue;
            sum += std::log(to[i] / 255.0) / std::log(from[i] / 255.0) * double(pair.pixels);
            weights += double(pair.pixels);
        }
    }
    const double measured = weights > 0 ? sum / weights : 1.0;
    if (std::abs(measured - 1) < Thresholds::leastGammaChange)
        return;
    const double usual = std::round(measured * 10) / 10; // rounding blurs what was meant
    for (const double exponent : {usual, measured}) {
        ColorEffect change = effect(ColorEffect::Type::Gamma);
        change.gamma = exponent;
        candidates.push_back(curved(
            change, [exponent](int, int value) { return 255 * std::pow(value / 255.0, exponent); },
            exponent == usual ? 1 : 2));
    }
}

template <typename Map>
qint64 failingPixels(const Map& map, int tolerance, const Pairs& pairs)
{
    qint64 failing = 0;
    for (const ColorPair& pair : pairs)
        failing += channelDistance(map(pair.from), pair.to) > tolerance ? pair.pixels : 0;
    return failing;
}

/// What fits about as well without any change is none: a grey chart stays as it is when channels are
/// exchanged.
bool fits(const Candidate& candidate, const Pairs& pairs, double tolerated)
{
    qint64 all = 0;
    for (const ColorPair& pair : pairs)
        all += pair.pixels;
    const qint64 failing = failingPixels(candidate.change.map, candidate.tolerance, pairs);
    const qint64 changed = failingPixels([](QRgb from) { return from; }, candidate.tolerance, pairs);
    return changed > 0 && double(failing) <= tolerated * double(all) &&
           double(failing) <= Thresholds::mostLeftOfChange * double(changed);
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
    addMatrices(candidates);
    addDarkerRanges(candidates, pairs);
    addFactors(candidates, pairs);
    addGamma(candidates, pairs);
    for (const Candidate& candidate : candidates) {
        if (fits(candidate, pairs, tolerated))
            return candidate.change;
    }
    return std::nullopt;
}

} // namespace ChartComparison
