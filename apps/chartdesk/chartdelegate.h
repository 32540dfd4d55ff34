#pragma once

#include <QStyledItemDelegate>

/// Draws the charts of the list: each a picture, its colours untouched, above its title.
class ChartDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr QSize pictureSize{240, 135};

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
