#include "placefeatures.h"

#include "products.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace WallReading {

namespace {

/// Each feature of the picture is matched with so many of the chart: labels have their letters in common.
constexpr int matchesPerFeature = 3;

/// Cosine of descriptors that are alike enough.
constexpr float leastAlikeness = 0.8F;

constexpr std::size_t mostSeeds = 250;
constexpr int samplesPerSeed = 40;
constexpr std::size_t proposals = 3;

/// Pixels of the picture that the features were found in.
constexpr double inlierDistance = 4;

struct FeatureMatch
{
    cv::Point2d chart;
    cv::Point2d picture;
    double logScale;
    double angle; ///< radians
    float lead;   ///< over the next one: how sure it is
    int feature;  ///< of the picture
};

struct Proposal
{
    cv::Matx33d homography;
    int inliers = 0;
};

void addMatches(std::vector<FeatureMatch>& matches, const Features& chart, const Features& picture,
                int feature, const cv::Mat& alikeness)
{
    std::array<int, matchesPerFeature + 1> best;
    best.fill(-1);
    const auto* line = alikeness.ptr<float>();
    for (int i = 0; i < alikeness.cols; ++i) {
        for (std::size_t k = 0; k < best.size(); ++k) {
            if (best[k] >= 0 && line[i] <= line[best[k]])
                continue;
            std::move_backward(best.begin() + std::ptrdiff_t(k), best.end() - 1, best.end());
            best[k] = i;
            break;
        }
    }
    for (int k = 0; k < matchesPerFeature; ++k) {
        const int i = best[std::size_t(k)];
        if (i < 0 || line[i] < leastAlikeness)
            break;
        const int next = best[std::size_t(k) + 1];
        const auto f = std::size_t(feature);
        const auto c = std::size_t(i);
        matches.push_back({chart.points[c], picture.points[f],
                           std::log(double(picture.sizes[f] / chart.sizes[c])),
                           double(picture.angles[f] - chart.angles[c]) * CV_PI / 180,
                           k == 0 && next >= 0 ? line[i] - line[next] : 0, feature});
    }
}

std::vector<FeatureMatch> matched(const Features& chart, const Features& picture)
{
    std::vector<FeatureMatch> matches;
    constexpr int rowsAtOnce = 512;
    for (int from = 0; from < picture.descriptors.rows; from += rowsAtOnce) {
        const int to = std::min(from + rowsAtOnce, picture.descriptors.rows);
        const cv::Mat alikeness = productsOf(picture.descriptors.rowRange(from, to), chart.descriptors);
        for (int row = from; row < to; ++row)
            addMatches(matches, chart, picture, row, alikeness.row(row - from));
    }
    std::stable_sort(matches.begin(), matches.end(),
                     [](const FeatureMatch& a, const FeatureMatch& b) { return a.lead > b.lead; });
    return matches;
}

double turnBetween(double a, double b)
{
    return std::abs(std::remainder(a - b, 2 * CV_PI));
}

/// Whether both may come from one view of the chart.
bool agree(const FeatureMatch& a, const FeatureMatch& b, double scale, double cosine, double sine)
{
    if (std::abs(a.logScale - b.logScale) > 0.7 || turnBetween(a.angle, b.angle) > 0.6)
        return false;
    const cv::Point2d on = b.chart - a.chart;
    const cv::Point2d guess =
        a.picture + cv::Point2d(cosine * on.x - sine * on.y, sine * on.x + cosine * on.y);
    const cv::Point2d off = guess - b.picture;
    return std::hypot(off.x, off.y) < 15 + 0.45 * scale * std::hypot(on.x, on.y);
}

std::vector<const FeatureMatch*> agreeingWith(const FeatureMatch& seed,
                                              const std::vector<FeatureMatch>& matches)
{
    std::vector<const FeatureMatch*> result;
    const double scale = std::exp(seed.logScale);
    const double cosine = std::cos(seed.angle) * scale;
    const double sine = std::sin(seed.angle) * scale;
    for (const FeatureMatch& match : matches) {
        if (agree(seed, match, scale, cosine, sine))
            result.push_back(&match);
    }
    return result;
}

cv::Point2d mapped(const cv::Matx33d& homography, const cv::Point2d& at)
{
    const cv::Vec3d on = homography * cv::Vec3d(at.x, at.y, 1);
    return {on[0] / on[2], on[1] / on[2]};
}

bool isInlier(const cv::Matx33d& homography, const FeatureMatch& match, double distance)
{
    const cv::Point2d off = mapped(homography, match.chart) - match.picture;
    return off.dot(off) < distance * distance;
}

/// Features, not matches: of the matches of one feature one is right at most.
template <typename Matches, typename Each>
int inliers(const cv::Matx33d& homography, const Matches& matches, Each each)
{
    int count = 0;
    for (const auto& match : matches)
        count += isInlier(homography, each(match), inlierDistance) ? 1 : 0;
    return count;
}

bool homographyOf(const std::array<const FeatureMatch*, 4>& four, cv::Matx33d& result)
{
    std::array<cv::Point2f, 4> from;
    std::array<cv::Point2f, 4> to;
    for (std::size_t i = 0; i < 4; ++i) {
        from[i] = four[i]->chart;
        to[i] = four[i]->picture;
    }
    for (std::size_t i = 0; i < 4; ++i) {
        const cv::Point2f a = from[(i + 1) % 4] - from[i];
        const cv::Point2f b = from[(i + 2) % 4] - from[i];
        const cv::Point2f c = to[(i + 1) % 4] - to[i];
        const cv::Point2f d = to[(i + 2) % 4] - to[i];
        if (std::abs(a.cross(b)) < 400 || a.cross(b) * c.cross(d) <= 0)
            return false;
    }
    const cv::Mat exact = cv::getPerspectiveTransform(from.data(), to.data());
    result = exact;
    return std::abs(cv::determinant(exact)) > 1e-9;
}

/// The homography through all that are near, and how many are.
Proposal refitted(Proposal proposal, const std::vector<FeatureMatch>& matches)
{
    for (const double distance : {3 * inlierDistance, 2 * inlierDistance, inlierDistance}) {
        std::vector<cv::Point2d> from;
        std::vector<cv::Point2d> to;
        for (const FeatureMatch& match : matches) {
            if (isInlier(proposal.homography, match, distance)) {
                from.push_back(match.chart);
                to.push_back(match.picture);
            }
        }
        if (from.size() < 8)
            break;
        const cv::Mat better = cv::findHomography(from, to, 0);
        if (better.empty())
            break;
        proposal.homography = better;
    }
    proposal.inliers = inliers(proposal.homography, matches,
                               [](const FeatureMatch& match) -> const FeatureMatch& { return match; });
    return proposal;
}

Proposal sampled(const std::vector<const FeatureMatch*>& near, const FeatureMatch& seed, std::mt19937& random)
{
    Proposal best;
    for (int i = 0; i < samplesPerSeed; ++i) {
        std::array<const FeatureMatch*, 4> four = {
            &seed, near[random() % near.size()], near[random() % near.size()], near[random() % near.size()]};
        Proposal proposal;
        if (!homographyOf(four, proposal.homography))
            continue;
        proposal.inliers = inliers(proposal.homography, near,
                                   [](const FeatureMatch* match) -> const FeatureMatch& { return *match; });
        if (proposal.inliers > best.inliers)
            best = proposal;
    }
    return best;
}

} // namespace

Features featuresOf(const cv::Mat& grey, int most)
{
    const auto finder = cv::SIFT::create(most, 3, 0.02, 12);
    std::vector<cv::KeyPoint> points;
    Features features;
    finder->detectAndCompute(grey, {}, points, features.descriptors);
    for (const cv::KeyPoint& point : points) {
        features.points.push_back(point.pt + cv::Point2f(0.5F, 0.5F));
        features.sizes.push_back(point.size);
        features.angles.push_back(point.angle);
    }
    for (int row = 0; row < features.descriptors.rows; ++row) {
        cv::Mat line = features.descriptors.row(row);
        line /= std::max(1e-6, cv::norm(line, cv::NORM_L1));
        cv::sqrt(line, line); // then the product of two is Hellinger's affinity
    }
    return features;
}

std::vector<Lens> proposedByFeatures(const Features& chart, const Features& picture, double chartScale,
                                     double pictureScale, const cv::Size& chartSize,
                                     const cv::Size& pictureSize)
{
    if (chart.points.size() < 8 || picture.points.size() < 8)
        return {};
    const std::vector<FeatureMatch> matches = matched(chart, picture);
    std::mt19937 random(1);
    std::vector<Proposal> found;
    for (std::size_t i = 0; i < std::min(mostSeeds, matches.size()); ++i) {
        const auto near = agreeingWith(matches[i], matches);
        if (near.size() < 10)
            continue;
        const Proposal proposal = sampled(near, matches[i], random);
        if (proposal.inliers >= 8)
            found.push_back(proposal);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Proposal& a, const Proposal& b) { return a.inliers > b.inliers; });
    found.resize(std::min(found.size(), 3 * proposals));
    for (Proposal& proposal : found)
        proposal = refitted(proposal, matches);
    std::stable_sort(found.begin(), found.end(),
                     [](const Proposal& a, const Proposal& b) { return a.inliers > b.inliers; });

    const cv::Matx33d toChart(chartScale, 0, 0, 0, chartScale, 0, 0, 0, 1);
    const cv::Matx33d fromPicture(1 / pictureScale, 0, 0, 0, 1 / pictureScale, 0, 0, 0, 1);
    std::vector<Lens> lenses;
    for (const Proposal& proposal : found) {
        const Lens lens = lensOf(fromPicture * proposal.homography * toChart, pictureSize);
        if (lenses.size() < proposals && isSensible(lens, chartSize))
            lenses.push_back(lens);
    }
    return lenses;
}

} // namespace WallReading
