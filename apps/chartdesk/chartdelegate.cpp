#include "chartdelegate.h"

#include "chartlist.h"

#include <QPainter>
#include <QPixmap>

namespace {

const QColor outlineColor(128, 128, 128, 96); ///< a white chart stands out from a light list

constexpr int frameGap = 4;   ///< around a chart's frame
constexpr int padding = 8;    ///< inside it
constexpr int titleLines = 4; ///< name, date, size and cabinets, tags

/// The frame that tells a selected chart, and one under the pointer.
void drawFrame(QPainter* painter, const QStyleOptionViewItem& option, const QRect& frame)
{
    const bool selected = option.state & QStyle::State_Selected;
    if (!selected && !(option.state & QStyle::State_MouseOver))
        return;
    painter->setPen(selected ? QPen(option.palette.highlight(), 2) : QPen(Qt::NoPen));
    painter->setBrush(selected ? option.palette.button() : option.palette.window());
    painter->drawRoundedRect(frame, 4, 4);
}

/// Its lines, each as long as there is room.
QString titleText(const QModelIndex& index, const QFontMetrics& metrics, int room)
{
    QStringList lines = index.data().toString().split(QLatin1Char('\n'));
    lines.append(index.data(ChartList::DetailsRole).toString());
    lines.append(index.data(ChartList::TagsRole).toStringList().join(QStringLiteral(", ")));
    for (QString& line : lines)
        line = metrics.elidedText(line, Qt::ElideMiddle, room);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void ChartDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const QRect frame = option.rect.adjusted(frameGap, frameGap, -frameGap, -frameGap);
    QRect place(QPoint(), pictureSize);
    place.moveCenter(frame.center());
    place.moveTop(frame.top() + padding);
    const QRect title = frame.adjusted(0, pictureSize.height() + 2 * padding, 0, 0);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, option, frame);
    const auto picture = index.data(ChartList::ThumbnailRole).value<QPixmap>();
    if (picture.isNull())
        painter->fillRect(place, option.palette.base());
    else
        painter->drawPixmap(place.topLeft(), picture);
    painter->setPen(outlineColor);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(place).adjusted(-.5, -.5, .5, .5)); // around its pixels
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawText(title, Qt::AlignHCenter | Qt::AlignTop,
                      titleText(index, option.fontMetrics, title.width()));
    painter->restore();
}

QSize ChartDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const int margin = frameGap + padding;
    return pictureSize + QSize(2 * margin, 2 * margin + padding + titleLines * option.fontMetrics.height());
}
