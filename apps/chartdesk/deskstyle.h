#pragma once

#include <QProxyStyle>

/// That of the desk: the same on every desktop, and buttons that say in words alone what they do.
class DeskStyle : public QProxyStyle
{
public:
    DeskStyle()
        : QProxyStyle(QStringLiteral("fusion"))
    {
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};
