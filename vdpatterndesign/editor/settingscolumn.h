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

    /// Whether the column takes the height that it is given; its content is then seen whole, or scrolled to
    /// where there is less room. At first it has its one size.
    void setFollowsRoom(bool follows);
    /// While it does: what its content is wide, and how wide it may be.
    void setWidths(int content, int room);

    QWidget* mask() const { return m_mask; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QVBoxLayout* m_sections;
    bool m_followsRoom = false;
    QWidget* m_mask = nullptr;
};

} // namespace vardeno::testcharttools
