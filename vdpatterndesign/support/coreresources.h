#pragma once

namespace vardeno::testcharttools {

/// Makes the resources that are compiled into the core available, also where it is linked statically.
void ensureCoreResources();

} // namespace vardeno::testcharttools
