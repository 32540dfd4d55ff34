#include "arguments.h"
#include "chartinput.h"
#include "commands.h"
#include "fileclaims.h"
#include "outputfile.h"
#include "recordinput.h"
#include "showpack.h"

#include <showarrangement.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <iostream>

using namespace vardeno::walls;

namespace {

Failure showUsage(const QString& message)
{
    return {ExitCode::Usage, message};
}

/// "Left=3840x2160@50"; the name and the rate may be left out.
ShowOutput outputOf(const std::string& text, int number)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:([^=]+)=)?(\\d{1,5})[xX*\u00d7](\\d{1,5})(?:@(\\d{1,4}))?$"));
    const auto match = pattern.match(QString::fromStdString(text));
    if (!match.hasMatch())
        throw showUsage(
            QStringLiteral("--on: \"%1\" is not an output, such as 3840x2160 or Left=3840x2160@50")
                .arg(QString::fromStdString(text)));
    ShowOutput output;
    output.name =
        match.captured(1).isEmpty() ? "out" + std::to_string(number) : match.captured(1).toStdString();
    output.width = match.captured(2).toInt();
    output.height = match.captured(3).toInt();
    output.frameRate = match.captured(4).isEmpty() ? 60 : match.captured(4).toInt();
    return output;
}

/// What the wall calls itself, or else its file, and a number behind it where another one is called so.
std::string freeName(const ShowDocument& show, const WallDocument& wall, const QString& file)
{
    QString name = QString::fromStdString(wall.name);
    if (name.trimmed().isEmpty())
        name = QFileInfo(file).completeBaseName();
    if (name.endsWith(QLatin1String(".wall")))
        name.chop(5);
    const auto isTaken = [&show](const QString& one) {
        return std::any_of(show.walls.list.begin(), show.walls.list.end(), [&](const ShowWall& other) {
            return QString::fromStdString(other.name).toCaseFolded() == one.toCaseFolded();
        });
    };
    QString free = name;
    for (int number = 2; isTaken(free); ++number)
        free = QStringLiteral("%1 %2").arg(name).arg(number);
    return free.toStdString();
}

ExitCode newShow(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.output);
    const QDir folder = path == QLatin1String("-") ? QDir::current() : QFileInfo(path).absoluteDir();
    FileClaims claims;
    ShowDocument show;
    std::vector<WallDocument> walls;
    show.name = arguments.wall.name;
    show.layers.wallColors = true;
    for (const std::string& file : arguments.show.files) {
        const QString source = QString::fromStdString(file);
        const ChartInput chart = requireChart(source, {});
        if (!chart.wall)
            throw Failure{ExitCode::Unreadable, QStringLiteral("%1: not a wall").arg(inputName(source))};
        claims.reads(source, QStringLiteral("a wall of the show"));
        walls.push_back(*chart.wall);
        const QString relative = folder.relativeFilePath(QFileInfo(source).absoluteFilePath());
        show.walls.list.push_back({freeName(show, walls.back(), source), relative.toStdString(), {}, {}});
    }
    claims.protect(path);
    for (const std::string& output : arguments.show.outputs)
        show.outputs.list.push_back(outputOf(output, int(show.outputs.list.size()) + 1));
    if (show.outputs.list.empty())
        show.outputs.list.push_back(outputOf("3840x2160", 1));
    QString problem;
    if (arguments.show.autoPack)
        problem = ShowArrangement::autoPack(show, walls, arguments.show.mayTurn);
    else
        ShowArrangement::placeSideBySide(show, walls);
    const QByteArray json = ShowFile::toJson(show);
    if (problem.isEmpty())
        problem = ShowFile::fromJson(json).problems.join(QStringLiteral("; "));
    if (!problem.isEmpty())
        throw showUsage(problem);
    writeOutput(path, json);
    return ExitCode::Good;
}

ExitCode packedShow(const QString& source, const QString& path)
{
    requireNoTerminal(path);
    const ChartInput chart = requireChart(source, {});
    if (!chart.show)
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: not a show").arg(source)};
    FileClaims claims;
    claims.reads(source, QStringLiteral("the show that is packed"));
    claimFiles(claims, chart, QStringLiteral("a record of the show"));
    claims.protect(path);
    writeOutput(path, packShow(chart, source));
    return ExitCode::Good;
}

/// All of it or nothing: it is written beside the folder, and given its name at the end.
void writeFolder(const UnpackedShow& unpacked, const QString& folder)
{
    const auto refuse = [&folder](const QString& why) {
        return Failure{ExitCode::NotWritten, QStringLiteral("%1: %2").arg(folder, why)};
    };
    QTemporaryDir beside(QDir::cleanPath(folder) + QStringLiteral(".XXXXXX"));
    const QString content = beside.filePath(QStringLiteral("content"));
    if (!beside.isValid() || !QDir().mkpath(content))
        throw refuse(QStringLiteral("the folder cannot be made"));
    for (const PackedFile& file : unpacked.files) {
        const QString path = content + QLatin1Char('/') + file.path;
        if (!QDir().mkpath(QFileInfo(path).path()))
            throw refuse(QStringLiteral("\"%1\" cannot be made").arg(file.path));
        writeOutput(path, file.bytes);
    }
    if (!QDir().rename(content, folder))
        throw refuse(QStringLiteral("the folder cannot be made"));
}

ExitCode unpackedShow(const QString& source, const QString& folder)
{
    if (QFileInfo::exists(folder) || QFileInfo(folder).isSymLink())
        throw showUsage(QStringLiteral("%1: it is there already; a pack goes into a new folder").arg(folder));
    const UnpackedShow unpacked = unpackShow(readInput(source, packLimit), inputName(source));
    writeFolder(unpacked, folder);
    std::cout << QDir(folder).filePath(unpacked.show).toStdString() << '\n';
    return ExitCode::Good;
}

} // namespace

ExitCode runShow(const Arguments& arguments)
{
    if (arguments.show.action == "new")
        return newShow(arguments);
    if (arguments.show.files.size() > 1)
        throw showUsage(
            QStringLiteral("show %1: one file at a time").arg(QString::fromStdString(arguments.show.action)));
    const QString source = QString::fromStdString(arguments.show.files.front());
    const QString path = QString::fromStdString(arguments.output);
    if (arguments.show.action == "pack" && source == QLatin1String("-"))
        throw showUsage(QStringLiteral("show pack: a file is needed, for its paths are relative to it"));
    return arguments.show.action == "pack" ? packedShow(source, path) : unpackedShow(source, path);
}
