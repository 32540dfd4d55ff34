#include "obstacle.h"

#include "hosttext.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace {

constexpr quint64 roomOfAChart = 64 << 20; ///< bytes; what the largest ones take

/// Writes a little; the error number, 0 for success.
int writeTrial(const QString& path)
{
    errno = 0;
    std::FILE* file = std::fopen(QFile::encodeName(path).constData(), "wbx");
    if (!file)
        return errno;
    const QByteArray bytes(64 * 1024, '\0');
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), file);
    const int written = std::fflush(file) == 0 ? 0 : errno;
    std::fclose(file);
    QFile::remove(path);
    return written;
}

/// `folder` itself or the first above it that is there.
QString nearestFolder(QString folder)
{
    while (!QFileInfo::exists(folder) && QFileInfo(folder).path() != folder)
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

Obstacle obstacleOf(int error)
{
    switch (error) {
    case 0:
        return Obstacle::None;
    case EACCES:
    case EPERM:
        return Obstacle::NoPermission;
    case EROFS:
        return Obstacle::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Obstacle::NoSpace;
    case ENOTDIR:
    case EEXIST:
        return Obstacle::NotAFolder;
    case ENOENT:
        return Obstacle::Gone;
    default:
        return Obstacle::Other;
    }
}

Obstacle obstacleIn(const QString& folder)
{
    const QString last = nearestFolder(folder);
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    if (error)
        return obstacleOf(error.value());
    const QString trial = folder + QLatin1String("/.chartdesk-") + QUuid::createUuid().toString(QUuid::Id128);
    const Obstacle found = obstacleOf(writeTrial(trial));
    const auto space = std::filesystem::space(QFile::encodeName(folder).toStdString(), error);
    const bool hasRoom = error || space.available >= roomOfAChart; // what nobody can tell is no obstacle
    for (QString made = folder; made != last && QDir().rmdir(made);)
        made = QFileInfo(made).path();
    return found == Obstacle::None && !hasRoom ? Obstacle::NoSpace : found;
}

QString obstacleText(Obstacle obstacle, const QString& folder)
{
    switch (obstacle) {
    case Obstacle::NoPermission:
        return hostText(QStringLiteral("You have no permission to write into “%1”.")).arg(folder);
    case Obstacle::ReadOnly:
        return hostText(QStringLiteral("“%1” lies on a disk that can only be read.")).arg(folder);
    case Obstacle::NoSpace:
        return hostText(QStringLiteral("There is no space left on the disk of “%1”.")).arg(folder);
    case Obstacle::NotAFolder:
        return hostText(QStringLiteral("“%1” cannot be a folder: a file is in its way.")).arg(folder);
    case Obstacle::Gone:
        return hostText(QStringLiteral("The folder “%1” is gone.")).arg(folder);
    case Obstacle::None:
    case Obstacle::Other:
        break;
    }
    return {};
}
