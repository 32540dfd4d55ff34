#pragma once

#include "vdchartcore_export.h"

#include <QString>
#include <QStringList>

namespace vardeno::testcharttools {

/// The one of `names` that `name` is most likely meant to be, or an empty text where none is close: a few
/// letters may be wrong, and what stands before a name's last point may be missing.
VDCHARTCORE_EXPORT QString nearestName(const QString& name, const QStringList& names);

} // namespace vardeno::testcharttools
