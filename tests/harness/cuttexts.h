#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QWidget>

/// Finds what a window has no room for.
namespace cuttexts {

inline int widthOf(const QWidget& widget, const QString& text)
{
    const QString shown = QString(text).remove(QLatin1Char('&'));
    return widget.fontMetrics().size(Qt::TextShowMnemonic, shown).width();
}

inline bool isCut(const QLabel& label)
{
    if (label.text().isEmpty() || label.textFormat() == Qt::RichText || Qt::mightBeRichText(label.text()))
        return false;
    if (label.wordWrap())
        return label.heightForWidth(label.width()) > label.height();
    return widthOf(label, label.text()) > label.width() || label.fontMetrics().height() > label.height() + 2;
}

inline bool isCut(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    return widthOf(box, box.currentText()) > room.width();
}

inline bool isCut(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return isCut(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return widthOf(*button, button->text()) > button->width();
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return isCut(*box);
    if (const auto* entry = qobject_cast<const QLineEdit*>(widget))
        return widthOf(*entry, entry->placeholderText()) > entry->width() - 8;
    return false;
}

inline QString described(const QWidget* widget)
{
    QString text = widget->property("text").toString();
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        text = box->currentText();
    if (const auto* entry = qobject_cast<const QLineEdit*>(widget))
        text = entry->placeholderText();
    return QStringLiteral("%1 \"%2\" %3 x %4: \"%5\"")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
        .arg(widget->width())
        .arg(widget->height())
        .arg(text);
}

/// The controls of `window` whose texts are cut, and the window itself where its screen has no room for it.
inline QStringList in(const QWidget& window)
{
    QStringList found;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->isVisible() && widget->window() == &window && isCut(widget))
            found.append(described(widget));
    }
    const QSize room = window.screen()->availableSize();
    if (window.isWindow() && window.frameSize().boundedTo(room) != window.frameSize())
        found.append(QStringLiteral("the window, %1 x %2, is larger than its screen")
                         .arg(window.frameSize().width())
                         .arg(window.frameSize().height()));
    return found;
}

} // namespace cuttexts
