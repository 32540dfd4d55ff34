#include "output.h"

#include "display.h"
#include "hosttext.h"
#include "outputwindow.h"
#include "screenawake.h"
#include "walk.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int mostDigits = 10; ///< charts that have a key of their own

/// The chart that a digit jumps to: 1 the first, 0 the tenth; -1 for another key.
int chartOfKey(int key)
{
    if (key == Qt::Key_0)
        return mostDigits - 1;
    return key >= Qt::Key_1 && key <= Qt::Key_9 ? key - Qt::Key_1 : -1;
}

} // namespace

Output::Output(QObject* parent)
    : QObject(parent)
    , m_walk(new Walk)
{
    connect(&m_reader, &ChartReader::read, this, &Output::chartRead);
    connect(m_walk.get(), &Walk::patternChanged, this, [this] {
        if (m_window)
            m_window->setPattern(m_walk->pattern(), m_walk->currentStep());
        Q_EMIT changed();
    });
    connect(m_walk.get(), &Walk::stepChanged, this, [this](int step) {
        if (m_window)
            m_window->setStep(step);
        Q_EMIT changed();
    });
    connect(m_walk.get(), &Walk::runningChanged, this, &Output::changed);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &Output::plugged);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Output::unplugged);
}

Output::~Output() = default;

void Output::setCharts(const QStringList& paths)
{
    if (paths == m_charts)
        return;
    m_charts = paths;
    if (m_isOn)
        readAhead();
    Q_EMIT changed();
}

void Output::start(const QString& display, const QPoint& at, const QString& chart)
{
    const bool isNew = !m_isOn;
    m_isOn = true;
    m_at = at;
    m_current = chart;
    if (display != m_display)
        closeWindow();
    m_display = display;
    if (QScreen* screen = screenNamed(display))
        openWindow(screen);
    readAhead();
    showCurrent();
    if (isNew)
        Q_EMIT started();
    Q_EMIT changed();
}

void Output::stop()
{
    if (!m_isOn)
        return;
    m_isOn = false;
    m_isLive = false;
    m_walk->setMode(Walk::Mode::None);
    closeWindow();
    m_shown = {};
    m_reader.want({});
    Q_EMIT ended();
    Q_EMIT changed();
}

void Output::openWindow(QScreen* screen)
{
    if (!m_window) {
        m_window = std::make_unique<OutputWindow>();
        m_window->setWindowTitle(hostText(QStringLiteral("Output")));
        connect(m_window.get(), &OutputWindow::keyPressed, this, &Output::press);
        connect(m_window.get(), &OutputWindow::closed, this, &Output::stop, Qt::QueuedConnection);
        m_window->setPattern(m_walk->pattern(), m_walk->currentStep());
    }
    m_walk->setFrameRate(screen->refreshRate());
    m_window->setChart(m_shown.picture, m_at);
    m_window->showOn(screen);
    connect(screen, &QScreen::geometryChanged, m_window.get(), [this, screen] { m_window->showOn(screen); });
    m_awake = std::make_unique<ScreenAwake>(QDBusConnection::sessionBus(), m_window->winId(),
                                            hostText(QStringLiteral("A chart is shown.")));
}

/// It may be its key that closes it.
void Output::closeWindow()
{
    m_awake.reset();
    if (!m_window)
        return;
    OutputWindow* window = m_window.release();
    window->disconnect(this);
    window->hide();
    window->deleteLater();
}

void Output::plugged(QScreen* screen)
{
    if (!m_isOn || screen->name() != m_display)
        return;
    openWindow(screen);
    Q_EMIT changed();
}

/// The toolkit would put the window onto another display.
void Output::unplugged(QScreen* screen)
{
    if (!m_isOn || screen->name() != m_display)
        return;
    closeWindow();
    Q_EMIT changed();
}

void Output::showChart(int index)
{
    if (!m_isOn || m_isLive || index < 0 || index >= m_charts.size())
        return;
    m_current = m_charts.at(index);
    readAhead();
    showCurrent();
    Q_EMIT changed();
}

void Output::next()
{
    showChart(current() + 1);
}

void Output::previous()
{
    showChart(current() - 1);
}

/// The shown one first, then those that one key leads to.
void Output::readAhead()
{
    const int index = current();
    QStringList wanted = {m_current, m_charts.value(index + 1), m_charts.value(index - 1)};
    wanted += m_charts.mid(0, mostDigits);
    wanted.removeAll(QString());
    m_reader.want(wanted);
}

void Output::chartRead(const QString& path)
{
    if (m_isOn && !m_isLive && path == m_current)
        showCurrent();
}

/// As soon as it is read; what was shown stays until then, and where it cannot be.
void Output::showCurrent()
{
    const ShownChart* chart = m_reader.find(m_current);
    if (!chart)
        return;
    if (!chart->picture.isNull()) {
        show(*chart);
        return;
    }
    const QString problem = chart->problem;
    Q_EMIT failed(m_current, problem.isEmpty()
                                 ? hostText(QStringLiteral("There is not enough memory for this chart."))
                                 : problem);
}

void Output::show(const ShownChart& chart)
{
    m_shown = chart;
    m_walk->setChart(chart);
    if (m_window)
        m_window->setChart(chart.picture, m_at);
    Q_EMIT changed();
}

void Output::setLive(const ShownChart& chart)
{
    if (!m_isOn)
        return;
    m_isLive = true;
    show(chart);
}

void Output::endLive(const QString& chart)
{
    if (!m_isLive)
        return;
    m_isLive = false;
    if (!chart.isEmpty())
        m_current = chart;
    readAhead();
    showCurrent();
}

void Output::press(QKeyEvent* event)
{
    if (m_walk->press(event->key()) || pressOnCharts(event->key()))
        event->accept();
    else
        event->ignore();
}

bool Output::pressOnCharts(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        m_walk->setMode(Walk::Mode::None);
        next();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        m_walk->setMode(Walk::Mode::None);
        previous();
        return true;
    case Qt::Key_Home:
        showChart(0);
        return true;
    case Qt::Key_End:
        showChart(m_charts.size() - 1);
        return true;
    case Qt::Key_Escape:
        stop();
        return true;
    default:
        showChart(chartOfKey(key));
        return chartOfKey(key) >= 0;
    }
}

QString Output::status() const
{
    if (!m_isOn)
        return {};
    QStringList parts = {m_display};
    if (!m_window)
        parts.append(hostText(QStringLiteral("unplugged")));
    parts.append(QFileInfo(m_current).fileName());
    if (!m_walk->text().isEmpty())
        parts.append(m_walk->text());
    if (!m_walk->paceText().isEmpty())
        parts.append(m_walk->paceText());
    return parts.join(QStringLiteral("  ·  "));
}
