#include "products.h"

#include <algorithm>
#include <array>

namespace WallReading {

namespace {

/// Rows of `b` that are multiplied at once: their sums stay in registers.
constexpr int atOnce = 16;

/// Values of a row that are multiplied before the next ones: what is transposed of them stays in the cache.
constexpr int depth = 256;

/// `atOnce` rows of `b` from `first` and `from`, transposed; zeros behind the last one.
using Panel = std::array<float, std::size_t(atOnce) * depth>;

void transpose(const cv::Mat& b, int first, int from, int to, Panel& panel)
{
    for (int k = 0; k < atOnce; ++k) {
        const float* row = first + k < b.rows ? b.ptr<float>(first + k) : nullptr;
        for (int i = from; i < to; ++i)
            panel[std::size_t((i - from) * atOnce + k)] = row ? row[i] : 0;
    }
}

void addProducts(const float* one, const float* other, const float* panel, int length,
                 std::array<float, atOnce>& sums, std::array<float, atOnce>& otherSums)
{
    for (int i = 0; i < length; ++i) {
        for (int k = 0; k < atOnce; ++k) {
            const float value = panel[i * atOnce + k];
            sums[std::size_t(k)] += one[i] * value;
            otherSums[std::size_t(k)] += other[i] * value;
        }
    }
}

void addSums(cv::Mat& result, int row, int first, const std::array<float, atOnce>& sums)
{
    auto* line = result.ptr<float>(row) + first;
    const int count = std::min(atOnce, result.cols - first);
    for (int k = 0; k < count; ++k)
        line[k] += sums[std::size_t(k)];
}

} // namespace

// OpenCV hands its own product to the BLAS that is installed; Debian's plain one takes five times as long.
cv::Mat productsOf(const cv::Mat& a, const cv::Mat& b)
{
    cv::Mat result(a.rows, b.rows, CV_32F, cv::Scalar(0));
    const int panels = (b.rows + atOnce - 1) / atOnce;
    cv::parallel_for_({0, panels}, [&](const cv::Range& range) {
        Panel panel;
        for (int first = range.start * atOnce; first < range.end * atOnce; first += atOnce) {
            for (int from = 0; from < a.cols; from += depth) {
                const int to = std::min(from + depth, a.cols);
                transpose(b, first, from, to, panel);
                for (int row = 0; row < a.rows; row += 2) {
                    const int next = std::min(row + 1, a.rows - 1);
                    std::array<float, atOnce> sums = {};
                    std::array<float, atOnce> others = {};
                    addProducts(a.ptr<float>(row) + from, a.ptr<float>(next) + from, panel.data(), to - from,
                                sums, others);
                    addSums(result, row, first, sums);
                    if (next != row)
                        addSums(result, next, first, others);
                }
            }
        }
    });
    return result;
}

} // namespace WallReading
