// Deletes windows, and quits, while they work and in the handler of every signal that they have, again and
// again:
//   reliability_destroyer [ROUNDS [CASE]]
// Prints the cases with their faults; ends with 1 where there are any. The rest is for a sanitizer to tell.
#include "basicsettingbox.h"
#include "chartpreview.h"
#include "edithistory.h"
#include "editor/editordelays.h"
#include "editsession.h"
#include "languagemenu.h"
#include "languages.h"
#include "mainwindow.h"
#include "outputwindow.h"
#include "wallwindow.h"

#include <vtestcharttools.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

using namespace vardeno::testcharttools;

namespace {

constexpr int longestWait = 15;     ///< ms, random, before it happens
constexpr int patience = 60 * 1000; ///< ms, for a signal that does not come

QStringList& warnings()
{
    static QStringList list;
    return list;
}

void note(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    const bool isPlatforms = text.startsWith(QLatin1String("This plugin does not support"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isPlatforms)
        warnings().append(text);
    if (type == QtFatalMsg)
        QTextStream(stderr) << text << Qt::endl;
}

/// What happens once a signal comes: connected by its name, like any signal.
class Fate : public QObject
{
    Q_OBJECT

public:
    std::function<void()> blow;

public Q_SLOTS:
    void strike()
    {
        if (blow)
            std::exchange(blow, nullptr)();
    }
};

enum class End
{
    Deleted,
    Quit
};

/// One way to the end of a window.
struct Case
{
    QString name;
    std::function<QWidget*()> create;
    std::function<void(QWidget&)> occupy;     ///< has it work, in one of several ways
    std::function<QObject*(QWidget&)> sender; ///< null where it comes by itself
    QByteArray signal;                        ///< of the sender
    std::function<void(QWidget&)> provoke;    ///< has the signal sent, sooner or later
    End end;
};

int below(int bound)
{
    static QRandomGenerator chance(20261122);
    return chance.bounded(bound);
}

/// The folder of all that is saved.
QString folder()
{
    static const QTemporaryDir temporary;
    return temporary.path();
}

VTestChartTools& toolOf(QWidget& window)
{
    return *qobject_cast<VTestChartTools*>(&window);
}

void change(VTestChartTools& tool)
{
    auto* choice = tool.findChild<QAbstractButton*>(QStringLiteral("colorStripeRadioButton"));
    choice->isChecked() ? tool.findChild<QAbstractButton*>(QStringLiteral("chessRadioButton"))->click()
                        : choice->click();
}

QWidget* createTool()
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = 160;
    record.publicData.resolutionHeight = 90;
    auto* tool = new VTestChartTools;
    tool->setZoomablePreview(true);
    tool->setSmallPng(below(2) == 0);
    tool->setPromptPreview(below(4) == 0);
    tool->setSavePath(folder(), QStringLiteral("preview"));
    tool->setCurrentEditNum(QStringLiteral("chart.png"));
    tool->applyRecord(record);
    return tool;
}

void save(QWidget& window)
{
    toolOf(window).slotReplaceApplyButtonClicked();
}

void occupyTool(QWidget& window)
{
    const int work = below(4);
    if (work >= 2)
        change(toolOf(window));
    if (work % 2 == 1)
        save(window);
}

void failToSave(QWidget& window)
{
    toolOf(window).setSavePath(QStringLiteral("/dev/null"), QString());
    toolOf(window).slotAddConfirmButtonClicked();
}

void askForMenu(QWidget& window)
{
    window.setContextMenuPolicy(Qt::CustomContextMenu);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5));
    QApplication::sendEvent(&window, &event);
}

void point(QWidget& window)
{
    QWidget* preview = toolOf(window).preview();
    const QPointF middle = QRectF(preview->rect()).center();
    QMouseEvent event(QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(preview, &event);
}

void undo(QWidget& window)
{
    change(toolOf(window));
    toolOf(window).history()->undo();
}

using Provocations = std::vector<std::pair<QByteArray, std::function<void(QWidget&)>>>;

/// What has the tool, and what hosts get from it, send each of their signals.
const Provocations& toolProvocations()
{
    static const Provocations all = {
        {"sigSave", save},
        {"sigTestToolEditDone",
         [](QWidget& window) { below(2) == 0 ? toolOf(window).slotCancleButtonClicked() : save(window); }},
        {"sigFail", failToSave},
        {"objectNameChanged", [](QWidget& window) { window.setObjectName(QStringLiteral("another")); }},
        {"windowTitleChanged", [](QWidget& window) { window.setWindowTitle(QStringLiteral("another")); }},
        {"windowIconChanged", [](QWidget& window) { window.setWindowIcon(QIcon(QPixmap(16, 16))); }},
        {"windowIconTextChanged", [](QWidget& window) { window.setWindowIconText(QStringLiteral("a")); }},
        {"customContextMenuRequested", askForMenu},
        {"canUndoChanged", [](QWidget& window) { change(toolOf(window)); }},
        {"canRedoChanged", undo},
        {"scaleChanged", [](QWidget& window) { toolOf(window).preview()->zoomIn(); }},
        {"pointed", point},
    };
    return all;
}

QWidget* createDesk()
{
    auto* desk = new MainWindow(folder() + QStringLiteral("/desk"));
    desk->addChart();
    return desk;
}

void occupyDesk(QWidget& window)
{
    auto& desk = *qobject_cast<MainWindow*>(&window);
    if (below(2) == 0)
        change(*desk.editor());
    if (below(2) == 0)
        desk.session()->confirm();
}

void chooseLanguageOf(QWidget& window)
{
    const QList<QAction*> choices = window.findChild<LanguageMenu*>()->actions();
    choices.at(below(choices.size()))->trigger();
}

void pressEscape(QWidget& window)
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
}

const Provocations& deskProvocations()
{
    static const Provocations all = {
        {"languageSwitched", chooseLanguageOf},
        {"chartWanted",
         [](QWidget& window) { window.findChild<QAction*>(QStringLiteral("wallChart"))->trigger(); }},
        {"keyPressed", pressEscape},
        {"closed", [](QWidget& window) { window.close(); }},
    };
    return all;
}

const char* word(End end)
{
    return end == End::Quit ? "quit" : "delete";
}

/// A case for each signal of `sender` from its method `first` on, but that of being destroyed; a signal that
/// nothing provokes is a fault.
void addSignals(std::vector<Case>& cases, const Case& like, const QMetaObject& meta, int first,
                const Provocations& provocations)
{
    for (int i = first; i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() != QMetaMethod::Signal || method.name() == "destroyed")
            continue;
        const auto known = std::find_if(provocations.begin(), provocations.end(),
                                        [&](const auto& other) { return other.first == method.name(); });
        for (const End end : {End::Deleted, End::Quit}) {
            Case one = like;
            one.name = QStringLiteral("%1 in %2::%3")
                           .arg(QLatin1String(word(end)), QLatin1String(meta.className()),
                                QString::fromLatin1(method.methodSignature()));
            one.signal = method.methodSignature();
            one.provoke = known == provocations.end() ? nullptr : known->second;
            one.end = end;
            cases.push_back(one);
        }
    }
}

void addToolCases(std::vector<Case>& cases)
{
    const auto itself = [](QWidget& window) -> QObject* { return &window; };
    const Case tool = {QString(), createTool, occupyTool, itself, {}, nullptr, End::Deleted};
    addSignals(cases, tool, VTestChartTools::staticMetaObject, 0, toolProvocations());
    Case part = tool;
    part.sender = [](QWidget& window) -> QObject* { return toolOf(window).history(); };
    addSignals(cases, part, EditHistory::staticMetaObject, EditHistory::staticMetaObject.methodOffset(),
               toolProvocations());
    part.sender = [](QWidget& window) -> QObject* { return toolOf(window).preview(); };
    addSignals(cases, part, ChartPreview::staticMetaObject, ChartPreview::staticMetaObject.methodOffset(),
               toolProvocations());
    const std::pair<const char*, std::function<void(QWidget&)>> works[] = {
        {"while it saves", save},
        {"while it repaints", [](QWidget& window) { change(toolOf(window)); }},
    };
    for (const auto& [name, work] : works) {
        for (const End end : {End::Deleted, End::Quit})
            cases.push_back({QStringLiteral("%1 %2").arg(QLatin1String(word(end)), QLatin1String(name)),
                             createTool,
                             work,
                             nullptr,
                             {},
                             nullptr,
                             end});
    }
}

/// The toolkit's own signals of a window are those of the tool.
template <typename Window>
void addDeskCases(std::vector<Case>& cases, std::function<QWidget*()> create,
                  std::function<void(QWidget&)> occupy)
{
    const auto itself = [](QWidget& window) -> QObject* { return &window; };
    const Case like = {QString(), std::move(create), std::move(occupy), itself, {}, nullptr, End::Deleted};
    const QMetaObject& meta = Window::staticMetaObject;
    addSignals(cases, like, meta, meta.methodOffset(), deskProvocations());
}

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    addToolCases(cases);
    addDeskCases<MainWindow>(cases, createDesk, occupyDesk);
    addDeskCases<WallWindow>(
        cases, [] { return new WallWindow; }, [](QWidget&) {});
    addDeskCases<OutputWindow>(
        cases, [] { return new OutputWindow; }, [](QWidget&) {});
    return cases;
}

/// Runs the loop that the end of `test` leaves; false where it never came.
bool runLoop(End end, QEventLoop& loop)
{
    bool isLate = false;
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, &guard, [&] {
        isLate = true;
        loop.quit();
        QCoreApplication::quit();
    });
    guard.start(patience);
    end == End::Quit ? QApplication::exec() : loop.exec();
    return !isLate;
}

void connectFate(const Case& test, QWidget& window, Fate& fate)
{
    QObject* sender = test.sender(window);
    const QMetaObject* meta = sender->metaObject();
    QObject::connect(sender, meta->method(meta->indexOfSignal(test.signal)), &fate,
                     fate.metaObject()->method(fate.metaObject()->indexOfSlot("strike()")));
}

QString runRound(const Case& test)
{
    const QPointer<QWidget> window = test.create();
    QEventLoop loop;
    Fate fate;
    fate.blow = [&] {
        if (test.end == End::Quit)
            return QCoreApplication::quit();
        delete window;
        loop.quit();
    };
    if (test.sender)
        connectFate(test, *window, fate);
    window->show();
    QTimer::singleShot(0, window, [&] { test.occupy(*window); });
    QTimer::singleShot(below(longestWait), window, [&] {
        if (test.provoke)
            test.provoke(*window);
        else
            fate.strike();
    });
    const bool inTime = runLoop(test.end, loop);
    delete window;
    QCoreApplication::processEvents();
    return inTime ? QString() : QStringLiteral("the signal did not come");
}

QStringList faultsOf(const Case& test, int rounds)
{
    if (test.sender && !test.provoke)
        return {QStringLiteral("nothing provokes this signal")};
    QStringList faults;
    for (int i = 0; i < rounds && faults.isEmpty(); ++i) {
        const QString fault = runRound(test);
        if (!fault.isEmpty())
            faults.append(fault);
        faults += std::exchange(warnings(), {});
    }
    return faults;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(note);
    chooseLanguage(QStringLiteral("en"));
    editorDelays().lock = 2;
    editorDelays().snapshot = 10;
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 2;
    const QString wanted = QString::fromLocal8Bit(argc > 2 ? argv[2] : "");
    int bad = 0;
    for (const Case& test : allCases()) {
        if (!test.name.contains(wanted))
            continue;
        const QStringList faults = faultsOf(test, rounds);
        QTextStream(stdout) << test.name << ": " << rounds << " rounds, " << faults.size() << " faults"
                            << Qt::endl;
        for (const QString& fault : faults)
            QTextStream(stdout) << "  " << fault << Qt::endl;
        bad += faults.size();
    }
    return bad > 0 ? 1 : 0;
}

#include "destroyer.moc"
