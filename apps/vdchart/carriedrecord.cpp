#include "carriedrecord.h"

#include <chartrecordfile.h>

#include <QDir>
#include <QFileInfo>

using namespace vardeno::testcharttools;

namespace {

constexpr char recordKeyword[] = "testchart-record";
constexpr char languageKeyword[] = "testchart-language";

} // namespace

std::vector<PngText> CarriedRecord::texts(const TestChartToolsData& record, const QString& language,
                                          const QString& output)
{
    TestChartToolsData carried = record;
    const QString logo = QString::fromStdString(record.logoData.picturePath);
    if (!logo.isEmpty() && output != QLatin1String("-"))
        carried.logoData.picturePath = QFileInfo(output)
                                           .absoluteDir()
                                           .relativeFilePath(QFileInfo(logo).absoluteFilePath())
                                           .toStdString();
    return {{recordKeyword, QString::fromUtf8(ChartRecordFile::toJson(carried))},
            {languageKeyword, language}};
}

QByteArray CarriedRecord::json(const QImage& picture)
{
    return picture.text(QLatin1String(recordKeyword)).toUtf8();
}

QString CarriedRecord::language(const QImage& picture)
{
    return picture.text(QLatin1String(languageKeyword));
}
