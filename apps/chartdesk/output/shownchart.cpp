#include "shownchart.h"

#include "chartfolderlist.h"

#include <chartrecordfile.h>
#include <pngtexts.h>

#include <QFileInfo>
#include <QImageReader>

using namespace vardeno::testcharttools;

namespace {

ShownChart refused(const QString& problem)
{
    ShownChart chart;
    chart.problem = problem;
    return chart;
}

ShownChart drawn(const QString& path, const ChartCaptions& captions)
{
    const auto reading = ChartRecordFile::read(path);
    if (!reading.problems.isEmpty())
        return refused(reading.problems.join(QLatin1Char('\n')));
    const MarkerData markers = ChartRecordFile::markersOf(reading.document);
    const QImage picture = ChartPicture(reading.record, captions, markers).image();
    return {picture, {}, reading.record, {}, markers};
}

ShownChart readPicture(const QString& path)
{
    if (hasTooMuchText(path))
        return refused(path + QLatin1String(": its texts are too long"));
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        return refused(path + QLatin1String(": ") + reader.errorString());
    ShownChart chart;
    chart.picture = picture.convertToFormat(QImage::Format_RGB32);
    const QString record = ChartFolderList::recordPath(path);
    if (!QFileInfo(record).isFile())
        return chart;
    const auto reading = ChartRecordFile::read(record);
    const PublicChartData& wall = reading.record.publicData;
    if (reading.problems.isEmpty() && picture.size() == QSize(wall.resolutionWidth, wall.resolutionHeight))
        chart.record = reading.record;
    chart.markers = ChartRecordFile::markersOf(reading.document);
    return chart;
}

} // namespace

ShownChart ShownChart::read(const QString& path, const ChartCaptions& captions)
{
    const QFileInfo file(path);
    const QDateTime modified = file.lastModified();
    const bool isRecord = file.suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) == 0;
    ShownChart chart = isRecord ? drawn(path, captions) : readPicture(path);
    chart.modified = modified;
    return chart;
}
