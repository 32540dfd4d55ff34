#pragma once

#include "settingpanel.h"

namespace vardeno::testcharttools {

class PaintBasicWidget;
struct BasicChartData;

/// The settings of the basic pattern: chessboard or colour bar, the two chess colours, and the list of the
/// colour bar's colours, shown as stripes or as a gradient.
///
/// Colours are not picked here: the panel asks with `oddSignal`, `evenSignal` or `addSignal`, and is answered
/// with `setColor`, `restoreColor` or `addColor`.
class VDPATTERNDESIGN_EXPORT BasicSettingBox : public SettingPanel
{
    Q_OBJECT

public:
    explicit BasicSettingBox(QWidget* parent = nullptr);
    ~BasicSettingBox() override;

    /// The painter that the panel drives; it stays the caller's. Null is ignored.
    void setPaintWidget(PaintBasicWidget* painter);

    /// The style sheet of the confirmations that the panel opens.
    void setDialogStyleSheet(const QString& sheet);

    /// Gives the chess colour `which` ("odd" or "even") the colour `color`. Any other name does nothing.
    void setColor(const QColor& color, const QString& which);
    /// Puts back the chess colour `which` as it was when its colour button was last clicked.
    void restoreColor(const QString& which);
    /// Appends a colour to the colour bar when `which` is "add" and the colour is valid.
    void addColor(const QColor& color, const QString& which);
    /// Appends the five default colours to the colour bar, after clearing it when `isFirst` is true.
    void colorStripeAddDefaultColors(bool isFirst);

    void getData(BasicChartData& data) const;
    void setData(const BasicChartData& data);

    void collectInto(TestChartToolsData& record) const override;
    void pushFrom(const TestChartToolsData& record) override;
    void setRoleColor(const QString& role, const QColor& color) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void basicSignal();
    void oddSignal(QPushButton* button);
    void evenSignal(QPushButton* button);
    void addSignal(QPushButton* button);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
