#include "editor/editorpanels.h"

#include "basicsettingbox.h"
#include "editor/settingscolumn.h"
#include "inlinesettingbox.h"
#include "logosettingbox.h"
#include "paintbasicwidget.h"
#include "painters/layerstack.h"
#include "paintinlinewidget.h"
#include "paintpiclogowidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintselfwidget.h"
#include "painttextlogowidget.h"
#include "publicsettingbox.h"
#include "selfsettingbox.h"
#include "support/translation.h"

#include <propertybox.h>

#include <QVBoxLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

QString layerTitle()
{
    return translated(QStringLiteral("Layer settings"));
}

QString contentTitle()
{
    return translated(QStringLiteral("Display content personalization"));
}

} // namespace

void EditorPanels::build(QWidget* tool)
{
    m_tool = tool;
    m_column = new SettingsColumn(tool);
    m_layerSection = m_column->addSection("basePropertyBox", layerTitle());
    add(m_layerSection, "basicSetting", m_basic);
    add(m_layerSection, "publicSetting", m_common);
    m_contentSection = m_column->addSection("userSettingPropertyBox", contentTitle());
    add(m_contentSection, "inLineSetting", m_inLine);
    add(m_contentSection, "logoSetting", m_logo);
    add(m_contentSection, "selfSetting", m_text);
    m_column->finish();
}

template <typename Panel>
void EditorPanels::add(PropertyBox* section, const char* itemName, Panel*& panel)
{
    panel = new Panel(m_tool);
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
    section->addItem(QLatin1String(itemName), layout, panel->sectionHeight());
    m_all.push_back(panel);
}

void EditorPanels::setPainters(const LayerStack& layers) const
{
    m_basic->setPaintWidget(layers.find<PaintBasicWidget>());
    m_inLine->setPaintWidget(layers.find<PaintInLineWidget>());
    m_inLine->initPaintWidget();
    m_logo->setLogoStack(layers.sharedPlace());
    m_logo->setPicLogoWidget(layers.find<PaintPicLogoWidget>());
    m_logo->setTextLogoWidget(layers.find<PaintTextLogoWidget>());
    m_text->setPaintSelfWidget(layers.find<PaintSelfWidget>());
    m_common->setPaintPublicBrightWidget(layers.find<PaintPublicBrightWidget>());
    m_common->setPaintPublicWidget(layers.find<PaintPublicWidget>());
}

std::vector<SettingPanel*> EditorPanels::inLockOrder() const
{
    return {m_basic, m_inLine, m_logo, m_common, m_text};
}

void EditorPanels::setFollowsHost(bool follows)
{
    if (m_followsHost == follows)
        return;
    m_followsHost = follows;
    m_column->setFollowsRoom(follows);
    for (SettingPanel* panel : m_all)
        panel->setFitsContent(follows);
    fitSections();
}

void EditorPanels::fit(int room)
{
    if (!m_followsHost)
        return;
    fitPanels();
    fitSections();
    m_column->setWidths(m_contentWidth, room);
}

/// In one column, whose rows begin and end at the same places.
void EditorPanels::fitPanels()
{
    int growth = 0;
    for (const SettingPanel* panel : m_all)
        growth = std::max(growth, panel->neededCaptionGrowth());
    m_contentWidth = 0;
    for (SettingPanel* panel : m_all)
        m_contentWidth = std::max(m_contentWidth, panel->neededWidth(growth));
    for (SettingPanel* panel : m_all)
        panel->fitToWidth(m_contentWidth);
}

void EditorPanels::fitSections() const
{
    for (const SettingPanel* panel : m_all)
        panel->parentWidget()->setFixedHeight(panel->sectionHeight());
    for (PropertyBox* section : {m_layerSection, m_contentSection})
        section->setTitleFits(m_followsHost);
}

void EditorPanels::collectInto(TestChartToolsData& record) const
{
    for (const SettingPanel* panel : m_all)
        panel->collectInto(record);
}

void EditorPanels::pushFrom(const TestChartToolsData& record) const
{
    for (SettingPanel* panel : m_all)
        panel->pushFrom(record);
}

void EditorPanels::retranslate() const
{
    for (SettingPanel* panel : m_all)
        panel->retranslate();
    m_layerSection->setTitleText(layerTitle());
    m_contentSection->setTitleText(contentTitle());
}

} // namespace vardeno::testcharttools
