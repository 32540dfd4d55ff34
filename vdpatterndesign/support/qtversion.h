#pragma once

// What differs between Qt 5 and Qt 6, and is needed in more than one place or would be in the way where it is
// needed.

#include <QSettings>
#include <QtGlobal>

class QEnterEvent;
class QEvent;

namespace vardeno::testcharttools {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

using EnterEvent = QEnterEvent;

/// Reads and writes `settings` as UTF-8, as Qt 6 always does.
inline void useUtf8(QSettings& settings)
{
    Q_UNUSED(settings)
}

#else

using EnterEvent = QEvent;

inline void useUtf8(QSettings& settings)
{
    settings.setIniCodec("UTF-8");
}

#endif

} // namespace vardeno::testcharttools
