#pragma once

#include <vector>

class QWidget;

namespace vardeno::testcharttools {

class BasicSettingBox;
class InLineSettingBox;
class LayerStack;
class LogoSettingBox;
class PropertyBox;
class PublicSettingBox;
class SelfSettingBox;
class SettingPanel;
class SettingsColumn;
struct TestChartToolsData;

/// The column with the five settings panels in their two sections.
class EditorPanels
{
public:
    /// Builds the column in `tool`.
    void build(QWidget* tool);
    /// Hands each panel the painters that it drives.
    void setPainters(const LayerStack& layers) const;

    SettingsColumn* column() const { return m_column; }
    BasicSettingBox* basic() const { return m_basic; }
    PublicSettingBox* common() const { return m_common; }
    SelfSettingBox* text() const { return m_text; }
    /// As they follow one another in the column and in the record.
    const std::vector<SettingPanel*>& all() const { return m_all; }
    /// In the order in which they are locked.
    std::vector<SettingPanel*> inLockOrder() const;

    /// Whether the column takes the height of its host, and no caption and no value is cut in any font.
    void setFollowsHost(bool follows);
    /// Gives everything its room, where it follows; for after a change of font or language. The column is at
    /// most `room` wide.
    void fit(int room);

    void collectInto(TestChartToolsData& record) const;
    void pushFrom(const TestChartToolsData& record) const;
    void retranslate() const;

private:
    void fitPanels();
    void fitSections() const;
    template <typename Panel>
    void add(PropertyBox* section, const char* itemName, Panel*& panel);

    QWidget* m_tool = nullptr;
    SettingsColumn* m_column = nullptr;
    PropertyBox* m_layerSection = nullptr;
    PropertyBox* m_contentSection = nullptr;
    BasicSettingBox* m_basic = nullptr;
    PublicSettingBox* m_common = nullptr;
    InLineSettingBox* m_inLine = nullptr;
    LogoSettingBox* m_logo = nullptr;
    SelfSettingBox* m_text = nullptr;
    std::vector<SettingPanel*> m_all;
    bool m_followsHost = false;
    int m_contentWidth = 0;
};

} // namespace vardeno::testcharttools
