#include "readingpicture.h"

#include <QPainter>

#include <algorithm>

namespace WallReading {

namespace {

QRectF rectOf(const Chart& chart, const Place& cabinet)
{
    return chart.cabinets.cabinets.at(std::size_t(cabinet.row * chart.cabinets.columns + cabinet.column))
        .rect;
}

QRectF rectIn(const QImage& picture, const Chart& chart, const Place& cabinet)
{
    const double across = double(picture.width()) / chart.picture.width();
    const double down = double(picture.height()) / chart.picture.height();
    const QRectF rect = rectOf(chart, cabinet);
    return {rect.x() * across, rect.y() * down, rect.width() * across, rect.height() * down};
}

} // namespace

QImage markedPicture(const Reading& reading, const Chart& chart)
{
    QImage picture = reading.rectified.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    for (const Finding& finding : reading.findings) {
        const QRectF rect = rectIn(picture, chart, finding.cabinet);
        const double width = std::max(2.0, rect.height() / 24);
        painter.setPen(QPen(isAccusation(finding.kind) ? QColor(255, 32, 32) : QColor(160, 160, 160), width));
        painter.drawRect(rect.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    }
    return picture;
}

QImage cutOut(const QImage& picture, const Chart& chart, const Place& cabinet)
{
    return picture.copy(rectIn(picture, chart, cabinet).toAlignedRect());
}

} // namespace WallReading
