#pragma once

#include "controls/swatch.h"

#include <functional>

namespace vardeno::testcharttools {

/// The colour of a button: shown as its swatch, told to who draws with it, and put back when a picker that
/// was opened for it is rejected. While its group is switched off the button shows the grey swatch.
class ColorRole
{
public:
    using Tell = std::function<void(const QColor& color)>;

    /// Shows `color` on `button` without telling; `tell` gets every colour that is `set`.
    void init(QPushButton* button, const QColor& color, Tell tell);

    QPushButton* button() const { return m_button; }
    /// The colour, whether its group is on or off.
    QColor color() const { return m_swatch.color(); }
    /// Shows and tells `color`.
    void set(const QColor& color);
    /// Tells the colour again.
    void tell() const;

    /// A picker opens for the button: what the button shows is what `beforePicking` gives from now on.
    void beginPicking() { m_beforePicking = swatchColor(m_button); }
    /// At first invalid, unless set.
    QColor beforePicking() const { return m_beforePicking; }
    void setBeforePicking(const QColor& color) { m_beforePicking = color; }

    /// The two steps of switching the colour's group on or off: see `SwitchedSwatch`.
    void keep(bool on) { m_swatch.keep(on); }
    void show(bool on) { m_swatch.show(on); }

private:
    QPushButton* m_button = nullptr;
    SwitchedSwatch m_swatch;
    QColor m_beforePicking;
    Tell m_tell;
};

} // namespace vardeno::testcharttools
