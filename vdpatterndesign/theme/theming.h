#pragma once

#include "vdpatterndesign_export.h"

#include <QString>
#include <QVariant>

namespace vardeno::testcharttools {

/// Turns the library's style sheet, whose colours, pictures and sizes are placeholders that name keys of the
/// current `Theme`, into a plain one: "testcharttools.theme.color.KEY;", "testcharttools.theme.image.KEY" and
/// "testcharttools.theme.integer.KEY;". GUI thread only.
class VDPATTERNDESIGN_EXPORT Theming
{
public:
    /// A copy of `css` with its colour placeholders replaced: "#rrggbb", or "#aarrggbb" for a translucent
    /// colour, or nothing where the theme does not have it. The ";" stays.
    static QString replaceCssColors(const QString& css);
    /// A copy of `css` with its image placeholders replaced by paths. A path that leads nowhere is logged.
    static QString replaceCssImages(const QString& css);
    /// A copy of `css` with its integer placeholders replaced by numbers of pixels. The ";" stays.
    static QString replaceCssIntegers(const QString& css);

    /// The values of the theme that was current when they were first asked for: they stay the same until the
    /// process ends.
    static const QVariantMap& themeValues();

    /// The absolute form of a picture's path that is relative to the folder of the executable; one leading
    /// "/" or "./" is dropped.
    static QString resolveThemePath(QString path);
};

} // namespace vardeno::testcharttools
