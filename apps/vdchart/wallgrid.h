#pragma once

#include "chartinput.h"

#include <cabinetplan.h>
#include <chartcomparison.h>

#include <QJsonArray>
#include <QStringList>

/// The cabinets of a chart as a comparison tells of them, and the cables that they hang on.
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
    struct PulledCable
    {
        bool isData;
        int number; ///< of its port or circuit, from 1
        QString from;
        int cabinets;
        bool isWhole;
    };
    void noteCables(const vardeno::walls::CabinetPlan& plan, const std::vector<bool>& bad, bool isData);

    const ChartInput& m_chart;
    ChartComparison::CabinetGrid m_grid;
    std::vector<PulledCable> m_pulled;
};
