#pragma once

class QPalette;

/// A palette for working in the dark next to a bright wall.
QPalette darkPalette();
