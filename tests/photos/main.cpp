#include "camera.h"
#include "tally.h"

#include <chartfont.h>
#include <chartrecordfile.h>
#include <wallreading.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cmath>
#include <ctime>
#include <iostream>

using namespace Photos;
namespace ChartRecordFile = vardeno::testcharttools::ChartRecordFile;

namespace {

/// A picture of a wall, with what is true of it.
struct Sample
{
    Wall wall;
    Shot shot;
    Photo photo;
};

/// What `save` has left in `folder`, so that it need not be taken again.
bool load(Photo& photo, const QString& stem)
{
    QFile file(stem + QStringLiteral(".truth.json"));
    if (!file.open(QIODevice::ReadOnly) || !photo.picture.load(stem + QStringLiteral(".jpg")))
        return false;
    const QJsonObject truth = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray corners = truth.value(QLatin1String("corners")).toArray();
    for (int i = 0; i < 4; ++i)
        photo.corners[std::size_t(i)] = {corners[i].toArray()[0].toDouble(),
                                         corners[i].toArray()[1].toDouble()};
    photo.scale = truth.value(QLatin1String("pixelsPerChartPixel")).toDouble();
    for (const QJsonValue& share : truth.value(QLatin1String("hidden")).toArray())
        photo.hidden.push_back(share.toDouble());
    return true;
}

/// `pictures`: "photos", "tags", which are photos of charts with markers, or "captures".
Sample sampleOf(unsigned seed, const QString& pictures, const QString& folder = QString())
{
    Random random(seed);
    Sample sample;
    const bool isTags = pictures == QLatin1String("tags");
    const auto& kinds = isTags ? std::vector<std::string>{"tags"} : chartKinds();
    const int faults = wholeBetween(random, 0, 6);
    sample.wall = simulatedWall(kinds[seed % kinds.size()], faults, random);
    const QString stem = QDir(folder).filePath(QString::number(seed));
    if (pictures == QLatin1String("captures")) {
        sample.photo = captured(sample.wall, randomCapture(random));
        return sample;
    }
    sample.shot = randomShot(random, 0, 45);
    if (!folder.isEmpty() && load(sample.photo, stem))
        return sample;
    sample.photo = photograph(sample.wall, sample.shot, random);
    return sample;
}

QJsonArray place(int row, int column)
{
    return {row, column};
}

QJsonObject asObject(const Fault& fault)
{
    QJsonObject object{{QStringLiteral("kind"), QString::fromStdString(fault.kind)},
                       {QStringLiteral("row"), fault.row},
                       {QStringLiteral("column"), fault.column}};
    if (fault.showsRow >= 0)
        object.insert(QStringLiteral("shows"), place(fault.showsRow, fault.showsColumn));
    if (fault.turn != 0)
        object.insert(QStringLiteral("turn"), fault.turn);
    if (!fault.shift.isNull())
        object.insert(QStringLiteral("shift"), place(fault.shift.x(), fault.shift.y()));
    return object;
}

QJsonObject truthOf(const Sample& sample)
{
    QJsonArray corners;
    for (const QPointF& corner : sample.photo.corners)
        corners.append(QJsonArray{corner.x(), corner.y()});
    QJsonArray faults;
    for (const Fault& fault : sample.wall.faults)
        faults.append(asObject(fault));
    QJsonArray hidden;
    for (const double share : sample.photo.hidden)
        hidden.append(share);
    return {{QStringLiteral("kind"), QString::fromStdString(sample.wall.chartKind)},
            {QStringLiteral("angle"), sample.shot.angle},
            {QStringLiteral("pixelsPerChartPixel"), sample.photo.scale},
            {QStringLiteral("corners"), corners},
            {QStringLiteral("faults"), faults},
            {QStringLiteral("hidden"), hidden}};
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::cerr << path.toStdString() << ": " << file.errorString().toStdString() << '\n';
}

void save(const Sample& sample, const QString& stem)
{
    sample.photo.picture.save(stem + QStringLiteral(".jpg"), "JPG", sample.shot.quality);
    write(stem + QStringLiteral(".truth.json"), QJsonDocument(truthOf(sample)).toJson());
    write(stem + QStringLiteral(".json"),
          ChartRecordFile::toJson(sample.wall.record,
                                  ChartRecordFile::withMarkers({}, {!sample.wall.markers.empty()})));
}

Result resultOf(const Sample& sample, unsigned seed)
{
    const std::clock_t start = std::clock();
    WallReading::Reading reading = WallReading::read(
        sample.photo.picture, {sample.wall.chart, sample.wall.cabinets}, sample.wall.markers);
    // Of all cores together: it does not depend on what else the machine does.
    reading.seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    return judged(sample.wall, sample.photo, sample.shot.angle, reading, seed);
}

int usage()
{
    std::cerr << "usage: wallphotos save|evaluate photos|tags|captures FIRST LAST [FOLDER]\n";
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QGuiApplication::setFont(chartFont());
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 5)
        return usage();
    Tally tally;
    for (unsigned seed = arguments[3].toUInt(); seed <= arguments[4].toUInt(); ++seed) {
        const bool isSaving = arguments[1] == QLatin1String("save");
        const Sample sample = sampleOf(seed, arguments[2], isSaving ? QString() : arguments.value(5));
        if (isSaving)
            save(sample, QDir(arguments.value(5)).filePath(QString::number(seed)));
        else
            tally.add(resultOf(sample, seed));
    }
    if (arguments[1] != QLatin1String("save"))
        std::cout << tally.table() << std::flush;
    return 0;
}
