// How much a window takes that nobody touches:
//   reliability_idler [SECONDS [LIMIT]]
// Prints the processor time of the editor, the desk, its output and each layer, shown by themselves with a
// chart of 3840 x 2160, in percent of a core; ends with 1 where one takes more than LIMIT (2).
#include "mainwindow.h"
#include "outputwindow.h"
#include "preparedapplication.h"

#include <chartpicture.h>
#include <paintbasicwidget.h>
#include <paintinlinewidget.h>
#include <paintpiclogowidget.h>
#include <paintpublicbrightwidget.h>
#include <paintpublicwidget.h>
#include <paintrowcolsequewidget.h>
#include <paintselfwidget.h>
#include <painttextlogowidget.h>
#include <vtestcharttools.h>

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <ctime>
#include <functional>
#include <memory>
#include <vector>

using namespace vardeno::testcharttools;

namespace {

constexpr int settling = 3; ///< seconds, in which a window paints itself and reads its folder
constexpr QSize chartSize(3840, 2160);

struct Idler
{
    QString name;
    std::function<std::unique_ptr<QWidget>()> create;
};

TestChartToolsData chart()
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = chartSize.width();
    record.publicData.resolutionHeight = chartSize.height();
    return record;
}

std::unique_ptr<QWidget> createEditor()
{
    auto editor = std::make_unique<VTestChartTools>();
    editor->applyRecord(chart());
    return editor;
}

std::unique_ptr<QWidget> createDesk()
{
    static const QTemporaryDir folder;
    auto desk = std::make_unique<MainWindow>(folder.path());
    desk->addChart();
    return desk;
}

std::unique_ptr<QWidget> createOutput()
{
    auto output = std::make_unique<OutputWindow>();
    output->resize(chartSize);
    output->setChart(ChartPicture(chart()).image(), QPoint());
    return output;
}

template <typename Painter>
Idler layer(const char* name)
{
    return {QLatin1String(name), [] {
                auto painter = std::make_unique<Painter>();
                painter->resize(chartSize);
                return painter;
            }};
}

std::vector<Idler> idlers()
{
    return {
        {QStringLiteral("editor"), createEditor},
        {QStringLiteral("desk with its editor"), createDesk},
        {QStringLiteral("output window"), createOutput},
        layer<PaintBasicWidget>("basic pattern"),
        layer<PaintInLineWidget>("inline graphics"),
        layer<PaintSelfWidget>("custom text"),
        layer<PaintRowColSequeWidget>("row and column numbers"),
        layer<PaintPublicBrightWidget>("brightness"),
        layer<PaintPublicWidget>("border"),
        layer<PaintPicLogoWidget>("picture logo"),
        layer<PaintTextLogoWidget>("text logo"),
    };
}

void runFor(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(1000 * seconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Of all threads, in percent of a core.
double busyShare(int seconds)
{
    const std::clock_t begin = std::clock();
    runFor(seconds);
    return 100.0 * double(std::clock() - begin) / CLOCKS_PER_SEC / seconds;
}

} // namespace

int main(int argc, char** argv)
{
    const PreparedApplication application(argc, argv);
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 60;
    const double limit = argc > 2 ? QByteArray(argv[2]).toDouble() : 2;
    int tooBusy = 0;
    for (const Idler& idler : idlers()) {
        const std::unique_ptr<QWidget> window = idler.create();
        window->show();
        runFor(settling);
        const double share = busyShare(seconds);
        QTextStream(stdout) << idler.name << ": " << QString::number(share, 'f', 2) << " % of a core"
                            << Qt::endl;
        tooBusy += share > limit ? 1 : 0;
    }
    return tooBusy > 0 ? 1 : 0;
}
