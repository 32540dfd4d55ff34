#include "controls/fieldhint.h"

#include "support/translation.h"

#include <spineditbox.h>

#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSlider>
#include <QTimer>
#include <QToolTip>

namespace vardeno::testcharttools {

namespace {

constexpr int shownFor = 5000;       ///< ms
constexpr int releaseDelay = 30;     ///< ms between two looks at the mouse button
constexpr int longestLength = 32767; ///< of an entry without a limit of its own

QString withRange(const QString& name, const QString& least, const QString& most)
{
    return translated(QStringLiteral("%1: %2 to %3")).arg(name, least, most);
}

QString withRange(const QString& name, const SpinEditBox& entry)
{
    const QString unit = entry.suffix().isEmpty() ? QString() : QLatin1Char(' ') + entry.suffix();
    return withRange(name, entry.textFromValue(entry.minimum()), entry.textFromValue(entry.maximum()) + unit);
}

QString withLength(const QString& name, int length)
{
    return length < longestLength
               ? translated(QStringLiteral("%1: at most %2 characters")).arg(name, QString::number(length))
               : name;
}

QString toolTipFor(const QWidget* field, const QString& name)
{
    if (const auto* entry = qobject_cast<const SpinEditBox*>(field))
        return withRange(name, *entry);
    if (const auto* slider = qobject_cast<const QSlider*>(field))
        return withRange(name, QString::number(slider->minimum()), QString::number(slider->maximum()));
    if (const auto* entry = qobject_cast<const QLineEdit*>(field))
        return withLength(name, entry->maxLength());
    return name;
}

} // namespace

void setHint(QWidget* field, const QString& name)
{
    field->setAccessibleName(name);
    if (!qobject_cast<QComboBox*>(field))
        field->setToolTip(toolTipFor(field, name));
}

void showHint(QWidget* field)
{
    const bool pressed = QGuiApplication::mouseButtons() != Qt::NoButton;
    QTimer::singleShot(pressed ? releaseDelay : 0, field, [field] {
        if (QGuiApplication::mouseButtons() != Qt::NoButton)
            showHint(field);
        else if (field->isVisible() && !field->toolTip().isEmpty())
            QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), field->toolTip(), field, {},
                               shownFor);
    });
}

} // namespace vardeno::testcharttools
