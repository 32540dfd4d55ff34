#pragma once

#include "exitcode.h"

#include <chartrecordfile.h>

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

/// The bytes of the file `path`, or of the standard input for "-". Throws Failure where it cannot be read or
/// has more than `limit` bytes.
QByteArray readInput(const QString& path, qint64 limit);

/// What `path` is called in messages.
QString inputName(const QString& path);

/// The record at `path` with `settings` applied, and what is wrong with either. Throws Failure for a file
/// that cannot be read.
vardeno::testcharttools::ChartRecordFile::Reading readRecord(const QString& path,
                                                             const std::vector<std::string>& settings);

/// The record at `path` with `settings` applied. Throws Failure where anything is wrong with it.
vardeno::testcharttools::TestChartToolsData requireRecord(const QString& path,
                                                          const std::vector<std::string>& settings);

/// Throws a Failure of wrong usage where `output` is the file that the record's logo is read from.
void keepPicture(const vardeno::testcharttools::LogoChartData& logo, const QString& output);

/// Changes `record`. For a setting that is none throws `blame` with the problem behind its message.
void applySettings(vardeno::testcharttools::TestChartToolsData& record,
                   const std::vector<std::string>& settings,
                   const Failure& blame = {ExitCode::Usage, QStringLiteral("--set")});
