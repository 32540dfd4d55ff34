// What a person waits for in the chart desk: opening a folder of 1,000 charts, switching the shown chart, and
// how evenly and at what cost the walk runs, and how long the editing of a large wall keeps its user waiting.
// Needs a display: deskbench [seconds of the walk [what]], of opening, switching, line, counter, wall.

#include "chartlist.h"
#include "deskoutput.h"
#include "display.h"
#include "languages.h"
#include "mainwindow.h"
#include "output.h"
#include "outputwindow.h"
#include "walk.h"
#include "wallcanvas.h"
#include "wallmodel.h"
#include "wallwindow.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
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

/// Of this thread alone, in ms: what else the machine does is not in it.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
}

/// How long the event loop is kept from its next turn at the most.
class Pauses
{
public:
    Pauses()
    {
        QObject::connect(&m_tick, &QTimer::timeout, &m_tick, [this] { turn(); });
        m_tick.start(0);
        m_clock.start();
        m_processor = processorTime();
    }

    QString text() const
    {
        return QStringLiteral("longest pause %1 ms (%2 of processor time)")
            .arg(m_longest)
            .arg(m_busiest, 0, 'f', 1);
    }

private:
    void turn()
    {
        m_longest = std::max(m_longest, m_clock.restart());
        const double now = processorTime();
        m_busiest = std::max(m_busiest, now - m_processor);
        m_processor = now;
    }

    QTimer m_tick;
    QElapsedTimer m_clock;
    double m_processor = 0;
    qint64 m_longest = 0;
    double m_busiest = 0;
};

void benchOpening()
{
    const QTemporaryDir folder;
    createCharts(folder, chartCount, QSize(480, 270));
    QLabel texts(QStringLiteral("A desk has loaded its font by then."));
    texts.show();
    for (const char* round : {"first time", "again"}) {
        ChartList list;
        list.resize(1280, 800);
        list.show();
        const QDeadlineTimer shown(300);
        while (!shown.hasExpired())
            QCoreApplication::processEvents();
        const Pauses pauses;
        const double begin = processorTime();
        QElapsedTimer clock;
        clock.start();
        list.setFolder(folder.path());
        waitUntil([&] { return !list.isFilling(); });
        const qint64 listed = clock.elapsed();
        const QString untilListed = pauses.text();
        const int processor = int(processorTime() - begin);
        waitUntil([&] {
            return !list.item(chartCount - 1)->data(ChartList::ThumbnailRole).value<QPixmap>().isNull();
        });
        out() << "1,000 charts, " << round << ": listed after " << listed << " ms (" << processor
              << " of processor time), " << untilListed << ", all pictures after " << clock.elapsed()
              << " ms, " << pauses.text() << '\n';
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

/// In the whole desk, whose window tells of each step.
void benchWalk(Walk::Mode mode, const char* name, int seconds)
{
    const QTemporaryDir folder;
    const QString chart = createCharts(folder, 1, chartSize).first();
    MainWindow window(folder.path());
    window.show();
    Output& output = *window.output()->output();
    output.start(displays().last().name, QPoint(), chart);
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

/// The longest that a step takes, with the painting that it asks for.
void timeSteps(const char* name, int count, const std::function<void(int)>& step)
{
    qint64 longest = 0;
    double busiest = 0;
    for (int i = 0; i < count; ++i) {
        QElapsedTimer clock;
        clock.start();
        const double begin = processorTime();
        step(i);
        QCoreApplication::processEvents();
        busiest = std::max(busiest, processorTime() - begin);
        longest = std::max(longest, clock.elapsed());
    }
    out() << "wall of 200 x 100, " << name << ": longest of " << count << " steps " << longest << " ms ("
          << QString::number(busiest, 'f', 1) << " of processor time)\n";
}

/// 20,000 cabinets, each tenth of them a hole or turned, with names and cables.
vardeno::walls::WallDocument largeWall()
{
    vardeno::walls::WallDocument wall;
    wall.columnWidths.pixels.assign(200, 160);
    wall.rowHeights.pixels.assign(100, 80);
    wall.physical.watts = 200;
    for (int i = 0; i < 2000; ++i)
        wall.exceptions.list.push_back({{i * 10 % 200 + i / 20 % 10, i / 20}, i % 7 == 0, 90, 1, 1, {}, {}});
    return wall;
}

void timeEdits(WallWindow& window)
{
    WallCanvas& canvas = *window.canvas();
    const auto press = [&canvas](int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&canvas, &event);
    };
    timeSteps("selecting", 50, [&](int i) { canvas.select({{i, i}}); });
    timeSteps("selecting all", 3, [&](int) { canvas.selectAll(); });
    canvas.select({{3, 3}});
    timeSteps("resizing", 50, [&](int i) { press(i % 2 == 0 ? Qt::Key_Left : Qt::Key_Up); });
    timeSteps("removing", 20, [&](int i) {
        canvas.select({{i, 5}});
        canvas.removeOrRestore();
    });
    timeSteps("undoing", 20, [&](int) { window.model()->history()->undo(); });
    timeSteps("zooming", 10, [&](int i) { canvas.setZoom(canvas.zoom() * (i % 2 == 0 ? 1.25 : 0.8)); });
}

void benchWall()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.wall.json"));
    const QString problem = vardeno::walls::WallFile::write(path, largeWall());
    WallWindow window;
    if (!problem.isEmpty() || !window.open(path).isEmpty()) {
        out() << "the wall is not there: " << problem << '\n';
        return;
    }
    window.show();
    for (const double zoom : {0.0, 0.2, 1.0}) {
        zoom > 0 ? window.canvas()->setZoom(zoom) : window.canvas()->showWhole();
        QCoreApplication::processEvents();
        out() << "at " << int(100 * window.canvas()->zoom()) << " %\n";
        timeEdits(window);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("deskbench"));
    chooseLanguage(QStringLiteral("en"));
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 60;
    const auto isWanted = [&](const char* what) { return argc < 3 || qstrcmp(argv[2], what) == 0; };
    if (isWanted("wall"))
        benchWall();
    if (isWanted("opening"))
        benchOpening();
    if (isWanted("switching"))
        benchSwitching();
    if (isWanted("line"))
        benchWalk(Walk::Mode::Line, "line", seconds);
    if (isWanted("counter"))
        benchWalk(Walk::Mode::Counter, "counter", seconds);
    return 0;
}
