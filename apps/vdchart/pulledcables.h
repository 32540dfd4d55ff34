#pragma once

#include <cabinetplan.h>

#include <QJsonArray>
#include <QStringList>

#include <vector>

namespace vardeno::testcharttools {
struct TestChartToolsData;
}

/// A wall of a picture with what was found of its cabinets.
struct SeenWall
{
    /// `wall` has to stay; `name` is empty for the picture's only wall.
    SeenWall(const vardeno::walls::WallDocument& wall,
             const vardeno::testcharttools::TestChartToolsData& record, const QString& name);

    const vardeno::walls::WallDocument& document;
    QString name;
    vardeno::walls::CabinetPlan plan;
    std::vector<QString> names; ///< of its cabinets
    std::vector<bool> seen;     ///< which of them the picture shows; none at first
    std::vector<bool> bad;
};

/// A cable whose cabinets are all bad from one of them on.
struct PulledCable
{
    QString wall;
    bool isData;
    int number; ///< of its port or circuit, from 1
    QString from;
    int cabinets;
    bool isWhole;
};

/// Of the wall's data cables, then of its power cables. Of those that go on where the picture ends, what it
/// shows of them.
std::vector<PulledCable> pulledCables(const SeenWall& wall);

/// "port 3 from cabinet C4 on: 12 cabinets are wrong, which is what a pulled data cable looks like".
QStringList sentencesOf(const std::vector<PulledCable>& cables);
QJsonArray jsonOf(const std::vector<PulledCable>& cables);
