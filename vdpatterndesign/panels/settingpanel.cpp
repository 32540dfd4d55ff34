#include "settingpanel.h"

#include "panels/panelcontrols.h"
#include "theme/resources.h"

#include <QEvent>

namespace vardeno::testcharttools {

SettingPanel::SettingPanel(QWidget* parent)
    : QWidget(parent)
    , m_controls(new PanelControls)
{
    ensureResources();
}

SettingPanel::~SettingPanel() = default;

void SettingPanel::setControlsDisabled(bool disabled)
{
    m_controls->setLocked(disabled);
    focusAfterLock(disabled);
}

void SettingPanel::retranslate()
{
    m_controls->captions.retranslate();
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
