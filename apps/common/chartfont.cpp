#include "chartfont.h"

QFont chartFont()
{
    QFont font(QStringLiteral("DejaVu Sans"), 9);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}
