#include "changes.h"

#include "fields.h"

#include <chartrecordfile.h>

#include <QRegularExpression>

using namespace vardeno::testcharttools;

namespace {

std::string setting(const char* field, int value)
{
    return std::string(field) + '=' + std::to_string(value);
}

void applyGrid(TestChartToolsData& record, MarkerData& markers, const std::string& text)
{
    const QSize grid = parsedPair("--grid", text);
    applySettings(record, markers, {setting("columns", grid.width()), setting("rows", grid.height())},
                  {ExitCode::Usage, QStringLiteral("--grid")});
}

void applyCabinet(TestChartToolsData& record, MarkerData& markers, const std::string& text)
{
    const QSize cabinet = parsedPair("--cabinet", text);
    const int columns = record.publicData.boxCol;
    const int rows = record.publicData.boxRow;
    const Failure blame = {
        ExitCode::Usage,
        QStringLiteral("--cabinet: %1 x %2 of them").arg(QString::number(columns), QString::number(rows))};
    applySettings(record, markers,
                  {setting("width", cabinet.width() * columns), setting("height", cabinet.height() * rows)},
                  blame);
}

/// With the whole name of its field.
QString wholeSetting(const std::string& setting)
{
    const QString text = QString::fromStdString(setting);
    const int equals = text.indexOf(QLatin1Char('='));
    return equals < 0 ? text : fieldOf(text.left(equals).trimmed()) + text.mid(equals);
}

} // namespace

QSize parsedPair(const char* option, const std::string& text)
{
    static const QRegularExpression pair(QStringLiteral("^(\\d{1,5})[xX*\u00d7](\\d{1,5})$"));
    const auto match = pair.match(QString::fromStdString(text));
    if (!match.hasMatch())
        throw Failure{ExitCode::Usage, QStringLiteral("%1: \"%2\" is not two numbers, such as 16x9")
                                           .arg(QLatin1String(option), QString::fromStdString(text))};
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

void applyChanges(TestChartToolsData& record, MarkerData& markers, const Changes& changes)
{
    if (!changes.grid.empty())
        applyGrid(record, markers, changes.grid);
    if (!changes.cabinet.empty())
        applyCabinet(record, markers, changes.cabinet);
    applySettings(record, markers, changes.settings);
}

void applySettings(TestChartToolsData& record, MarkerData& markers, const std::vector<std::string>& settings,
                   const Failure& blame)
{
    for (const std::string& setting : settings) {
        const QString problem = ChartRecordFile::setField(record, markers, wholeSetting(setting));
        if (!problem.isEmpty())
            throw Failure{blame.code, QStringLiteral("%1: %2").arg(blame.message, problem)};
    }
}
