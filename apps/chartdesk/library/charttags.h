#pragma once

#include <QStringList>

/// The tags of a chart, which are those of its folder: a file in it that people can read and write as well.
namespace ChartTags {

QStringList of(const QString& imagePath);
/// No tags remove the file. Empty, or the problem.
QString set(const QString& imagePath, const QStringList& tags);
/// "stage, left wall": each once, without spaces around it.
QStringList fromText(const QString& text);
/// Where they stand in the folder of a chart.
QString fileName();

} // namespace ChartTags
