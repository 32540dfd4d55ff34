#pragma once

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

/// That of the desk: the same on every desktop, buttons that say in words alone what they do, and menus that
/// stand out from a dark window.
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

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_PanelMenu && element != PE_FrameMenu)
            return;
        painter->setPen(QColor(128, 128, 128));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
};
