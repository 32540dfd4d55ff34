#include "arguments.h"
#include "chartapplication.h"
#include "commands.h"
#include "newchart.h"
#include "presets.h"

#include <chartrecordfile.h>

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;

namespace {

std::vector<const Preset*> chosenPresets(const Arguments& arguments)
{
    std::vector<const Preset*> chosen;
    for (const std::string& name : arguments.presets) {
        const Preset* preset = findPreset(QString::fromStdString(name));
        if (!preset)
            throw Failure{ExitCode::Usage,
                          QStringLiteral("--preset: there is no \"%1\"; \"vdchart presets\" lists them")
                              .arg(QString::fromStdString(name))};
        chosen.push_back(preset);
    }
    return chosen;
}

} // namespace

/// The changes are made twice: the chart is made for the wall that they come to, and they stand in it.
ExitCode runNew(const Arguments& arguments)
{
    const std::vector<const Preset*> chosen = chosenPresets(arguments);
    TestChartToolsData wanted;
    MarkerData markers;
    for (const Preset* preset : chosen) {
        preset->apply(wanted, *preset);
        if (!preset->isWall())
            markers = preset->markers;
    }
    applyChanges(wanted, markers, arguments.changes);
    const ChartApplication application; // for the fonts that texts are placed by
    TestChartToolsData record = newChart(wanted.publicData);
    for (const Preset* preset : chosen) {
        if (!preset->isWall())
            preset->apply(record, *preset);
    }
    applyChanges(record, markers, arguments.changes);
    std::cout << ChartRecordFile::toJson(record, ChartRecordFile::withMarkers({}, markers)).toStdString();
    return ExitCode::Good;
}

ExitCode runPresets(const Arguments& arguments)
{
    int width = 0;
    for (const Preset& preset : presets())
        width = std::max(width, int(preset.name.size()));
    for (const Preset& preset : presets()) {
        const QString line =
            arguments.namesOnly ? preset.name : preset.name.leftJustified(width + 2) + preset.description;
        std::cout << line.toStdString() << '\n';
    }
    return ExitCode::Good;
}
