#pragma once

#include "outputpattern.h"
#include "walkorder.h"

#include <testcharttoolsdata.h>

#include <QRect>

#include <vector>

/// What of the wall a step shows.
enum class CabinetLook
{
    Highlight, ///< a cabinet, tinted on the chart
    Alone,     ///< a cabinet of the chart, on black
    Row,       ///< a row of it, on black
    Column
};

/// Steps through the cabinets of a chart, or through its rows or columns, as they are numbered.
class CabinetPattern : public OutputPattern
{
public:
    CabinetPattern(const vardeno::testcharttools::TestChartToolsData& record, CabinetLook look,
                   const WalkPath& path = {});

    /// Highlights these, in their order.
    CabinetPattern(const vardeno::testcharttools::TestChartToolsData& record,
                   const std::vector<CabinetPlace>& cabinets);

    /// Of a step, in chart pixels.
    QRect place(int step) const { return m_steps.at(size_t(step)).place; }
    /// "B-3"; of a row or a column its part of the label.
    QString label(int step) const { return m_steps.at(size_t(step)).label; }

    int steps() const override { return int(m_steps.size()); }
    QRegion chartPart(int step, const QRect& chart) const override;
    void draw(QPainter& painter, int step, const QRect& place) const override;
    QRegion changed(int from, int to) const override;
    QString text(int step) const override;

private:
    struct Step
    {
        QRect place;
        QString label;
    };

    void addCabinets(const vardeno::testcharttools::TestChartToolsData& record,
                     const std::vector<CabinetPlace>& cabinets);
    void addRows(const vardeno::testcharttools::TestChartToolsData& record);
    void addColumns(const vardeno::testcharttools::TestChartToolsData& record);

    CabinetLook m_look;
    std::vector<Step> m_steps;
};
