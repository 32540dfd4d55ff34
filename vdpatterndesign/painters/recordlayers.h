#pragma once

namespace vardeno::testcharttools {

class LayerStack;
struct TestChartToolsData;

/// `record`, choosing the default where it chooses nothing of what excludes one another: a radio button
/// cannot be unset, so that what was shown before would decide.
TestChartToolsData withChoices(TestChartToolsData record);

/// Gives every layer every value of `record` that it is drawn from, whatever it had before. The colour bar's
/// colours and the logo's style are the panels' to show.
void showRecord(const TestChartToolsData& record, const LayerStack& layers);

/// The cabinets of the layers that take them from the shell.
void showGridRows(int rows, const LayerStack& layers);
void showGridColumns(int columns, const LayerStack& layers);

} // namespace vardeno::testcharttools
