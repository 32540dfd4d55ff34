#pragma once

#include <QByteArray>
#include <QStringList>

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
