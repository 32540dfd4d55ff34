#pragma once

#include "settingpanel.h"

namespace vardeno::testcharttools {

class PaintBasicWidget;
struct BasicChartData;

/// The settings of the basic pattern: chessboard or colour bar, the two chess colours, and the list of the
/// colour bar's colours, shown as stripes or as a gradient.
///
/// Colours are not picked here: the panel asks with `oddSignal`, `evenSignal` or `addSignal`, and is answered
/// with `setColor`, `restoreColor` or `addColor`; a colour of the bar is asked for with `changeSignal` and
/// answered with `setRoleColor`.
class VDPATTERNDESIGN_EXPORT BasicSettingBox : public SettingPanel
{
    Q_OBJECT
    Q_PROPERTY(bool quietWhenEmpty READ isQuietWhenEmpty WRITE setQuietWhenEmpty)

public:
    explicit BasicSettingBox(QWidget* parent = nullptr);
    ~BasicSettingBox() override;

    /// The painter that the panel drives; it stays the caller's. Null is ignored.
    void setPaintWidget(PaintBasicWidget* painter);

    /// The style sheet of the confirmations that the panel opens.
    void setDialogStyleSheet(const QString& sheet);

    /// Whether "Delete" asks nothing while the colour bar has no colours. At first false.
    void setQuietWhenEmpty(bool quiet);
    bool isQuietWhenEmpty() const;

    /// Gives the chess colour `which` ("odd" or "even") the colour `color`. Any other name does nothing.
    void setColor(const QColor& color, const QString& which);
    /// Puts back the chess colour `which` as it was when its colour button was last clicked.
    void restoreColor(const QString& which);
    /// Appends a colour to the colour bar when `which` is "add" and the colour is valid.
    void addColor(const QColor& color, const QString& which);
    /// Appends the five default colours to the colour bar, after clearing it when `isFirst` is true.
    void colorStripeAddDefaultColors(bool isFirst);
    /// Takes the colour bar for one that has not been shown yet: choosing it while it has no colours appends
    /// the default ones.
    void forgetColorBar();

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
    /// The user wants another colour in the place of one in the colour bar; `button` shows it, and is never
    /// shown itself.
    void changeSignal(QPushButton* button);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
