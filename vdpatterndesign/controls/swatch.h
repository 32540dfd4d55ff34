#pragma once

#include <QColor>
#include <QString>

class QPushButton;

namespace vardeno::testcharttools {

/// Shows `color` on a colour button: its icon becomes a transparent picture of the button's size with the
/// colour filled inside a margin of one pixel.
void paintSwatch(QPushButton* button, const QColor& color);

/// The same, filled to the button's edges.
void paintFullSwatch(QPushButton* button, const QColor& color);

/// Gives the colour button of a switched-off group its grey 40 x 20 swatch.
void paintDisabledSwatch(QPushButton* button);

/// The colour a button shows: the pixel at the centre of its icon, invalid for a button without an icon. A
/// translucent colour comes back as it was painted, without the rounding that a picture's pixels suffer.
QColor swatchColor(const QPushButton* button);

/// What the colour of a button is for ("outlineWidth", "circle", "odd" and so on): its dynamic property
/// "btnProperty", or, where it has none, what its object name says. Empty for no button.
QString colorRole(const QPushButton* button);

/// The colour to begin with when the colour of `button` is picked: the one its icon shows, or, without an
/// icon, the one that it shows itself.
QColor startColor(QPushButton* button);

/// The colour of a group that can be switched off. While the group is off its button shows the grey swatch,
/// and the colour is kept until the group is switched on again.
class SwitchedSwatch
{
public:
    explicit SwitchedSwatch(QPushButton* button = nullptr, const QColor& kept = QColor());

    /// Call with the group's new state before `show`: switching off keeps the colour that is shown.
    void keep(bool on);
    /// Shows the kept colour (on) or the grey swatch (off).
    void show(bool on);
    /// Gives the group a new colour, which is shown now or when the group is switched on.
    void paint(const QColor& color);

    /// The group's colour, whether it is on or off.
    QColor color() const;

private:
    QPushButton* m_button;
    QColor m_kept;
    bool m_on = true;
};

} // namespace vardeno::testcharttools
