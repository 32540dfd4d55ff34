#pragma once

#include "vdchartcore_export.h"

#include <QString>
#include <QStringList>

namespace vardeno::testcharttools {

/// The built-in logo picture: the first that exists of `defaultLogoPlaces()`. Needs the application object.
/// Any thread, as the other functions here.
VDCHARTCORE_EXPORT QString defaultLogo();

/// Where the built-in logo is looked for, in this order: the host's own (`setDefaultLogo`), the installation
/// folder beside that of the host's executable, beside the library, the usual data folders, and the picture
/// that is compiled in.
VDCHARTCORE_EXPORT QStringList defaultLogoPlaces();

/// Whether `path` is one of the built-in logo's places.
VDCHARTCORE_EXPORT bool isDefaultLogo(const QString& path);

/// Makes `path` the built-in logo, for charts drawn from now on; empty, or a file that does not exist, leaves
/// it to the other places.
VDCHARTCORE_EXPORT void setDefaultLogo(const QString& path);

} // namespace vardeno::testcharttools
