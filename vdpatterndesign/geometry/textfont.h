#pragma once

#include <QFont>

namespace vardeno::testcharttools {

/// The application's font as all texts of the chart start from it: fully hinted, whatever the display is
/// scaled by. The toolkit draws large glyphs from outlines, which it leaves changed by small ones that are
/// hinted less: the chart would depend on what was drawn before it.
inline QFont textFont()
{
    QFont font;
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

} // namespace vardeno::testcharttools
