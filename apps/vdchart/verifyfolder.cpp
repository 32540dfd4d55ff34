#include "verifyfolder.h"

#include "arguments.h"
#include "batchplan.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstddef>
#include <iostream>

namespace {

/// What is to be said of a file; nothing where it is as it was written.
struct State
{
    QString file;
    const char* word; ///< for programs
    QString text;
};

State stateOf(const QDir& folder, const BatchPicture& picture)
{
    const QString& file = picture.file;
    if (file.isEmpty() || QFileInfo(file).fileName() != file)
        return {file, "invalid", QStringLiteral("the manifest names no file of its folder")};
    if (!picture.problem.isEmpty())
        return {file, "failed", QStringLiteral("was not made: ") + picture.problem};
    const QString path = folder.filePath(file);
    if (!QFileInfo::exists(path))
        return {file, "missing", QStringLiteral("is missing")};
    if (fileHash(path) != picture.sha256)
        return {file, "changed", QStringLiteral("is not the file that was written")};
    return {file, "good", QString()};
}

std::vector<State> statesOf(const QDir& folder)
{
    std::vector<State> states;
    QStringList listed = {QLatin1String(manifestName)};
    for (const BatchPicture& picture : readManifest(folder.filePath(QLatin1String(manifestName)))) {
        states.push_back(stateOf(folder, picture));
        listed.append(picture.file);
    }
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (!listed.contains(file))
            states.push_back({file, "unlisted", QStringLiteral("is not in the manifest")});
    }
    return states;
}

void printJson(const std::string& folder, const std::vector<State>& states)
{
    QJsonArray files;
    for (const State& state : states) {
        QJsonObject entry{{QStringLiteral("file"), state.file},
                          {QStringLiteral("state"), QLatin1String(state.word)}};
        if (!state.text.isEmpty())
            entry.insert(QStringLiteral("text"), state.text);
        files.append(entry);
    }
    std::cout << QJsonDocument(
                     QJsonObject{{QStringLiteral("format"), QStringLiteral("testchart-folder-verification")},
                                 {QStringLiteral("version"), 1},
                                 {QStringLiteral("folder"), QString::fromStdString(folder)},
                                 {QStringLiteral("files"), files}})
                     .toJson()
                     .toStdString();
}

void printText(const QDir& folder, const std::vector<State>& states, std::ptrdiff_t good)
{
    for (const State& state : states) {
        if (!state.text.isEmpty())
            std::cout << folder.filePath(state.file).toStdString() << ": " << state.text.toStdString()
                      << '\n';
    }
    std::cout << good << " of " << states.size() << " pictures are as they were written\n";
}

} // namespace

ExitCode verifyFolder(const Arguments& arguments)
{
    const QDir folder(QString::fromStdString(arguments.image));
    const std::vector<State> states = statesOf(folder);
    const auto good =
        std::count_if(states.begin(), states.end(), [](const State& state) { return state.text.isEmpty(); });
    if (arguments.report == "json")
        printJson(arguments.image, states);
    else
        printText(folder, states, good);
    return good == std::ptrdiff_t(states.size()) ? ExitCode::Good : ExitCode::Found;
}
