#include "darkpalette.h"

#include <QPalette>

QPalette darkPalette()
{
    const QColor text(0xee, 0xee, 0xf9);
    const QColor fadedText(0x82, 0x82, 0x8c);
    QPalette palette(QColor(0x42, 0x42, 0x47), QColor(0x2b, 0x2b, 0x2e));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, QColor(0x1d, 0x1d, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x29));
    palette.setColor(QPalette::ToolTipBase, QColor(0x48, 0x48, 0x51));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7d, 0xd4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x3a, 0xbc, 0xf0));
    palette.setColor(QPalette::PlaceholderText, fadedText);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, fadedText);
    return palette;
}
