#pragma once

#include <QString>

#include <vector>

class QDateTime;

namespace vardeno::testcharttools {

/// The folder of a chart that is saved at `time`: "<root>/yyyyMMdd_HHmmss".
QString chartFolder(const QString& root, const QDateTime& time);

/// The files directly in `dir`, each as "<dir>/<name>", by name.
std::vector<QString> allFilePaths(const QString& dir);

/// Whether the folder of a replaced chart may be removed with everything in it: not when the chart that
/// replaces it (`replacement`, a file) is not on disk or lies in that folder, and not when the folder is a
/// symbolic link, the save root or one of its ancestors, the home folder, or the root of a file system.
bool mayRemoveChartFolder(const QString& folder, const QString& replacement, const QString& saveRoot);

/// Removes the folder that holds the chart `path`, and logs what became of it.
void removeChartFolder(const QString& path, const QString& replacement, const QString& saveRoot);

} // namespace vardeno::testcharttools
