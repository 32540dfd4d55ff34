#pragma once

#include <QEvent>
#include <QWidget>

/// Whether `widget` has been disabled since the spy was made, however short it was.
class LockSpy : public QObject
{
public:
    explicit LockSpy(QWidget* widget)
        : m_widget(widget)
    {
        widget->installEventFilter(this);
    }

    bool wasLocked() const { return m_wasLocked; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_wasLocked = m_wasLocked || (event->type() == QEvent::EnabledChange && !m_widget->isEnabled());
        return false;
    }

private:
    QWidget* m_widget;
    bool m_wasLocked = false;
};
