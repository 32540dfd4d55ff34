#include "support/chartlog.h"

namespace vardeno::testcharttools {

namespace {

QLoggingCategory& themeCategory()
{
    static QLoggingCategory category("vardeno.testcharttools.theme", QtDebugMsg);
    return category;
}

} // namespace

const QLoggingCategory& chartLog()
{
    static const QLoggingCategory category("vardeno.testcharttools", QtDebugMsg);
    return category;
}

const QLoggingCategory& themeLog()
{
    return themeCategory();
}

void setThemeWarnings(bool on)
{
    themeCategory().setEnabled(QtWarningMsg, on);
}

} // namespace vardeno::testcharttools
