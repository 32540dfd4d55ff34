#include "thumbnailloader.h"

#include "chartfolderlist.h"
#include "samplechart.h"

#include <chartrecordfile.h>

#include <QImageReader>
#include <QPainter>
#include <QRunnable>
#include <QThread>

#include <algorithm>
#include <functional>

namespace {

constexpr qint64 mostPixels = 64 * 1024 * 1024; ///< of a picture that is read whole

/// Null where there is no record that tells what the picture shows.
QImage drawnFromRecord(const QString& imagePath, const QSize& size)
{
    const auto reading =
        vardeno::testcharttools::ChartRecordFile::read(ChartFolderList::recordPath(imagePath));
    return reading.problems.isEmpty() ? sampledChart(reading.record, size) : QImage();
}

QImage thumbnail(const QString& path, const QSize& size)
{
    QImage canvas(size, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    QImageReader reader(path);
    const QSize scaled = reader.size().scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const bool isLarge = qint64(reader.size().width()) * reader.size().height() > mostPixels;
    reader.setScaledSize(scaled);
    QPainter painter(&canvas);
    painter.drawImage((size.width() - scaled.width()) / 2, (size.height() - scaled.height()) / 2,
                      isLarge ? drawnFromRecord(path, scaled) : reader.read());
    return canvas;
}

class Job : public QRunnable
{
public:
    explicit Job(std::function<void()> work)
        : m_work(std::move(work))
    {
    }

    void run() override
    {
        QThread::currentThread()->setPriority(QThread::LowPriority);
        m_work();
    }

private:
    std::function<void()> m_work;
};

} // namespace

ThumbnailLoader::ThumbnailLoader(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(std::max(1, QThread::idealThreadCount() - 1));
}

ThumbnailLoader::~ThumbnailLoader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ThumbnailLoader::load(const QString& path, const QSize& size, int ticket)
{
    m_pool.start(new Job([this, path, size, ticket, round = m_round] {
        const QImage picture = thumbnail(path, size);
        const auto tell = [this, picture, ticket, round] {
            if (round == m_round)
                Q_EMIT loaded(ticket, picture);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    }));
}

void ThumbnailLoader::clear()
{
    m_pool.clear();
    ++m_round;
}
