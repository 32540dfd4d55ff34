#include "themepalette.h"

#include <theming.h>

#include <QColor>
#include <QPalette>

namespace {

QColor themeColor(const char* key)
{
    using vardeno::testcharttools::Theming;
    return Theming::themeValues().value(QLatin1String(key)).value<QColor>();
}

} // namespace

QPalette themePalette()
{
    const QColor text = themeColor("Text01");
    QPalette palette(themeColor("Surface01"), themeColor("GlobalWidgetBackgroundColor"));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, themeColor("EditBackgroundColor"));
    palette.setColor(QPalette::AlternateBase, themeColor("Surface04"));
    palette.setColor(QPalette::ToolTipBase, themeColor("Surface05"));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, themeColor("GeneralButtonBackgroundNormal"));
    palette.setColor(QPalette::HighlightedText, themeColor("TextOnPrimary"));
    palette.setColor(QPalette::Link, themeColor("TextLink"));
    palette.setColor(QPalette::PlaceholderText, themeColor("Text03"));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, themeColor("Text04"));
    palette.setColor(QPalette::Disabled, QPalette::Light, Qt::transparent); // no shadow below faded texts
    return palette;
}
