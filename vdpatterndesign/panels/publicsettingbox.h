#pragma once

#include "settingpanel.h"

namespace vardeno::testcharttools {

class PaintPublicBrightWidget;
class PaintPublicWidget;
struct PublicChartData;

/// The settings of the whole chart: brightness, resolution, cabinet grid and outer border.
class VDPATTERNDESIGN_EXPORT PublicSettingBox : public SettingPanel
{
    Q_OBJECT

public:
    explicit PublicSettingBox(QWidget* parent = nullptr);
    ~PublicSettingBox() override;

    /// The painters that the panel drives; they stay the caller's. Null is ignored.
    void setPaintPublicWidget(PaintPublicWidget* painter);
    void setPaintPublicBrightWidget(PaintPublicBrightWidget* painter);

    PublicChartData getData() const;
    /// Values outside a control's range are cut to it.
    void setData(const PublicChartData& data);

    /// Shows `percent` in slider and entry without applying it.
    void setBrightnessValue(int percent);

    /// Chart pixels, never below 16.
    int resolutionWidth() const;
    int resolutionHeight() const;

    /// Shows `color` as the border's colour and applies it.
    void setOutLineColor(const QColor& color);
    /// Puts back the colour that the border had when its colour button was last clicked.
    void restoreOutLineColor();

    void collectInto(TestChartToolsData& record) const override;
    void pushFrom(const TestChartToolsData& record) override;
    void setRoleColor(const QString& role, const QColor& color) override;

Q_SIGNALS:
    void publicSignal();
    void resolutionSignal();
    void editingFinished();
    void rowSignal(int row);
    void colSignal(int col);
    void colorBtnSignal(QPushButton* button);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
