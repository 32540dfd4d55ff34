#pragma once

#include "cabinetplan.h"
#include "testcharttoolsdata.h"
#include "vdwalls_export.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace vardeno::walls {

/// What stands about a wall on paper. Functions without state.
namespace WallReport {

/// A data or a power cable.
struct CableRow
{
    int number = 1; ///< of its port or circuit
    QString first;  ///< names of cabinets
    QString last;
    int cabinets = 0;
    qint64 pixels = 0;
    double load = 0;        ///< of what its port or circuit feeds, 1 for all of it
    qint64 watts = 0;       ///< 0 where it is not known
    double amperes = 0;     ///< likewise
    qint64 linkLength = 0;  ///< millimetres from middle to middle of its cabinets; 0 where it is not known
    qint64 longestLink = 0; ///< millimetres, likewise
};

VDWALLS_EXPORT std::vector<CableRow> dataRows(const WallDocument& wall,
                                              const testcharttools::TestChartToolsData& record);
VDWALLS_EXPORT std::vector<CableRow> powerRows(const WallDocument& wall,
                                               const testcharttools::TestChartToolsData& record);

/// A table of all cabinets (CSV as RFC 4180 has it, UTF-8): name, place, pixels, turn, port and circuit with
/// the place in the cable, watts and grams. What is not known is empty.
VDWALLS_EXPORT QByteArray csv(const WallDocument& wall, const testcharttools::TestChartToolsData& record);

/// A table of the ports and circuits likewise: what feeds which cabinets, its load in percent, watts, amperes
/// and the lengths of its links in millimetres.
VDWALLS_EXPORT QByteArray cableCsv(const WallDocument& wall,
                                   const testcharttools::TestChartToolsData& record);

/// The wall as it looks from the back: left and right exchanged, every cabinet with the name and in the
/// cables that it has in front.
VDWALLS_EXPORT WallDocument mirrored(const WallDocument& wall,
                                     const testcharttools::TestChartToolsData& record);

/// Writes a PDF file: the wall from the front and from the back, and tables of the cables and of what there
/// is to bring. Measures texts: needs the application with its fonts, and its thread. Returns an empty text,
/// or why it is not written.
VDWALLS_EXPORT QString writePdf(const QString& path, const WallDocument& wall,
                                const testcharttools::TestChartToolsData& record);

} // namespace WallReport

} // namespace vardeno::walls
