#include "nametips.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>

NameTips::NameTips(QObject* parent)
    : QObject(parent)
{
    QApplication::instance()->installEventFilter(this);
}

bool NameTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    auto* control = qobject_cast<QWidget*>(watched);
    const bool isNamed = qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control);
    if (!isNamed || !control->toolTip().isEmpty() || controlName(control).isEmpty())
        return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), controlName(control), control);
    return true;
}

QString controlName(const QWidget* control)
{
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const QString name = control->accessibleName();
    return name.isEmpty() && button ? button->text() : name;
}
