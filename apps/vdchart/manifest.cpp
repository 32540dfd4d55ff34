#include "manifest.h"

#include "exitcode.h"
#include "recordinput.h"

#include <vdpatterndesign_version.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int manifestVersion = 1;
constexpr qint64 manifestLimit = 64LL * 1024 * 1024; ///< bytes
const auto manifestFormat = QStringLiteral("testchart-manifest");

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
    entry.insert(QStringLiteral("source"), QString::fromLatin1(picture.source));
    return entry;
}

QJsonObject failed(const BatchPicture& picture)
{
    QJsonObject entry = sourceOf(picture);
    entry.insert(QStringLiteral("problem"), picture.problem);
    return entry;
}

BatchPicture pictureOf(const QJsonObject& entry)
{
    BatchPicture picture;
    picture.file = entry.value(QStringLiteral("file")).toString();
    picture.record = entry.value(QStringLiteral("record")).toString();
    picture.wall = entry.value(QStringLiteral("wall")).toString();
    picture.size = {entry.value(QStringLiteral("width")).toInt(),
                    entry.value(QStringLiteral("height")).toInt()};
    picture.bytes = qint64(entry.value(QStringLiteral("size")).toDouble());
    picture.sha256 = entry.value(QStringLiteral("sha256")).toString().toLatin1();
    picture.source = entry.value(QStringLiteral("source")).toString().toLatin1();
    picture.problem = entry.value(QStringLiteral("problem")).toString();
    return picture;
}

} // namespace

std::vector<BatchPicture> readManifest(const QString& path)
{
    const QJsonObject document = QJsonDocument::fromJson(readInput(path, manifestLimit)).object();
    if (document.value(QStringLiteral("format")) != QJsonValue(manifestFormat) ||
        document.value(QStringLiteral("version")) != QJsonValue(manifestVersion))
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: not the manifest of a batch").arg(path)};
    std::vector<BatchPicture> pictures;
    for (const QString& list : {QStringLiteral("pictures"), QStringLiteral("failed")}) {
        for (const QJsonValue entry : document.value(list).toArray())
            pictures.push_back(pictureOf(entry.toObject()));
    }
    return pictures;
}

QByteArray fileHash(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return QByteArray();
    return hash.result().toHex();
}

QByteArray manifest(const std::vector<BatchPicture>& pictures)
{
    QJsonArray good;
    QJsonArray bad;
    for (const BatchPicture& picture : pictures) {
        if (picture.problem.isEmpty() && picture.sha256.isEmpty())
            continue; // still to be made
        if (picture.problem.isEmpty())
            good.append(written(picture));
        else
            bad.append(failed(picture));
    }
    return QJsonDocument(
               QJsonObject{{QStringLiteral("format"), manifestFormat},
                           {QStringLiteral("version"), manifestVersion},
                           {QStringLiteral("program"), QStringLiteral("vdchart " VDPATTERNDESIGN_VERSION)},
                           {QStringLiteral("pictures"), good},
                           {QStringLiteral("failed"), bad}})
        .toJson();
}
