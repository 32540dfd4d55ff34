#include "layers/chartlayers.h"

#include "chartpicture.h"
#include "geometry/recordcabinets.h"
#include "geometry/recordink.h"
#include "support/imagefile.h"
#include "testcharttoolsdata.h"

#include <QMutex>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

/// The picture in `path`. Charts that are drawn one after another mostly have the same logo.
QImage logoFrom(const QString& path)
{
    static QMutex mutex;
    static CachedPicture last;
    const QMutexLocker locker(&mutex);
    return last.load(path);
}

PatternLayer patternOf(const TestChartToolsData& record)
{
    const BasicChartData& data = record.basicData;
    PatternLayer layer;
    layer.mode = !data.colorBarChecked ? 0 : data.gradientChecked ? 1 : 2;
    layer.oddColor = toQColor(data.oddColor);
    layer.evenColor = toQColor(data.evenColor);
    layer.rows = ushort(record.publicData.boxRow);
    layer.columns = ushort(record.publicData.boxCol);
    for (const auto& [row, color] : data.colorStripeColors)
        layer.colors.append(color);
    return layer;
}

InlineLayer inLineOf(const TestChartToolsData& record)
{
    const InLineChartData& data = record.inLineData;
    InlineLayer layer;
    layer.circleVisible = data.showCircle;
    layer.circleRadius = ushort(data.circleSize);
    layer.circleLineWidth = ushort(data.circleWidth);
    layer.circleColor = toQColor(data.circleColor);
    layer.diagonalVisible = data.showDiagonal;
    layer.diagonalLineWidth = ushort(data.diagonalWidth);
    layer.diagonalColor = toQColor(data.diagonalColor);
    layer.serialVisible = data.showSerialNumber;
    layer.serialSize = ushort(data.serialSize);
    layer.serialColor = toQColor(data.serialColor);
    layer.serial = labelStyle(data);
    layer.rows = ushort(record.publicData.boxRow);
    layer.columns = ushort(record.publicData.boxCol);
    return layer;
}

TextLayer textsOf(const TestChartToolsData& record, const ChartCaptions& captions)
{
    const SelfChartData& data = record.selfData;
    TextLayer layer;
    layer.selfTextVisible = data.showSelfText;
    layer.selfText = QString::fromStdString(data.selfText);
    layer.selfTextSize = ushort(data.selfTextSize);
    layer.selfTextColor = toQColor(data.selfTextColor);
    layer.resolutionVisible = data.showResolution;
    layer.resolutionSize = ushort(data.resolutionTextSize);
    layer.resolutionColor = toQColor(data.resolutionTextColor);
    layer.rows = ushort(record.publicData.boxRow);
    layer.columns = ushort(record.publicData.boxCol);
    layer.resolutionCaption = captions.resolution;
    layer.boxNumCaption = captions.cabinets;
    return layer;
}

PictureLogoLayer pictureLogoOf(const TestChartToolsData& record)
{
    const LogoChartData& data = record.logoData;
    PictureLogoLayer layer;
    layer.picture = logoFrom(logoPicture(record));
    layer.scale = float(data.scale * 0.01);
    layer.opacity = float(data.opacity * 0.01);
    layer.position = data.displayPosition;
    layer.moveX = data.offsetX;
    layer.moveY = data.offsetY;
    return layer;
}

TextLogoLayer textLogoOf(const LogoChartData& data)
{
    TextLogoLayer layer;
    layer.text = QString::fromStdString(data.logoText);
    layer.textSize = data.textSize;
    layer.color = toQColor(data.textColor);
    layer.opacity = data.opacity;
    layer.position = data.displayPosition;
    layer.moveX = data.offsetX;
    layer.moveY = data.offsetY;
    return layer;
}

BorderLayer borderOf(const PublicChartData& data)
{
    BorderLayer layer;
    layer.visible = data.showOutBorder;
    layer.width = data.outBorderWidth;
    layer.color = toQColor(data.outBorderColor);
    return layer;
}

} // namespace

std::vector<const ChartLayer*> ChartLayers::drawn() const
{
    std::vector<const ChartLayer*> drawn = {&pattern, &sequence, &inLine, &texts};
    if (logo == LogoStyle::Picture)
        drawn.push_back(&pictureLogo);
    else if (logo == LogoStyle::Text)
        drawn.push_back(&textLogo);
    drawn.insert(drawn.end(), {&veil, &border});
    const auto drawsNothing = [](const ChartLayer* layer) {
        return !layer->isDrawable() || layer->coverage() == LayerCoverage::Nothing;
    };
    drawn.erase(std::remove_if(drawn.begin(), drawn.end(), drawsNothing), drawn.end());
    return drawn;
}

void ChartLayers::fit()
{
    sequence.fit(size);
    inLine.fit(size);
    texts.fit(size);
    if (logo == LogoStyle::Picture)
        pictureLogo.fit(size);
    else if (logo == LogoStyle::Text)
        textLogo.fit(size);
}

ChartLayers layersOf(const TestChartToolsData& record, const ChartCaptions& captions,
                     const MarkerData& markers)
{
    ChartLayers layers;
    layers.size = chartSize(record);
    layers.pattern = patternOf(record);
    layers.inLine = inLineOf(record);
    layers.inLine.markersVisible = markers.showMarkers;
    layers.texts = textsOf(record, captions);
    if (showsTextLogo(record)) {
        layers.logo = LogoStyle::Text;
        layers.textLogo = textLogoOf(record.logoData);
    } else if (showsPictureLogo(record)) {
        layers.logo = LogoStyle::Picture;
        layers.pictureLogo = pictureLogoOf(record);
    }
    layers.veil.brightness = ushort(record.publicData.brightness);
    layers.border = borderOf(record.publicData);
    return layers;
}

} // namespace vardeno::testcharttools
