#include "chartfolderlist.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

/// The number of a chart named "<name><number>", 0 for another name.
int numberAfter(const QString& name, const QString& baseName)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,8}$"));
    const QString rest = baseName.startsWith(name) ? baseName.mid(name.size()) : QString();
    return digits.match(rest).hasMatch() ? rest.toInt() : 0;
}

/// A folder's time, and its number within that: the tenth chart of a second comes after the ninth.
using FolderKey = std::pair<QString, qulonglong>;

FolderKey keyOf(const QString& folder)
{
    const int dash = int(folder.indexOf(QLatin1Char('-')));
    return dash < 0 ? FolderKey(folder, 0) : FolderKey(folder.left(dash), folder.mid(dash + 1).toULongLong());
}

/// Patterns would be compiled again for each folder.
bool isImage(const QFileInfo& file)
{
    const QString ending = file.suffix().toLower();
    return ending == QLatin1String("png") || ending == QLatin1String("jpg") ||
           ending == QLatin1String("jpeg") || ending == QLatin1String("bmp");
}

} // namespace

namespace ChartFolderList {

QFileInfoList imagesIn(const QString& folder)
{
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    files.erase(
        std::remove_if(files.begin(), files.end(), [](const QFileInfo& file) { return !isImage(file); }),
        files.end());
    return files;
}

QStringList folders(const QString& root)
{
    static const QRegularExpression timeStamp(QStringLiteral("^\\d{8}_\\d{6}(-\\d+)?$"));
    const QStringList names = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::vector<std::pair<FolderKey, QString>> dated;
    for (const QString& name : names) {
        if (timeStamp.match(name).hasMatch())
            dated.emplace_back(keyOf(name), root + QLatin1Char('/') + name);
    }
    std::sort(dated.begin(), dated.end(), std::greater<>());
    QStringList found;
    for (const auto& folder : dated)
        found.append(folder.second);
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
