#pragma once

#include "layers/borderlayer.h"
#include "layers/inlinelayer.h"
#include "layers/patternlayer.h"
#include "layers/picturelogolayer.h"
#include "layers/sequencelayer.h"
#include "layers/textlayer.h"
#include "layers/textlogolayer.h"
#include "layers/veillayer.h"

#include "markerdata.h"

#include <QSize>

#include <vector>

namespace vardeno::testcharttools {

struct ChartCaptions;
struct TestChartToolsData;

/// Which of the two logos is shown.
enum class LogoStyle
{
    None,
    Picture,
    Text
};

/// All layers of a chart. A plain value.
struct VDCHARTCORE_EXPORT ChartLayers
{
    QSize size; ///< of the chart, in pixels
    PatternLayer pattern;
    SequenceLayer sequence;
    InlineLayer inLine;
    TextLayer texts;
    PictureLogoLayer pictureLogo;
    TextLogoLayer textLogo;
    LogoStyle logo = LogoStyle::None;
    VeilLayer veil;
    BorderLayer border;

    /// Those that draw anything, bottom to top.
    std::vector<const ChartLayer*> drawn() const;
    /// Makes these ready to be drawn.
    void fit();
};

/// The layers of `record`. Of several patterns, logos or ways of labelling that are chosen the one counts
/// that the panels would show; where none is chosen, the default one. The picture of the logo is read from
/// its file, unless it is the one that was read last. For any thread.
VDCHARTCORE_EXPORT ChartLayers layersOf(const TestChartToolsData& record, const ChartCaptions& captions,
                                        const MarkerData& markers = {});

} // namespace vardeno::testcharttools
