#pragma once

#include <QFileInfoList>
#include <QString>

/// The charts saved below one folder: each an image in a folder named by the second of its saving, with its
/// record beside it.
namespace ChartFolderList {

/// The images of all charts below `root`, newest first.
QFileInfoList charts(const QString& root);

/// The record that belongs to the image `imagePath`.
QString recordPath(const QString& imagePath);

/// A number that no file name of the charts below `root` ends with, above all that do; at least 1.
int nextNumber(const QString& root);

} // namespace ChartFolderList
