#include "editor/editordelays.h"

namespace vardeno::testcharttools {

EditorDelays& editorDelays()
{
    static EditorDelays delays;
    return delays;
}

} // namespace vardeno::testcharttools
