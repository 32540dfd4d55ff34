#include "packarchive.h"

#include "filename.h"
#include "recordinput.h"
#include "ziparchive.h"

#include <utf8.h>

#include <QCryptographicHash>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using namespace vardeno;

namespace {

constexpr int mostFiles = 1024;
constexpr char packManifest[] = "pack.json";

QByteArray sha256(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray packManifestOf(const std::vector<PackedFile>& files)
{
    QJsonArray list;
    for (const PackedFile& file : files)
        list.append(QJsonObject{{QStringLiteral("path"), file.path},
                                {QStringLiteral("bytes"), file.bytes.size()},
                                {QStringLiteral("sha256"), QString::fromLatin1(sha256(file.bytes))}});
    return QJsonDocument(QJsonObject{{QStringLiteral("format"), QStringLiteral("testshow-pack")},
                                     {QStringLiteral("version"), 1},
                                     {QStringLiteral("show"), files.front().path},
                                     {QStringLiteral("files"), list}})
        .toJson();
}

/// What the manifest says of the files, by their paths.
struct PackManifest
{
    QString show;
    QHash<QString, QJsonObject> files;
};

PackManifest readPackManifest(const QByteArray& json, const QString& name)
{
    const QJsonObject document = QJsonDocument::fromJson(json).object();
    if (document.value(QStringLiteral("format")) != QJsonValue(QStringLiteral("testshow-pack")))
        throw packFailure(name, QStringLiteral("not a pack of a show: its manifest is none"));
    if (document.value(QStringLiteral("version")) != QJsonValue(1))
        throw packFailure(name, QStringLiteral("its manifest is of a version that is not known"));
    PackManifest manifest{document.value(QStringLiteral("show")).toString(), {}};
    for (const QJsonValue& file : document.value(QStringLiteral("files")).toArray())
        manifest.files.insert(file.toObject().value(QStringLiteral("path")).toString(), file.toObject());
    if (!manifest.files.contains(manifest.show))
        throw packFailure(name, QStringLiteral("its manifest names no show"));
    return manifest;
}

/// Looks at all that the archive says of its files, before one of them is inflated. Returns their paths.
QStringList acceptedPaths(const ZipReader& archive, const QString& name)
{
    QStringList paths;
    QSet<QString> taken;
    qint64 total = 0;
    if (archive.count() > mostFiles + 1)
        throw packFailure(
            name, QStringLiteral("%1 files are more than %2").arg(archive.count()).arg(mostFiles + 1));
    for (int i = 0; i < archive.count(); ++i) {
        const ZipReader::Entry entry = archive.entry(i);
        const QString path = QString::fromUtf8(entry.path);
        const auto refuse = [&](const QString& why) {
            throw packFailure(name, QStringLiteral("\"%1\": %2").arg(path.left(200), why));
        };
        if (!testcharttools::isUtf8(entry.path))
            refuse(QStringLiteral("its name is not UTF-8 text"));
        if (const QString problem = packedPathProblem(path); !problem.isEmpty())
            refuse(problem);
        if (taken.contains(sameFileName(path)))
            refuse(QStringLiteral("there are two files of that name"));
        if (!entry.isRegular)
            refuse(QStringLiteral("it is a link or something else that is no file"));
        if (entry.isEncrypted)
            refuse(QStringLiteral("it is encrypted"));
        total += qMin(entry.bytes, packLimit + 1);
        if (entry.bytes > packedFileLimit || total > packLimit)
            refuse(QStringLiteral("its %1 bytes are too many").arg(entry.bytes));
        taken.insert(sameFileName(path));
        paths.append(path);
    }
    return paths;
}

} // namespace

Failure packFailure(const QString& name, const QString& why)
{
    return {ExitCode::Unreadable, QStringLiteral("%1: %2").arg(name, why)};
}

QString packedPathProblem(const QString& path)
{
    constexpr int longest = 1000;
    if (path.isEmpty() || path.size() > longest)
        return QStringLiteral("its name is empty or too long");
    for (const QString& part : path.split(QLatin1Char('/'))) {
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String(".."))
            return QStringLiteral("its path leads elsewhere");
        const QString problem = fileNameProblem(part);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QByteArray packedFiles(const std::vector<PackedFile>& files)
{
    ZipWriter archive;
    archive.add(QLatin1String(packManifest), packManifestOf(files));
    for (const PackedFile& file : files) {
        if (sameFileName(file.path) == sameFileName(QLatin1String(packManifest)))
            throw packFailure(file.path, QStringLiteral("that is the name of the pack's manifest"));
        archive.add(file.path, file.bytes);
    }
    return archive.finish();
}

UnpackedShow unpackShow(const QByteArray& bytes, const QString& name)
{
    const ZipReader archive(bytes, name);
    const QStringList paths = acceptedPaths(archive, name);
    const int manifestIndex = int(paths.indexOf(QLatin1String(packManifest)));
    if (manifestIndex < 0 || archive.entry(manifestIndex).bytes > recordLimit)
        throw packFailure(name, QStringLiteral("not a pack of a show: it has no manifest"));
    const PackManifest manifest = readPackManifest(archive.contents(manifestIndex), name);
    UnpackedShow unpacked{manifest.show, {}};
    for (int i = 0; i < paths.size(); ++i) {
        if (i == manifestIndex)
            continue;
        const QString& path = paths.at(i);
        const QJsonObject told = manifest.files.value(path);
        if (told.isEmpty())
            throw packFailure(name, QStringLiteral("\"%1\": the manifest does not name it").arg(path));
        unpacked.files.push_back({path, archive.contents(i)});
        const QByteArray& read = unpacked.files.back().bytes;
        if (told.value(QStringLiteral("bytes")) != QJsonValue(read.size()) ||
            told.value(QStringLiteral("sha256")) != QJsonValue(QString::fromLatin1(sha256(read))))
            throw packFailure(name, QStringLiteral("\"%1\": it is not as the manifest says").arg(path));
    }
    if (int(unpacked.files.size()) != manifest.files.size())
        throw packFailure(name, QStringLiteral("the manifest names files that are not in it"));
    return unpacked;
}
