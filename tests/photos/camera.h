#pragma once

#include "simulatedwall.h"

#include <QPointF>

#include <array>

namespace Photos {

/// How a photograph comes out; all of it follows from the seed.
struct Shot
{
    double angle = 0;   ///< off the wall's axis, in degrees
    double share = 0.7; ///< of the frame's width or height that the wall takes
    int width = 4000;
    int height = 3000;
    double exposure = 1; ///< what white comes to, in linear light
    double gamma = 2.2;
    double blur = 0.8; ///< photo pixels
    double noise = 2;  ///< steps of 255
    double bloom = 0.03;
    double vignette = 0.2;
    double radial = 0;      ///< at the corner of the frame
    double fill = 0.6;      ///< of a LED's square that is lit
    double silhouettes = 0; ///< of the wall
    double ambient = 0.01;
    int quality = 80;
};

struct Photo
{
    QImage picture;
    std::array<QPointF, 4> corners; ///< of the chart, from its top left clockwise
    std::vector<double> hidden;     ///< of each cabinet, 0 to 1
    double scale = 1;               ///< photo pixels per chart pixel, the least in any cabinet
};

Shot randomShot(Random& random, double leastAngle, double mostAngle);

/// The wall as the camera sees it.
Photo photograph(const Wall& wall, const Shot& shot, Random& random);

/// A capture: the shown picture scaled, with the wrong matrix or range where asked for.
struct Capture
{
    double scale = 1;
    int quality = 85;
    bool isLimited = false;
    bool hasWrongMatrix = false;
};

Capture randomCapture(Random& random);
Photo captured(const Wall& wall, const Capture& capture);

/// As a JPEG file would hold it.
QImage compressed(const QImage& image, int quality);

} // namespace Photos
