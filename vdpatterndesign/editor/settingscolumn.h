#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace vardeno::testcharttools {

class PropertyBox;

/// The column of the panels, which fill its width, and the mask that covers them while the chart is
/// repainted. Its scroll bar, when there is one, lies over the panels' right margin.
class SettingsColumn : public QScrollArea
{
public:
    explicit SettingsColumn(QWidget* parent);

    /// Adds a section below those there are.
    PropertyBox* addSection(const char* objectName, const QString& title);
    /// No section follows: what is left of the column stays empty, and the mask is made.
    void finish();

    QWidget* mask() const { return m_mask; }

private:
    QVBoxLayout* m_sections;
    QWidget* m_mask = nullptr;
};

} // namespace vardeno::testcharttools
