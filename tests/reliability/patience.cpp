// Saves into a folder, and tells how long the interface was kept from its next turn: reliability_patience WHO
// FOLDER
//   editor   the editor by itself
//   desk     the chart desk: a new chart is confirmed
#include "editsession.h"
#include "mainwindow.h"
#include "preparedapplication.h"

#include <vtestcharttools.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr int settling = 500; ///< ms, until a window has painted and read its folder

/// How long the event loop is kept from its next turn at the most.
class Pauses
{
public:
    Pauses()
    {
        QObject::connect(&m_tick, &QTimer::timeout, &m_tick,
                         [this] { m_longest = std::max(m_longest, m_clock.restart()); });
    }

    void begin()
    {
        m_clock.start();
        m_longest = 0;
        m_tick.start(0);
    }

    qint64 longest() const { return m_longest; }

private:
    QTimer m_tick;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

/// Runs until the save that `begin` begins has ended, and tells of it.
template <typename Begin>
int saving(Begin begin)
{
    Pauses pauses;
    QTimer::singleShot(settling, qApp, [&] {
        QTextStream(stderr) << "begins" << Qt::endl;
        pauses.begin();
        begin();
    });
    const int code = QApplication::exec();
    QTextStream(stdout) << "longest pause " << pauses.longest() << " ms" << Qt::endl;
    return code;
}

int saveInEditor(const QString& folder)
{
    VTestChartTools editor;
    editor.setSavePath(folder, QStringLiteral("preview"));
    editor.setCurrentEditNum(QStringLiteral("chart.png"));
    editor.applyRecord({});
    editor.show();
    QObject::connect(&editor, &VTestChartTools::sigTestToolEditDone, qApp, [] { QApplication::exit(0); });
    QObject::connect(&editor, &VTestChartTools::sigFail, qApp, [] { QApplication::exit(1); });
    return saving([&] { editor.slotReplaceApplyButtonClicked(); });
}

int saveInDesk(const QString& folder)
{
    MainWindow desk(folder);
    desk.show();
    desk.addChart();
    QObject::connect(desk.session(), &EditSession::saved, qApp, [] { QApplication::exit(0); });
    QObject::connect(desk.session(), &EditSession::failed, qApp, [] { QApplication::exit(1); });
    return saving([&] { desk.session()->confirm(); });
}

} // namespace

int main(int argc, char** argv)
{
    const PreparedApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: reliability_patience editor|desk FOLDER");
    return arguments.at(1) == QLatin1String("editor") ? saveInEditor(arguments.at(2))
                                                      : saveInDesk(arguments.at(2));
}
