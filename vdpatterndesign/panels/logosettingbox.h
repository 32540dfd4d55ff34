#pragma once

#include "settingpanel.h"

class QStackedWidget;

namespace vardeno::testcharttools {

class PaintPicLogoWidget;
class PaintTextLogoWidget;
struct LogoChartData;

/// The settings of the logo: a picture or a text, its anchor and shift, its scale or size, its opacity.
///
/// The text's colour is not picked here: the panel asks with `logoColorSingal` and is answered with
/// `setTextLogoColor` or `restoreTextLogoColor`. Its role is "logo".
class VDPATTERNDESIGN_EXPORT LogoSettingBox : public SettingPanel
{
    Q_OBJECT

public:
    explicit LogoSettingBox(QWidget* parent = nullptr);
    ~LogoSettingBox() override;

    /// The painters that the panel drives, and the stack that holds them in this order; all stay the
    /// caller's. Null is ignored. The picture painter is given the built-in picture.
    void setPicLogoWidget(PaintPicLogoWidget* painter);
    void setTextLogoWidget(PaintTextLogoWidget* painter);
    void setLogoStack(QStackedWidget* stack);

    /// The picture's path is empty while the built-in picture is shown.
    LogoChartData getData() const;
    /// Values outside a control's range are cut to it. An empty picture path shows the built-in picture.
    void setData(const LogoChartData& data);

    void setTextLogoColor(const QColor& color);
    /// Puts back the text's colour as it was when its colour button was last clicked.
    void restoreTextLogoColor();

    void retranslate() override;
    void collectInto(TestChartToolsData& record) const override;
    void pushFrom(const TestChartToolsData& record) override;
    void setRoleColor(const QString& role, const QColor& color) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void logoSignal();
    void logoColorSingal(QPushButton* button);

protected:
    void focusAfterLock(bool locked) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
