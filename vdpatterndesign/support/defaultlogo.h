#pragma once

#include "vdchartcore_export.h"

#include <QString>

namespace vardeno::testcharttools {

/// The full path of the built-in logo picture, which lies in the host's installation. Needs the application
/// object.
VDCHARTCORE_EXPORT QString defaultLogo();

} // namespace vardeno::testcharttools
