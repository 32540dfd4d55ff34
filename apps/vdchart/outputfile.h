#pragma once

#include <picturerows.h>

#include <QByteArray>
#include <QString>

/// Writes the file `path` whole or not at all, or to the standard output for "-". Throws Failure with the
/// system's reason. For any thread.
void writeOutput(const QString& path, const QByteArray& bytes);

/// The same of what `produce` hands to its sink, part by part. Where it throws, the file stays as it was.
void writeOutput(const QString& path,
                 const std::function<void(const vardeno::testcharttools::ByteSink& sink)>& produce);

/// What the system says of its error number `error`, in words for what is written.
QString writeProblem(int error);

/// Throws Failure where a picture would go to the terminal that the standard output, "-", is.
void requireNoTerminal(const QString& path);
