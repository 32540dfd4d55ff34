#include "layers/picturelogolayer.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

bool isSolid(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(line, line + picture.width(), [](QRgb pixel) { return qAlpha(pixel) < 255; }))
            return false;
    }
    return true;
}

/// In a format that is drawn without being converted: without an alpha channel where nothing shines through,
/// but for a palette that has translucent colours.
QImage ready(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(QImage::Format_RGB32);
    QImage translucent = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return picture.colorCount() == 0 && isSolid(translucent)
               ? std::move(translucent).convertToFormat(QImage::Format_RGB32)
               : translucent;
}

} // namespace

void PictureLogoLayer::fit(const QSize& chart)
{
    scaled = QImage();
    const QSize size = scaledPicture(picture.size(), scale);
    if (!picture.isNull() && !size.isEmpty()) // scaling none would warn
        scaled = ready(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    placement = placedPicture(chart, scaled.size(), position, {moveX, moveY});
}

void PictureLogoLayer::draw(QPainter& painter, const QSize& chart, const QRect&) const
{
    painter.translate(QPoint(chart.width() / 2, chart.height() / 2));
    painter.setOpacity(double(opacity));
    painter.drawImage(placement.at, scaled);
}

} // namespace vardeno::testcharttools
