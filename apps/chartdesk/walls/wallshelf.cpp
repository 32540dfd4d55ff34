#include "wallshelf.h"

#include "hosttext.h"

#include <chartrecordfile.h>
#include <showfile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

constexpr qint64 mostBytes = 1024LL * 1024; ///< of a document that can be read
constexpr char wallFileEnding[] = ".wall.json";
constexpr char showFileEnding[] = ".show.json";

QByteArray beginning(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(mostBytes + 1) : QByteArray();
}

/// "main.wall.json" or "main.json" without its ending.
QString plainName(const QString& file, const char* ending)
{
    const QString name = QFileInfo(file).fileName();
    return name.endsWith(QLatin1String(ending)) ? name.chopped(int(qstrlen(ending)))
                                                : QFileInfo(file).completeBaseName();
}

/// "main.wall.json", or "main 2.wall.json" where that stands there already.
QString freeName(const QDir& folder, const QString& name, const QString& ending)
{
    QString free = name + ending;
    for (int number = 2; folder.exists(free); ++number)
        free = name + QLatin1Char(' ') + QString::number(number) + ending;
    return free;
}

/// What is written into a folder of charts. Unless it is kept, it is removed again.
class Newcomers
{
public:
    explicit Newcomers(const QString& folder)
        : m_folder(folder)
    {
    }
    ~Newcomers()
    {
        if (m_isKept)
            return;
        for (const QString& path : qAsConst(m_paths))
            QFile::remove(path);
        m_folder.rmdir(QStringLiteral("pictures")); // where nothing else is in it
    }
    Newcomers(const Newcomers&) = delete;
    Newcomers& operator=(const Newcomers&) = delete;

    /// The names of the wall's file in the folder; empty for a problem.
    QString takeWall(const QString& file);
    QString takeShow(const QString& file);
    void keep() { m_isKept = true; }

    QString problem;
    const char* note = hostSource("Taken in:");

private:
    QJsonObject standingRecord(const WallDocument& wall, const QString& folder);
    QString takeLogo(const QString& picture);
    void tell(const QString& file, const QStringList& problems)
    {
        problem = QFileInfo(file).fileName() + QLatin1String(": ") + problems.join(QLatin1Char('\n'));
    }

    QDir m_folder;
    QStringList m_paths;
    QHash<QString, QString> m_walls; ///< the names of those that were taken, by their files
    QHash<QString, QString> m_logos;
    bool m_isKept = false;
};

/// Its place in the folder, or the picture's own path where that cannot be copied.
QString Newcomers::takeLogo(const QString& picture)
{
    if (m_logos.contains(picture))
        return m_logos.value(picture);
    const QFileInfo source(picture);
    if (!source.isFile() || !m_folder.mkpath(QStringLiteral("pictures")))
        return picture;
    const QString ending = source.suffix().isEmpty() ? QString() : QLatin1Char('.') + source.suffix();
    const QString place = QLatin1String("pictures/") + freeName(m_folder.filePath(QStringLiteral("pictures")),
                                                                source.completeBaseName(), ending);
    if (!QFile::copy(picture, m_folder.filePath(place)))
        return picture;
    m_paths.append(m_folder.filePath(place));
    m_logos.insert(picture, place);
    return place;
}

/// The wall's record as it can stand in its document: with what is unknown in it, and its logo in the folder.
QJsonObject Newcomers::standingRecord(const WallDocument& wall, const QString& folder)
{
    QJsonObject document = wall.chart.record.document;
    const WallFile::Chart chart = WallFile::chartOf(wall, folder);
    if (!chart.file.isEmpty()) {
        const ChartRecordFile::Reading record = ChartRecordFile::read(chart.file);
        document = QJsonDocument::fromJson(ChartRecordFile::toJson(record.record, record.document)).object();
        note = hostSource("Taken in, with its chart:");
    }
    const QString picture = QString::fromStdString(chart.record.logoData.picturePath);
    if (!picture.isEmpty()) {
        QJsonObject logo = document.value(QLatin1String("logoData")).toObject();
        logo.insert(QLatin1String("picturePath"), takeLogo(picture));
        document.insert(QLatin1String("logoData"), logo);
    }
    return document;
}

QString Newcomers::takeWall(const QString& file)
{
    QString& name = m_walls[QFileInfo(file).absoluteFilePath()];
    if (!name.isEmpty())
        return name;
    const QString folder = QFileInfo(file).absolutePath();
    WallFile::Reading reading = WallFile::read(file);
    if (reading.problems.isEmpty())
        reading.problems = WallFile::chartOf(reading.wall, folder).problems;
    if (!reading.problems.isEmpty()) {
        tell(file, reading.problems);
        return {};
    }
    WallDocument wall = reading.wall;
    wall.chart.record.document = standingRecord(reading.wall, folder);
    wall.chart.path.clear();
    const QString free = freeName(m_folder, plainName(file, wallFileEnding), QLatin1String(wallFileEnding));
    problem = WallFile::write(m_folder.filePath(free), wall, reading.document);
    if (!problem.isEmpty())
        return {};
    m_paths.append(m_folder.filePath(free));
    return name = free;
}

QString Newcomers::takeShow(const QString& file)
{
    ShowFile::Reading reading = ShowFile::read(file);
    if (!reading.problems.isEmpty()) {
        tell(file, reading.problems);
        return {};
    }
    const QDir folder = QFileInfo(file).absoluteDir();
    for (ShowWall& wall : reading.show.walls.list) {
        const QString path = QDir::cleanPath(folder.filePath(QString::fromStdString(wall.path)));
        wall.path = takeWall(path).toStdString();
        if (wall.path.empty()) {
            tell(file, {problem});
            return {};
        }
    }
    const QString free = freeName(m_folder, plainName(file, showFileEnding), QLatin1String(showFileEnding));
    problem = ShowFile::write(m_folder.filePath(free), reading.show, reading.document);
    note = hostSource("Taken in, with its walls:");
    return problem.isEmpty() ? free : QString();
}

} // namespace

namespace WallShelf {

bool isDocument(const QString& file)
{
    const QByteArray json = beginning(file);
    return WallFile::isWall(json) || ShowFile::isShow(json);
}

ChartShelf::Outcome take(const QString& folder, const QString& file)
{
    const QDir shelf(folder);
    const QFileInfo source(file);
    if (source.absoluteDir() == shelf)
        return {shelf.filePath(source.fileName()), {}};
    if (!shelf.mkpath(QStringLiteral(".")))
        return {{}, folder};
    Newcomers newcomers(folder);
    const QString name =
        ShowFile::isShow(beginning(file)) ? newcomers.takeShow(file) : newcomers.takeWall(file);
    if (name.isEmpty())
        return {{}, newcomers.problem};
    newcomers.keep();
    return {shelf.filePath(name), {}, newcomers.note};
}

} // namespace WallShelf
