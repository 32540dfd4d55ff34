#include "camera.h"

#include <QBuffer>

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace Photos {

namespace {

constexpr int ledSamples = 3; ///< of a LED's square, each way
constexpr double displayGamma = 2.2;

/// Wraps the rows of `image`, which has to outlive it.
cv::Mat wrapped(const QImage& image)
{
    return cv::Mat(image.height(), image.width(), CV_8UC3, const_cast<uchar*>(image.constBits()),
                   std::size_t(image.bytesPerLine()));
}

/// From values of 255 to linear light.
cv::Mat linear(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    cv::Mat table(1, 256, CV_32F);
    for (int i = 0; i < 256; ++i)
        table.at<float>(i) = float(std::pow(i / 255.0, displayGamma));
    cv::Mat light;
    cv::LUT(wrapped(rgb), table, light);
    return light;
}

/// Every chart pixel as a dot with dark around it, as bright in the mean; blurred as far as a photo pixel
/// reaches.
cv::Mat ledPicture(const Wall& wall, double fill, double scale)
{
    cv::Mat light = linear(wall.shown);
    cv::Mat large;
    cv::resize(light, large, {}, ledSamples, ledSamples, cv::INTER_NEAREST);
    cv::Mat dot(ledSamples, ledSamples, CV_32F, cv::Scalar(1 - fill));
    dot.at<float>(ledSamples / 2, ledSamples / 2) = float(1 + fill * (ledSamples * ledSamples - 1));
    cv::Mat pattern;
    cv::repeat(dot, wall.shown.height(), wall.shown.width(), pattern);
    cv::cvtColor(pattern, pattern, cv::COLOR_GRAY2RGB);
    large = large.mul(pattern);
    const double sigma = std::max(0.5, 0.45 * ledSamples / scale);
    cv::GaussianBlur(large, large, {}, sigma);
    return large;
}

using Corners = std::array<cv::Point2d, 4>;

/// Where a pinhole camera that looks at the wall's middle sees its corners.
Corners seenCorners(const Wall& wall, const Shot& shot, Random& random)
{
    const double width = wall.shown.width();
    const double height = wall.shown.height();
    const double direction = between(random, 0, 2 * CV_PI);
    const double angle = shot.angle * CV_PI / 180;
    // More often from the side than from below.
    cv::Vec3d axis(0.6 * std::sin(direction), std::cos(direction), 0);
    axis *= angle / cv::norm(axis);
    cv::Matx33d turn;
    cv::Rodrigues(axis, turn);
    cv::Matx33d roll;
    cv::Rodrigues(cv::Vec3d(0, 0, between(random, -0.07, 0.07)), roll);
    turn = roll * turn;
    const double distance = between(random, 1.1, 2.2) * width;
    const std::array<cv::Vec3d, 4> world = {
        cv::Vec3d(-width / 2, -height / 2, 0), cv::Vec3d(width / 2, -height / 2, 0),
        cv::Vec3d(width / 2, height / 2, 0), cv::Vec3d(-width / 2, height / 2, 0)};
    Corners seen;
    for (std::size_t i = 0; i < 4; ++i) {
        const cv::Vec3d at = turn * world[i];
        seen[i] = {at[0] / (at[2] + distance), at[1] / (at[2] + distance)};
    }
    return seen;
}

/// Moves and scales them to the place in the frame.
void fit(Corners& corners, const Shot& shot, Random& random)
{
    cv::Point2d least(1e9, 1e9);
    cv::Point2d most(-1e9, -1e9);
    for (const auto& at : corners) {
        least = {std::min(least.x, at.x), std::min(least.y, at.y)};
        most = {std::max(most.x, at.x), std::max(most.y, at.y)};
    }
    const cv::Point2d size = most - least;
    const double scale = std::min(shot.share * shot.width / size.x, 0.92 * shot.height / size.y);
    const cv::Point2d room(shot.width - size.x * scale, shot.height - size.y * scale);
    const cv::Point2d place(room.x * between(random, 0.3, 0.7), room.y * between(random, 0.3, 0.7));
    for (auto& at : corners)
        at = (at - least) * scale + place;
}

/// Where a straight camera has what this one has at `at`.
cv::Point2d straightened(const cv::Point2d& at, const Shot& shot)
{
    const cv::Point2d middle(shot.width / 2.0, shot.height / 2.0);
    const cv::Point2d from = at - middle;
    const double reach = from.dot(from) / middle.dot(middle);
    return middle + from * (1 + shot.radial * reach);
}

/// The other way round.
cv::Point2d bent(const cv::Point2d& at, const Shot& shot)
{
    cv::Point2d guess = at;
    for (int i = 0; i < 20; ++i)
        guess += at - straightened(guess, shot);
    return guess;
}

void drawPatches(cv::Mat& scene, Random& random)
{
    for (int i = 0; i < 40; ++i) {
        const cv::Point at(wholeBetween(random, 0, scene.cols), wholeBetween(random, 0, scene.rows));
        const cv::Size size(wholeBetween(random, 20, scene.cols / 6),
                            wholeBetween(random, 20, scene.rows / 6));
        const double level = std::pow(between(random, 0, 0.7), 2.2);
        const cv::Scalar color(level * between(random, 0.5, 1), level * between(random, 0.5, 1),
                               level * between(random, 0.5, 1));
        if (i % 3 == 0)
            cv::ellipse(scene, at, size / 2, between(random, 0, 180), 0, 360, color, -1);
        else if (i % 3 == 1)
            cv::rectangle(scene, {at, size}, color, -1);
        else
            cv::line(scene, at, at + cv::Point(size), color, wholeBetween(random, 2, 30));
    }
}

/// What is around the wall: a room with things in it, some of them lit.
cv::Mat surroundings(const Shot& shot, Random& random)
{
    cv::Mat scene(shot.height / 4, shot.width / 4, CV_32FC3, cv::Scalar::all(between(random, 0.002, 0.08)));
    drawPatches(scene, random);
    cv::Mat speckle(scene.size(), CV_32FC3);
    cv::RNG noise(random());
    noise.fill(speckle, cv::RNG::NORMAL, 1, 0.15);
    scene = scene.mul(speckle);
    cv::resize(scene, scene, {shot.width, shot.height}, 0, 0, cv::INTER_LINEAR);
    return scene;
}

/// People before the wall: heads and shoulders from the lower edge of the frame, until so much of it is
/// covered.
cv::Mat silhouetteMask(const cv::Mat& onWall, double share, Random& random)
{
    cv::Mat mask(onWall.size(), CV_8U, cv::Scalar(0));
    const int wallPixels = cv::countNonZero(onWall);
    const cv::Rect wall = cv::boundingRect(onWall);
    for (int i = 0; share > 0 && i < 60; ++i) {
        const double size = wall.height * between(random, 0.06, 0.14);
        const cv::Point head(int(wall.x + wall.width * between(random, 0, 1)),
                             int(wall.y + wall.height * between(random, 0.55, 0.95)));
        cv::ellipse(mask, head, cv::Size(int(size * 0.8), int(size)), 0, 0, 360, 255, -1);
        const cv::Point body(head.x, int(head.y + size * 2.7));
        cv::ellipse(mask, body, cv::Size(int(size * 2), int(size * 1.9)), 0, 0, 360, 255, -1);
        cv::rectangle(mask, cv::Point(int(head.x - size * 2), body.y),
                      cv::Point(int(head.x + size * 2), mask.rows), 255, -1);
        if (cv::countNonZero(mask & onWall) > share * wallPixels)
            break;
    }
    return mask;
}

struct Lens
{
    cv::Matx33d toWall; ///< from straightened photo pixels to samples of the LED picture
    Shot shot;
};

/// For each photo pixel its place in the LED picture.
cv::Mat placesOf(const Lens& lens)
{
    cv::Mat places(lens.shot.height, lens.shot.width, CV_32FC2);
    cv::parallel_for_({0, places.rows}, [&](const cv::Range& rows) {
        for (int y = rows.start; y < rows.end; ++y) {
            auto* line = places.ptr<cv::Vec2f>(y);
            for (int x = 0; x < places.cols; ++x) {
                const cv::Point2d at = straightened({x + 0.5, y + 0.5}, lens.shot);
                const cv::Vec3d on = lens.toWall * cv::Vec3d(at.x, at.y, 1);
                line[x] = {float(on[0] / on[2] - 0.5), float(on[1] / on[2] - 0.5)};
            }
        }
    });
    return places;
}

void addVignette(cv::Mat& light, double strength)
{
    const cv::Point2f middle(light.cols / 2.0F, light.rows / 2.0F);
    for (int y = 0; y < light.rows; ++y) {
        auto* line = light.ptr<cv::Vec3f>(y);
        for (int x = 0; x < light.cols; ++x) {
            const cv::Point2f from = cv::Point2f(float(x), float(y)) - middle;
            line[x] *= float(1 - strength * from.dot(from) / middle.dot(middle));
        }
    }
}

void addBloom(cv::Mat& light, double strength)
{
    cv::Mat small;
    cv::resize(light, small, {}, 0.05, 0.05, cv::INTER_AREA);
    cv::GaussianBlur(small, small, {}, 4);
    cv::Mat glow;
    cv::resize(small, glow, light.size(), 0, 0, cv::INTER_LINEAR);
    light += glow * strength;
}

/// Exposure, tone curve, noise.
QImage developed(cv::Mat light, const Shot& shot, Random& random)
{
    const cv::Scalar balance(shot.exposure * between(random, 0.88, 1.12), shot.exposure,
                             shot.exposure * between(random, 0.88, 1.12));
    cv::multiply(light, balance, light);
    cv::min(light, 1.0, light);
    cv::max(light, 0.0, light);
    cv::pow(light, 1 / shot.gamma, light);
    light *= 255;
    cv::Mat noise(light.size(), CV_32FC3);
    cv::RNG source(random());
    source.fill(noise, cv::RNG::NORMAL, 0, shot.noise);
    light += noise;
    QImage image(light.cols, light.rows, QImage::Format_RGB888);
    cv::Mat target = wrapped(image);
    light.convertTo(target, CV_8U);
    return image;
}

std::vector<double> hiddenShares(const Wall& wall, const cv::Mat& mask, const cv::Matx33d& toPhoto,
                                 const Shot& shot)
{
    std::vector<double> shares;
    constexpr int steps = 12;
    for (const auto& cabinet : wall.cabinets.cabinets) {
        int hidden = 0;
        for (int i = 0; i < steps * steps; ++i) {
            const double x = cabinet.rect.x() + cabinet.rect.width() * (i % steps + 0.5) / steps;
            const double y = cabinet.rect.y() + cabinet.rect.height() * (i / steps + 0.5) / steps;
            const cv::Vec3d on = toPhoto * cv::Vec3d(x * ledSamples, y * ledSamples, 1);
            const cv::Point at = bent({on[0] / on[2], on[1] / on[2]}, shot);
            hidden += !cv::Rect(0, 0, mask.cols, mask.rows).contains(at) || mask.at<uchar>(at) > 0 ? 1 : 0;
        }
        shares.push_back(double(hidden) / (steps * steps));
    }
    return shares;
}

} // namespace

Shot randomShot(Random& random, double leastAngle, double mostAngle)
{
    Shot shot;
    shot.angle = between(random, leastAngle, mostAngle);
    shot.share = between(random, 0.4, 0.9);
    shot.exposure = between(random, 0.6, 1.3);
    shot.gamma = between(random, 2.0, 2.4);
    shot.blur = between(random, 0.3, 1.3);
    shot.noise = between(random, 1, 5);
    shot.bloom = between(random, 0, 0.06);
    shot.vignette = between(random, 0, 0.4);
    shot.radial = between(random, -0.05, 0.05);
    shot.fill = between(random, 0, 0.9);
    shot.silhouettes = random() % 2 ? between(random, 0.05, 0.15) : 0;
    shot.ambient = between(random, 0.002, 0.03);
    return shot;
}

Photo photograph(const Wall& wall, const Shot& shot, Random& random)
{
    Corners corners = seenCorners(wall, shot, random);
    fit(corners, shot, random);
    const double width = wall.shown.width() * double(ledSamples);
    const double height = wall.shown.height() * double(ledSamples);
    const std::vector<cv::Point2f> from = {
        {0, 0}, {float(width), 0}, {float(width), float(height)}, {0, float(height)}};
    std::vector<cv::Point2f> to(corners.begin(), corners.end());
    const cv::Matx33d toPhoto = cv::getPerspectiveTransform(from, to);
    const double scale = std::sqrt(cv::contourArea(to) / (double(wall.shown.width()) * wall.shown.height()));

    const cv::Mat places = placesOf({toPhoto.inv(), shot});
    cv::Mat scene = surroundings(shot, random);
    cv::Mat onWall;
    cv::remap(cv::Mat(int(height), int(width), CV_8U, cv::Scalar(255)), onWall, places, {},
              cv::INTER_NEAREST);
    cv::Mat light;
    cv::remap(ledPicture(wall, shot.fill, scale), light, places, {}, cv::INTER_LINEAR, cv::BORDER_REPLICATE);
    light += cv::Scalar::all(shot.ambient);
    light.copyTo(scene, onWall);
    const cv::Mat hidden = silhouetteMask(onWall, shot.silhouettes, random);
    scene.setTo(cv::Scalar::all(between(random, 0.001, 0.02)), hidden);
    cv::GaussianBlur(scene, scene, {}, shot.blur);
    addBloom(scene, shot.bloom);
    addVignette(scene, shot.vignette);

    Photo photo;
    photo.picture = compressed(developed(scene, shot, random), shot.quality);
    for (std::size_t i = 0; i < 4; ++i) {
        const cv::Point2d at = bent(corners[i], shot);
        photo.corners[i] = {at.x, at.y};
    }
    photo.hidden = hiddenShares(wall, hidden, toPhoto, shot);
    photo.scale = scale;
    return photo;
}

Capture randomCapture(Random& random)
{
    Capture capture;
    capture.scale = between(random, 0.5, 2);
    if (random() % 3 == 0)
        capture.scale = 1;
    capture.quality = wholeBetween(random, 50, 95);
    capture.isLimited = random() % 4 == 0;
    capture.hasWrongMatrix = random() % 4 == 0;
    return capture;
}

namespace {

/// Encoded by BT.601, decoded by BT.709.
QRgb mixedUp(QRgb color)
{
    const double y = 0.299 * qRed(color) + 0.587 * qGreen(color) + 0.114 * qBlue(color);
    const double cb = (qBlue(color) - y) / 1.772;
    const double cr = (qRed(color) - y) / 1.402;
    const auto level = [](double value) { return int(std::clamp(value + 0.5, 0.0, 255.0)); };
    return qRgb(level(y + 1.5748 * cr), level(y - 0.1873 * cb - 0.4681 * cr), level(y + 1.8556 * cb));
}

QRgb limited(QRgb color)
{
    const auto level = [](int value) { return 16 + value * 219 / 255; };
    return qRgb(level(qRed(color)), level(qGreen(color)), level(qBlue(color)));
}

void recolor(QImage& image, QRgb (*change)(QRgb))
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, change);
    }
}

} // namespace

Photo captured(const Wall& wall, const Capture& capture)
{
    QImage image = wall.shown.convertToFormat(QImage::Format_RGB32);
    if (capture.hasWrongMatrix)
        recolor(image, &mixedUp);
    if (capture.isLimited)
        recolor(image, &limited);
    image = image.scaled(int(image.width() * capture.scale), int(image.height() * capture.scale),
                         Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    Photo photo;
    photo.picture = compressed(image, capture.quality);
    const double width = image.width();
    const double height = image.height();
    photo.corners = {QPointF(0, 0), QPointF(width, 0), QPointF(width, height), QPointF(0, height)};
    photo.hidden.assign(wall.cabinets.cabinets.size(), 0);
    photo.scale = capture.scale;
    return photo;
}

QImage compressed(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return QImage::fromData(bytes, "JPG");
}

} // namespace Photos
