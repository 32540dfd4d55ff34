#include "thumbnailloader.h"

#include "chartfolderlist.h"
#include "samplechart.h"
#include "thumbnailcache.h"
#include "walldocuments.h"

#include <chartrecordfile.h>
#include <picturehead.h>
#include <pngtexts.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QRunnable>
#include <QThread>

#include <algorithm>
#include <functional>

namespace {

constexpr int mostKept = 5000;                  ///< pictures, some 20 MiB
constexpr qint64 longestRead = 256 << 20;       ///< bytes of a chart that is told by its content
constexpr qint64 mostPixels = 64 * 1024 * 1024; ///< of a picture that is read whole

/// Null where there is no record that tells what the picture shows.
QImage drawnFromRecord(const QString& imagePath, const QSize& size)
{
    const auto reading =
        vardeno::testcharttools::ChartRecordFile::read(ChartFolderList::recordPath(imagePath));
    return reading.problems.isEmpty() ? sampledChart(reading.record, size) : QImage();
}

/// The picture in `file`, which lies at `path`, in the middle of black.
QImage scaled(QIODevice* file, const QString& path, const QSize& size)
{
    QImage canvas(size, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    if (!file->isOpen() || vardeno::testcharttools::hasTooMuchText(*file))
        return canvas;
    QImageReader reader(file);
    const QSize whole = vardeno::testcharttools::toldSize(reader);
    const QSize fitted = whole.scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const bool isLarge = qint64(whole.width()) * whole.height() > mostPixels;
    reader.setScaledSize(fitted);
    QPainter painter(&canvas);
    painter.drawImage((size.width() - fitted.width()) / 2, (size.height() - fitted.height()) / 2,
                      isLarge ? drawnFromRecord(path, fitted) : reader.read());
    return canvas;
}

/// In the middle of black.
QImage ofDocument(const QString& path, const QSize& size)
{
    const ThumbnailCache cache(ThumbnailCache::usersFolder());
    const QByteArray contents = WallDocuments::contents(path);
    QImage canvas = cache.find(contents, size);
    if (!canvas.isNull())
        return canvas;
    canvas = QImage(size, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    const QImage picture = WallDocuments::picture(path, size);
    QPainter(&canvas).drawImage((size.width() - picture.width()) / 2, (size.height() - picture.height()) / 2,
                                picture);
    cache.insert(contents, canvas);
    return canvas;
}

QImage thumbnail(const QString& path, const QSize& size)
{
    if (WallDocuments::isDocument(path))
        return ofDocument(path, size);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestRead)
        return scaled(&file, path, size);
    const ThumbnailCache cache(ThumbnailCache::usersFolder());
    QByteArray bytes = file.readAll();
    QImage picture = cache.find(bytes, size);
    if (picture.isNull()) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly); // its head is looked at before it is read
        picture = scaled(&buffer, path, size);
        cache.insert(bytes, picture);
    }
    return picture;
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
    m_pool.start(new Job([] { ThumbnailCache(ThumbnailCache::usersFolder()).prune(mostKept); }));
}

ThumbnailLoader::~ThumbnailLoader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ThumbnailLoader::load(const QString& path, const QSize& size, int ticket)
{
    m_pool.start(new Job([this, path, size, ticket, round = m_round] {
        const ChartDetails details = ChartDetails::read(path);
        const auto tellDetails = [this, details, ticket, round] {
            if (round == m_round)
                Q_EMIT detailed(ticket, details);
        };
        QMetaObject::invokeMethod(this, tellDetails, Qt::QueuedConnection);
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
