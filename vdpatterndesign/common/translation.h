#pragma once

#include <QString>

namespace vardeno::testcharttools {

/// The shown text for an English source text, in the current language. The library's one way to the
/// translator.
QString translated(const QString& source);

/// Whether a language has been chosen yet.
bool isTranslated();

} // namespace vardeno::testcharttools
