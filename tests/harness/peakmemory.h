#pragma once

#include <QFile>
#include <QStringList>

/// The most memory that this process has had, as the system writes it: "242124 kB". Empty where it does not
/// tell.
inline QString peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(status.readAll()).split(QLatin1Char('\n'));
    return lines.filter(QStringLiteral("VmHWM")).value(0).section(QLatin1Char(':'), 1).trimmed();
}
