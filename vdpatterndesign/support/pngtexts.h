#pragma once

#include "vdchartcore_export.h"

#include <QString>
#include <QtGlobal>

class QIODevice;

namespace vardeno::testcharttools {

/// The most bytes of the texts of a PNG picture, inflated, with which it is read. A show with hundreds of
/// walls has some. The toolkit inflates all of them as soon as it looks at a picture, of which a file of
/// some hundred kilobytes can have gigabytes.
constexpr qint64 mostPngText = 8LL * 1024 * 1024;

/// Whether `device` has, from where it stands, a PNG picture with more texts than that; false where it has
/// anything else. Needs little memory, whatever there is in it, and leaves the device where it stood. One
/// that cannot be sought in is not looked at.
VDCHARTCORE_EXPORT bool hasTooMuchText(QIODevice& device);
/// The same of a file; false where there is none.
VDCHARTCORE_EXPORT bool hasTooMuchText(const QString& path);

} // namespace vardeno::testcharttools
