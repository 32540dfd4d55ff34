#pragma once

#include <QImage>

#include <vector>

namespace ChartComparison {

/// All the ways to turn and mirror a picture but none at all; the last four exchange width and height.
enum class Turn
{
    Mirrored,
    Flipped,
    Half,
    Right,
    Left,
    Transposed, ///< mirrored left to right, then turned to the left
    Transversed ///< mirrored left to right, then turned to the right
};
extern const std::vector<Turn> allTurns;

inline bool exchangesSides(Turn turn)
{
    return turn >= Turn::Right;
}

/// `image` turned back: what it was before it was turned.
QImage turnedBack(const QImage& image, Turn turn);

/// `image` as `turn` makes it.
QImage turned(const QImage& image, Turn turn);

} // namespace ChartComparison
