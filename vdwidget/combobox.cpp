#include "combobox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace vardeno::testcharttools {

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
}

void ComboBox::showPopup()
{
    const int scrollBar = view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(widestItem() + scrollBar);
    QComboBox::showPopup();
}

void ComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fittedText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool ComboBox::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QComboBox::event(event);
    const bool fits = fittedText() == currentText();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), fits ? QString() : currentText(), this);
    return true;
}

QString ComboBox::fittedText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const bool fits = fontMetrics().horizontalAdvance(currentText()) <= field.width();
    return fits ? currentText() : fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width());
}

int ComboBox::widestItem() const
{
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = std::max(widest, view()->sizeHintForIndex(model()->index(row, modelColumn())).width());
    return widest;
}

} // namespace vardeno::testcharttools
