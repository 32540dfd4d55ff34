#include "defaultlogo.h"

#include "support/coreresources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QStandardPaths>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

namespace vardeno::testcharttools {

namespace {

const QString name = QStringLiteral("logo_1025.png");

QMutex guard;
QString hostsLogo;

QString hostsOwn()
{
    const QMutexLocker lock(&guard);
    return hostsLogo;
}

/// The folder of the shared library, or of the program that it is linked into.
QString libraryFolder()
{
#ifdef Q_OS_UNIX
    Dl_info info;
    if (dladdr(&guard, &info) != 0 && info.dli_fname)
        return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
#endif
    return QCoreApplication::applicationDirPath();
}

QStringList findPlaces()
{
    ensureCoreResources();
    const QString library = libraryFolder();
    QStringList places = {
        QCoreApplication::applicationDirPath() +
            QLatin1String("/../share/themes/images/default/testcharttools/") + name,
        library + QLatin1Char('/') + name,
        QDir::cleanPath(library + QLatin1String("/" VD_DATA_FROM_LIBRARY "/vardeno/") + name),
        QDir::cleanPath(library + QLatin1String("/../share/vardeno/") + name),
    };
    places +=
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QLatin1String("vardeno/") + name);
    places.append(QLatin1String(":/vardeno/logo/") + name);
    places.removeDuplicates();
    return places;
}

} // namespace

QStringList defaultLogoPlaces()
{
    static const QStringList places = findPlaces();
    const QString own = hostsOwn();
    return own.isEmpty() ? places : QStringList(own) + places;
}

QString defaultLogo()
{
    const QStringList places = defaultLogoPlaces();
    return *std::find_if(places.cbegin(), places.cend() - 1, // the last one is compiled in
                         [](const QString& place) { return QFileInfo::exists(place); });
}

bool isDefaultLogo(const QString& path)
{
    return defaultLogoPlaces().contains(path);
}

void setDefaultLogo(const QString& path)
{
    const QMutexLocker lock(&guard);
    hostsLogo = path;
}

} // namespace vardeno::testcharttools
