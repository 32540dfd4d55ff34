#include "batch.h"

#include "arguments.h"
#include "carriedchart.h"
#include "chartrenderer.h"
#include "imageoutput.h"
#include "outputfile.h"
#include "progressbar.h"

#include <QCryptographicHash>
#include <QThread>

#include <algorithm>
#include <new>
#include <system_error>

using namespace vardeno::testcharttools;

namespace {

constexpr qint64 mostMemory = 1024LL * 1024 * 1024;     ///< bytes, of pictures that are made at the same time
constexpr qint64 bytesPerPixel = 12;                    ///< of a picture, its largest layer, and its encoding
constexpr qint64 mostBytes = qint64(256) * 1024 * 1024; ///< of a picture that is drawn strip by strip

/// By itself, as many as there are cores, and fewer where the largest pictures would take too much memory.
int atOnce(int wanted, const std::vector<PlannedPicture>& plan)
{
    qint64 largest = 1;
    for (const PlannedPicture& planned : plan) {
        const QSize size = sizeOf(planned.chart);
        largest = std::max(largest, qint64(size.width()) * size.height());
    }
    const qint64 roomFor = std::max<qint64>(mostMemory / std::min(largest * bytesPerPixel, mostBytes), 1);
    return wanted > 0 ? wanted : int(std::min<qint64>(QThread::idealThreadCount(), roomFor));
}

Failure outOfMemory()
{
    return {ExitCode::NotWritten, QStringLiteral("out of memory")};
}

} // namespace

Batch::Batch(const Arguments& arguments, std::vector<PlannedPicture> plan)
    : m_arguments(arguments)
    , m_plan(std::move(plan))
    , m_atOnce(atOnce(arguments.jobs, m_plan))
{
}

Batch::~Batch()
{
    waitForWorkers(0);
}

ExitCode Batch::run(const std::atomic<bool>& stop, const std::function<void()>& between)
{
    const ChartRenderer renderer(QString::fromStdString(m_arguments.language));
    const ProgressBar bar(int(m_plan.size()));
    int begun = 0;
    for (PlannedPicture& planned : m_plan) {
        waitForWorkers(m_atOnce - 1);
        if (between)
            between();
        if (planned.picture.isKept) {
            ++begun;
        } else if (stop) {
            planned.fail({ExitCode::Interrupted, QStringLiteral("interrupted")});
        } else if (m_unwritable) {
            planned.fail({ExitCode::NotWritten, QStringLiteral("not begun, as another one was not written")});
        } else {
            bar.show(begun++, planned.picture.file);
            make(planned, renderer);
        }
    }
    waitForWorkers(0);
    ExitCode worst = ExitCode::Good;
    for (const PlannedPicture& planned : m_plan)
        worst = std::max(worst, planned.code);
    return worst;
}

void Batch::make(PlannedPicture& planned, const ChartRenderer& renderer)
{
    planned.picture.begun = true;
    if (planned.code != ExitCode::Good)
        return;
    try {
        m_workers.emplace_back([this, &planned, &renderer] { draw(planned, renderer); });
    } catch (const std::system_error&) { // no thread is to be had
        draw(planned, renderer);
    }
}

/// Which no exception may leave: it is what a thread does.
void Batch::draw(PlannedPicture& planned, const ChartRenderer& renderer)
{
    try {
        finish(planned, renderer.rows(planned.chart));
    } catch (const Failure& failure) {
        const std::lock_guard<std::mutex> lock(m_results);
        planned.fail(failure);
    } catch (const std::bad_alloc&) {
        const std::lock_guard<std::mutex> lock(m_results);
        planned.fail(outOfMemory());
    }
}

/// Until no more than `count` are at work. They take about as long as one another: the first one ends first.
void Batch::waitForWorkers(int count)
{
    while (int(m_workers.size()) > count) {
        m_workers.front().join();
        m_workers.pop_front();
    }
}

/// What keeps one picture from being written keeps the others as well: a full disk, a folder that is gone.
/// What keeps it from being encoded is its own.
void Batch::write(const QString& path, const std::function<void(const ByteSink&)>& encode)
{
    bool isEncoding = false;
    try {
        writeOutput(path, [&](const ByteSink& sink) {
            isEncoding = true;
            encode([&](const char* bytes, qint64 count) {
                isEncoding = false;
                sink(bytes, count);
                isEncoding = true;
            });
            isEncoding = false;
        });
    } catch (const Failure&) {
        m_unwritable = m_unwritable || !isEncoding;
        throw;
    }
}

void Batch::finish(PlannedPicture& planned, const PictureRows& picture)
{
    const QString path = batchPath(m_arguments, planned.picture.file);
    PngOptions options;
    options.compression = m_arguments.compression;
    options.threads = std::max(1, QThread::idealThreadCount() / m_atOnce);
    if (!m_arguments.withoutRecord)
        options.texts =
            CarriedChart::texts(planned.chart, QString::fromStdString(m_arguments.language), path);
    qint64 size = 0;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    write(path, [&](const ByteSink& sink) {
        const auto noted = [&](const char* bytes, qint64 count) {
            sink(bytes, count);
            hash.addData(bytes, int(count));
            size += count;
        };
        encodePicture(picture, QString::fromStdString(m_arguments.format), options, noted);
    });
    const std::lock_guard<std::mutex> lock(m_results);
    planned.picture.size = picture.size;
    planned.picture.bytes = size;
    planned.picture.sha256 = hash.result().toHex();
}

std::vector<BatchPicture> Batch::pictures() const
{
    const std::lock_guard<std::mutex> lock(m_results);
    std::vector<BatchPicture> pictures;
    for (const PlannedPicture& planned : m_plan)
        pictures.push_back(planned.picture);
    return pictures;
}
