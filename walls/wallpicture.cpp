#include "wallpicture.h"

#include "layers/stackpicture.h"
#include "walllayers.h"

namespace vardeno::walls {

class WallPicture::Impl
{
public:
    Impl(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
         const testcharttools::ChartCaptions& captions, const testcharttools::MarkerData& markers)
        : layers(wall, record, captions, markers)
        , picture(layers.size(), layers.drawn())
    {
    }

    WallLayers layers; ///< whose addresses the picture has
    testcharttools::StackPicture picture;
};

WallPicture::WallPicture(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
                         const testcharttools::ChartCaptions& captions)
    : WallPicture(wall, record, captions, {})
{
}

WallPicture::WallPicture(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
                         const testcharttools::ChartCaptions& captions,
                         const testcharttools::MarkerData& markers)
    : d(std::make_shared<Impl>(wall, record, captions, markers))
{
}

WallPicture::WallPicture(const WallPicture& other) = default;
WallPicture& WallPicture::operator=(const WallPicture& other) = default;
WallPicture::~WallPicture() = default;

QSize WallPicture::size() const
{
    return d->picture.size();
}

bool WallPicture::isDrawnInParts() const
{
    return d->picture.isDrawnInParts();
}

QImage WallPicture::image() const
{
    return rows(0, size().height());
}

QImage WallPicture::rows(int top, int count) const
{
    return d->picture.rows(top, count);
}

QImage WallPicture::area(const QRect& area) const
{
    return d->picture.area(area);
}

testcharttools::PictureRows WallPicture::strips() const
{
    return testcharttools::inStrips(
        size(), [held = d, rows = d->picture.strips()](int top, int count) { return rows(top, count); });
}

} // namespace vardeno::walls
