#pragma once

#include <QDateTime>
#include <QFileInfoList>
#include <QStringList>

/// The charts saved below one folder: each an image in a folder named by the second of its saving, with its
/// record beside it.
namespace ChartFolderList {

/// The images in one chart's folder, by name.
QFileInfoList imagesIn(const QString& folder);

/// The folders of charts below `root`, newest first: a second, and a number where several were saved in it.
QStringList folders(const QString& root);

/// The images of all charts below `root`, newest first.
QFileInfoList charts(const QString& root);

/// The record that belongs to the image `imagePath`.
QString recordPath(const QString& imagePath);

/// When the chart was saved, as its folder says; invalid for a folder that does not.
QDateTime savedAt(const QString& imagePath);

/// A number above those of all charts below `root` that are called one of `names` and a number; at least 1.
int nextNumber(const QString& root, const QStringList& names);

} // namespace ChartFolderList
