#include "turn.h"

#include "imagepixels.h"

#include <QTransform>

namespace ChartComparison {

namespace {

QImage rotated(const QImage& image, int degrees)
{
    return plainColors(image.transformed(QTransform().rotate(degrees), Qt::FastTransformation));
}

} // namespace

const std::vector<Turn> allTurns = {Turn::Mirrored, Turn::Flipped,    Turn::Half,       Turn::Right,
                                    Turn::Left,     Turn::Transposed, Turn::Transversed};

QImage turnedBack(const QImage& image, Turn turn)
{
    switch (turn) {
    case Turn::Mirrored:
        return image.mirrored(true, false);
    case Turn::Flipped:
        return image.mirrored(false, true);
    case Turn::Half:
        return image.mirrored(true, true);
    case Turn::Right:
        return rotated(image, -90);
    case Turn::Left:
        return rotated(image, 90);
    case Turn::Transposed:
        return rotated(image, 90).mirrored(true, false);
    default:
        return rotated(image, -90).mirrored(true, false);
    }
}

QImage turned(const QImage& image, Turn turn)
{
    const Turn back = turn == Turn::Right ? Turn::Left : turn == Turn::Left ? Turn::Right : turn;
    return turnedBack(image, back);
}

} // namespace ChartComparison
