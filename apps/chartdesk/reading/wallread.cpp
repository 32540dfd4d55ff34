#include "wallread.h"

#include "hosttext.h"
#include "shownchart.h"

#include <cabinetgrid.h>
#include <picturehead.h>
#include <pngtexts.h>
#include <readingmarkers.h>
#include <readingpicture.h>

#include <QFileInfo>
#include <QImageReader>

using namespace vardeno::testcharttools;

namespace {

constexpr qint64 mostPhotoPixels = 100LL * 1000 * 1000;

/// A plan that a dialog shows is no larger.
constexpr int mostPlanSide = 1920;

WallRead failure(const QString& problem)
{
    WallRead read;
    read.problem = problem;
    return read;
}

QImage planOf(const WallReading::Reading& reading, const WallReading::Chart& chart)
{
    const QImage plan = WallReading::markedPicture(reading, chart);
    const bool isLarge = plan.width() > mostPlanSide || plan.height() > mostPlanSide;
    return isLarge ? plan.scaled(mostPlanSide, mostPlanSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                   : plan;
}

} // namespace

bool canReadWalls()
{
    return true;
}

WallRead readWall(const QString& photo, const QString& chart, const ReadLanguage& language,
                  const std::atomic<bool>& canceled)
{
    const ShownChart wanted = ShownChart::read(chart, language.captions);
    if (wanted.picture.isNull())
        return failure(wanted.problem);
    if (!wanted.record)
        return failure(
            language.texts(hostSource("This picture has no record, so its cabinets are not known.")));
    if (hasTooMuchText(photo))
        return failure(
            language.texts(hostSource("%1: its texts are too long.")).arg(QFileInfo(photo).fileName()));
    QImageReader reader(photo);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = toldSize(reader);
    if (qint64(size.width()) * size.height() > mostPhotoPixels)
        return failure(language.texts(hostSource("This photo has too many pixels.")));
    const QImage picture = reader.read();
    if (picture.isNull())
        return failure(QFileInfo(photo).fileName() + QLatin1String(": ") + reader.errorString());
    const WallReading::Chart expected{wanted.picture, cabinetsOf(*wanted.record)};
    const WallReading::Reading reading =
        WallReading::read(picture, expected, readingMarkers(*wanted.record, wanted.markers), &canceled);
    WallRead read;
    read.sentences = reading.sentences(language.texts);
    for (const WallReading::Finding& finding : reading.findings) {
        if (WallReading::isAccusation(finding.kind))
            read.wrong.push_back({finding.cabinet.row, finding.cabinet.column});
    }
    if (reading.isLocated && !reading.rectified.isNull())
        read.plan = planOf(reading, expected);
    return read;
}
