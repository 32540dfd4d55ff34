#include "cabinetlayers.h"

#include "geometry/textfont.h"
#include "layers/markerpainter.h"
#include "layers/textbatch.h"

#include <QFontMetrics>
#include <QPainter>

#include <climits>

namespace vardeno::walls {

using namespace testcharttools;

LayerCoverage UnevenChessLayer::coverage() const
{
    return oddColor.alpha() == 255 && evenColor.alpha() == 255 ? LayerCoverage::Opaque
                                                               : LayerCoverage::Unknown;
}

void UnevenChessLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    const auto fill = [&](const QRect& rect, Place place) {
        if (rect.intersects(area))
            painter.fillRect(rect & area, (place.column + place.row) % 2 == 0 ? oddColor : evenColor);
    };
    for (int row = 0; row < plan->rows(); ++row) {
        for (int column = 0; column < plan->columns(); ++column) {
            const Place place = {column, row};
            if (plan->cabinetAt(place) < 0)
                fill(plan->rect(place), place);
        }
    }
    for (const WallCabinet& cabinet : plan->cabinets())
        fill(cabinet.rect, cabinet.at);
}

int fittedLabelSize(const CabinetPlan& plan, int requested)
{
    QSize least(INT_MAX, INT_MAX);
    for (const WallCabinet& cabinet : plan.cabinets())
        least = least.boundedTo(cabinet.rect.size());
    return testcharttools::fittedLabelSize(requested, textFont(), CabinetGrid{least, 1, 1});
}

void UnevenLabelLayer::fit(const QSize&)
{
    fittedSize = fittedLabelSize(*plan, size);
}

void UnevenLabelLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    QFont font = textFont();
    font.setPixelSize(fittedSize);
    painter.setFont(font);
    painter.setPen(color);
    TextBatch texts(painter);
    const int ink = QFontMetrics(font).height(); // which may stick out of its cabinet
    const QRect reached = area.adjusted(-ink, -ink, ink, ink);
    for (const WallCabinet& cabinet : plan->cabinets()) {
        if (!cabinet.rect.intersects(reached))
            continue;
        const auto label =
            cabinetLabel(style, cabinet.at.row, cabinet.at.column, plan->rows(), plan->columns());
        if (!label)
            return;
        for (const PlacedText& placed : placedLabel(*label, style.position, cabinet.rect))
            texts.add(placed.box, placed.alignment, placed.head, placed.tail);
    }
    texts.draw();
}

void UnevenMarkerLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    for (const CabinetMarker& marker : markers)
        drawMarker(painter, marker.marker, marker.square, area);
}

} // namespace vardeno::walls
