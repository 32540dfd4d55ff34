#include "geometry/picturecheck.h"

#include "geometry/recordink.h"
#include "support/imagefile.h"
#include "testcharttoolsdata.h"

#include <QFileInfo>

namespace vardeno::testcharttools {

namespace {

bool drawsPicture(const LogoChartData& data)
{
    return data.showLogo && !data.textLogo && data.opacity > 0 && data.scale > 0;
}

QString fileProblem(const TestChartToolsData& record)
{
    const QString path = logoPicture(record);
    const QString name =
        QLatin1String(record.logoData.picturePath.empty() ? "the built-in picture \"" : "\"") + path +
        QLatin1Char('"');
    if (!QFileInfo::exists(path))
        return name + QLatin1String(" does not exist; no logo is drawn");
    switch (examinePicture(path)) {
    case PictureFile::TooLarge:
        return name + QStringLiteral(" is larger than %1; no logo is drawn")
                          .arg(sized({largestPicture, largestPicture}));
    case PictureFile::Unreadable:
        return name + QLatin1String(" is not a picture that can be read; no logo is drawn");
    case PictureFile::Readable:
        break;
    }
    return CachedPicture().load(path).isNull()
               ? name + QLatin1String(" cannot be read to its end; no logo is drawn")
               : QString();
}

} // namespace

QString logoFileProblem(const TestChartToolsData& record)
{
    return drawsPicture(record.logoData) ? fileProblem(record) : QString();
}

QString sized(const QSize& size)
{
    return QStringLiteral("%1 x %2 pixels").arg(size.width()).arg(size.height());
}

} // namespace vardeno::testcharttools
