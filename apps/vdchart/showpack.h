#pragma once

#include "chartinput.h"

#include <QByteArray>

// A show in one file: a zip archive of the show, its walls, their records and pictures, each as it is, under
// paths from the folder that all of them are in, and a manifest with their sizes and checksums.

/// The bytes of the pack of the show `chart`, which was read from the file `path`. The same show makes the
/// same bytes. Throws Failure where a file cannot be read, and where one is referred to by an absolute path,
/// which would lead nowhere on another machine.
QByteArray packShow(const ChartInput& chart, const QString& path);

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

/// What is in the pack `bytes`, which `name` says in messages. Nothing is inflated before its size is known
/// to be within bounds. Throws Failure for paths that lead out of the pack's folder or that some system takes
/// for something else, for links, for what is encrypted, for files that are not as the manifest says, and for
/// files that it does not name.
UnpackedShow unpackShow(const QByteArray& bytes, const QString& name);

/// The most bytes of a pack, and of all that is in one.
constexpr qint64 packLimit = 256LL * 1024 * 1024;
