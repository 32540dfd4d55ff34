#pragma once

#include <QImage>
#include <QPoint>
#include <QString>

#include <cabinetcomparison.h>
#include <testcharttoolsdata.h>
#include <wallreading.h>

#include <random>
#include <vector>

/// A chart on a wall of which some cabinets are wrong. Everything follows from the seed.
namespace Photos {

using Random = std::mt19937;

/// Between the two, without what a standard library may do differently.
double between(Random& random, double least, double most);
int wholeBetween(Random& random, int least, int most);

/// What was done to a cabinet, as the reader is to name it.
struct Fault
{
    std::string kind;
    int row = 0;
    int column = 0;
    int showsRow = -1;
    int showsColumn = -1;
    int turn = 0;
    bool isMirrored = false;
    QPoint shift;
};

struct Wall
{
    std::string chartKind;
    vardeno::testcharttools::TestChartToolsData record;
    ChartComparison::CabinetGrid cabinets;
    std::vector<WallReading::Marker> markers; ///< of charts that have them
    QImage chart;
    QImage shown; ///< with the faults
    std::vector<Fault> faults;
};

/// "default", "numbered", "bars" or "minimal", with a label in every cabinet. "tags", which has markers as
/// well, is for itself.
const std::vector<std::string>& chartKinds();

/// `faults`: how many cabinets are wrong; a swap or a ring counts each of its cabinets.
/// How large a chart is, and how many cabinets it has.
struct WallSize
{
    int width;
    int height;
    int columns;
    int rows;
};

/// A wall of that kind that shows its chart.
Wall rightWall(const std::string& kind, const WallSize& size);

Wall simulatedWall(const std::string& kind, int faults, Random& random);

} // namespace Photos
