#pragma once

#include "vdchartcore_export.h"

#include <QByteArray>
#include <QVector>

#include <memory>

class QSettings;
class QTemporaryFile;

namespace vardeno::testcharttools {

/// The INI text `ini` without the lines whose value holds an '@', written as itself or as an escape; such a
/// line becomes empty. `refused` gets the 1-based numbers of these lines. `QSettings` takes a value that
/// begins with an
/// '@' for a serialised object, which may be of any type and size.
QByteArray withoutObjects(const QByteArray& ini, QVector<int>* refused = nullptr);

/// An INI file of unknown origin, read as UTF-8: what `settings` gives, without the values that
/// `withoutObjects` leaves out. Each of them is told with a warning.
class VDCHARTCORE_EXPORT SafeSettings
{
public:
    /// `settings` stays in use while this object lives. Nothing may have been read from it before.
    explicit SafeSettings(QSettings& settings);
    ~SafeSettings();

    QSettings& settings();

private:
    QSettings* m_settings;
    std::unique_ptr<QTemporaryFile> m_file;
    std::unique_ptr<QSettings> m_ownSettings;
};

} // namespace vardeno::testcharttools
