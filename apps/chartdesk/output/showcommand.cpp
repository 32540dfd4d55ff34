#include "showcommand.h"

#include "chartfolderlist.h"
#include "deskoptions.h"
#include "display.h"
#include "hosttext.h"
#include "output.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

DeskDisplay chosenDisplay(const QString& wanted)
{
    const QVector<DeskDisplay> all = displays();
    const DeskDisplay* found = wanted.isEmpty() && !all.isEmpty() ? &all.last() : findDisplay(all, wanted);
    if (found)
        return *found;
    QStringList lines;
    for (const DeskDisplay& display : all)
        lines.append(displayLine(display));
    refuse(QStringLiteral("There is no display \"%1\", but:\n%2").arg(wanted, lines.join(QLatin1Char('\n'))));
}

} // namespace

int listDisplays()
{
    QTextStream out(stdout);
    const QVector<DeskDisplay> all = displays();
    for (const DeskDisplay& display : all)
        out << displayLine(display) << '\n';
    return 0;
}

QStringList chartsAround(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QDir root = QFileInfo(path).dir();
    QStringList charts;
    if (root.cdUp()) {
        const QFileInfoList all = ChartFolderList::charts(root.path());
        for (const QFileInfo& chart : all)
            charts.append(chart.filePath());
    }
    return charts.contains(path) ? charts : QStringList{path};
}

int showOnDisplay(const QString& file, const QString& display, const QPoint& at)
{
    const DeskDisplay chosen = chosenDisplay(display);
    const ShownChart chart = ShownChart::read(file, vardeno::testcharttools::ChartCaptions::current());
    if (chart.picture.isNull())
        refuse(chart.problem.isEmpty()
                   ? hostText(QStringLiteral("There is not enough memory for this chart."))
                   : chart.problem);
    const QString difference = differenceText({chosen.pixels, chart.picture.size(), at});
    if (!difference.isEmpty())
        QTextStream(stderr) << difference << '\n';
    Output output;
    output.setCharts(chartsAround(file));
    QObject::connect(&output, &Output::ended, qApp, &QCoreApplication::quit);
    output.start(chosen.name, at, QFileInfo(file).absoluteFilePath());
    return QApplication::exec();
}
