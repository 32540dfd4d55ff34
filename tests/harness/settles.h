#pragma once

#include <QWidget>
#include <QtTest>

/// Waits until `editor` has been idle for longer than a repaint cycle takes to show: at so many looks, 10 ms
/// or more apart, between which its timers had their turn.
inline bool settles(const QWidget& editor)
{
    const auto* mask = editor.findChild<QWidget*>(QStringLiteral("maskWidget"));
    const auto* cancel = editor.findChild<QWidget*>(QStringLiteral("CancleButton")); // locked with the panels
    int idleLooks = 0;
    return QTest::qWaitFor(
        [&] {
            idleLooks = mask->isVisible() || !cancel->isEnabled() ? 0 : idleLooks + 1;
            return idleLooks > 14;
        },
        60000);
}
