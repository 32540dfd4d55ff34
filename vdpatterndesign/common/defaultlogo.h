#pragma once

#include <QString>

namespace vardeno::testcharttools {

/// The full path of the built-in logo picture, which lies in the host's installation. Needs the application
/// object.
QString defaultLogo();

} // namespace vardeno::testcharttools
