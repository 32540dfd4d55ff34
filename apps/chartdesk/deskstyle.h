#pragma once

#include <QIcon>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

/// That of the desk: the same on every desktop, buttons that say in words alone what they do, with room
/// around them, and menus, entries and boxes to tick that stand out from a dark window.
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

    /// The toolkit leaves two pixels beside a text that is wider than its smallest button.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override
    {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        const int wanted = contents.width() + 2 * buttonMargin;
        return type == CT_PushButton ? QSize(qMax(size.width(), wanted), size.height()) : size;
    }

    /// The toolkit's is black, which is not seen on a dark tool bar that has no room for all its buttons.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override
    {
        if (which != SP_ToolBarHorizontalExtensionButton || !option)
            return QProxyStyle::standardIcon(which, option, widget);
        QPixmap arrows(32, 32);
        arrows.fill(Qt::transparent);
        QPainter painter(&arrows);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(option->palette.color(QPalette::WindowText), 3));
        for (const int left : {6, 16}) {
            const QPoint arrow[] = {{left, 8}, {left + 8, 16}, {left, 24}};
            painter.drawPolyline(arrow, 3);
        }
        return QIcon(arrows);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isFocused = option->state & State_HasFocus; // which has a frame of its own
        if (element == PE_PanelMenu || element == PE_FrameMenu)
            frame(painter, option->rect, QColor(128, 128, 128), 0);
        else if (element == PE_IndicatorCheckBox || (element == PE_FrameLineEdit && !isFocused))
            frame(painter, option->rect, lineColor(option), element == PE_IndicatorCheckBox ? 0 : 2);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_SpinBox && !(option->state & State_HasFocus))
            frame(painter, option->rect.adjusted(0, 1, 0, -1), lineColor(option), 2);
    }

private:
    static constexpr int buttonMargin = 12; ///< pixels on each side of a text

    /// Between the window and its texts.
    static QColor lineColor(const QStyleOption* option)
    {
        const QColor from = option->palette.color(QPalette::Window);
        const QColor to = option->palette.color(QPalette::WindowText);
        const auto between = [](int one, int other) { return one + (other - one) * 3 / 10; };
        return {between(from.red(), to.red()), between(from.green(), to.green()),
                between(from.blue(), to.blue())};
    }

    static void frame(QPainter* painter, const QRect& rect, const QColor& color, double radius)
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, radius > 0);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(color);
        const QRectF line = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->drawRoundedRect(line, radius, radius);
        painter->restore();
    }
};
