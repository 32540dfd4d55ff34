// What is killed in the middle of its work: reliability_worker WORK FOLDER WIDTH HEIGHT
//   save     the editor saves a chart, which replaces the one before, again and again
//   publish  the same through the desk's store
//   delete   charts are made, hidden and deleted
//   draft    the draft of an edit is written
//   save-once, publish-once   one round of them; ends with 1 and the reason where it fails
//   sweep    what a desk does at its start; prints what could not be gone on with
// "ready" is printed once the work goes round, "done N" after each round.
#include "chartfolderlist.h"
#include "chartshelf.h"
#include "chartstore.h"
#include "draftkeeper.h"
#include "editor/editordelays.h"

#include <chartpicture.h>
#include <chartrecordfile.h>
#include <vtestcharttools.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTextStream>

#include <cstdio>

using namespace vardeno::testcharttools;

namespace {

struct Task
{
    QString folder;
    TestChartToolsData record;
};

void say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

/// Apart from the charts: whatever is in it that is no draft goes at the next start.
QString draftsIn(const QString& folder)
{
    return folder + QStringLiteral("/drafts");
}

/// Goes round until it is killed.
template <typename Round>
[[noreturn]] void goRound(Round round)
{
    for (int number = 1;; ++number) {
        round(number);
        say(number == 1 ? QStringLiteral("ready") : QStringLiteral("done %1").arg(number));
    }
}

/// An editor whose saving one can wait for.
class Saver
{
public:
    explicit Saver(const TestChartToolsData& record)
    {
        editorDelays().removal = 1;
        m_editor.applyRecord(record);
        QObject::connect(&m_editor, &VTestChartTools::sigTestToolEditDone, &m_editor,
                         [this](const TestChartToolsData&, const QString& file, EditType) {
                             m_saved = file;
                             m_loop.quit();
                         });
        QObject::connect(&m_editor, &VTestChartTools::sigFail, &m_loop, [this] {
            say(QStringLiteral("failed: ") + m_editor.failedPath() + QStringLiteral(": ") +
                m_editor.failedReason());
            m_saved.clear();
            m_loop.quit();
        });
    }

    /// The new picture below `root`; empty where it could not be saved.
    QString save(const QString& root, int number)
    {
        m_editor.setSavePath(root, QStringLiteral("preview"));
        m_editor.setCurrentEditNum(QStringLiteral("chart%1.png").arg(number));
        m_editor.setLastSavePath(m_saved);
        QMetaObject::invokeMethod(&m_editor, &VTestChartTools::slotReplaceApplyButtonClicked,
                                  Qt::QueuedConnection);
        m_loop.exec();
        return m_saved;
    }

private:
    VTestChartTools m_editor;
    QEventLoop m_loop;
    QString m_saved;
};

[[noreturn]] void save(const Task& task)
{
    Saver saver(task.record);
    goRound([&](int number) { saver.save(task.folder, number); });
}

/// A new chart takes the place of the one before: first it stands whole, then the old one goes.
[[noreturn]] void publish(const Task& task)
{
    ChartStore store(task.folder);
    Saver saver(task.record);
    QString before;
    goRound([&](int number) {
        const QString staged = saver.save(store.nextSaveRoot(), number);
        const ChartStore::Published published = store.publish(staged, task.record, {}, {});
        if (!published.problem.isEmpty())
            return say(QStringLiteral("failed: ") + published.problem);
        if (!before.isEmpty())
            removeChartFiles(before);
        before = published.image;
    });
}

[[noreturn]] void deleteCharts(const Task& task)
{
    ChartStore store(task.folder);
    const QImage picture = ChartPicture(task.record).image();
    goRound([&](int number) {
        const QString image = store.nextSaveRoot() + QStringLiteral("/chart%1/chart.png").arg(number);
        QDir().mkpath(QFileInfo(image).path());
        picture.save(image);
        DeletedChart(store.publish(image, task.record, {}, {}).image);
    });
}

[[noreturn]] void keepDrafts(const Task& task)
{
    const auto folder = DraftFolder::create(draftsIn(task.folder));
    Draft draft;
    draft.folder = task.folder;
    draft.record = task.record;
    goRound([&](int number) {
        draft.record.selfData.selfText = std::string(std::size_t(number % 50), 'x');
        if (!folder->write(draft))
            say(QStringLiteral("failed: the draft"));
    });
}

int saveOnce(const Task& task)
{
    return Saver(task.record).save(task.folder, 1).isEmpty() ? 1 : 0;
}

int publishOnce(const Task& task)
{
    ChartStore store(task.folder);
    const QString staged = Saver(task.record).save(store.nextSaveRoot(), 1);
    const QString problem = staged.isEmpty() ? QString() : store.publish(staged, task.record, {}, {}).problem;
    if (!problem.isEmpty())
        say(QStringLiteral("failed: ") + problem);
    return staged.isEmpty() || !problem.isEmpty() ? 1 : 0;
}

int sweep(const Task& task)
{
    const ChartStore store(task.folder);
    for (const auto& draft : DraftFolder::takeAbandoned(draftsIn(task.folder))) {
        bool isValid = false;
        draft->read(&isValid);
        if (!isValid)
            say(QStringLiteral("not a draft: ") + draft->draftPath());
        draft->remove();
    }
    QDir().rmdir(draftsIn(task.folder));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: reliability_worker WORK FOLDER WIDTH HEIGHT\n", stderr);
        return 2;
    }
    Task task;
    task.folder = arguments.at(2);
    task.record.publicData.resolutionWidth = arguments.at(3).toInt();
    task.record.publicData.resolutionHeight = arguments.at(4).toInt();
    const QString work = arguments.at(1);
    if (work == QLatin1String("save"))
        save(task);
    if (work == QLatin1String("publish"))
        publish(task);
    if (work == QLatin1String("delete"))
        deleteCharts(task);
    if (work == QLatin1String("draft"))
        keepDrafts(task);
    if (work == QLatin1String("save-once"))
        return saveOnce(task);
    return work == QLatin1String("publish-once") ? publishOnce(task) : sweep(task);
}
