#include "combobox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
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

bool ComboBox::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QComboBox::event(event);

    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const bool fits = fontMetrics().horizontalAdvance(currentText()) <= field.width();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), fits ? QString() : currentText(), this);
    return true;
}

int ComboBox::widestItem() const
{
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = std::max(widest, view()->sizeHintForIndex(model()->index(row, modelColumn())).width());
    return widest;
}

} // namespace vardeno::testcharttools
