#include "panels/panelcontrols.h"

#include <QEvent>
#include <QWidget>

namespace vardeno::testcharttools {

void PanelControls::add(QWidget* control, Allowed allowed)
{
    m_controls.push_back({control, std::move(allowed), control->focusPolicy()});
    control->installEventFilter(this);
}

void PanelControls::setLocked(bool locked)
{
    m_locked = locked;
    update();
}

void PanelControls::update() const
{
    for (const Control& control : m_controls)
        control.widget->setEnabled((!m_locked || control.widget == m_spared) &&
                                   (!control.allowed || control.allowed()));
}

void PanelControls::setWheelScrolls(bool scrolls)
{
    m_wheelScrolls = scrolls;
    for (const Control& control : m_controls) {
        const bool byWheel = control.ownFocusPolicy == Qt::WheelFocus;
        control.widget->setFocusPolicy(scrolls && byWheel ? Qt::StrongFocus : control.ownFocusPolicy);
    }
}

bool PanelControls::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_wheelScrolls || event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return false;
    event->ignore();
    return true;
}

} // namespace vardeno::testcharttools
