#pragma once

#include "batchplan.h"
#include <picturerows.h>

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

class ChartRenderer;
struct Arguments;

/// Makes many pictures, several at a time: each of them is rendered, encoded and written by one thread. A
/// picture that fails does not keep the others from being made, unless it could not be written.
class Batch
{
public:
    Batch(const Arguments& arguments, std::vector<PlannedPicture> plan);
    ~Batch();

    /// Makes it, until `stop`. Pictures that were not begun by then have "interrupted" as their problem.
    /// Calls `between` before each picture.
    ExitCode run(const std::atomic<bool>& stop, const std::function<void()>& between = {});

    /// In the order in which they were asked for, with what is known of them so far.
    std::vector<BatchPicture> pictures() const;

private:
    void make(PlannedPicture& planned, const ChartRenderer& renderer);
    void draw(PlannedPicture& planned, const ChartRenderer& renderer);
    void waitForWorkers(int count);
    void finish(PlannedPicture& planned, const vardeno::testcharttools::PictureRows& picture);
    void write(const QString& path,
               const std::function<void(const vardeno::testcharttools::ByteSink& sink)>& encode);

    const Arguments& m_arguments;
    std::vector<PlannedPicture> m_plan;
    int m_atOnce;                      ///< pictures at the most
    std::deque<std::thread> m_workers; ///< in the order of their pictures
    std::atomic<bool> m_unwritable{false};
    mutable std::mutex m_results; ///< of the pictures, which workers write
};
