#pragma once

#include "exitcode.h"
#include "manifest.h"

#include <testcharttoolsdata.h>

#include <atomic>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class ChartRenderer;
struct Arguments;
struct Wall;

/// Makes many pictures: charts are rendered one after another, and encoded and written beside that. A picture
/// that fails does not keep the others from being made.
class Batch
{
public:
    /// What is to be made. Throws Failure where two pictures would have the same name.
    Batch(const Arguments& arguments, const std::vector<Wall>& walls);
    ~Batch();

    /// Makes it, until `stop`. Pictures that were not begun by then have "interrupted" as their problem.
    ExitCode run(const std::atomic<bool>& stop);

    /// In the order in which they were asked for.
    std::vector<BatchPicture> pictures() const;

private:
    struct Job;
    void add(const QString& record, const Wall& wall);
    const vardeno::testcharttools::TestChartToolsData& recordAt(const QString& path);
    void make(Job& job, ChartRenderer& renderer);
    void encode(Job& job, const QImage& image);
    void waitForEncoders(int count);
    QString fileOf(const Job& job) const;
    void finish(Job& job, const QImage& image);

    const Arguments& m_arguments;
    std::vector<std::unique_ptr<Job>> m_jobs;
    int m_atOnce;                       ///< encoders at the most
    std::deque<std::thread> m_encoders; ///< at work, in the order of their pictures
    std::optional<QString> m_path;      ///< of the last record that was read
    std::optional<Failure> m_failure;   ///< in reading it
    vardeno::testcharttools::TestChartToolsData m_record;
};
