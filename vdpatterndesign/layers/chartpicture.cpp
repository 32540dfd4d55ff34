#include "layers/chartpicture.h"

#include "layers/chartlayers.h"
#include "layers/layerpicture.h"
#include "support/translation.h"

#include <QPainter>

namespace vardeno::testcharttools {

namespace {

/// Lays the picture of `layer` over `chart`; false where there is no memory for it.
bool lay(const ChartLayer& layer, LayerPicture& picture, QImage& chart)
{
    QImage& own = picture.begin(chart.size(), layer.coverage());
    if (own.isNull())
        return false;
    {
        QPainter painter(&own);
        painter.setLayoutDirection(Qt::LeftToRight); // whatever the host's is
        layer.draw(painter, chart.size());
    }
    picture.end();
    QPainter painter(&chart);
    picture.paint(painter);
    return true;
}

} // namespace

ChartCaptions ChartCaptions::current()
{
    if (!isTranslated())
        return {};
    return {translated(QStringLiteral("ResolutionShow")), translated(QStringLiteral("BoxNumShow"))};
}

class ChartPicture::Impl
{
public:
    explicit Impl(ChartLayers chart)
        : layers(std::move(chart))
    {
        layers.fit();
    }

    ChartLayers layers;
};

ChartPicture::ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions)
    : d(std::make_shared<Impl>(layersOf(record, captions)))
{
}

ChartPicture::ChartPicture(const ChartPicture& other) = default;
ChartPicture& ChartPicture::operator=(const ChartPicture& other) = default;
ChartPicture::~ChartPicture() = default;

QSize ChartPicture::size() const
{
    return d->layers.size;
}

QImage ChartPicture::image() const
{
    QImage chart(size(), QImage::Format_RGB32);
    if (chart.isNull())
        return chart;
    const auto layers = d->layers.drawn();
    if (layers.empty() || layers.front()->coverage() != LayerCoverage::Opaque)
        chart.fill(Qt::black); // what no layer covers is dark on the wall
    LayerPicture picture;
    for (const ChartLayer* layer : layers) {
        if (layer->drawsOnLayersBelow()) {
            QPainter painter(&chart);
            layer->draw(painter, chart.size());
        } else if (!lay(*layer, picture, chart)) {
            return {};
        }
    }
    return chart;
}

} // namespace vardeno::testcharttools
