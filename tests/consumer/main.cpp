// A host at its smallest, built against the installed package: embeds the editor, and stores and renders its
// record.
#include <chartcabinets.h>
#include <chartcheck.h>
#include <chartlanguages.h>
#include <chartrecordfile.h>
#include <defaultlogo.h>
#include <theming.h>
#include <vdpatterndesign_version.h>
#include <vtestcharttools.h>

#include <QApplication>
#include <QDebug>
#include <QPushButton>

using namespace vardeno::testcharttools;

namespace {

/// As docs/embedding.md tells a host.
bool speaks(VTestChartTools& editor)
{
    const bool loaded = ChartLanguages::load();
    editor.switchLanguage(QStringLiteral("de"));
    const auto* apply = editor.findChild<QPushButton*>(QStringLiteral("saveButton"));
    return loaded && apply && apply->text() == QLatin1String("Sichern");
}

bool keepsRecords(VTestChartTools& editor)
{
    editor.applyRecord(TestChartToolsData());
    const TestChartToolsData record = editor.getTestChartToolsData();
    return record == TestChartToolsData() &&
           ChartRecordFile::fromJson(ChartRecordFile::toJson(record)).record == record;
}

bool knowsCharts(const TestChartToolsData& record)
{
    TestChartToolsData uneven = record;
    uneven.publicData.boxCol = 17;
    return !ChartCheck::warnings(uneven).isEmpty() &&
           ChartCabinets::label(record, 0, 1) == QLatin1String("A-B");
}

/// Tells what does not work, if anything.
bool works(bool does, const char* what)
{
    if (!does)
        qCritical() << "does not work:" << what;
    return does;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    VTestChartTools editor;
    bool all = works(Theming::themeValues().contains(QStringLiteral("Text01")), "the theme");
    all &= works(keepsRecords(editor), "records");
    all &= works(editor.chartImage().size() == QSize(1920, 1080), "the picture");
    all &= works(knowsCharts(TestChartToolsData()), "checks and labels");
    all &= works(!QImage(defaultLogo()).isNull(), "the built-in logo");
    all &= works(speaks(editor), "the languages");
    qInfo() << "version" << VDPATTERNDESIGN_VERSION << (all ? "works" : "fails");
    return all ? 0 : 1;
}
