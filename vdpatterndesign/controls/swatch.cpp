#include "controls/swatch.h"

#include "theme/resources.h"

#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVariant>

namespace vardeno::testcharttools {

namespace {

constexpr char paintedColor[] = "paintedColor"; ///< what was painted
constexpr char shownColor[] = "shownColor";     ///< what a picture's pixel keeps of it
constexpr QSize disabledSize(40, 20);

void setIconPixmap(QPushButton* button, const QPixmap& pixmap)
{
    button->setIcon(QIcon(pixmap));
    button->setIconSize(pixmap.size());
}

QColor centreColor(const QPushButton* button)
{
    const QImage image = button->icon().pixmap(button->iconSize()).toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
}

void paintColor(QPushButton* button, const QColor& color, int margin)
{
    QPixmap pixmap(button->size());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRect(pixmap.rect().adjusted(margin, margin, -margin, -margin));
    painter.end();
    setIconPixmap(button, pixmap);
    button->setProperty(paintedColor, color);
    button->setProperty(shownColor, centreColor(button));
}

QPixmap disabledPixmap()
{
    ensureResources();
    QPixmap pixmap(disabledSize);
    pixmap.fill(QColor(0x33, 0x33, 0x37));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::transparent);
    painter.setPen(QColor(0x63, 0x64, 0x74));
    painter.drawRect(1, 1, disabledSize.width() - 2, disabledSize.height() - 2);
    painter.drawPixmap(0, 0, QPixmap(QStringLiteral(":/resources/images/disable.png")));
    return pixmap;
}

} // namespace

void paintSwatch(QPushButton* button, const QColor& color)
{
    paintColor(button, color, 1);
}

void paintFullSwatch(QPushButton* button, const QColor& color)
{
    paintColor(button, color, 0);
}

void paintDisabledSwatch(QPushButton* button)
{
    setIconPixmap(button, disabledPixmap());
}

QColor swatchColor(const QPushButton* button)
{
    const QColor shown = centreColor(button);
    return shown.isValid() && shown == button->property(shownColor).value<QColor>()
               ? button->property(paintedColor).value<QColor>()
               : shown;
}

QString colorRole(const QPushButton* button)
{
    if (!button)
        return {};
    const QString role = button->property("btnProperty").toString();
    if (role == QLatin1String("outLineColorButton"))
        return QStringLiteral("outlineWidth");
    return role.isEmpty() ? button->objectName().remove(QLatin1String("ColorButton")) : role;
}

QColor startColor(QPushButton* button)
{
    if (!button->icon().isNull())
        return swatchColor(button);
    const QImage image = button->grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

SwitchedSwatch::SwitchedSwatch(QPushButton* button, const QColor& kept)
    : m_button(button)
    , m_kept(kept)
{
}

void SwitchedSwatch::keep(bool on)
{
    if (!on)
        m_kept = color();
}

void SwitchedSwatch::show(bool on)
{
    m_on = on;
    if (on)
        paintSwatch(m_button, m_kept);
    else
        paintDisabledSwatch(m_button);
}

void SwitchedSwatch::paint(const QColor& color)
{
    m_kept = color;
    if (m_on)
        paintSwatch(m_button, color);
}

QColor SwitchedSwatch::color() const
{
    return m_on ? swatchColor(m_button) : m_kept;
}

} // namespace vardeno::testcharttools
