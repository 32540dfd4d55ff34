#include "settingpanel.h"

#include "panels/panelcontrols.h"
#include "theme/resources.h"

#include <QEvent>

#include <algorithm>

namespace vardeno::testcharttools {

SettingPanel::SettingPanel(int usualHeight, QWidget* parent)
    : QWidget(parent)
    , m_controls(new PanelControls)
    , m_usualHeight(usualHeight)
{
    ensureResources();
}

SettingPanel::~SettingPanel() = default;

int SettingPanel::sectionHeight() const
{
    return std::max(m_usualHeight, sizeHint().height());
}

void SettingPanel::setControlsDisabled(bool disabled)
{
    m_controls->setLocked(disabled);
    if (m_lockTakesFocus)
        focusAfterLock(disabled);
}

void SettingPanel::setLockTakesFocus(bool takes)
{
    m_lockTakesFocus = takes;
}

void SettingPanel::spareFromLocks(const QWidget* control)
{
    m_controls->spare(control);
}

void SettingPanel::setWheelScrolls(bool scrolls)
{
    m_controls->setWheelScrolls(scrolls);
}

bool SettingPanel::wheelScrolls() const
{
    return m_controls->wheelScrolls();
}

void SettingPanel::retranslate()
{
    m_controls->captions.retranslate();
    m_controls->hints.retranslate();
}

void SettingPanel::setRoleColor(const QString&, const QColor&) {}

void SettingPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_controls->captions.retranslate(); // what fits has changed; the chart has not
}

void SettingPanel::focusAfterLock(bool)
{
    setFocus(Qt::OtherFocusReason);
}

PanelControls& SettingPanel::controls()
{
    return *m_controls;
}

} // namespace vardeno::testcharttools
