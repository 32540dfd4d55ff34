#include "resume.h"

#include "arguments.h"
#include "batchplan.h"

#include <chartrecordfile.h>
#include <vdpatterndesign_version.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHash>

using namespace vardeno::testcharttools;

namespace {

/// All that its picture is made of, the pictures of logos by their hashes.
QByteArray documentOfShow(const ChartInput& chart)
{
    QByteArray document =
        vardeno::walls::ShowFile::toJson(chart.show->show) + QByteArray::number(chart.output);
    for (const auto& wall : chart.show->walls)
        document += vardeno::walls::WallFile::toJson(wall.wall) + ChartRecordFile::toJson(wall.record) +
                    fileHash(QString::fromStdString(wall.record.logoData.picturePath));
    return document;
}

QByteArray documentOf(const ChartInput& chart)
{
    if (chart.show)
        return documentOfShow(chart);
    const QByteArray record =
        ChartRecordFile::toJson(chart.record, ChartRecordFile::withMarkers({}, chart.markers));
    return chart.wall ? record + vardeno::walls::WallFile::toJson(*chart.wall) : record;
}

} // namespace

QByteArray sourceHash(const PlannedPicture& planned, const Arguments& arguments)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QByteArray& part :
         {QByteArray("vdchart " VDPATTERNDESIGN_VERSION), QByteArray::fromStdString(arguments.language),
          QByteArray::fromStdString(arguments.format), QByteArray::number(arguments.compression),
          QByteArray::number(int(arguments.withoutRecord)), documentOf(planned.chart),
          fileHash(QString::fromStdString(planned.chart.record.logoData.picturePath))}) {
        hash.addData(QByteArray::number(part.size()) + ':');
        hash.addData(part);
    }
    return hash.result().toHex();
}

void markProven(std::vector<PlannedPicture>& plan, const Arguments& arguments)
{
    const QString manifestFile = batchPath(arguments, QLatin1String(manifestName));
    if (!QFileInfo::exists(manifestFile))
        return;
    QHash<QString, BatchPicture> made;
    for (const BatchPicture& picture : readManifest(manifestFile))
        made.insert(picture.file, picture);
    for (PlannedPicture& planned : plan) {
        const BatchPicture there = made.value(planned.picture.file);
        if (planned.code != ExitCode::Good || !there.problem.isEmpty() || there.sha256.isEmpty() ||
            there.source != planned.picture.source ||
            fileHash(batchPath(arguments, there.file)) != there.sha256)
            continue;
        planned.picture.size = there.size;
        planned.picture.bytes = there.bytes;
        planned.picture.sha256 = there.sha256;
        planned.picture.isKept = true;
        planned.picture.begun = true;
    }
}
