#include "support/chartlog.h"

namespace vardeno::testcharttools {

const QLoggingCategory& chartLog()
{
    static const QLoggingCategory category("vardeno.testcharttools", QtDebugMsg);
    return category;
}

QLoggingCategory& themeLog()
{
    static QLoggingCategory category("vardeno.testcharttools.theme", QtDebugMsg);
    return category;
}

} // namespace vardeno::testcharttools
