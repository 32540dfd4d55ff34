#include "arguments.h"
#include "chartrenderer.h"
#include "commands.h"
#include "imageoutput.h"
#include "recordinput.h"

ExitCode runRender(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.output);
    const QString format = imageFormat(path);
    const auto record = requireRecord(QString::fromStdString(arguments.record), arguments.settings);
    keepPicture(record.logoData, path);
    const QImage image = ChartRenderer(QString::fromStdString(arguments.language)).render(record);
    writeOutput(path, encodeImage(image, format, arguments.compression));
    return ExitCode::Good;
}
