#include "arguments.h"
#include "chartapplication.h"
#include "chartinput.h"
#include "commands.h"
#include "languages.h"
#include "recordinput.h"

#include <chartcheck.h>
#include <showcheck.h>
#include <wallcheck.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;

namespace {

/// What was found in a record. Each line begins with its field.
struct Findings
{
    QString record;
    QString unreadable; ///< why it could not be looked at
    QStringList errors;
    QStringList warnings;

    ExitCode code() const
    {
        if (!unreadable.isEmpty())
            return ExitCode::Unreadable;
        return errors.isEmpty() && warnings.isEmpty() ? ExitCode::Good : ExitCode::Found;
    }
};

QStringList warningsOf(const ChartInput& chart)
{
    if (chart.show)
        return vardeno::walls::ShowCheck::warnings(chart.show->show, chart.show->walls);
    if (!chart.wall)
        return ChartCheck::warnings(chart.record, chart.markers);
    return vardeno::walls::WallCheck::warnings(*chart.wall, {chart.record, {}, {}, chart.recordFile});
}

/// A record with errors has no chart to warn of.
Findings findingsOf(const QString& path, const Arguments& arguments)
{
    const ChartReading reading = readChart(path, arguments.changes);
    Findings findings = {path, QString(), reading.problems, QStringList()};
    QStringList& unknown = arguments.isStrict ? findings.errors : findings.warnings;
    unknown += reading.unknown;
    if (findings.errors.isEmpty())
        findings.warnings += warningsOf(reading.chart);
    if (arguments.errorsOnly)
        findings.warnings.clear();
    return findings;
}

Findings check(const QString& path, const Arguments& arguments)
{
    try {
        return findingsOf(path, arguments);
    } catch (const Failure& failure) {
        if (failure.code != ExitCode::Unreadable)
            throw;
        std::cerr << "vdchart: " << failure.message.toStdString() << '\n';
        return {path, failure.message, {}, {}};
    }
}

void print(const QString& path, const char* kind, const QStringList& messages)
{
    for (const QString& message : messages)
        std::cout << inputName(path).toStdString() << ": " << kind << ": " << message.toStdString() << '\n';
}

void printText(const std::vector<Findings>& all)
{
    for (const Findings& findings : all) {
        print(findings.record, "error", findings.errors);
        print(findings.record, "warning", findings.warnings);
    }
}

QJsonArray asJson(const QStringList& messages)
{
    QJsonArray list;
    for (const QString& message : messages) {
        const QString separator = QStringLiteral(": ");
        list.append(QJsonObject{{QStringLiteral("field"), message.section(separator, 0, 0)},
                                {QStringLiteral("text"), message.section(separator, 1)}});
    }
    return list;
}

void printJson(const std::vector<Findings>& all)
{
    QJsonArray records;
    for (const Findings& findings : all) {
        QJsonObject entry{{QStringLiteral("record"), findings.record},
                          {QStringLiteral("errors"), asJson(findings.errors)},
                          {QStringLiteral("warnings"), asJson(findings.warnings)}};
        if (!findings.unreadable.isEmpty())
            entry.insert(QStringLiteral("unreadable"), findings.unreadable);
        records.append(entry);
    }
    std::cout << QJsonDocument(QJsonObject{{QStringLiteral("format"), QStringLiteral("testchart-check")},
                                           {QStringLiteral("version"), 1},
                                           {QStringLiteral("records"), records}})
                     .toJson()
                     .toStdString();
}

} // namespace

ExitCode runCheck(const Arguments& arguments)
{
    const ChartApplication application; // for the fonts that labels are fitted in
    chooseLanguage(QString::fromStdString(arguments.language));
    std::vector<Findings> all;
    for (const std::string& record : arguments.records)
        all.push_back(check(QString::fromStdString(record), arguments));
    if (arguments.report == "json")
        printJson(all);
    else
        printText(all);
    ExitCode worst = ExitCode::Good;
    for (const Findings& findings : all)
        worst = std::max(worst, findings.code());
    return worst;
}
