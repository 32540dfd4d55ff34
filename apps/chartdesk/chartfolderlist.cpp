#include "chartfolderlist.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

/// The number of a chart named "<name><number>", 0 for another name.
int numberAfter(const QString& name, const QString& baseName)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,8}$"));
    const QString rest = baseName.startsWith(name) ? baseName.mid(name.size()) : QString();
    return digits.match(rest).hasMatch() ? rest.toInt() : 0;
}

/// The tenth chart of a second comes after the ninth.
bool isNewer(const QString& folder, const QString& other)
{
    const auto key = [](const QString& name) {
        return std::make_pair(name.section(QLatin1Char('-'), 0, 0),
                              name.section(QLatin1Char('-'), 1).toULongLong());
    };
    return key(folder) > key(other);
}

} // namespace

namespace ChartFolderList {

QFileInfoList imagesIn(const QString& folder)
{
    const QStringList images = {QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"),
                                QStringLiteral("*.bmp")};
    return QDir(folder).entryInfoList(images, QDir::Files, QDir::Name);
}

QStringList folders(const QString& root)
{
    static const QRegularExpression timeStamp(QStringLiteral("^\\d{8}_\\d{6}(-\\d+)?$"));
    QStringList names = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::sort(names.begin(), names.end(), isNewer);
    QStringList found;
    for (const QString& name : qAsConst(names)) {
        if (timeStamp.match(name).hasMatch())
            found.append(root + QLatin1Char('/') + name);
    }
    return found;
}

QFileInfoList charts(const QString& root)
{
    QFileInfoList found;
    const QStringList places = folders(root);
    for (const QString& folder : places)
        found += imagesIn(folder);
    return found;
}

QDateTime savedAt(const QString& imagePath)
{
    const QString stamp = QFileInfo(imagePath).dir().dirName().section(QLatin1Char('-'), 0, 0);
    return QDateTime::fromString(stamp, QStringLiteral("yyyyMMdd_HHmmss"));
}

QString recordPath(const QString& imagePath)
{
    const QFileInfo image(imagePath);
    return image.path() + QLatin1Char('/') + image.completeBaseName() + QLatin1String(".json");
}

int nextNumber(const QString& root, const QStringList& names)
{
    int highest = 0;
    const QFileInfoList images = charts(root);
    for (const QFileInfo& image : images) {
        for (const QString& name : names)
            highest = std::max(highest, numberAfter(name, image.completeBaseName()));
    }
    return highest + 1;
}

} // namespace ChartFolderList
