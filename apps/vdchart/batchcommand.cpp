#include "arguments.h"
#include "batch.h"
#include "commands.h"
#include "outputfile.h"
#include "recordinput.h"
#include "walls.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <iostream>

namespace {

constexpr qint64 tableLimit = 16LL * 1024 * 1024; ///< bytes

std::atomic<bool> stopWanted{false};

/// The picture that is worked on is still finished. A second signal ends the program at once.
void askToStop(int signal)
{
    stopWanted = true;
    std::signal(signal, SIG_DFL);
}

/// Who started the program may have it ignore some of them: `nohup` does, and shells in the background.
void listenForSignals()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction inherited = {};
        if (sigaction(signal, nullptr, &inherited) == 0 && inherited.sa_handler != SIG_IGN)
            std::signal(signal, askToStop);
    }
}

std::vector<Wall> wallsOf(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.walls);
    if (path.isEmpty())
        return {Wall()}; // of the records themselves
    const std::vector<Wall> walls = readWalls(readInput(path, tableLimit), inputName(path));
    if (walls.empty())
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: there are no walls in it").arg(inputName(path))};
    return walls;
}

void printProblems(const std::vector<BatchPicture>& pictures)
{
    const auto lacks = [](const BatchPicture& picture) { return !picture.problem.isEmpty(); };
    const auto waits = [](const BatchPicture& picture) { return !picture.begun; };
    for (const BatchPicture& picture : pictures) {
        if (lacks(picture) && !waits(picture))
            std::cerr << "vdchart: failed: " << picture.file.toStdString() << ": "
                      << picture.problem.toStdString() << '\n';
    }
    if (const auto left = std::count_if(pictures.begin(), pictures.end(), waits); left > 0)
        std::cerr << "vdchart: " << (stopWanted ? "interrupted: " : "") << "not begun: " << left << '\n';
}

/// What a person reads; a program reads the manifest.
void printSummary(const std::vector<BatchPicture>& pictures)
{
    const auto count = [&pictures](auto is) { return std::count_if(pictures.begin(), pictures.end(), is); };
    const auto kept = count([](const BatchPicture& picture) { return picture.isKept; });
    const auto failed = count([](const BatchPicture& picture) { return !picture.problem.isEmpty(); });
    std::cout << std::ptrdiff_t(pictures.size()) - failed - kept << " of " << pictures.size()
              << " pictures written";
    if (kept > 0)
        std::cout << ", " << kept << " kept";
    std::cout << '\n';
}

void requireFolder(const Arguments& arguments)
{
    std::error_code error;
    std::filesystem::create_directories(arguments.folder, error);
    if (error)
        throw Failure{ExitCode::NotWritten, QStringLiteral("%1: the folder cannot be made: %2")
                                                .arg(QString::fromStdString(arguments.folder),
                                                     QString::fromStdString(error.message()))};
}

/// Not only when the first picture has been drawn, and not only for that one.
void requireWritable(const Arguments& arguments, const std::vector<PlannedPicture>& plan)
{
    const auto refuse = [](const QString& path, const QString& reason) {
        throw Failure{ExitCode::NotWritten, QStringLiteral("%1: %2").arg(path, reason)};
    };
    const QString manifestFile = batchPath(arguments, QLatin1String(manifestName));
    QStringList paths = {manifestFile};
    for (const PlannedPicture& planned : plan)
        paths.append(batchPath(arguments, planned.picture.file));
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir())
            refuse(path, QStringLiteral("it is a folder"));
    }
    QSaveFile file(manifestFile);
    if (!file.open(QIODevice::WriteOnly))
        refuse(manifestFile, file.errorString());
    file.cancelWriting();
}

/// Notes what is done from time to time: a batch that is killed can be resumed from there.
class ManifestNotes
{
public:
    ManifestNotes(const Arguments& arguments, const Batch& batch)
        : m_path(batchPath(arguments, QLatin1String(manifestName)))
        , m_batch(batch)
    {
        m_sinceLast.start();
    }

    void note()
    {
        constexpr qint64 pause = 1000; // milliseconds
        if (m_sinceLast.elapsed() < pause)
            return;
        try {
            writeOutput(m_path, manifest(m_batch.pictures()));
        } catch (const Failure&) { // which the end of the batch tells of
        }
        m_sinceLast.restart();
    }

private:
    const QString m_path;
    const Batch& m_batch;
    QElapsedTimer m_sinceLast;
};

} // namespace

ExitCode runBatch(const Arguments& arguments)
{
    std::vector<PlannedPicture> plan = planBatch(arguments, wallsOf(arguments));
    requireFolder(arguments);
    requireWritable(arguments, plan);
    Batch batch(arguments, std::move(plan));
    listenForSignals();
    ManifestNotes notes(arguments, batch);
    const ExitCode code = batch.run(stopWanted, [&notes] { notes.note(); });
    const QByteArray told = manifest(batch.pictures());
    printProblems(batch.pictures());
    if (arguments.report == "json")
        std::cout << told.toStdString();
    else
        printSummary(batch.pictures());
    writeOutput(batchPath(arguments, QLatin1String(manifestName)), told);
    return code;
}
