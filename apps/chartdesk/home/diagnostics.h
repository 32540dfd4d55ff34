#pragma once

#include <QString>

/// What somebody who helps wants to know: versions, system, displays. In English, and nothing of the user's.
QString diagnostics();
