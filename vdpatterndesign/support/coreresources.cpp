#include "support/coreresources.h"

#include <QtGlobal>

// The macro declares a function of the global namespace.
static void initialiseCoreResources()
{
    Q_INIT_RESOURCE(vdchartcore_logo);
    Q_INIT_RESOURCE(vdchartcore_translations);
}

namespace vardeno::testcharttools {

void ensureCoreResources()
{
    static const bool done = (initialiseCoreResources(), true);
    Q_UNUSED(done)
}

} // namespace vardeno::testcharttools
