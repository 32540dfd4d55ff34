#include "batch.h"

#include "arguments.h"
#include "chartrenderer.h"
#include "imageoutput.h"
#include "progressbar.h"
#include "recordinput.h"
#include "walls.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <new>
#include <system_error>

using namespace vardeno::testcharttools;

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

struct Batch::Job
{
    BatchPicture picture;
    std::vector<std::string> settings; ///< of the wall
    ExitCode code = ExitCode::Good;

    void fail(const Failure& failure)
    {
        code = failure.code;
        picture.problem = failure.message;
    }
};

Batch::Batch(const Arguments& arguments, const std::vector<Wall>& walls)
    : m_arguments(arguments)
    , m_atOnce(atOnce(arguments.jobs))
{
    for (const std::string& record : arguments.records) {
        for (const Wall& wall : walls)
            add(QString::fromStdString(record), wall);
    }
    QSet<QString> names;
    for (const auto& job : m_jobs) {
        const QString name = job->picture.file.toCaseFolded();
        if (names.contains(name))
            throw Failure{ExitCode::Usage,
                          QStringLiteral("two pictures would be called %1").arg(job->picture.file)};
        names.insert(name);
    }
}

Batch::~Batch()
{
    waitForEncoders(0);
}

void Batch::add(const QString& record, const Wall& wall)
{
    auto job = std::make_unique<Job>();
    QStringList name;
    if (m_arguments.records.size() > 1 || wall.name.isEmpty())
        name.append(record == QLatin1String("-") ? QStringLiteral("chart")
                                                 : QFileInfo(record).completeBaseName());
    if (!wall.name.isEmpty())
        name.append(wall.name);
    job->picture.record = record;
    job->picture.wall = wall.name;
    job->picture.file =
        name.join(QLatin1Char('-')) + QLatin1Char('.') + QString::fromStdString(m_arguments.format);
    job->settings = wall.settings;
    m_jobs.push_back(std::move(job));
}

ExitCode Batch::run(const std::atomic<bool>& stop)
{
    ChartRenderer renderer(QString::fromStdString(m_arguments.language));
    const ProgressBar bar(int(m_jobs.size()));
    int begun = 0;
    for (const auto& job : m_jobs) {
        bar.show(begun++, job->picture.file);
        if (stop)
            job->fail({ExitCode::Interrupted, QStringLiteral("interrupted")});
        else
            make(*job, renderer);
    }
    waitForEncoders(0);
    ExitCode worst = ExitCode::Good;
    for (const auto& job : m_jobs)
        worst = std::max(worst, job->code);
    return worst;
}

/// Read once for all its walls, which follow one another: the standard input cannot be read again.
const TestChartToolsData& Batch::recordAt(const QString& path)
{
    if (m_path != path) {
        m_path.reset();
        m_failure.reset();
        try {
            m_record = requireRecord(path, m_arguments.settings);
        } catch (const Failure& failure) {
            m_failure = failure;
        }
        m_path = path;
    }
    if (m_failure)
        throw Failure(*m_failure);
    return m_record;
}

void Batch::make(Job& job, ChartRenderer& renderer)
{
    job.picture.begun = true;
    try {
        TestChartToolsData record = recordAt(job.picture.record);
        applySettings(record, job.settings,
                      {ExitCode::Unreadable, QStringLiteral("wall \"%1\"").arg(job.picture.wall)});
        keepPicture(record.logoData, fileOf(job));
        waitForEncoders(m_atOnce - 1);
        encode(job, renderer.render(record));
    } catch (const Failure& failure) {
        job.fail(failure);
    } catch (const std::bad_alloc&) {
        job.fail(outOfMemory());
    }
}

void Batch::encode(Job& job, const QImage& image)
{
    try {
        m_encoders.emplace_back([this, &job, image] { finish(job, image); });
    } catch (const std::system_error&) { // no thread is to be had
        finish(job, image);
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

QString Batch::fileOf(const Job& job) const
{
    return QDir(QString::fromStdString(m_arguments.folder)).filePath(job.picture.file);
}

void Batch::finish(Job& job, const QImage& image)
{
    try {
        const QByteArray file =
            encodeImage(image, QString::fromStdString(m_arguments.format), m_arguments.compression);
        writeOutput(fileOf(job), file);
        job.picture.size = image.size();
        job.picture.bytes = file.size();
        job.picture.sha256 = QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex();
    } catch (const Failure& failure) {
        job.fail(failure);
    } catch (const std::bad_alloc&) { // which a thread may not leave
        job.fail(outOfMemory());
    }
}

std::vector<BatchPicture> Batch::pictures() const
{
    std::vector<BatchPicture> pictures;
    for (const auto& job : m_jobs)
        pictures.push_back(job->picture);
    return pictures;
}
