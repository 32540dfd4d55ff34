#pragma once

#include "settingpanel.h"

namespace vardeno::testcharttools {

class PaintInLineWidget;
struct InLineChartData;

/// The settings of the inline graphics: three groups that can be switched off, for the circles, the diagonals
/// and the cabinets' labels.
///
/// Colours are not picked here: the panel asks with one of its colour signals and is answered with `setColor`
/// or `restoreColor`. Their roles are "circle", "diagonal" and "seque".
class VDPATTERNDESIGN_EXPORT InLineSettingBox : public SettingPanel
{
    Q_OBJECT

public:
    explicit InLineSettingBox(QWidget* parent = nullptr);
    ~InLineSettingBox() override;

    /// The painter that the panel drives; it stays the caller's. Null is ignored.
    void setPaintWidget(PaintInLineWidget* painter);
    /// Hands the painter the numbering mode and the labels' visibility. Sizes and widths it is told when they
    /// change: until then it keeps its own.
    void initPaintWidget();

    /// Gives the role `which` the colour `color`; any other name does nothing.
    void setColor(const QColor& color, const QString& which);
    /// Puts back the colour of the role `which` as it was when its colour button was last clicked.
    void restoreColor(const QString& which);

    /// The screen's cabinet grid.
    void setRows(int rows);
    void setColumns(int columns);

    void getData(InLineChartData& data) const;
    /// Values outside a control's range are cut to it.
    void setData(const InLineChartData& data);

    void collectInto(TestChartToolsData& record) const override;
    void pushFrom(const TestChartToolsData& record) override;
    void setRoleColor(const QString& role, const QColor& color) override;

Q_SIGNALS:
    void inlineSignal();
    void inlineCircleSignal(QPushButton* button);
    void inlineDialongSignal(QPushButton* button);
    void inlineSequeSignal(QPushButton* button);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
