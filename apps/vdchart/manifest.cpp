#include "manifest.h"

#include <vdpatterndesign_version.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int manifestVersion = 1;

QJsonObject sourceOf(const BatchPicture& picture)
{
    QJsonObject entry{{QStringLiteral("file"), picture.file}, {QStringLiteral("record"), picture.record}};
    if (!picture.wall.isEmpty())
        entry.insert(QStringLiteral("wall"), picture.wall);
    return entry;
}

QJsonObject written(const BatchPicture& picture)
{
    QJsonObject entry = sourceOf(picture);
    entry.insert(QStringLiteral("width"), picture.size.width());
    entry.insert(QStringLiteral("height"), picture.size.height());
    entry.insert(QStringLiteral("size"), picture.bytes);
    entry.insert(QStringLiteral("sha256"), QString::fromLatin1(picture.sha256));
    return entry;
}

QJsonObject failed(const BatchPicture& picture)
{
    QJsonObject entry = sourceOf(picture);
    entry.insert(QStringLiteral("problem"), picture.problem);
    return entry;
}

} // namespace

QByteArray manifest(const std::vector<BatchPicture>& pictures)
{
    QJsonArray good;
    QJsonArray bad;
    for (const BatchPicture& picture : pictures) {
        if (picture.problem.isEmpty())
            good.append(written(picture));
        else
            bad.append(failed(picture));
    }
    return QJsonDocument(
               QJsonObject{{QStringLiteral("format"), QStringLiteral("testchart-manifest")},
                           {QStringLiteral("version"), manifestVersion},
                           {QStringLiteral("program"), QStringLiteral("vdchart " VDPATTERNDESIGN_VERSION)},
                           {QStringLiteral("pictures"), good},
                           {QStringLiteral("failed"), bad}})
        .toJson();
}
