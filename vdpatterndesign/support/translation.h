#pragma once

#include "vdchartcore_export.h"

#include <QString>

namespace vardeno::testcharttools {

/// The shown text for an English source text, in the current language. The library's one way to the
/// translator.
VDCHARTCORE_EXPORT QString translated(const QString& source);

/// Whether a language has been chosen yet.
VDCHARTCORE_EXPORT bool isTranslated();

} // namespace vardeno::testcharttools
