#include "chartshelf.h"

#include "chartfolderlist.h"
#include "chartstore.h"
#include "charttags.h"
#include "hosttext.h"
#include "wallshelf.h"

#include <chartrecordfile.h>
#include <pngtexts.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>

using namespace vardeno::testcharttools;

namespace {

constexpr int jpegQuality = 95;

QString stampNow()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
}

bool isRecord(const QString& file)
{
    return QFileInfo(file).suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) == 0;
}

/// "wall 2" after "wall", and "wall 3" after that.
QString nextName(const QString& folder, const QString& name)
{
    static const QRegularExpression number(QStringLiteral(" [0-9]{1,6}$"));
    const QString base = QString(name).remove(number);
    const int next = std::max(2, ChartFolderList::nextNumber(folder, {base + QLatin1Char(' ')}));
    return base + QLatin1Char(' ') + QString::number(next);
}

QString pictureOf(const QString& imagePath, const TestChartToolsData& record)
{
    const QString picture = QString::fromStdString(record.logoData.picturePath);
    const QString within = pathWithin(QFileInfo(imagePath).path(), picture);
    if (!within.isEmpty() || !QFileInfo(picture).isFile())
        return within;
    return QLatin1String("pictures/") + QFileInfo(picture).fileName();
}

ChartShelf::Outcome outcome(const ChartStore::Published& published)
{
    return {published.image, published.problem, nullptr};
}

/// Where a chart called `name` is put together before it joins the others.
QString stagedPath(ChartStore& store, const QString& name)
{
    const QString folder = store.nextSaveRoot() + QLatin1Char('/') + stampNow();
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name;
}

ChartShelf::Outcome publish(ChartStore& store, const QString& staged, const QString& record)
{
    if (!QFileInfo(record).isFile())
        return outcome(store.join(staged));
    const auto reading = ChartRecordFile::read(record);
    if (!reading.problems.isEmpty())
        return {{}, reading.problems.join(QLatin1Char('\n'))};
    return outcome(
        store.publish(staged, reading.record, reading.document, pictureOf(record, reading.record)));
}

ChartShelf::Outcome takeRecord(ChartStore& store, const QString& file, const ChartCaptions& captions)
{
    const auto reading = ChartRecordFile::read(file);
    if (!reading.problems.isEmpty())
        return {{},
                QFileInfo(file).fileName() + QLatin1String(": ") + reading.problems.join(QLatin1Char('\n'))};
    const QString staged = stagedPath(store, QFileInfo(file).completeBaseName() + QLatin1String(".png"));
    if (!ChartPicture(reading.record, captions, ChartRecordFile::markersOf(reading.document))
             .image()
             .save(staged))
        return {{}, staged};
    return publish(store, staged, file);
}

ChartShelf::Outcome takePicture(ChartStore& store, const QString& file)
{
    QImageReader reader(file);
    if (!reader.canRead())
        return {{}, file + QLatin1String(": ") + reader.errorString()};
    const QString staged = stagedPath(store, QFileInfo(file).fileName());
    if (!QFile::copy(file, staged))
        return {{}, staged};
    return publish(store, staged, ChartFolderList::recordPath(file));
}

} // namespace

namespace ChartShelf {

Outcome duplicate(const QString& folder, const QString& imagePath)
{
    const QFileInfo image(imagePath);
    ChartStore store(folder);
    const QString name = nextName(folder, image.completeBaseName()) + QLatin1Char('.') + image.suffix();
    const QString staged = stagedPath(store, name);
    if (!QFile::copy(imagePath, staged))
        return {{}, imagePath};
    ChartTags::set(staged, ChartTags::of(imagePath));
    return publish(store, staged, ChartFolderList::recordPath(imagePath));
}

Outcome rename(const QString& imagePath, const QString& name)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]|^\\.|^\\s*$"));
    if (name.contains(forbidden))
        return {{}, hostText(QStringLiteral("“%1” cannot be the name of a file.")).arg(name)};
    const QFileInfo image(imagePath);
    const QString target = image.path() + QLatin1Char('/') + name + QLatin1Char('.') + image.suffix();
    const QString record = ChartFolderList::recordPath(imagePath);
    const QString targetRecord = ChartFolderList::recordPath(target);
    if (target == imagePath)
        return {imagePath, {}};
    if (QFileInfo::exists(target) || QFileInfo::exists(targetRecord))
        return {{}, hostText(QStringLiteral("There is a chart called “%1” already.")).arg(name)};
    if (!QFile::rename(imagePath, target))
        return {{}, imagePath};
    if (QFileInfo::exists(record) && !QFile::rename(record, targetRecord)) {
        QFile::rename(target, imagePath);
        return {{}, record};
    }
    return {target, {}};
}

Outcome take(const QString& folder, const QString& file, const ChartCaptions& captions)
{
    if (isRecord(file) && WallShelf::isDocument(file))
        return WallShelf::take(folder, file);
    ChartStore store(folder);
    return isRecord(file) ? takeRecord(store, file, captions) : takePicture(store, file);
}

QString exportTo(const QString& imagePath, const QString& target)
{
    if (isRecord(target)) {
        const auto reading = ChartRecordFile::read(ChartFolderList::recordPath(imagePath));
        const QJsonObject beside =
            ChartRecordFile::withMarkers({}, ChartRecordFile::markersOf(reading.document));
        return reading.problems.isEmpty() ? ChartRecordFile::write(target, reading.record, beside)
                                          : reading.problems.join(QLatin1Char('\n'));
    }
    QImageReader reader(imagePath);
    const QImage picture = hasTooMuchText(imagePath) ? QImage() : reader.read();
    if (picture.isNull())
        return imagePath + QLatin1String(": ") + reader.errorString();
    const bool isJpeg = QFileInfo(target).suffix().startsWith(QLatin1String("jp"), Qt::CaseInsensitive);
    return picture.save(target, nullptr, isJpeg ? jpegQuality : -1) ? QString() : target;
}

} // namespace ChartShelf

namespace {

/// Whether the folder holds this one chart and nothing else of a person's.
bool isAlone(const QString& imagePath)
{
    return ChartFolderList::imagesIn(QFileInfo(imagePath).path()).size() == 1;
}

} // namespace

DeletedChart::DeletedChart(const QString& imagePath)
    : m_image(imagePath)
{
    const QString folder = QFileInfo(imagePath).path();
    const QString hidden = ChartStore(QFileInfo(folder).path()).nextSaveRoot();
    const bool isWhole = isAlone(imagePath);
    if (!QDir().mkpath(isWhole ? QFileInfo(hidden).path() : hidden))
        return;
    m_hidden = hidden;
    const bool isMoved = isWhole ? QDir().rename(folder, hidden) : moveFiles(folder, hidden);
    if (!isMoved)
        forget();
}

DeletedChart::~DeletedChart()
{
    if (!m_hidden.isEmpty())
        QDir(m_hidden).removeRecursively();
    forget();
}

QString DeletedChart::restore()
{
    const QString folder = QFileInfo(m_image).path();
    if (m_hidden.isEmpty() || QFileInfo::exists(m_image))
        return {};
    const bool isWhole = !QFileInfo::exists(folder);
    if (!(isWhole ? QDir().rename(m_hidden, folder) : moveFiles(m_hidden, folder)))
        return {};
    forget();
    return m_image;
}

/// The image and its record. Both or none of them.
bool DeletedChart::moveFiles(const QString& from, const QString& to) const
{
    const auto path = [](const QString& folder, const QString& file) {
        return folder + QLatin1Char('/') + QFileInfo(file).fileName();
    };
    const QString record = ChartFolderList::recordPath(m_image);
    if (!QFile::rename(path(from, m_image), path(to, m_image)))
        return false;
    if (!QFileInfo::exists(path(from, record)) || QFile::rename(path(from, record), path(to, record)))
        return true;
    QFile::rename(path(to, m_image), path(from, m_image));
    return false;
}

void DeletedChart::forget()
{
    if (m_hidden.isEmpty())
        return;
    QDir().rmdir(m_hidden);
    QDir().rmdir(QFileInfo(m_hidden).path());
    m_hidden.clear();
}

bool moveToTrash(const QString& imagePath)
{
    if (isAlone(imagePath))
        return QFile::moveToTrash(QFileInfo(imagePath).path());
    const QString record = ChartFolderList::recordPath(imagePath);
    return QFile::moveToTrash(imagePath) && (!QFileInfo::exists(record) || QFile::moveToTrash(record));
}
