#include "support/defaultlogo.h"

#include <QCoreApplication>

namespace vardeno::testcharttools {

QString defaultLogo()
{
    return QCoreApplication::applicationDirPath() +
           QLatin1String("/../share/themes/images/default/testcharttools/logo_1025.png");
}

} // namespace vardeno::testcharttools
