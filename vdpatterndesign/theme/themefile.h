#pragma once

#include <QString>

namespace vardeno::testcharttools {

/// The theme that the library's windows use: the installation's, beside the folder of the executable, or the
/// compiled-in one where there is none. A theme or a sheet of more than 1 MiB is none, which a warning tells.
QString installedThemeFile();

/// Makes a new theme with the content of `file` the current one.
void loadTheme(const QString& file);

/// Lays `file` over the current theme; nothing happens where it does not exist.
void extendTheme(const QString& file);

/// The style sheet for windows with the theme `themeFile`, with all its placeholders replaced: the first
/// "*.qss" beside that file, or the compiled-in one. Logs "not there!" where a place has none.
QString findStyleSheet(const QString& themeFile);

} // namespace vardeno::testcharttools
