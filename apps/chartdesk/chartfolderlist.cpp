#include "chartfolderlist.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace ChartFolderList {

QFileInfoList charts(const QString& root)
{
    static const QRegularExpression timeStamp(QStringLiteral("^\\d{8}_\\d{6}$"));
    const QStringList images = {QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"),
                                QStringLiteral("*.bmp")};
    QFileInfoList found;
    const QFileInfoList folders =
        QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    for (const QFileInfo& folder : folders) {
        if (timeStamp.match(folder.fileName()).hasMatch())
            found += QDir(folder.filePath()).entryInfoList(images, QDir::Files, QDir::Name);
    }
    return found;
}

QString recordPath(const QString& imagePath)
{
    const QFileInfo image(imagePath);
    return image.path() + QLatin1Char('/') + image.completeBaseName() + QLatin1String(".json");
}

int nextNumber(const QString& root)
{
    static const QRegularExpression numberAtEnd(QStringLiteral("(\\d{1,8})$"));
    int highest = 0;
    const QFileInfoList images = charts(root);
    for (const QFileInfo& image : images)
        highest = std::max(highest, numberAtEnd.match(image.completeBaseName()).captured(1).toInt());
    return highest + 1;
}

} // namespace ChartFolderList
