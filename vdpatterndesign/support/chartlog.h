#pragma once

#include "vdchartcore_export.h"

#include <QLoggingCategory>

namespace vardeno::testcharttools {

/// What the library's debug lines belong to: "vardeno.testcharttools", on at first.
VDCHARTCORE_EXPORT const QLoggingCategory& chartLog();

/// What a theme that cannot be read as it should is warned of in: "vardeno.testcharttools.theme", on at
/// first.
VDCHARTCORE_EXPORT const QLoggingCategory& themeLog();
VDCHARTCORE_EXPORT void setThemeWarnings(bool on);

} // namespace vardeno::testcharttools
