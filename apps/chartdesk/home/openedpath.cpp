#include "openedpath.h"

#include "chartfolderlist.h"
#include "hosttext.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// The image that `file` is, or is the record of; empty for one that is not in a folder of charts.
QString listedImage(const QFileInfo& file)
{
    if (!ChartFolderList::savedAt(file.filePath()).isValid())
        return {};
    const QFileInfoList images = ChartFolderList::imagesIn(file.path());
    for (const QFileInfo& image : images) {
        if (image == file || QFileInfo(ChartFolderList::recordPath(image.filePath())) == file)
            return image.filePath();
    }
    return {};
}

} // namespace

OpenedPath OpenedPath::of(const QString& path)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    OpenedPath opened;
    if (!file.exists()) {
        opened.problem = hostText(QStringLiteral("There is no file or folder “%1”.")).arg(path);
        return opened;
    }
    if (file.isDir()) {
        opened.folder = file.filePath();
        return opened;
    }
    opened.chart = listedImage(file);
    if (opened.chart.isEmpty())
        opened.taken = file.filePath();
    else
        opened.folder = QFileInfo(file.path()).path();
    return opened;
}
