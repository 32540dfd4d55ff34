#pragma once

namespace vardeno::testcharttools {

/// What is known of a layer's picture before it is drawn.
enum class LayerCoverage
{
    Unknown,
    Nothing, ///< no pixel is written
    Whole,   ///< every pixel is written, whatever was there before
    Opaque   ///< every pixel is written, and opaque
};

} // namespace vardeno::testcharttools
