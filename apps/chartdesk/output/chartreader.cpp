#include "chartreader.h"

#include <QFileInfo>

using vardeno::testcharttools::ChartCaptions;

namespace {

constexpr qint64 pictureRoom = 512 << 20; ///< bytes: fifteen pictures of 3840 x 2160

bool isFresh(const QString& path, const ShownChart& chart)
{
    return QFileInfo(path).lastModified() == chart.modified;
}

} // namespace

ChartReader::ChartReader(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

ChartReader::~ChartReader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ChartReader::want(const QStringList& paths)
{
    m_wanted = paths;
    m_wanted.removeDuplicates();
    m_pool.clear();
    m_begun.clear();
    qint64 taken = 0;
    QHash<QString, ShownChart> kept;
    for (const QString& path : qAsConst(m_wanted)) {
        const ShownChart* chart = find(path);
        if (!chart) {
            begin(path);
        } else if (taken < pictureRoom) {
            taken += chart->picture.sizeInBytes();
            kept.insert(path, *chart);
        }
    }
    m_charts = kept;
}

const ShownChart* ChartReader::find(const QString& path) const
{
    const auto it = m_charts.constFind(path);
    return it != m_charts.constEnd() && isFresh(path, *it) ? &*it : nullptr;
}

void ChartReader::begin(const QString& path)
{
    m_begun.insert(path);
    m_pool.start([this, path, captions = ChartCaptions::current()] {
        const ShownChart chart = ShownChart::read(path, captions);
        QMetaObject::invokeMethod(
            this, [this, path, chart] { take(path, chart); }, Qt::QueuedConnection);
    });
}

void ChartReader::take(const QString& path, const ShownChart& chart)
{
    if (!m_begun.remove(path))
        return;
    qint64 taken = 0;
    for (const ShownChart& other : qAsConst(m_charts))
        taken += other.picture.sizeInBytes();
    if (taken > pictureRoom && path != m_wanted.value(0))
        return;
    m_charts.insert(path, chart);
    Q_EMIT read(path);
}
