#pragma once

#include "vdpatterndesign_export.h"

namespace vardeno::testcharttools {

/// What the editor waits for, in milliseconds. Settable for tests; a tool that exists keeps what it began.
struct EditorDelays
{
    int lock = 10;      ///< lets the mask paint before the panels lock
    int snapshot = 100; ///< one snapshot for all that a change sets off
    int removal = 2000; ///< the host learns of the new chart before the old one goes
    int patience = 400; ///< of a calm lock: what takes longer is seen
    int burst = 1000;   ///< changes of one field that follow in less are one step of the history
};

VDPATTERNDESIGN_EXPORT EditorDelays& editorDelays();

} // namespace vardeno::testcharttools
