#include "settingpanel.h"

#include "panels/panelcontrols.h"
#include "theme/resources.h"

#include <QEvent>
#include <QLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

/// Layouts, and the widgets around them, remember what they need until the next event.
void forgetSizes(QWidget* panel)
{
    const auto layouts = panel->findChildren<QLayout*>();
    for (QLayout* layout : layouts)
        layout->invalidate();
    const auto parts = panel->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        if (part->layout())
            part->updateGeometry();
    }
}

} // namespace

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

bool SettingPanel::fitsContent() const
{
    return m_controls->fits();
}

void SettingPanel::setFitsContent(bool fits)
{
    if (fits == fitsContent())
        return;
    if (fits) {
        m_usualWidth = width();
        fitToWidth(neededWidth(neededCaptionGrowth()));
        return;
    }
    m_controls->unfit();
    fitToWidth(m_usualWidth);
}

int SettingPanel::neededCaptionGrowth() const
{
    return m_controls->neededCaptionGrowth();
}

int SettingPanel::neededWidth(int captionGrowth)
{
    m_controls->fit(captionGrowth);
    m_controls->captions.retranslate();
    forgetSizes(this);
    return std::max(m_usualWidth, layout()->minimumSize().width());
}

void SettingPanel::fitToWidth(int width)
{
    setFixedWidth(width);
    m_controls->setWidth(width);
    m_controls->captions.retranslate();
    forgetSizes(this);
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
