#include "panels/contentsize.h"

#include <combobox.h>
#include <spineditbox.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int lineRoom = 4;       ///< above and below a text
constexpr int spinRoom = 30;      ///< arrows, frame and what the text keeps off it
constexpr int choiceRoom = 34;    ///< the same of a choice
constexpr int indicatorRoom = 26; ///< its indicator
constexpr int captionRoom = 14;   ///< frame, and room beside the text
constexpr int uploadRoom = 68;    ///< the room for a picture

/// What does not fit is the tool tip.
template <typename Widget>
QString wholeText(const Widget* widget)
{
    return widget->text().isEmpty() || widget->toolTip().isEmpty() ? widget->text() : widget->toolTip();
}

QSize sizeOf(const SpinEditBox* entry)
{
    const auto sizeWith = [entry](double value) {
        return textSize(entry, entry->prefix() + entry->textFromValue(value) + entry->suffix(), spinRoom);
    };
    return sizeWith(entry->minimum()).expandedTo(sizeWith(entry->maximum()));
}

QSize sizeOf(const ComboBox* box)
{
    QSize size;
    for (int row = 0; row < box->count(); ++row)
        size = size.expandedTo(textSize(box, box->itemText(row), choiceRoom));
    return size;
}

int marginOf(const QAbstractButton* button)
{
    if (qobject_cast<const QRadioButton*>(button))
        return indicatorRoom;
    return button->property("btnProperty") == QLatin1String("uplogo") ? uploadRoom : captionRoom;
}

} // namespace

QSize textSize(const QWidget* widget, const QString& text, int margin)
{
    if (text.isEmpty())
        return {0, 0};
    const QFontMetrics metrics = widget->fontMetrics();
    const int width = std::max(metrics.horizontalAdvance(text), metrics.boundingRect(text).width());
    return {width + margin, metrics.height() + lineRoom};
}

QSize contentSize(const QWidget* widget)
{
    widget->ensurePolished();
    if (const auto* entry = qobject_cast<const SpinEditBox*>(widget))
        return sizeOf(entry);
    if (const auto* box = qobject_cast<const ComboBox*>(widget))
        return sizeOf(box);
    if (const auto* entry = qobject_cast<const QLineEdit*>(widget))
        return {0, textSize(entry, QStringLiteral("X"), 0).height()};
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return textSize(button, wholeText(button), marginOf(button));
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return textSize(label, wholeText(label), 2);
    return {0, 0};
}

} // namespace vardeno::testcharttools
