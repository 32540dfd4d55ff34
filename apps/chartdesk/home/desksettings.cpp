#include "desksettings.h"

#include <QStandardPaths>

QSettings deskSettings()
{
    return QSettings(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                         QLatin1String("/settings.ini"),
                     QSettings::IniFormat);
}
