// A host at its smallest, built against the installed package: embeds the editor, and stores and renders its
// record.
#include <chartcabinets.h>
#include <chartcheck.h>
#include <chartrecordfile.h>
#include <theming.h>
#include <vdpatterndesign_version.h>
#include <vtestcharttools.h>

#include <QApplication>
#include <QDebug>

using namespace vardeno::testcharttools;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    VTestChartTools editor;
    editor.applyRecord(TestChartToolsData());
    const TestChartToolsData record = editor.getTestChartToolsData();
    const bool themed = Theming::themeValues().contains(QStringLiteral("Text01"));
    const bool stored = ChartRecordFile::fromJson(ChartRecordFile::toJson(record)).record == record;
    const bool drawn = editor.chartImage().size() == QSize(1920, 1080);
    const bool examined =
        !ChartCheck::warnings(record).isEmpty() && // of the logo, which this host does not have
        ChartCabinets::label(record, 0, 1) == QLatin1String("A-B");
    const bool same = themed && stored && drawn && examined && record == TestChartToolsData();
    qInfo() << "version" << VDPATTERNDESIGN_VERSION
            << (same ? "works" : "lost the record, the theme or the chart");
    return same ? 0 : 1;
}
