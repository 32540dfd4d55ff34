#include "layers/chartpicture.h"

#include "layers/chartlayers.h"
#include "layers/stackpicture.h"
#include "support/translation.h"

namespace vardeno::testcharttools {

ChartCaptions ChartCaptions::current()
{
    if (!isTranslated())
        return {};
    return {translated(QStringLiteral("ResolutionShow")), translated(QStringLiteral("BoxNumShow"))};
}

namespace {

ChartLayers fitted(ChartLayers layers)
{
    layers.fit();
    return layers;
}

} // namespace

class ChartPicture::Impl
{
public:
    explicit Impl(ChartLayers chart)
        : layers(fitted(std::move(chart)))
        , picture(layers.size, layers.drawn())
    {
    }

    ChartLayers layers; ///< whose addresses the picture has
    StackPicture picture;
};

ChartPicture::ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions)
    : ChartPicture(record, captions, {})
{
}

ChartPicture::ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions,
                           const MarkerData& markers)
    : d(std::make_shared<Impl>(layersOf(record, captions, markers)))
{
}

ChartPicture::ChartPicture(const ChartPicture& other) = default;
ChartPicture& ChartPicture::operator=(const ChartPicture& other) = default;
ChartPicture::~ChartPicture() = default;

QSize ChartPicture::size() const
{
    return d->layers.size;
}

bool ChartPicture::isDrawnInParts() const
{
    return d->picture.isDrawnInParts();
}

QImage ChartPicture::image() const
{
    return rows(0, size().height());
}

QImage ChartPicture::rows(int top, int count) const
{
    return d->picture.rows(top, count);
}

PictureRows ChartPicture::strips() const
{
    return inStrips(size(),
                    [held = d, rows = d->picture.strips()](int top, int count) { return rows(top, count); });
}

} // namespace vardeno::testcharttools
