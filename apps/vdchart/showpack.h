#pragma once

#include "chartinput.h"
#include "packarchive.h"

#include <QByteArray>

// A show in one file: a zip archive of the show, its walls, their records and pictures, each as it is, under
// paths from the folder that all of them are in, and a manifest with their sizes and checksums.

/// The bytes of the pack of the show `chart`, which was read from the file `path`. The same show makes the
/// same bytes. Throws Failure where a file cannot be read, and where one is referred to by an absolute path,
/// which would lead nowhere on another machine.
QByteArray packShow(const ChartInput& chart, const QString& path);
