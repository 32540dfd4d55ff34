#include "chartdetails.h"

#include "chartfolderlist.h"
#include "walldocuments.h"

#include <chartrecordfile.h>
#include <picturehead.h>
#include <pngtexts.h>

#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

ChartDetails ChartDetails::read(const QString& imagePath)
{
    if (WallDocuments::isDocument(imagePath))
        return WallDocuments::details(imagePath);
    ChartDetails details;
    QImageReader reader(imagePath);
    if (!vardeno::testcharttools::hasTooMuchText(imagePath))
        details.size = vardeno::testcharttools::toldSize(reader);
    const QString record = ChartFolderList::recordPath(imagePath);
    if (!QFileInfo(record).isFile())
        return details;
    const auto reading = vardeno::testcharttools::ChartRecordFile::read(record);
    if (reading.problems.isEmpty())
        details.grid = {reading.record.publicData.boxCol, reading.record.publicData.boxRow};
    return details;
}

QString ChartDetails::text() const
{
    QStringList parts;
    for (const QSize& part : {size, grid}) {
        if (!part.isEmpty())
            parts.append(QStringLiteral("%1 x %2").arg(part.width()).arg(part.height()));
    }
    return parts.join(QStringLiteral(", "));
}
