#include "diagnostics.h"

#include "display.h"

#include <vdpatterndesign_version.h>

#include <QGuiApplication>
#include <QLocale>
#include <QStringList>
#include <QSysInfo>

QString diagnostics()
{
    QStringList lines = {
        QStringLiteral("Chart desk " VDPATTERNDESIGN_VERSION),
        QStringLiteral("Qt %1, built with %2").arg(QLatin1String(qVersion()), QStringLiteral(QT_VERSION_STR)),
        QStringLiteral("%1, %2, %3")
            .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
                 QSysInfo::currentCpuArchitecture()),
        QStringLiteral("Platform %1, locale %2")
            .arg(QGuiApplication::platformName(), QLocale::system().name())};
    const QVector<DeskDisplay> all = displays();
    for (const DeskDisplay& display : all)
        lines.append(QStringLiteral("Display ") + displayLine(display));
    return lines.join(QLatin1Char('\n'));
}
