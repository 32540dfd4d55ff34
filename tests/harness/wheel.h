#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

/// Turns the wheel over `field` as the platform reports it: to the window, which finds who lies on top there,
/// and on to what lies around a field that does not take it. `angle` is in eighths of a degree.
inline void turnWheelOver(const QWidget* field, int angle)
{
    QWidget* const window = field->window();
    const QPoint place = field->mapTo(window, field->rect().center());
    QWheelEvent event(place, window->mapToGlobal(place), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}
