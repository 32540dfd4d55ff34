#include "controls/colorrole.h"

namespace vardeno::testcharttools {

void ColorRole::init(QPushButton* button, const QColor& color, Tell tell)
{
    m_button = button;
    m_swatch = SwitchedSwatch(button);
    m_swatch.paint(color);
    m_tell = std::move(tell);
}

void ColorRole::set(const QColor& color)
{
    m_swatch.paint(color);
    m_tell(color);
}

void ColorRole::tell() const
{
    m_tell(color());
}

} // namespace vardeno::testcharttools
