#pragma once

// What differs between Qt 5 and Qt 6.

#include <QEvent>
#include <QSettings>
#include <QtGlobal>

#include <memory>

namespace vardeno::testcharttools {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// A copy of `event`, which Qt 6 makes on its own only.
template <typename Event>
std::shared_ptr<QEvent> copied(const Event& event)
{
    return std::shared_ptr<QEvent>(event.clone());
}

/// Reads and writes `settings` as UTF-8, as Qt 6 always does.
inline void useUtf8(QSettings& settings)
{
    Q_UNUSED(settings)
}

#else

template <typename Event>
std::shared_ptr<QEvent> copied(const Event& event)
{
    return std::make_shared<Event>(event);
}

inline void useUtf8(QSettings& settings)
{
    settings.setIniCodec("UTF-8");
}

#endif

} // namespace vardeno::testcharttools
