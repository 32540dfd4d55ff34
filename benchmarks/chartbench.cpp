// What a change of the chart costs: one layer's render, and the snapshot of the whole chart; in the editor,
// and in the straightforward reference.

#include "layers/cabinetpainter.h"
#include "paintbasicwidget.h"
#include "paintinlinewidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "referencechart.h"
#include "vtestcharttools.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QListWidget>
#include <QPainter>

#include <cstring>
#include <string>
#include <utility>

using namespace vardeno::testcharttools;

namespace {

QSize chartSize(const benchmark::State& state)
{
    return {int(state.range(0)), int(state.range(1))};
}

void chartSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"width", "height"});
    benchmark->Args({1920, 1080})->Args({3840, 2160})->Args({4320, 4320});
    benchmark->Unit(benchmark::kMillisecond);
}

void largeCharts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"width", "height"});
    benchmark->Args({3840, 2160})->Args({4320, 4320});
    benchmark->Unit(benchmark::kMillisecond);
}

/// What no layer can be faster than: writing one picture of the chart's size.
void warmMemcpy(benchmark::State& state)
{
    const std::size_t bytes =
        std::size_t(chartSize(state).width()) * std::size_t(chartSize(state).height()) * 4;
    std::vector<char> from(bytes, 1);
    std::vector<char> to(bytes, 2);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
    }
}
BENCHMARK(warmMemcpy)->Apply(chartSizes);

void renderChess(benchmark::State& state)
{
    PaintBasicWidget layer;
    layer.resize(chartSize(state));
    bool red = false;
    for (auto _ : state)
        layer.setOddColor((red = !red) ? Qt::red : Qt::green);
}
BENCHMARK(renderChess)->Apply(chartSizes);

void renderGradient(benchmark::State& state)
{
    QListWidget colors;
    for (const Qt::GlobalColor color : {Qt::yellow, Qt::green, Qt::cyan, Qt::magenta, Qt::red})
        (new QListWidgetItem(&colors))->setBackground(QBrush(color));
    PaintBasicWidget layer;
    layer.setColorStripeList(&colors);
    layer.resize(chartSize(state));
    for (auto _ : state) {
        layer.setMode(3); // draws nothing: costs what every layer costs
        layer.setMode(1);
    }
}
BENCHMARK(renderGradient)->Apply(chartSizes);

void renderBorder(benchmark::State& state)
{
    PaintPublicWidget layer;
    layer.resize(chartSize(state));
    int width = 6;
    for (auto _ : state)
        layer.setOutLineWidth(width = 13 - width);
}
BENCHMARK(renderBorder)->Apply(chartSizes);

void renderVeil(benchmark::State& state)
{
    PaintPublicBrightWidget layer;
    layer.resize(chartSize(state));
    ushort percent = 40;
    for (auto _ : state)
        layer.setBrightness(percent = ushort(100 - percent));
}
BENCHMARK(renderVeil)->Apply(chartSizes);

/// Cabinet labels in the grid and on the chart of the arguments.
void labelSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"width", "height", "rows", "columns"});
    benchmark->Args({3840, 2160, 9, 16})->Args({4320, 4320, 100, 100});
    benchmark->Unit(benchmark::kMillisecond);
}

template <typename Draw>
void drawLabels(benchmark::State& state, Draw draw)
{
    const CabinetGrid grid{chartSize(state), ushort(state.range(2)), ushort(state.range(3))};
    QPixmap layer(grid.chart);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    QFont font = painter.font();
    font.setPixelSize(fittedLabelSize(20, font, grid));
    const LabelStyle numbers{1, 0, 0};
    for (auto _ : state)
        draw(painter, grid, numbers, font);
    state.SetLabel(std::to_string(int(grid.rows * grid.columns)) + " labels");
}

void labelsTogether(benchmark::State& state)
{
    drawLabels(state,
               [](QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, const QFont& font) {
                   drawCabinetLabels(painter, grid, style, font, Qt::black, QRect(QPoint(), grid.chart));
               });
}
BENCHMARK(labelsTogether)->Apply(labelSizes);

/// What the labels are measured against: the toolkit's call for each of them.
void labelsWithDrawText(benchmark::State& state)
{
    drawLabels(
        state, [](QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, const QFont& font) {
            painter.setFont(font);
            for (int row = 0; row < grid.rows; ++row) {
                for (int column = 0; column < grid.columns; ++column) {
                    const auto label = cabinetLabel(style, row, column, grid.rows, grid.columns);
                    for (const PlacedText& text : placedLabel(*label, style.position, grid.cell(row, column)))
                        painter.drawText(text.box, text.alignment, text.head + text.tail);
                }
            }
        });
}
BENCHMARK(labelsWithDrawText)->Apply(labelSizes);

TestChartToolsData recordOf(const QSize& chart)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = ushort(chart.width());
    record.publicData.resolutionHeight = ushort(chart.height());
    return record;
}

/// The editor, which takes its snapshot at once as long as it is not shown.
class Editor
{
public:
    explicit Editor(const QSize& chart) { push(recordOf(chart)); }

    void push(const TestChartToolsData& record) { m_tool.setTestChartToolsData(record); }
    void setOddColor(const QColor& color) { m_basic->setOddColor(color); }
    void setDiagonalWidth(ushort width) { m_inLine->setDiagonalLineWidth(width); }
    void setBrightness(ushort percent) { m_veil->setBrightness(percent); }
    void takeSnapshot() { m_tool.slotGetHeightWidth(); }

private:
    VTestChartTools m_tool;
    PaintBasicWidget* m_basic = m_tool.findChild<PaintBasicWidget*>();
    PaintInLineWidget* m_inLine = m_tool.findChild<PaintInLineWidget*>();
    PaintPublicBrightWidget* m_veil = m_tool.findChild<PaintPublicBrightWidget*>();
};

/// The same chart, with every layer rendered afresh at each change and at each paint.
class Reference
{
public:
    explicit Reference(const QSize& chart) { push(recordOf(chart)); }

    void push(const TestChartToolsData& record)
    {
        m_chart.apply(record);
        takeSnapshot();
    }
    void setOddColor(const QColor& color) { m_chart.basic->setOddColor(color); }
    void setDiagonalWidth(ushort width) { m_chart.inLine->setDiagonalLineWidth(width); }
    void setBrightness(ushort percent) { m_chart.veil->setBrightness(percent); }
    void takeSnapshot() { m_snapshot = QPixmap::fromImage(m_chart.snapshot()); }

private:
    ReferenceChart m_chart;
    QPixmap m_snapshot;
};

template <typename Chart>
void snapshot(benchmark::State& state)
{
    Chart chart(chartSize(state));
    for (auto _ : state)
        chart.takeSnapshot();
}
BENCHMARK_TEMPLATE(snapshot, Editor)->Apply(largeCharts);
BENCHMARK_TEMPLATE(snapshot, Reference)->Apply(largeCharts);

template <typename Chart>
void changeColor(benchmark::State& state)
{
    Chart chart(chartSize(state));
    bool odd = false;
    for (auto _ : state) {
        chart.setOddColor((odd = !odd) ? Qt::red : Qt::green);
        chart.takeSnapshot();
    }
}
BENCHMARK_TEMPLATE(changeColor, Editor)->Apply(largeCharts);
BENCHMARK_TEMPLATE(changeColor, Reference)->Apply(largeCharts);

template <typename Chart>
void changeLineWidth(benchmark::State& state)
{
    Chart chart(chartSize(state));
    bool odd = false;
    for (auto _ : state) {
        chart.setDiagonalWidth((odd = !odd) ? 3 : 5);
        chart.takeSnapshot();
    }
}
BENCHMARK_TEMPLATE(changeLineWidth, Editor)->Apply(largeCharts);
BENCHMARK_TEMPLATE(changeLineWidth, Reference)->Apply(largeCharts);

template <typename Chart>
void changeBrightness(benchmark::State& state)
{
    Chart chart(chartSize(state));
    bool odd = false;
    for (auto _ : state) {
        chart.setBrightness((odd = !odd) ? 60 : 80);
        chart.takeSnapshot();
    }
}
BENCHMARK_TEMPLATE(changeBrightness, Editor)->Apply(largeCharts);
BENCHMARK_TEMPLATE(changeBrightness, Reference)->Apply(largeCharts);

/// A record that changes something in every layer, up to the snapshot.
template <typename Chart>
void pushRecord(benchmark::State& state)
{
    Chart chart(chartSize(state));
    TestChartToolsData record = recordOf(chartSize(state));
    TestChartToolsData other = record;
    other.basicData.oddColor = {255, 0, 0, 255};
    other.publicData.brightness = 80;
    other.publicData.outBorderWidth = 9;
    other.publicData.boxRow = 12;
    other.inLineData.circleWidth = 7;
    other.selfData.selfTextSize = 30;
    for (auto _ : state) {
        chart.push(other);
        std::swap(record, other);
    }
}
BENCHMARK_TEMPLATE(pushRecord, Editor)->Apply(largeCharts);
BENCHMARK_TEMPLATE(pushRecord, Reference)->Apply(largeCharts);

} // namespace
