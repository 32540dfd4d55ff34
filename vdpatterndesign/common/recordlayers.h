#pragma once

namespace vardeno::testcharttools {

class LayerStack;
struct TestChartToolsData;

/// Gives every layer every value of `record` that it is drawn from, whatever it had before. The colour bar's
/// colours and the logo's style are the panels' to show.
void showRecord(const TestChartToolsData& record, const LayerStack& layers);

} // namespace vardeno::testcharttools
