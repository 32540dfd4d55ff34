// A host at its smallest, built against the installed package: embeds the editor and reads its record.
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
    editor.setTestChartToolsData(TestChartToolsData());
    const bool themed = Theming::themeValues().contains(QStringLiteral("Text01"));
    const bool same = themed && editor.getTestChartToolsData() == TestChartToolsData();
    qInfo() << "version" << VDPATTERNDESIGN_VERSION << (same ? "works" : "lost the record or the theme");
    return same ? 0 : 1;
}
