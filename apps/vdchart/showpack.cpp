#include "showpack.h"

#include "recordinput.h"

#include <chartcheck.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

using namespace vardeno;

namespace {

void requireRelative(const QString& file, const char* field, const QString& path)
{
    if (QDir::isAbsolutePath(path.trimmed()))
        throw packFailure(
            file, QStringLiteral("%1: \"%2\" is an absolute path, which leads nowhere on another machine")
                      .arg(QLatin1String(field), path));
}

QString pictureOf(const QJsonObject& record)
{
    return record.value(QStringLiteral("logoData"))
        .toObject()
        .value(QStringLiteral("picturePath"))
        .toString();
}

/// All files of a show, each once.
class ShowFiles
{
public:
    void add(const QString& path)
    {
        const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
        if (m_taken.contains(file))
            return;
        m_taken.insert(file);
        m_files.append(file);
    }

    void addWall(const walls::ShowFile::PlacedWall& wall)
    {
        add(wall.file);
        requireRelative(wall.file, "chart.path", QString::fromStdString(wall.wall.chart.path));
        QJsonObject record = wall.wall.chart.record.document;
        if (!wall.recordFile.isEmpty()) {
            add(wall.recordFile);
            record = QJsonDocument::fromJson(readInput(wall.recordFile, recordLimit)).object();
        }
        const QString problem = testcharttools::ChartCheck::pictureProblem(wall.record);
        if (!problem.isEmpty())
            throw packFailure(wall.file, problem);
        const QString picture = QString::fromStdString(wall.record.logoData.picturePath);
        if (picture.trimmed().isEmpty() || !QFileInfo::exists(picture))
            return;
        requireRelative(wall.recordFile.isEmpty() ? wall.file : wall.recordFile, "logoData.picturePath",
                        pictureOf(record));
        add(picture);
    }

    /// The folder that all of them are in, with the slash behind it.
    QString folder() const
    {
        QString folder = QFileInfo(m_files.front()).absolutePath();
        const auto isOutside = [&folder](const QString& file) {
            return !file.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
        };
        while (std::any_of(m_files.begin(), m_files.end(), isOutside))
            folder = QFileInfo(folder).absolutePath();
        return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    }

    std::vector<PackedFile> read() const
    {
        const int skipped = int(folder().size());
        std::vector<PackedFile> files;
        qint64 total = 0;
        for (const QString& file : m_files) {
            files.push_back({file.mid(skipped), readInput(file, packedFileLimit)});
            total += files.back().bytes.size();
            const QString problem = packedPathProblem(files.back().path);
            if (!problem.isEmpty())
                throw packFailure(file, problem);
            if (total > packLimit)
                throw packFailure(file,
                                  QStringLiteral("with it the show has more than %1 bytes").arg(packLimit));
        }
        return files;
    }

private:
    QStringList m_files; ///< the show's own first
    QSet<QString> m_taken;
};

} // namespace

QByteArray packShow(const ChartInput& chart, const QString& path)
{
    ShowFiles show;
    show.add(path);
    for (const walls::ShowWall& wall : chart.show->show.walls.list)
        requireRelative(path, "show.walls", QString::fromStdString(wall.path));
    for (const walls::ShowFile::PlacedWall& wall : chart.show->walls)
        show.addWall(wall);
    const std::vector<PackedFile> files = show.read();
    return packedFiles(files);
}
