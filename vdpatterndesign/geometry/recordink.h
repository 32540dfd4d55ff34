#pragma once

#include "geometry/chartlines.h"
#include "geometry/logoplacement.h"
#include "vdchartcore_export.h"

#include <QRect>
#include <QString>

namespace vardeno::testcharttools {

struct TestChartToolsData;

/// What a record's texts and its logo come to, as their layers draw them. Rectangles are in chart pixels and
/// empty for what is switched off or has no ink; of a text they are as high and as wide as its glyphs.

QSize chartSize(const TestChartToolsData& record);

VDCHARTCORE_EXPORT ChartLine customTextLine(const TestChartToolsData& record);
QRect customTextInk(const TestChartToolsData& record);

VDCHARTCORE_EXPORT QString informationText(const TestChartToolsData& record); ///< in the process's language
VDCHARTCORE_EXPORT ChartLine informationLine(const TestChartToolsData& record);
QRect informationInk(const TestChartToolsData& record);

/// Of several logo styles that are set, the text counts, as it does in the panel; where none is, the picture.
bool showsTextLogo(const TestChartToolsData& record);
bool showsPictureLogo(const TestChartToolsData& record);
TextLogo textLogo(const TestChartToolsData& record);
/// The file of the picture logo, built-in or not.
QString logoPicture(const TestChartToolsData& record);
/// Of a picture, transparent or not, what of it lies on the chart. The file is not decoded.
QRect logoInk(const TestChartToolsData& record);

VDCHARTCORE_EXPORT int fittedLabelSize(const TestChartToolsData& record);

/// How many cabinets have a label that `area` touches, and the label of the first of them.
struct CoveredLabels
{
    int count = 0;
    QString first;
};
CoveredLabels coveredLabels(const TestChartToolsData& record, const QRect& area);
/// Whether there is one, which is known as soon as it is found.
bool coversLabels(const TestChartToolsData& record, const QRect& area);

} // namespace vardeno::testcharttools
