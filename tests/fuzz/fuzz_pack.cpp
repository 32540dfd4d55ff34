#include "exitcode.h"
#include "filename.h"
#include "packarchive.h"
#include "require.h"

#include <QSet>

#include <cstdint>

namespace {

bool isSame(const std::vector<PackedFile>& one, const std::vector<PackedFile>& other)
{
    bool same = one.size() == other.size();
    for (std::size_t i = 0; same && i < one.size(); ++i)
        same = one[i].path == other[i].path && one[i].bytes == other[i].bytes;
    return same;
}

/// What can be read stays inside, and is the same when it is packed again.
void checkArchive(const QByteArray& bytes)
{
    try {
        const UnpackedShow show = unpackShow(bytes, QStringLiteral("pack"));
        qint64 total = 0;
        for (const PackedFile& file : show.files) {
            require(packedPathProblem(file.path).isEmpty(), "no path leads elsewhere");
            total += file.bytes.size();
        }
        require(total <= packLimit, "it is no larger than allowed");
    } catch (const Failure& failure) {
        require(failure.message.startsWith(QLatin1String("pack: ")), "a message names the pack");
    }
}

/// Files between zero bytes: a path, its contents, and so on.
std::vector<PackedFile> filesIn(const QByteArray& bytes)
{
    std::vector<PackedFile> files;
    const QList<QByteArray> parts = bytes.split('\0');
    for (int i = 0; i + 1 < parts.size() && files.size() < 64; i += 2)
        files.push_back({QString::fromUtf8(parts.at(i)), parts.at(i + 1)});
    return files;
}

/// Whether each has a path of its own, which leads nowhere else.
bool haveGoodPaths(const std::vector<PackedFile>& files)
{
    QSet<QString> taken = {QStringLiteral("pack.json")};
    for (const PackedFile& file : files) {
        const QString name = sameFileName(file.path);
        if (taken.contains(name) || !packedPathProblem(file.path).isEmpty())
            return false;
        taken.insert(name);
    }
    return true;
}

/// What is packed can be unpacked, or is refused for one of its paths.
void checkFiles(const std::vector<PackedFile>& files)
{
    if (files.empty())
        return;
    try {
        const QByteArray archive = packedFiles(files);
        require(packedFiles(files) == archive, "the same files make the same pack");
        require(isSame(unpackShow(archive, QStringLiteral("pack")).files, files), "all files come back");
    } catch (const Failure&) {
        require(!haveGoodPaths(files), "what has good paths is packed");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    checkArchive(bytes);
    checkFiles(filesIn(bytes));
    return 0;
}
