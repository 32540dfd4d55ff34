#include "arguments.h"
#include "chartapplication.h"
#include "commands.h"
#include "recordinput.h"

#include <chartcheck.h>

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;

namespace {

void print(const QString& path, const char* kind, const QStringList& messages)
{
    for (const QString& message : messages)
        std::cout << inputName(path).toStdString() << ": " << kind << ": " << message.toStdString() << '\n';
}

ExitCode check(const QString& path, const Arguments& arguments)
{
    const ChartRecordFile::Reading reading = readRecord(path, arguments.settings);
    print(path, "error", reading.problems);
    if (!reading.problems.isEmpty())
        return ExitCode::Found;
    const QStringList warnings = arguments.errorsOnly ? QStringList() : ChartCheck::warnings(reading.record);
    print(path, "warning", warnings);
    return warnings.isEmpty() ? ExitCode::Good : ExitCode::Found;
}

} // namespace

ExitCode runCheck(const Arguments& arguments)
{
    const ChartApplication application; // for the fonts that labels are fitted in
    ExitCode worst = ExitCode::Good;
    for (const std::string& record : arguments.records) {
        try {
            worst = std::max(worst, check(QString::fromStdString(record), arguments));
        } catch (const Failure& failure) {
            if (failure.code != ExitCode::Unreadable)
                throw;
            std::cerr << "vdchart: " << failure.message.toStdString() << '\n';
            worst = std::max(worst, failure.code);
        }
    }
    return worst;
}
