// The most memory that a chart has taken after some changes: peakmemory editor|reference WIDTH HEIGHT. Reads
// it from /proc.

#include "peakmemory.h"
#include "paintbasicwidget.h"
#include "referencechart.h"
#include "vtestcharttools.h"

#include <QApplication>
#include <QTextStream>

using namespace vardeno::testcharttools;

namespace {

void changeEditor(const TestChartToolsData& record)
{
    VTestChartTools editor;
    editor.setTestChartToolsData(record);
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue}) {
        editor.findChild<PaintBasicWidget*>()->setOddColor(color);
        editor.slotGetHeightWidth();
    }
}

void changeReference(const TestChartToolsData& record)
{
    ReferenceChart chart;
    chart.apply(record);
    QPixmap snapshot;
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue}) {
        chart.basic->setOddColor(color);
        snapshot = QPixmap::fromImage(chart.snapshot());
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    TestChartToolsData record;
    record.publicData.resolutionWidth = arguments.value(2).toUShort();
    record.publicData.resolutionHeight = arguments.value(3).toUShort();
    if (arguments.value(1) == QLatin1String("reference"))
        changeReference(record);
    else
        changeEditor(record);
    QTextStream(stdout) << peakMemory() << '\n';
}
