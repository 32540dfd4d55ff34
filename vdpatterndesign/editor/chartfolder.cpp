#include "editor/chartfolder.h"

#include "support/chartlog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>

namespace vardeno::testcharttools {

namespace {

QString canonical(const QString& path)
{
    return QFileInfo(path).canonicalFilePath();
}

/// Both canonical; a folder holds itself.
bool holds(const QString& folder, const QString& path)
{
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path == folder || path.startsWith(prefix);
}

} // namespace

QString chartFolder(const QString& root, const QDateTime& time)
{
    // The system's locale may have digits of its own.
    return root + QLatin1Char('/') + QLocale::c().toString(time, QStringLiteral("yyyyMMdd_HHmmss"));
}

std::vector<QString> allFilePaths(const QString& dir)
{
    std::vector<QString> paths;
    const QStringList names = QDir(dir).entryList(QDir::Files | QDir::NoDotAndDotDot);
    for (const QString& name : names)
        paths.push_back(dir + QLatin1Char('/') + name);
    return paths;
}

bool mayRemoveChartFolder(const QString& folder, const QString& replacement, const QString& saveRoot)
{
    const QFileInfo info(QDir::cleanPath(folder)); // a link with a slash behind it is none
    if (!info.isDir() || info.isSymLink() || !QFileInfo(replacement).isFile())
        return false;
    const QString target = info.canonicalFilePath();
    return !holds(target, canonical(replacement)) && !holds(target, canonical(saveRoot)) &&
           !holds(target, canonical(QDir::homePath())) && QStorageInfo(target).rootPath() != target;
}

void removeChartFolder(const QString& path, const QString& replacement, const QString& saveRoot)
{
    if (!QFileInfo(path).isFile()) {
        qCDebug(chartLog) << Q_FUNC_INFO << "testChartImage does not exist:" << path;
        return;
    }
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo::exists(folder)) {
        qCDebug(chartLog) << Q_FUNC_INFO << "testChartImage Folder does not exist:" << folder;
        return;
    }
    const bool holdsTheChart =
        QFileInfo(path).canonicalPath() == canonical(folder); // not so behind "link/.."
    const bool removed = holdsTheChart && mayRemoveChartFolder(folder, replacement, saveRoot) &&
                         QDir(folder).removeRecursively();
    qCDebug(chartLog) << Q_FUNC_INFO
                      << (removed ? "testChartImage Folder Removed success:"
                                  : "testChartImage Folder Removed Failed:")
                      << folder;
}

} // namespace vardeno::testcharttools
