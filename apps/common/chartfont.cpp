#include "chartfont.h"

QFont chartFont()
{
    QFont font(QStringLiteral("DejaVu Sans"), 9);
    // Large glyphs are drawn from outlines, which the toolkit leaves changed by small ones that are hinted
    // less: a picture would depend on what was drawn before it.
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}
