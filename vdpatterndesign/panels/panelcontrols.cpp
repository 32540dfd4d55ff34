#include "panels/panelcontrols.h"

#include <QWidget>

namespace vardeno::testcharttools {

void PanelControls::add(QWidget* control, Allowed allowed)
{
    m_controls.push_back({control, std::move(allowed)});
}

void PanelControls::setLocked(bool locked)
{
    m_locked = locked;
    update();
}

void PanelControls::update() const
{
    for (const Control& control : m_controls)
        control.widget->setEnabled(!m_locked && (!control.allowed || control.allowed()));
}

} // namespace vardeno::testcharttools
