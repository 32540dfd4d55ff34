#pragma once

class QPalette;

/// A palette that goes with the editor: the colours of its theme, which the first editor of a process loads.
QPalette themePalette();
