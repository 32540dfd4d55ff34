#pragma once

#include "panels/panelcontrols.h"

#include <QSize>

class QBoxLayout;
class QCheckBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QWidget;

namespace vardeno::testcharttools {

class ComboBox;
class SpinEditBox;

// The sizes that most rows share.
constexpr QSize captionSize(80, 24);
constexpr QSize entrySize(110, 24);
constexpr QSize shortEntry(70, 24); ///< beside a slider or another one

/// What an entry of whole numbers accepts: `range(1, 100).value(6).suffix("px")`.
struct SpinRange
{
    double minimum;
    double maximum;
    double initial;
    QString unit;

    SpinRange value(double v) const { return {minimum, maximum, v, unit}; }
    SpinRange suffix(const QString& text) const { return {minimum, maximum, initial, text}; }
};

inline SpinRange range(double minimum, double maximum)
{
    return {minimum, maximum, minimum, {}};
}

/// One row of a settings panel, described from left to right. Every verb creates a control with its size,
/// range, object name and dynamic property, puts it under the panel's lock, and stores it in its first
/// argument. `allowed` answers whether the control may be used while the panel is not locked.
class SettingRow
{
public:
    using Allowed = PanelControls::Allowed;
    static constexpr int indicatorMargin = 20; ///< what the text of a radio or combo box leaves free

    /// The controls become children of `panel` and are registered with `controls`.
    SettingRow(QWidget* panel, PanelControls& controls, QHBoxLayout* layout);

    /// A right-aligned caption, which names the row's next control; without a `source` it only takes the
    /// room.
    SettingRow& caption(const QString& source, const QSize& size, int margin = 0);
    /// The same, as the first of the row.
    SettingRow& firstCaption(const QString& source, const QSize& size, int margin);
    /// The same, at the left and only as wide as its text, up to `longest`.
    SettingRow& shortCaption(const QString& source, const QSize& longest);
    SettingRow& spin(SpinEditBox*& box, const QSize& size, const SpinRange& range, Allowed allowed = {});
    /// Horizontal, 146 x 24, from 0 to `maximum`, at 100.
    SettingRow& slider(QSlider*& slider, int maximum, Allowed allowed = {});
    SettingRow& text(QLineEdit*& entry, const QString& initial, const QSize& size, Allowed allowed = {});
    /// 20 x 20, shows a picture; `hint` is its tool tip and its name for screen readers.
    SettingRow& iconButton(QPushButton*& button, const QString& picture, const QString& hint,
                           const QString& objectName, Allowed allowed = {});
    /// A colour button, 16 x 16, whose role is the dynamic property "btnProperty" unless `role` is empty.
    SettingRow& swatch(QPushButton*& button, const QString& objectName, const QString& role,
                       Allowed allowed = {});
    /// A radio button; those of one panel exclude one another. Its text is elided to its width less `margin`.
    SettingRow& radio(QRadioButton*& radio, const QString& source, const QSize& size, Allowed allowed = {},
                      int margin = indicatorMargin);
    /// A combo box with one item for each of `sources`; an item's data is its 0-based row.
    SettingRow& combo(ComboBox*& box, const QStringList& sources, const QSize& size, Allowed allowed = {});
    /// A button with a caption; its dynamic property "btnProperty" = "uplogo" leaves room for a picture.
    SettingRow& button(QPushButton*& button, const QString& source, const QSize& size,
                       const QString& objectName, Allowed allowed = {});
    /// The switch of a group, 28 x 14.
    SettingRow& toggle(QCheckBox*& box, bool checked);
    SettingRow& toggle(QPushButton*& button, bool checked, Allowed allowed = {});
    /// A widget that the panel made itself; the lock leaves it alone.
    SettingRow& widget(QWidget* widget);
    /// What the last control is, in words that need no caption: its name for screen readers and its tool tip,
    /// with the range of a number and the length of a text. The tool tip of a choice is its own.
    SettingRow& named(const QString& source);
    SettingRow& gap(int pixels);
    /// Between what follows; at first 8.
    SettingRow& spacing(int pixels);

private:
    void addCaption(const QString& source, const QSize& size, int margin);
    void append(QWidget* control, const QSize& size);
    void appendLocked(QWidget* control, const QSize& size, Allowed allowed);

    QWidget* m_panel;
    PanelControls* m_controls;
    QHBoxLayout* m_layout;
    QLabel* m_caption = nullptr;
    QWidget* m_last = nullptr;
};

/// The line that closes a panel, 1 pixel high and `width` wide. All rules are drawn 353 pixels long, and at
/// any scale.
QFrame* createRule(QWidget* panel, const char* objectName, int width, int frameStyle);

/// The rows of a settings panel, top to bottom.
class SettingRows
{
public:
    /// Appends the rows to `column`; their first captions are `captionSize`.
    /// Captions are elided to their width less `captionMargin`.
    SettingRows(QWidget* panel, PanelControls& controls, QBoxLayout* column, const QSize& captionRoom,
                int captionMargin = 0);

    SettingRow row(const QString& captionSource);

private:
    QWidget* m_panel;
    PanelControls* m_controls;
    QBoxLayout* m_column;
    QSize m_captionSize;
    int m_captionMargin;
};

} // namespace vardeno::testcharttools
