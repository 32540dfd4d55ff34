#include "chartstore.h"

#include "chartfolderlist.h"
#include "charttags.h"

#include <chartrecordfile.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <utility>

using namespace vardeno::testcharttools;

namespace {

/// How the folders of unfinished saves begin on this machine; the process and a number follow.
QString stagingPrefix()
{
    const QByteArray machine = QCryptographicHash::hash(
        QSysInfo::machineHostName().toUtf8() + QSysInfo::machineUniqueId(), QCryptographicHash::Sha256);
    return QLatin1String(".chartdesk-") + QString::fromLatin1(machine.toHex().left(12)) + QLatin1Char('-');
}

QString newStagingName()
{
    return stagingPrefix() + QString::number(QCoreApplication::applicationPid()) + QLatin1Char('-') +
           QUuid::createUuid().toString(QUuid::Id128);
}

bool isRunning(qint64 process)
{
    return ::kill(pid_t(process), 0) == 0 || errno == EPERM;
}

/// What a desk left that has crashed: its edit is in its draft.
void sweepAbandoned(const QString& folder)
{
    const QString prefix = stagingPrefix();
    const QStringList names =
        QDir(folder).entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const qint64 process = name.mid(prefix.size()).section(QLatin1Char('-'), 0, 0).toLongLong();
        if (process > 0 && !isRunning(process))
            QDir(folder + QLatin1Char('/') + name).removeRecursively();
    }
}

std::filesystem::path nativePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

bool isTaken(const std::error_code& error)
{
    return error == std::errc::directory_not_empty || error == std::errc::file_exists ||
           error == std::errc::not_a_directory;
}

/// Renames a folder that is not empty to `name`, "<name>-2" and so on: the system gives it no name under
/// which something is, whoever asks for it at the same time. Empty on failure.
QString giveFreeName(const QString& folder, const QString& name, QString& problem)
{
    constexpr int attempts = 10000;
    std::error_code error;
    for (int number = 1; number < attempts; ++number) {
        const QString target = number == 1 ? name : name + QLatin1Char('-') + QString::number(number);
        std::filesystem::rename(nativePath(folder), nativePath(target), error);
        if (!error)
            return target;
        if (!isTaken(error))
            break;
    }
    problem = name + QLatin1String(": ") + QString::fromStdString(error.message());
    return {};
}

/// A record that cannot be read may use anything.
bool mayUse(const QString& record, const QString& picture)
{
    const auto reading = ChartRecordFile::read(record);
    return !reading.problems.isEmpty() ||
           QString::fromStdString(reading.record.logoData.picturePath) == picture;
}

bool isOfAnotherChart(const QString& picture, const QFileInfo& record)
{
    const QFileInfoList records = record.dir().entryInfoList({QStringLiteral("*.json")}, QDir::Files);
    return QFileInfo::exists(ChartFolderList::recordPath(picture)) ||
           std::any_of(records.cbegin(), records.cend(), [&](const QFileInfo& other) {
               return other != record && mayUse(other.filePath(), picture);
           });
}

bool isRecordShared(const QFileInfo& image)
{
    const QFileInfoList images = ChartFolderList::imagesIn(image.path());
    return std::any_of(images.cbegin(), images.cend(), [&](const QFileInfo& other) {
        return other != image && other.completeBaseName() == image.completeBaseName();
    });
}

/// From `folder` upwards to `last`, and no further.
void removeEmptyFolders(QString folder, const QString& last)
{
    while (QDir().rmdir(folder) && folder != last)
        folder = QFileInfo(folder).path();
}

/// What belongs to a chart alone, the picture that is seen first.
QStringList filesOf(const QFileInfo& image)
{
    const QString folder = image.path();
    const QFileInfo record(ChartFolderList::recordPath(image.filePath()));
    const QString picture =
        QString::fromStdString(ChartRecordFile::read(record.filePath()).record.logoData.picturePath);
    QStringList files = {image.filePath()};
    if (!isRecordShared(image))
        files += record.filePath();
    if (!isRecordShared(image) && !pathWithin(folder, picture).isEmpty() &&
        !isOfAnotherChart(picture, record))
        files += QDir::cleanPath(picture);
    const QFileInfoList images = ChartFolderList::imagesIn(folder);
    if (std::all_of(images.cbegin(), images.cend(), [&](const QFileInfo& other) { return other == image; }))
        files += folder + QLatin1Char('/') + ChartTags::fileName();
    return files;
}

bool holdsOnly(const QString& folder, const QStringList& files)
{
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = QDir::cleanPath(all.next());
        if ((!all.fileInfo().isDir() || all.fileInfo().isSymLink()) && !files.contains(path))
            return false;
    }
    return true;
}

/// Takes a folder out of sight with all that is in it, and then apart: whatever happens meanwhile leaves all
/// of it or what the next start sweeps.
bool removeAtOnce(const QString& folder)
{
    ChartStore store(QFileInfo(folder).path());
    const QString hidden = store.nextSaveRoot();
    return QDir().mkpath(QFileInfo(hidden).path()) && QDir().rename(folder, hidden);
}

} // namespace

ChartStore::ChartStore(const QString& folder)
    : m_folder(folder)
    , m_staging(folder + QLatin1Char('/') + newStagingName())
{
    sweepAbandoned(folder);
}

ChartStore::~ChartStore()
{
    if (!m_staging.isEmpty())
        QDir(m_staging).removeRecursively();
}

ChartStore::ChartStore(ChartStore&& other) noexcept
    : m_folder(std::move(other.m_folder))
    , m_staging(std::exchange(other.m_staging, QString()))
    , m_saves(other.m_saves)
{
}

ChartStore& ChartStore::operator=(ChartStore&& other) noexcept
{
    std::swap(m_folder, other.m_folder);
    std::swap(m_staging, other.m_staging);
    std::swap(m_saves, other.m_saves);
    return *this;
}

QString ChartStore::nextSaveRoot()
{
    return m_staging + QLatin1Char('/') + QString::number(++m_saves);
}

bool ChartStore::isStaged(const QString& path) const
{
    return path.startsWith(m_staging + QLatin1Char('/'));
}

QString ChartStore::finalPath(const QString& stagedImage) const
{
    const QFileInfo image(stagedImage);
    return m_folder + QLatin1Char('/') + image.dir().dirName() + QLatin1Char('/') + image.fileName();
}

ChartStore::Published ChartStore::publish(const QString& stagedImage, TestChartToolsData record,
                                          QJsonObject document, const QString& picture) const
{
    const QFileInfo image(stagedImage);
    if (!image.isFile())
        return {{}, finalPath(stagedImage)};
    if (!picture.isEmpty()) {
        const QString place = image.dir().filePath(picture);
        const QString source = QString::fromStdString(record.logoData.picturePath);
        QDir().mkpath(QFileInfo(place).path());
        if (QFileInfo(source).isFile() && !QFile::copy(source, place))
            return {{}, picture};
        record.logoData.picturePath = place.toStdString();
        QJsonObject logo = document.value(QLatin1String("logoData")).toObject();
        logo.insert(QLatin1String("picturePath"), picture); // it is stored as the document has it
        document.insert(QLatin1String("logoData"), logo);
    }
    const QString problem =
        ChartRecordFile::write(ChartFolderList::recordPath(stagedImage), record, document);
    if (!problem.isEmpty())
        return {{}, problem};
    return join(stagedImage);
}

ChartStore::Published ChartStore::join(const QString& stagedImage) const
{
    const QFileInfo image(stagedImage);
    QString problem;
    const QString folder = giveFreeName(image.path(), QFileInfo(finalPath(stagedImage)).path(), problem);
    if (folder.isEmpty())
        return {{}, problem};
    removeEmptyFolders(QFileInfo(image.path()).path(), m_staging);
    return {folder + QLatin1Char('/') + image.fileName(), {}};
}

QByteArray recordDigest(const QString& imagePath)
{
    QFile file(ChartFolderList::recordPath(imagePath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex();
}

void removeChartFiles(const QString& imagePath)
{
    const QString folder = QFileInfo(imagePath).path();
    const QStringList files = filesOf(QFileInfo(imagePath));
    if (holdsOnly(folder, files) && removeAtOnce(folder))
        return;
    for (const QString& file : files) {
        QFile::remove(file);
        removeEmptyFolders(QFileInfo(file).path(), folder);
    }
}

QString pathWithin(const QString& folder, const QString& picture)
{
    const QString path = QDir(folder).relativeFilePath(picture);
    const bool isWithin = !picture.isEmpty() && QDir::isRelativePath(path) && path != QLatin1String("..") &&
                          !path.startsWith(QLatin1String("../"));
    return isWithin ? path : QString();
}
