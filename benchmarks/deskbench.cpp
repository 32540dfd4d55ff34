// What a person waits for in the chart desk: opening a folder of 1,000 charts, switching the shown chart, and
// how evenly and at what cost the walk runs. Needs a display: deskbench [seconds of the walk].

#include "chartlist.h"
#include "display.h"
#include "languages.h"
#include "output.h"
#include "outputwindow.h"
#include "walk.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <functional>

namespace {

constexpr int chartCount = 1000;
const QSize chartSize(3840, 2160);

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

void waitUntil(const std::function<bool()>& isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); // with a time it would not wait
}

/// The charts are copies but for a few bytes, so that each has a content of its own.
QStringList createCharts(const QTemporaryDir& folder, int count, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QStringList charts;
    for (int chart = 0; chart < count; ++chart) {
        image.fill(QColor::fromHsv(chart % 360, 200, 200));
        QPainter(&image).drawLine(0, 0, size.width(), size.height());
        const QString path =
            folder.filePath(QStringLiteral("20260101_%1/wall.png").arg(chart, 6, 10, QLatin1Char('0')));
        QDir().mkpath(QFileInfo(path).path());
        image.save(path);
        charts.append(path);
    }
    return charts;
}

void benchOpening()
{
    const QTemporaryDir folder;
    createCharts(folder, chartCount, QSize(480, 270));
    for (const char* round : {"first time", "again"}) {
        ChartList list;
        list.resize(1280, 800);
        list.show();
        QElapsedTimer clock;
        qint64 longest = 0;
        QElapsedTimer sinceTick;
        QTimer tick;
        QObject::connect(&tick, &QTimer::timeout, [&] { longest = std::max(longest, sinceTick.restart()); });
        tick.start(0);
        sinceTick.start();
        const std::clock_t begin = std::clock();
        clock.start();
        list.setFolder(folder.path());
        const qint64 listed = clock.elapsed();
        const int processor = int(1000 * (std::clock() - begin) / CLOCKS_PER_SEC);
        waitUntil([&] {
            return !list.item(chartCount - 1)->data(ChartList::ThumbnailRole).value<QPixmap>().isNull();
        });
        out() << "1,000 charts, " << round << ": listed after " << listed << " ms (" << processor
              << " of processor time), all pictures after " << clock.elapsed() << " ms, longest pause "
              << longest << " ms\n";
    }
}

void benchSwitching()
{
    const QTemporaryDir folder;
    const QStringList charts = createCharts(folder, 10, chartSize);
    Output output;
    output.setCharts(charts);
    output.start(displays().last().name, QPoint(), charts.first());
    waitUntil([&] { return output.window()->chart().size() == chartSize; });
    waitUntil([&] {
        return std::all_of(charts.begin(), charts.end(),
                           [&](const QString& chart) { return output.reader().find(chart); });
    });
    std::vector<qint64> times;
    for (int chart = 1; chart < charts.size(); ++chart) {
        QElapsedTimer clock;
        clock.start();
        output.next();
        output.window()->repaint();
        QCoreApplication::processEvents();
        times.push_back(clock.elapsed());
    }
    std::sort(times.begin(), times.end());
    out() << "switching 3840 x 2160: median " << times[times.size() / 2] << " ms, slowest " << times.back()
          << " ms\n";
}

void benchWalk(Walk::Mode mode, const char* name, int seconds)
{
    const QTemporaryDir folder;
    const QStringList charts = createCharts(folder, 1, chartSize);
    Output output;
    output.start(displays().last().name, QPoint(), charts.first());
    waitUntil([&] { return output.window()->chart().size() == chartSize; });
    output.walk()->setFrameRate(60);
    int steps = 0;
    QObject::connect(output.walk(), &Walk::stepChanged, [&] { ++steps; });
    output.walk()->setMode(mode);
    const std::clock_t begin = std::clock();
    QElapsedTimer clock;
    clock.start();
    waitUntil([&] { return clock.elapsed() >= 1000 * seconds; });
    const double busy = double(std::clock() - begin) / CLOCKS_PER_SEC;
    out() << name << ": " << steps << " steps in " << seconds << " s, " << output.walk()->pacer().late()
          << " late, " << int(100 * busy / seconds) << " % of a core\n";
}

} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("deskbench"));
    chooseLanguage(QStringLiteral("en"));
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 60;
    benchOpening();
    benchSwitching();
    benchWalk(Walk::Mode::Line, "line", seconds);
    benchWalk(Walk::Mode::Counter, "counter", seconds);
    return 0;
}
