#pragma once

#include "changes.h"

#include <chartrecordfile.h>

#include <QByteArray>
#include <QString>

/// The most bytes of a record or a wall, which have a few thousand.
constexpr qint64 recordLimit = 1024LL * 1024;

/// The bytes of the file `path`, or of the standard input for "-". Throws Failure where it cannot be read or
/// has more than `limit` bytes.
QByteArray readInput(const QString& path, qint64 limit);

/// What `path` is called in messages.
QString inputName(const QString& path);

/// Throws Failure where there are problems with what is called `name`; of what is unknown in it the standard
/// error is told.
void requireAccepted(const QStringList& problems, const QStringList& unknown, const QString& name);

/// The record at `path` with `changes` made, and what is wrong with either. Throws Failure for a file
/// that cannot be read.
vardeno::testcharttools::ChartRecordFile::Reading readRecord(const QString& path, const Changes& changes);

/// The record of the document `json`, which `name` says in messages; relative paths are from `folder`.
/// Throws Failure where anything is wrong with it; of what is unknown in it the standard error is told.
vardeno::testcharttools::TestChartToolsData requireRecord(const QByteArray& json, const QString& name,
                                                          const QString& folder, const Changes& changes);

/// The record at `path` with `changes` made. Throws Failure where anything is wrong with it;
/// of what is unknown in it the standard error is told.
vardeno::testcharttools::TestChartToolsData requireRecord(const QString& path, const Changes& changes);
