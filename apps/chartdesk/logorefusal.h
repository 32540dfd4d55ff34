#pragma once

#include <QSize>
#include <QString>

namespace vardeno::testcharttools {
class VTestChartTools;
}

/// Why a picture of `size` cannot be a logo, in a sentence: it is larger than `limit`, or cannot be read.
QString logoRefusal(const QSize& size, const QSize& limit);

/// Tells each picture that `editor` refuses in a message over its window, in the place of the editor's own.
void tellRefusedLogos(vardeno::testcharttools::VTestChartTools* editor);
