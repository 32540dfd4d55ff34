#include "walllayers.h"

#include "cabinetorder.h"
#include "geometry/recordcabinets.h"
#include "wallmarkers.h"

#include <algorithm>

namespace vardeno::walls {

using namespace testcharttools;

namespace {

std::vector<QRect> rectsOf(const CabinetPlan& plan)
{
    std::vector<QRect> rects;
    for (const WallCabinet& cabinet : plan.cabinets())
        rects.push_back(cabinet.rect);
    return rects;
}

EdgeLayer edges(const CabinetPlan& plan, int width, const RgbaColor& color)
{
    EdgeLayer layer;
    layer.rects = rectsOf(plan);
    layer.width = width;
    layer.color = toQColor(color);
    return layer;
}

FilledLayer holes(const CabinetPlan& plan)
{
    FilledLayer layer;
    layer.rects = plan.holes();
    return layer;
}

RunLayer dataLayer(const WallDocument& wall, const CabinetPlan& plan)
{
    RunLook look;
    look.startPrefix = QStringLiteral("D");
    look.endPrefix = wall.data.backup ? QStringLiteral("B") : QString();
    look.isAlone = !wall.layers.powerRuns;
    look.width = wall.layers.runWidth;
    return runLayer(plan, dataRuns(wall, plan), look);
}

RunLayer powerLayer(const WallDocument& wall, const CabinetPlan& plan)
{
    RunLook look;
    look.startPrefix = QStringLiteral("P");
    look.isAlone = !wall.layers.dataRuns;
    look.isAbove = false;
    look.firstColor = 6;
    look.width = wall.layers.runWidth;
    RunLayer layer = runLayer(plan, powerRuns(wall, plan), look);
    layer.striped = true;
    return layer;
}

QString coordinatesOf(const WallCabinet& cabinet)
{
    return QStringLiteral("%1,%2").arg(cabinet.rect.x()).arg(cabinet.rect.y());
}

} // namespace

WallLayers::WallLayers(const WallDocument& wall, const TestChartToolsData& record,
                       const ChartCaptions& captions, const MarkerData& markers)
    : m_plan(wall)
    , m_record(layersOf(record, captions, markers))
{
    if (!m_plan.isUniform())
        replaceUneven(record);
    addOwn(wall, record);
    m_record.fit();
    if (m_labels)
        m_labels->fit(size());
    for (const auto& layer : m_own)
        layer->fit(size());
}

void WallLayers::replaceUneven(const TestChartToolsData& record)
{
    if (m_record.pattern.mode == 0) {
        m_chess = std::make_unique<UnevenChessLayer>();
        m_chess->plan = &m_plan;
        m_chess->oddColor = m_record.pattern.oddColor;
        m_chess->evenColor = m_record.pattern.evenColor;
    }
    if (m_record.inLine.serialVisible) {
        m_record.inLine.serialVisible = false;
        m_labels = std::make_unique<UnevenLabelLayer>();
        m_labels->plan = &m_plan;
        m_labels->style = labelStyle(record.inLineData);
        m_labels->size = m_record.inLine.serialSize;
        m_labels->color = m_record.inLine.serialColor;
    }
    if (m_record.inLine.markersVisible) {
        m_record.inLine.markersVisible = false;
        m_markers = std::make_unique<UnevenMarkerLayer>();
        m_markers->markers = cabinetMarkers(m_plan, record);
    }
}

void WallLayers::addOwn(const WallDocument& wall, const TestChartToolsData& record)
{
    const WallSwitches& shown = wall.layers;
    const auto add = [this](auto layer) {
        m_own.push_back(std::make_unique<decltype(layer)>(std::move(layer)));
    };
    if (shown.blackHoles && !m_plan.holes().empty())
        add(holes(m_plan));
    if (shown.outlines)
        add(edges(m_plan, shown.outlineWidth, shown.outlineColor));
    if (shown.frames)
        add(edges(m_plan, 1, shown.frameColor));
    if (shown.powerRuns)
        add(powerLayer(wall, m_plan));
    if (shown.dataRuns)
        add(dataLayer(wall, m_plan));
    if (shown.names) {
        CabinetTextLayer layer = textsOf(wall);
        const std::vector<QString> names = cabinetNames(wall, m_plan, record);
        for (std::size_t i = 0; i < names.size(); ++i)
            layer.texts[i].text = names[i];
        layer.size = shown.nameSize;
        layer.color = toQColor(shown.nameColor);
        add(std::move(layer));
    }
    if (shown.coordinates) {
        CabinetTextLayer layer = textsOf(wall);
        for (std::size_t i = 0; i < layer.texts.size(); ++i)
            layer.texts[i].text = coordinatesOf(m_plan.cabinets()[i]);
        layer.below = true;
        layer.size = shown.coordinateSize;
        layer.color = toQColor(shown.coordinateColor);
        add(std::move(layer));
    }
}

/// Without their texts. A name of a cabinet's own may be longer than others.
CabinetTextLayer WallLayers::textsOf(const WallDocument& wall) const
{
    CabinetTextLayer layer;
    layer.inset = wall.layers.outlines ? wall.layers.outlineWidth : wall.layers.frames ? 1 : 0;
    for (const WallCabinet& cabinet : m_plan.cabinets()) {
        const bool hasName =
            cabinet.exception >= 0 && !wall.exceptions.list[std::size_t(cabinet.exception)].name.empty();
        layer.texts.push_back({cabinet.rect, {}, hasName, 1, {}});
    }
    return layer;
}

std::vector<const ChartLayer*> WallLayers::drawn() const
{
    std::vector<const ChartLayer*> drawn;
    if (m_chess)
        drawn.push_back(m_chess.get());
    bool labelled = false;
    const auto addLabels = [&] {
        if (!labelled && m_labels)
            drawn.push_back(m_labels.get());
        if (!labelled && m_markers)
            drawn.push_back(m_markers.get());
        labelled = true;
    };
    for (const ChartLayer* layer : m_record.drawn()) {
        const bool isBelowLabels =
            layer == &m_record.pattern || layer == &m_record.sequence || layer == &m_record.inLine;
        if (m_chess && layer == &m_record.pattern)
            continue;
        if (!isBelowLabels)
            addLabels();
        drawn.push_back(layer);
    }
    addLabels();
    for (const auto& layer : m_own)
        drawn.push_back(layer.get());
    return drawn;
}

} // namespace vardeno::walls
