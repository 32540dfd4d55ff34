#include "support/writefault.h"

#include "support/translation.h"

#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>

namespace vardeno::testcharttools {

namespace {

WriteFault::Kind kindOf(int errorNumber)
{
    switch (errorNumber) {
    case EACCES:
    case EPERM:
    case EROFS:
        return WriteFault::NoPermission;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return WriteFault::NoSpace;
    case EISDIR:
    case ENOTDIR:
        return WriteFault::InTheWay;
    case ENOENT:
        return WriteFault::NoFolder;
    default:
        return WriteFault::Other;
    }
}

/// What stands nearest above `path`.
QFileInfo nearestAbove(const QString& path)
{
    QFileInfo above(QFileInfo(path).absolutePath());
    while (!above.exists() && above.absoluteFilePath() != QDir::rootPath())
        above = QFileInfo(above.absolutePath());
    return above;
}

/// Why there is no folder for `path`: whoever was to make it may not have been able to.
WriteFault::Kind kindOfMissingFolder(const QString& path)
{
    const QFileInfo above = nearestAbove(path);
    if (!above.isDir())
        return WriteFault::InTheWay;
    if (!above.isWritable())
        return WriteFault::NoPermission;
    const QStorageInfo disk(above.absoluteFilePath());
    return disk.isValid() && disk.bytesAvailable() == 0 ? WriteFault::NoSpace : WriteFault::NoFolder;
}

/// The system's word first: below a folder that may not be entered nothing can be looked at.
WriteFault::Kind kindFor(const QString& path, int errorNumber)
{
    const WriteFault::Kind said = kindOf(errorNumber);
    if (said == WriteFault::NoPermission || said == WriteFault::NoSpace)
        return said;
    const QFileInfo target(path);
    if (target.isDir())
        return WriteFault::InTheWay;
    if (!QFileInfo(target.absolutePath()).isDir())
        return kindOfMissingFolder(path);
    return target.exists() && !target.isWritable() ? WriteFault::NoPermission : said;
}

const char* textOf(WriteFault::Kind kind)
{
    switch (kind) {
    case WriteFault::NoFolder:
        return "The folder is not there.";
    case WriteFault::NoPermission:
        return "You have no permission to write there.";
    case WriteFault::NoSpace:
        return "There is no space left.";
    case WriteFault::InTheWay:
        return "A file or folder of that name is in the way.";
    case WriteFault::NotEncodable:
        return "The picture cannot be stored in this format.";
    default:
        return "";
    }
}

} // namespace

WriteFault writeFaultOf(const QString& path, const QFileDevice& file, int errorNumber)
{
    return {kindFor(path, errorNumber), file.errorString()};
}

QString writeFaultText(const WriteFault& fault)
{
    if (fault.kind == WriteFault::None)
        return QString();
    return fault.kind == WriteFault::Other ? fault.systemText : translated(QLatin1String(textOf(fault.kind)));
}

} // namespace vardeno::testcharttools
