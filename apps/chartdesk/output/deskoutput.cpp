#include "deskoutput.h"

#include "chartdetails.h"
#include "deskdialogs.h"
#include "desksettings.h"
#include "editsession.h"
#include "hosttext.h"
#include "messagebox.h"
#include "readdialog.h"
#include "showdialog.h"
#include "walk.h"

#include <QAction>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

using namespace vardeno::testcharttools;

namespace {

constexpr const char* outputSource = "sourceText";
constexpr const char* outputKey = "outputKey";

struct KeyEntry
{
    const char* text;
    int key;
};

constexpr KeyEntry keyEntries[] = {
    {hostSource("Next chart"), Qt::Key_Right},
    {hostSource("Previous chart"), Qt::Key_Left},
    {nullptr, 0},
    {hostSource("Black"), Qt::Key_B},
    {hostSource("White"), Qt::Key_W},
    {hostSource("Colors in turn"), Qt::Key_F},
    {hostSource("Grey steps"), Qt::Key_G},
    {nullptr, 0},
    {hostSource("Walk through the cabinets"), Qt::Key_H},
    {hostSource("Single cabinet"), Qt::Key_S},
    {hostSource("Single row"), Qt::Key_R},
    {hostSource("Single column"), Qt::Key_C},
    {hostSource("By rows or by columns"), Qt::Key_O},
    {hostSource("Back and forth"), Qt::Key_Z},
    {nullptr, 0},
    {hostSource("Moving line"), Qt::Key_L},
    {hostSource("Frame counter"), Qt::Key_N},
    {nullptr, 0},
    {hostSource("Run or pause"), Qt::Key_Space},
    {hostSource("Faster"), Qt::Key_Plus},
    {hostSource("Slower"), Qt::Key_Minus},
};

} // namespace

DeskOutput::DeskOutput(QMainWindow* window, EditSession* session, VTestChartTools* editor,
                       const Charts& charts)
    : QObject(window)
    , m_window(window)
    , m_session(session)
    , m_charts(charts)
    , m_live(editor)
    , m_menu(new QMenu(window))
    , m_status(new QLabel)
{
    createMenu();
    m_status->setObjectName(QStringLiteral("outputStatus"));
    window->statusBar()->addPermanentWidget(m_status);
    connect(&m_output, &Output::changed, this, &DeskOutput::showState);
    connect(&m_output, &Output::started, this, &DeskOutput::update);
    connect(&m_output, &Output::ended, this, &DeskOutput::update);
    connect(&m_output, &Output::failed, this, [this](const QString& path, const QString& problem) {
        QMessageBox* box = messageBox(m_window, MessageKind::Warning,
                                      hostText(QStringLiteral("This chart cannot be shown.")),
                                      path + QLatin1Char('\n') + problem);
        box->addButton(QMessageBox::Ok);
        box->open();
    });
    connect(&m_live, &LiveChart::changed, this, [this](const ShownChart& chart) {
        if (m_session->isOpen())
            m_output.setLive(chart);
    });
    connect(m_session, &EditSession::ended, this, [this](const QString& image) {
        m_output.setCharts(m_charts.all());
        m_output.endLive(image);
        update();
    });
}

DeskOutput::~DeskOutput()
{
    m_output.disconnect(this);
}

QAction* DeskOutput::add(const char* text, const QKeySequence& shortcut, const std::function<void()>& does)
{
    auto* action = m_menu->addAction(QString());
    action->setProperty(outputSource, QString::fromUtf8(text));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, does);
    return action;
}

/// Does what `key` does on the output.
QAction* DeskOutput::addKey(const char* text, int key)
{
    QAction* action = add(text, {}, [this, key] {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        m_output.press(&event);
    });
    action->setProperty(outputKey, key);
    m_whileOn.append(action);
    return action;
}

void DeskOutput::createMenu()
{
    m_show = add(hostSource("Show on…"), Qt::Key_F11, [this] { askPlace(); });
    m_whileOn.append(add(hostSource("Stop showing"), Qt::SHIFT | Qt::Key_F11, [this] { m_output.stop(); }));
    m_menu->addSeparator();
    for (const KeyEntry& entry : keyEntries) {
        if (entry.text)
            addKey(entry.text, entry.key);
        else
            m_menu->addSeparator();
    }
    m_menu->addSeparator();
    m_read = add(hostSource("Read a photo…"), Qt::CTRL | Qt::SHIFT | Qt::Key_R, [this] { askPhoto(); });
}

void DeskOutput::retranslate()
{
    m_menu->setTitle(hostText(QStringLiteral("Output")));
    const QList<QAction*> actions = m_menu->actions();
    for (QAction* action : actions) {
        const QString text = hostText(action->property(outputSource).toString());
        const int key = action->property(outputKey).toInt();
        action->setText(key == 0 ? text
                                 : text + QLatin1Char('\t') +
                                       QKeySequence(key).toString(QKeySequence::NativeText));
    }
    showState();
}

void DeskOutput::update()
{
    const bool hasChart = m_session->isOpen() || !m_charts.selected().isEmpty();
    m_show->setEnabled(hasChart || m_output.isOn());
    m_read->setEnabled(!m_session->isOpen() && !m_charts.selected().isEmpty());
    m_live.setOn(m_output.isOn() && m_session->isOpen());
    if (m_output.isOn()) {
        m_output.setCharts(m_charts.all());
        if (m_session->isOpen())
            m_output.setLive(m_live.current());
    }
    showState();
}

/// The selected one; the place of the shown one can be changed without.
QString DeskOutput::chosenChart() const
{
    const QString selected = m_charts.selected();
    return selected.isEmpty() ? m_output.charts().value(m_output.current()) : selected;
}

void DeskOutput::askPlace()
{
    const QString chart = chosenChart();
    const QSize size = m_session->isOpen() ? m_live.current().picture.size() : ChartDetails::read(chart).size;
    auto* dialog = new ShowDialog(size, m_window);
    const QSettings settings = deskSettings();
    dialog->setPlace(m_output.isOn() ? m_output.display()
                                     : settings.value(QStringLiteral("output/display")).toString(),
                     settings.value(QStringLiteral("output/place")).toPoint());
    connect(dialog, &QDialog::accepted, this, [this, dialog] { start(dialog->display(), dialog->place()); });
    dialog->open();
}

void DeskOutput::askPhoto()
{
    if (!canReadWalls()) {
        readPhoto(QString());
        return;
    }
    QFileDialog* dialog = DeskDialogs::openDialog(m_window, hostTitle(QStringLiteral("Read a photo…")),
                                                  QStringLiteral("*.jpg *.jpeg *.png *.bmp"));
    connect(dialog, &QFileDialog::fileSelected, this, &DeskOutput::readPhoto);
    dialog->open();
}

void DeskOutput::readPhoto(const QString& photo)
{
    (new ReadDialog(photo, m_charts.selected(), &m_output, m_window))->open();
}

void DeskOutput::start(const QString& display, const QPoint& at)
{
    QSettings settings = deskSettings();
    settings.setValue(QStringLiteral("output/display"), display);
    settings.setValue(QStringLiteral("output/place"), at);
    m_output.setCharts(m_charts.all());
    m_output.start(display, at, chosenChart());
    update();
}

void DeskOutput::showState()
{
    m_status->setText(m_output.status());
    for (QAction* action : qAsConst(m_whileOn))
        action->setEnabled(m_output.isOn());
}
