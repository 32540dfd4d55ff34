#pragma once

#include "nametips.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QToolTip>
#include <QtTest>

/// What of a window a person without a mouse, or without eyes, would miss.
namespace shortcomings {

/// It tells in its bar what is under the pointer: a tip would lie on it.
inline bool isPreview(const QWidget* widget)
{
    return widget->inherits("vardeno::testcharttools::ChartPreview");
}

inline bool takesInput(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QAbstractSlider*>(widget) ||
           widget->inherits("WallCanvas") || isPreview(widget);
}

/// Parts of other controls have no name of their own.
inline bool isPart(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return !parent || qobject_cast<const QComboBox*>(parent) ||
           qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QLineEdit*>(parent) ||
           qobject_cast<const QScrollBar*>(widget) || widget->inherits("QHeaderView") ||
           widget->inherits("QToolBarExtension") || widget->inherits("QMenuBarExtension") ||
           parent->inherits("QHeaderView") ||
           widget->objectName() == QLatin1String("qt_menubar_ext_button") ||
           widget->objectName() == QLatin1String("qt_toolbar_ext_button");
}

/// The one of its own, or what the desk makes of its name.
inline QString tipOf(QWidget* widget)
{
    if (!widget->toolTip().isEmpty())
        return widget->toolTip();
    QHelpEvent asked(QEvent::ToolTip, widget->rect().center(), widget->mapToGlobal(widget->rect().center()));
    QCoreApplication::sendEvent(widget, &asked);
    return asked.isAccepted() && QToolTip::text() == controlName(widget) ? QToolTip::text() : QString();
}

inline QString described(const QWidget* widget)
{
    return QStringLiteral("%1 \"%2\" in \"%3\"")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
             widget->parentWidget()->objectName());
}

/// What of the window nobody can reach or name.
inline QStringList shortcomingsOf(const QWidget& window)
{
    QStringList found;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!takesInput(widget) || isPart(widget) || !widget->isVisible() || !widget->isEnabled())
            continue;
        if (controlName(widget).isEmpty())
            found.append(described(widget) + QStringLiteral(" has no name"));
        if (!isPreview(widget) && tipOf(widget).isEmpty())
            found.append(described(widget) + QStringLiteral(" has no tool tip"));
        if (!(widget->focusPolicy() & Qt::TabFocus))
            found.append(described(widget) + QStringLiteral(" cannot be reached by Tab"));
    }
    return found;
}

/// Tab goes to the chosen one of a group, arrows to the others.
inline bool isOtherChoice(const QWidget* widget)
{
    const auto* choice = qobject_cast<const QRadioButton*>(widget);
    return choice && !choice->isChecked();
}

/// The controls of `window`, which is shown, that Tab never comes to.
inline QStringList beyondTab(QWidget& window)
{
    QSet<const QWidget*> visited;
    for (int press = 0; press < 100; ++press) {
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
        visited.insert(window.focusWidget());
    }
    QStringList found;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (takesInput(widget) && !isPart(widget) && !isOtherChoice(widget) && widget->isVisible() &&
            widget->isEnabled() && !visited.contains(widget))
            found.append(described(widget) + QStringLiteral(" is not reached by Tab"));
    }
    return found;
}

} // namespace shortcomings
