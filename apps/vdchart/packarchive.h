#pragma once

#include "exitcode.h"

#include <QByteArray>
#include <QString>

#include <vector>

// The files of a show in one zip archive, each as it is, with a manifest of their sizes and checksums.

/// A file of a pack.
struct PackedFile
{
    QString path; ///< with slashes, relative
    QByteArray bytes;
};

struct UnpackedShow
{
    QString show; ///< the path of the show among the files
    std::vector<PackedFile> files;
};

/// The most bytes of a pack, and of all that is in one.
constexpr qint64 packLimit = 256LL * 1024 * 1024;
/// The most bytes of a file in it.
constexpr qint64 packedFileLimit = 64LL * 1024 * 1024;

/// Why a path is not to be followed; empty for one that stays in its folder on every system.
QString packedPathProblem(const QString& path);

/// Says `why` of what is called `name`.
Failure packFailure(const QString& name, const QString& why);

/// The bytes of a pack of `files`, of which the first is the show. The same files make the same bytes. Throws
/// Failure.
QByteArray packedFiles(const std::vector<PackedFile>& files);

/// What is in the pack `bytes`, which `name` says in messages. Nothing is inflated before its size is known
/// to be within bounds. Throws Failure for paths that lead out of the pack's folder or that some system takes
/// for something else, for links, for what is encrypted, for files that are not as the manifest says, and for
/// files that it does not name.
UnpackedShow unpackShow(const QByteArray& bytes, const QString& name);
