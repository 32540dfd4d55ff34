#include "fileclaims.h"

#include "exitcode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const auto standardOutput = QStringLiteral("standard output");
constexpr int mostLinks = 40; ///< as the system follows them

bool isStream(const QString& path)
{
    return path == QLatin1String("-");
}

} // namespace

QString placeOf(QString path)
{
    for (int links = 0; links < mostLinks && QFileInfo(path).isSymLink(); ++links)
        path = QFileInfo(path).symLinkTarget();
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QDir::cleanPath(info.absoluteFilePath())
                            : QDir(folder).filePath(info.fileName());
}

bool FileClaims::Identity::operator==(const Identity& other) const
{
    if (isFile || other.isFile)
        return isFile == other.isFile && device == other.device && number == other.number;
    return !place.isEmpty() && place == other.place;
}

FileClaims::Identity FileClaims::identityOf(const QString& path, int stream)
{
    struct stat status = {};
    const int failed =
        isStream(path) ? fstat(stream, &status) : stat(QFile::encodeName(path).constData(), &status);
    if (failed != 0)
        return {false, 0, 0, isStream(path) ? QString() : placeOf(path)};
    return {S_ISREG(status.st_mode), quint64(status.st_dev), quint64(status.st_ino), QString()};
}

void FileClaims::reads(const QString& path, const QString& what)
{
    m_claims.push_back({identityOf(path, STDIN_FILENO), what});
}

void FileClaims::readsLogo(const vardeno::testcharttools::LogoChartData& logo)
{
    if (!logo.picturePath.empty())
        reads(QString::fromStdString(logo.picturePath), QStringLiteral("the picture of the record's logo"));
}

void FileClaims::protect(const QString& path) const
{
    if (path.isEmpty())
        return;
    const Identity identity = identityOf(path, STDOUT_FILENO);
    const auto taken = std::find_if(m_claims.begin(), m_claims.end(),
                                    [&](const Claim& claim) { return claim.identity == identity; });
    if (taken != m_claims.end())
        throw Failure{ExitCode::Usage,
                      QStringLiteral("%1: is %2").arg(isStream(path) ? standardOutput : path, taken->what)};
}

void FileClaims::writes(const QString& path)
{
    protect(path);
    m_claims.push_back({identityOf(path, STDOUT_FILENO), QStringLiteral("another file that is written")});
}
