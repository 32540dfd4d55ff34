#pragma once

#include "settingpanel.h"

namespace vardeno::testcharttools {

class PaintSelfWidget;
struct SelfChartData;

/// The settings of the chart's texts: the custom text and the information line, each of which can be switched
/// off.
///
/// Colours are not picked here: the panel asks with `selfTextSignal` or `resolutionSignal` and is answered
/// with `setButtonColor` or `restoreButtonColor`. Their roles are "selfText" and "resolution".
class VDPATTERNDESIGN_EXPORT SelfSettingBox : public SettingPanel
{
    Q_OBJECT

public:
    explicit SelfSettingBox(QWidget* parent = nullptr);
    ~SelfSettingBox() override;

    /// The painter that the panel drives; it stays the caller's. Null is ignored.
    void setPaintSelfWidget(PaintSelfWidget* painter);

    SelfChartData getData() const;
    /// Values outside a control's range are cut to it; a text longer than 50 characters is cut as well.
    void setData(const SelfChartData& data);

    /// Gives the colour button `button` the colour `color`, and its line of the chart, unless it shows it
    /// already.
    void setButtonColor(const QColor& color, QPushButton* button);
    /// Puts back the colour of the role `key` as it was when its button was last clicked.
    void restoreButtonColor(const QString& key);

    /// The chart's resolution, in pixels, and the screen's cabinet grid, as the shell knows them.
    void setResolution(int width, int height);
    void setRows(int rows);
    void setColumns(int columns);

    void retranslate() override;
    void collectInto(TestChartToolsData& record) const override;
    void pushFrom(const TestChartToolsData& record) override;
    void setRoleColor(const QString& role, const QColor& color) override;

Q_SIGNALS:
    void selfSignal();
    void selfTextSignal(QPushButton* button);
    void resolutionSignal(QPushButton* button);
    void boxNumSignal();

protected:
    void focusAfterLock(bool locked) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
