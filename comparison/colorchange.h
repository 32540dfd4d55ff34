#pragma once

#include "finding.h"

#include <QHash>
#include <QImage>

#include <functional>
#include <optional>

namespace ChartComparison {

/// One colour for another, the same everywhere.
class ColorChange
{
public:
    /// What has happened to every pixel, where that is so; the pictures have one size. Besides the changes
    /// that have a name any exchange of colours counts, as long as no two of them become one.
    static std::optional<ColorChange> find(const QImage& expected, const QImage& actual);

    /// What has happened to most pixels, by samples; only a change that has a name.
    static std::optional<ColorChange> guess(const QImage& expected, const QImage& actual);

    const ColorEffect& effect() const { return m_effect; }

    QImage applied(const QImage& image) const;

private:
    using Map = std::function<QRgb(QRgb)>;

    void learnRounding(const QImage& expected, const QImage& actual);

    ColorEffect m_effect;
    QHash<QRgb, QRgb> m_seen; ///< rounding included
    Map m_map;                ///< for what was not seen; empty for an exchange without a name
};

} // namespace ChartComparison
