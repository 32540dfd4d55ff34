#include "hosttext.h"

#include <translatemanager1.h>

QString hostText(const QString& source)
{
    return vardeno::trans::translate(TranslateManager1::instance().translator(), QStringLiteral("ChartDesk"),
                                     QStringLiteral("MainWindow"), source);
}
