#include "layers/markerpainter.h"

#include "geometry/cabinetmarkers.h"

#include <QPainter>

namespace vardeno::testcharttools {

void drawMarker(QPainter& painter, int marker, const QRect& square, const QRect& area)
{
    const int module = square.width() / markerModules;
    const QRect quiet = square.adjusted(-module, -module, module, module);
    if (module == 0 || !quiet.intersects(area))
        return;
    painter.fillRect(quiet, Qt::white);
    painter.fillRect(square, Qt::black);
    for (int row = 0; row < markerModules; ++row) {
        for (int column = 0; column < markerModules; ++column) {
            const QPoint at = square.topLeft() + QPoint(column, row) * module;
            if (isMarkerWhite(marker, row, column))
                painter.fillRect(QRect(at, QSize(module, module)), Qt::white);
        }
    }
}

} // namespace vardeno::testcharttools
