#pragma once

#include <QString>

// Names of files that are to go from one system to another.

/// Why some systems do not take `name` as the name of a file, empty where all do.
QString fileNameProblem(const QString& name);

/// The same text for names that some systems take for one: in other letter cases, or spelled with other
/// Unicode characters.
QString sameFileName(const QString& name);
