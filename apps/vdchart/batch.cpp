#include "batch.h"

#include "arguments.h"
#include "carriedrecord.h"
#include "chartrenderer.h"
#include "imageoutput.h"
#include "outputfile.h"
#include "progressbar.h"

#include <QCryptographicHash>
#include <QThread>

#include <algorithm>
#include <new>
#include <system_error>

namespace {

constexpr int mostAtOnce = 4; ///< by itself: more do not keep the one that renders waiting, and take memory

int atOnce(int wanted)
{
    return wanted > 0 ? wanted : std::min(QThread::idealThreadCount() + 1, mostAtOnce);
}

Failure outOfMemory()
{
    return {ExitCode::NotWritten, QStringLiteral("out of memory")};
}

} // namespace

Batch::Batch(const Arguments& arguments, std::vector<PlannedPicture> plan)
    : m_arguments(arguments)
    , m_plan(std::move(plan))
    , m_atOnce(atOnce(arguments.jobs))
{
}

Batch::~Batch()
{
    waitForEncoders(0);
}

ExitCode Batch::run(const std::atomic<bool>& stop, const std::function<void()>& between)
{
    ChartRenderer renderer(QString::fromStdString(m_arguments.language));
    const ProgressBar bar(int(m_plan.size()));
    int begun = 0;
    for (PlannedPicture& planned : m_plan) {
        waitForEncoders(m_atOnce - 1);
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
    waitForEncoders(0);
    ExitCode worst = ExitCode::Good;
    for (const PlannedPicture& planned : m_plan)
        worst = std::max(worst, planned.code);
    return worst;
}

void Batch::make(PlannedPicture& planned, ChartRenderer& renderer)
{
    planned.picture.begun = true;
    if (planned.code != ExitCode::Good)
        return;
    try {
        encode(planned, renderer.render(planned.record));
    } catch (const Failure& failure) {
        planned.fail(failure);
    } catch (const std::bad_alloc&) {
        planned.fail(outOfMemory());
    }
}

void Batch::encode(PlannedPicture& planned, const QImage& image)
{
    try {
        m_encoders.emplace_back([this, &planned, image] { finish(planned, image); });
    } catch (const std::system_error&) { // no thread is to be had
        finish(planned, image);
    }
}

/// Until no more than `count` are at work. They take about as long as one another: the first one ends first.
void Batch::waitForEncoders(int count)
{
    while (int(m_encoders.size()) > count) {
        m_encoders.front().join();
        m_encoders.pop_front();
    }
}

/// What keeps one picture from being written keeps the others as well: a full disk, a folder that is gone.
void Batch::write(const PlannedPicture& planned, const QByteArray& file)
{
    try {
        writeOutput(batchPath(m_arguments, planned.picture.file), file);
    } catch (const Failure&) {
        m_unwritable = true;
        throw;
    }
}

void Batch::finish(PlannedPicture& planned, const QImage& image)
{
    try {
        PngOptions options;
        options.compression = m_arguments.compression;
        if (!m_arguments.withoutRecord)
            options.texts = CarriedRecord::texts(planned.record, QString::fromStdString(m_arguments.language),
                                                 batchPath(m_arguments, planned.picture.file));
        const QByteArray file = encodeImage(image, QString::fromStdString(m_arguments.format), options);
        write(planned, file);
        const QByteArray sha256 = QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex();
        const std::lock_guard<std::mutex> lock(m_results);
        planned.picture.size = image.size();
        planned.picture.bytes = file.size();
        planned.picture.sha256 = sha256;
    } catch (const Failure& failure) {
        const std::lock_guard<std::mutex> lock(m_results);
        planned.fail(failure);
    } catch (const std::bad_alloc&) { // which a thread may not leave
        const std::lock_guard<std::mutex> lock(m_results);
        planned.fail(outOfMemory());
    }
}

std::vector<BatchPicture> Batch::pictures() const
{
    const std::lock_guard<std::mutex> lock(m_results);
    std::vector<BatchPicture> pictures;
    for (const PlannedPicture& planned : m_plan)
        pictures.push_back(planned.picture);
    return pictures;
}
