#pragma once

#include "chartview.h"
#include "lens.h"
#include "wallreading.h"

#include <atomic>
#include <chrono>
#include <optional>

namespace WallReading {

/// When a reading has to come to an end.
class Deadline
{
public:
    explicit Deadline(const std::atomic<bool>* canceled = nullptr)
        : m_canceled(canceled)
    {
    }

    bool isOver() const { return isCanceled() || seconds() > mostSeconds; }
    bool isCanceled() const { return m_canceled && *m_canceled; }
    double seconds() const;

private:
    static constexpr double mostSeconds = 16; ///< with what is left to do then it stays below 20
    const std::atomic<bool>* m_canceled;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// Where the chart is in the picture.
struct FoundPlace
{
    bool isFound = false;
    Lens lens;
    double score = 0;
    Doubt doubt = Doubt::NotFound;
    Place alike;
    bool isMirrored = false; ///< the whole chart
    bool isCapture = false;  ///< the chart fills the picture
};

/// `marked`: where markers say that it is; nothing else is looked for then, if the chart is seen there.
FoundPlace placeOf(const cv::Mat& chart, const ChartComparison::CabinetGrid& grid, const cv::Mat& picture,
                   const Deadline& deadline, const std::optional<Lens>& marked = std::nullopt);

} // namespace WallReading
