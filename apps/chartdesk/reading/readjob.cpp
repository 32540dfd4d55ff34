#include "readjob.h"

#include "hosttext.h"

#include <QMutex>
#include <QThreadPool>

using vardeno::testcharttools::ChartCaptions;

/// What the thread may use when the job has gone.
struct ReadJob::Shared
{
    std::atomic<bool> isCanceled{false};
    QMutex mutex;
    ReadJob* job = nullptr; ///< null when it has gone
};

ReadJob::ReadJob(const QString& photo, const QString& chart, QObject* parent)
    : QObject(parent)
    , m_shared(std::make_shared<Shared>())
{
    m_shared->job = this;
    QThreadPool::globalInstance()->start(
        [shared = m_shared, photo, chart, language = ReadLanguage{ChartCaptions::current(), hostTexts()}] {
            const WallRead read = readWall(photo, chart, language, shared->isCanceled);
            const QMutexLocker locker(&shared->mutex);
            if (ReadJob* const job = shared->job)
                QMetaObject::invokeMethod(
                    job, [job, read] { Q_EMIT job->done(read); }, Qt::QueuedConnection);
        });
}

ReadJob::~ReadJob()
{
    m_shared->isCanceled = true;
    const QMutexLocker locker(&m_shared->mutex);
    m_shared->job = nullptr;
}
