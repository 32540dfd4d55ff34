#pragma once

namespace vardeno::testcharttools {

/// Makes the library's compiled-in resources available, also where the library is linked statically. Cheap to
/// call again; every class that reads a resource calls it first.
void ensureResources();

} // namespace vardeno::testcharttools
