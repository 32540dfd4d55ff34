#include "painters/recordlayers.h"

#include "geometry/recordcabinets.h"
#include "paintbasicwidget.h"
#include "painters/layerstack.h"
#include "paintinlinewidget.h"
#include "paintpiclogowidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintselfwidget.h"
#include "painttextlogowidget.h"
#include "testcharttoolsdata.h"

namespace vardeno::testcharttools {

namespace {

void show(const BasicChartData& data, PaintBasicWidget& layer)
{
    layer.setMode(data.chessChecked ? 0 : data.gradientChecked ? 1 : 2);
    layer.setOddColor(toQColor(data.oddColor));
    layer.setEvenColor(toQColor(data.evenColor));
}

void show(const PublicChartData& data, PaintPublicWidget& layer)
{
    layer.setOutLineVisible(data.showOutBorder);
    layer.setOutLineWidth(data.outBorderWidth);
    layer.setOutLineColor(toQColor(data.outBorderColor));
}

void show(const InLineChartData& data, PaintInLineWidget& layer)
{
    layer.setCircleVisible(data.showCircle);
    layer.setCircleRadius(ushort(data.circleSize));
    layer.setCircleLineWidth(ushort(data.circleWidth));
    layer.setCircleColor(toQColor(data.circleColor));
    layer.setDiagonalVisible(data.showDiagonal);
    layer.setDiagonalLineWidth(ushort(data.diagonalWidth));
    layer.setDiagonalColor(toQColor(data.diagonalColor));
    layer.setSerialVisible(data.showSerialNumber);
    layer.setSerialSize(ushort(data.serialSize));
    layer.setSerialColor(toQColor(data.serialColor));
    const LabelStyle labels = labelStyle(data);
    layer.setSerialMode(labels.mode);
    layer.setSerialPosition(labels.position);
    layer.setSerialSort(labels.sort);
}

template <typename Layer>
void showPlace(const LogoChartData& data, Layer& layer)
{
    layer.setPosition(data.displayPosition);
    layer.setMoveX(data.offsetX);
    layer.setMoveY(data.offsetY);
    layer.setOpacity(data.opacity);
}

void show(const LogoChartData& data, PaintPicLogoWidget& layer)
{
    showPlace(data, layer);
    layer.setScale(data.scale);
}

void show(const LogoChartData& data, PaintTextLogoWidget& layer)
{
    showPlace(data, layer);
    layer.setText(QString::fromStdString(data.logoText));
    layer.setTextSize(data.textSize);
    layer.setTextColor(toQColor(data.textColor));
}

void show(const SelfChartData& data, PaintSelfWidget& layer)
{
    layer.setSelfTextVisible(data.showSelfText);
    layer.setSelfText(QString::fromStdString(data.selfText));
    layer.setSelfTextSize(ushort(data.selfTextSize));
    layer.setSelfTextColor(toQColor(data.selfTextColor));
    layer.setResolutionVisible(data.showResolution);
    layer.setResolutionSize(ushort(data.resolutionTextSize));
    layer.setResolutionColor(toQColor(data.resolutionTextColor));
}

template <typename Layer>
void showGrid(const PublicChartData& data, Layer& layer)
{
    layer.setRows(ushort(data.boxRow));
    layer.setColumns(ushort(data.boxCol));
}

} // namespace

TestChartToolsData withChoices(TestChartToolsData record)
{
    BasicChartData& basic = record.basicData;
    basic.chessChecked |= !basic.colorBarChecked;
    InLineChartData& labels = record.inLineData;
    labels.letterMode |= !labels.numMode && !labels.combinationMode;
    LogoChartData& logo = record.logoData;
    logo.pictureLogo |= !logo.textLogo;
    return record;
}

void showRecord(const TestChartToolsData& record, const LayerStack& layers)
{
    show(record.basicData, *layers.find<PaintBasicWidget>());
    show(record.inLineData, *layers.find<PaintInLineWidget>());
    show(record.selfData, *layers.find<PaintSelfWidget>());
    show(record.logoData, *layers.find<PaintPicLogoWidget>());
    show(record.logoData, *layers.find<PaintTextLogoWidget>());
    layers.find<PaintPublicBrightWidget>()->setBrightness(ushort(record.publicData.brightness));
    show(record.publicData, *layers.find<PaintPublicWidget>());

    showGrid(record.publicData, *layers.find<PaintBasicWidget>());
    showGrid(record.publicData, *layers.find<PaintInLineWidget>());
    showGrid(record.publicData, *layers.find<PaintSelfWidget>());
    showGrid(record.publicData, *layers.find<PaintPublicWidget>());
}

void showGridRows(int rows, const LayerStack& layers)
{
    layers.find<PaintInLineWidget>()->setRows(ushort(rows));
    layers.find<PaintSelfWidget>()->setRows(ushort(rows));
    layers.find<PaintBasicWidget>()->setRows(ushort(rows));
}

void showGridColumns(int columns, const LayerStack& layers)
{
    layers.find<PaintInLineWidget>()->setColumns(ushort(columns));
    layers.find<PaintSelfWidget>()->setColumns(ushort(columns));
    layers.find<PaintBasicWidget>()->setColumns(ushort(columns));
}

} // namespace vardeno::testcharttools
