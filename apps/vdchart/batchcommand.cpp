#include "arguments.h"
#include "batch.h"
#include "commands.h"
#include "imageoutput.h"
#include "recordinput.h"
#include "walls.h"

#include <QDir>

#include <algorithm>
#include <csignal>
#include <cstddef>
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

void report(const std::vector<BatchPicture>& pictures)
{
    const auto lacks = [](const BatchPicture& picture) { return !picture.problem.isEmpty(); };
    const auto waits = [](const BatchPicture& picture) { return !picture.begun; };
    for (const BatchPicture& picture : pictures) {
        if (lacks(picture) && !waits(picture))
            std::cerr << "vdchart: failed: " << picture.file.toStdString() << ": "
                      << picture.problem.toStdString() << '\n';
    }
    if (const auto left = std::count_if(pictures.begin(), pictures.end(), waits); left > 0)
        std::cerr << "vdchart: interrupted: not begun: " << left << '\n';
    const auto failed = std::count_if(pictures.begin(), pictures.end(), lacks);
    std::cout << std::ptrdiff_t(pictures.size()) - failed << " of " << pictures.size()
              << " pictures written\n";
}

/// As the second of two batches in the folder of their records would do it.
void keepRecords(const Arguments& arguments, const QString& manifest)
{
    for (const std::string& record : arguments.records) {
        if (wouldWriteOver(manifest, QString::fromStdString(record)))
            throw Failure{ExitCode::Usage, QStringLiteral("%1: the batch would write its manifest over it")
                                               .arg(QString::fromStdString(record))};
    }
}

} // namespace

ExitCode runBatch(const Arguments& arguments)
{
    const QDir folder(QString::fromStdString(arguments.folder));
    const QString manifestFile = folder.filePath(QStringLiteral("manifest.json"));
    keepRecords(arguments, manifestFile);
    Batch batch(arguments, wallsOf(arguments));
    if (!folder.mkpath(QStringLiteral(".")))
        throw Failure{
            ExitCode::NotWritten,
            QStringLiteral("%1: the folder cannot be made").arg(QString::fromStdString(arguments.folder))};
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, askToStop);
    const ExitCode code = batch.run(stopWanted);
    report(batch.pictures());
    writeOutput(manifestFile, manifest(batch.pictures()));
    return code;
}
