#include "support/translation.h"

#include "translatemanager1.h"

namespace vardeno::testcharttools {

QString translated(const QString& source)
{
    return trans::translate(TranslateManager1::instance().translator(), QStringLiteral("TestChartTools"),
                            QStringLiteral("Widget"), source);
}

bool isTranslated()
{
    return !TranslateManager1::instance().translator().language().isEmpty();
}

} // namespace vardeno::testcharttools
