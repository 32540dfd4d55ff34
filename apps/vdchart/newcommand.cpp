#include "arguments.h"
#include "commands.h"
#include "presets.h"
#include "recordinput.h"

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;

ExitCode runNew(const Arguments& arguments)
{
    TestChartToolsData record;
    for (const std::string& name : arguments.presets) {
        const Preset* preset = findPreset(QString::fromStdString(name));
        if (!preset)
            throw Failure{ExitCode::Usage,
                          QStringLiteral("--preset: there is no \"%1\"; \"vdchart presets\" lists them")
                              .arg(QString::fromStdString(name))};
        preset->apply(record, *preset);
    }
    applySettings(record, arguments.settings);
    std::cout << ChartRecordFile::toJson(record).toStdString();
    return ExitCode::Good;
}

ExitCode runPresets(const Arguments& arguments)
{
    int width = 0;
    for (const Preset& preset : presets())
        width = std::max(width, preset.name.size());
    for (const Preset& preset : presets()) {
        const QString line =
            arguments.namesOnly ? preset.name : preset.name.leftJustified(width + 2) + preset.description;
        std::cout << line.toStdString() << '\n';
    }
    return ExitCode::Good;
}
