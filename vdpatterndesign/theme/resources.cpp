#include "theme/resources.h"

#include <QtGlobal>

// The macro declares a function of the global namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(vdpatterndesign);
    Q_INIT_RESOURCE(vdpatterndesign_theme);
}

namespace vardeno::testcharttools {

void ensureResources()
{
    static const bool done = (initialiseResources(), true);
    Q_UNUSED(done)
}

} // namespace vardeno::testcharttools
