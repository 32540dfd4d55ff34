#pragma once

#include <QFont>

/// The font of charts: the same, drawn in the same way, on every desktop and without one. The programs make
/// it the application's font, which is what charts are drawn in.
QFont chartFont();
