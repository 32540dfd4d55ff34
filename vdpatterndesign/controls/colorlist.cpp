#include "controls/colorlist.h"

#include <QListWidget>

namespace vardeno::testcharttools {

namespace {

constexpr QSize itemSize(18, 18);

} // namespace

std::map<int, QColor> listColors(const QListWidget* list)
{
    std::map<int, QColor> colors;
    for (int row = 0; row < list->count(); ++row) {
        const QBrush brush = list->item(row)->background();
        colors[row] = brush.style() == Qt::SolidPattern ? brush.color() : QColor(Qt::white);
    }
    return colors;
}

void setListColors(QListWidget* list, const std::map<int, QColor>& colors)
{
    list->clear();
    for (const auto& [row, color] : colors)
        appendListColor(list, color);
}

void appendListColor(QListWidget* list, const QColor& color)
{
    auto* item = new QListWidgetItem(list);
    item->setBackground(QBrush(color));
    item->setSizeHint(itemSize);
    item->setTextAlignment(Qt::AlignCenter);
}

void setListColor(QListWidget* list, int row, const QColor& color)
{
    list->item(row)->setBackground(QBrush(color));
}

bool moveCurrentColor(QListWidget* list, int step)
{
    const int row = list->currentRow();
    const int target = row + step;
    if (row < 0 || target < 0 || target >= list->count())
        return false;
    QAbstractItemModel* const model = list->model();
    model->moveRow({}, row, {},
                   step > 0 ? target + 1 : target); // the model's places are those before the move
    list->scrollToItem(list->currentItem());
    return true;
}

void stepListLeft(QListWidget* list)
{
    if (list->currentRow() < 1)
        return;
    list->setCurrentRow(list->currentRow() - 1);
    list->scrollToItem(list->currentItem());
}

void stepListRight(QListWidget* list)
{
    if (list->currentRow() >= list->count() - 1)
        return;
    list->setCurrentRow(list->currentRow() + 1);
    list->scrollToItem(list->currentItem());
}

void removeCurrentColor(QListWidget* list, std::vector<std::unique_ptr<QListWidgetItem>>& leftovers)
{
    std::unique_ptr<QListWidgetItem> taken(list->takeItem(list->currentRow()));
    if (taken && list->count() < 2)
        leftovers.push_back(std::move(taken));
}

} // namespace vardeno::testcharttools
