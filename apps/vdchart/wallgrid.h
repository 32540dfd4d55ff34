#pragma once

#include "chartinput.h"

#include <cabinetplan.h>
#include <chartcomparison.h>

#include <QJsonArray>
#include <QStringList>

/// The cabinets of a chart as a comparison tells of them, and the cables that they hang on. Those of a show's
/// output are called by their wall, too: "Left C4".
class ChartCabinetGrid
{
public:
    explicit ChartCabinetGrid(const ChartInput& chart);

    const ChartComparison::CabinetGrid& cabinets() const { return m_grid; }

    /// Takes what a comparison by these cabinets found: gives the places of a wall's cabinets to it, and
    /// notes which cables look pulled.
    void take(ChartComparison::Result& result);

    /// "port 3 from cabinet C4 on: 12 cabinets are wrong, which is what a pulled data cable looks like".
    QStringList sentences() const;
    QJsonArray json() const;

private:
    /// A wall of the picture.
    struct SeenWall
    {
        const vardeno::walls::WallDocument& document;
        QString name; ///< empty for the only one
        vardeno::walls::CabinetPlan plan;
        std::vector<QString> names; ///< of its cabinets
        std::vector<bool> seen;     ///< which of them the picture shows
        std::vector<bool> bad;
    };
    struct SeenCabinet
    {
        std::size_t wall;
        std::size_t cabinet;
    };
    struct PulledCable
    {
        QString wall;
        bool isData;
        int number; ///< of its port or circuit, from 1
        QString from;
        int cabinets;
        bool isWhole;
    };
    void addWall(const vardeno::walls::WallDocument& wall,
                 const vardeno::testcharttools::TestChartToolsData& record, const QString& name);
    void addCabinet(std::size_t wall, std::size_t cabinet, const QRect& rect);
    void addShow(const ShowInput& show, int output);
    void placeCabinets(std::vector<ChartComparison::CabinetPlace>& cabinets) const;
    void placeFinding(ChartComparison::Finding& finding) const;
    void noteCables(const SeenWall& wall, bool isData);

    ChartComparison::CabinetGrid m_grid;
    std::vector<SeenWall> m_walls;
    std::vector<SeenCabinet> m_seen; ///< one for each cabinet of the grid; none for a record
    std::vector<PulledCable> m_pulled;
};
