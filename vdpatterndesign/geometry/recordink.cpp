#include "geometry/recordink.h"

#include "chartcabinets.h"
#include "geometry/recordcabinets.h"
#include "geometry/textfont.h"
#include "support/defaultlogo.h"
#include "support/imagefile.h"
#include "support/translation.h"
#include "testcharttoolsdata.h"

#include <QFontMetrics>

#include <algorithm>
#include <cstdlib>

namespace vardeno::testcharttools {

namespace {

QRect glyphs(const QString& text, const FittedText& fitted, const QPoint& baseline)
{
    if (fitted.pixelSize == 0)
        return QRect();
    return QFontMetrics(fitted.font).tightBoundingRect(text).translated(baseline);
}

QRect onChart(const TestChartToolsData& record, const QRect& rect)
{
    return rect & QRect(QPoint(), chartSize(record));
}

QRect lineInk(const TestChartToolsData& record, const ChartLine& line, const QString& text)
{
    const QPoint baseline = (chartLinesOrigin(chartSize(record)) + line.at).toPoint();
    return onChart(record, glyphs(text, line.fitted, baseline));
}

/// The line has no captions before a language has been chosen.
QString caption(const char* source)
{
    return isTranslated() ? translated(QLatin1String(source)) : QString();
}

QPoint centre(const QSize& chart)
{
    return {chart.width() / 2, chart.height() / 2};
}

QPoint logoAdjustment(const LogoChartData& data)
{
    return {data.offsetX, data.offsetY};
}

QRect textLogoInk(const TestChartToolsData& record)
{
    const TextLogo logo = textLogo(record);
    const QPoint baseline = centre(chartSize(record)) + logo.placement.at;
    return glyphs(QString::fromStdString(record.logoData.logoText), logo.fitted, baseline);
}

QRect pictureLogoInk(const TestChartToolsData& record)
{
    const QString path = logoPicture(record);
    if (examinePicture(path) != PictureFile::Readable)
        return QRect();
    const QSize whole = pictureSize(path);
    const auto scale = float(record.logoData.scale * 0.01);
    const QSize scaled = scaledPicture(whole, scale);
    const QSize chart = chartSize(record);
    const LogoPlacement placement =
        placedPicture(chart, scaled, record.logoData.displayPosition, logoAdjustment(record.logoData));
    return {centre(chart) + placement.at, scaled};
}

QFont labelFont(const TestChartToolsData& record)
{
    QFont font = textFont();
    font.setPixelSize(std::max(1, fittedLabelSize(record)));
    return font;
}

QRect labelInk(const PlacedText& placed, const QFontMetrics& metrics)
{
    const QString text = placed.head + placed.tail;
    const QRect line = metrics.boundingRect(placed.box, placed.alignment, text);
    return metrics.tightBoundingRect(text).translated(line.left(), line.top() + metrics.ascent());
}

/// Calls `found(row, column)` for each cabinet whose label `area` touches, row by row, for as long as it
/// returns true.
template <typename Found>
void forEachCoveredLabel(const TestChartToolsData& record, const QRect& area, Found found)
{
    if (!record.inLineData.showSerialNumber || record.inLineData.serialColor.alpha == 0 || area.isEmpty())
        return;
    const CabinetGrid grid = cabinetGrid(record.publicData);
    const LabelStyle style = labelStyle(record.inLineData);
    const QFontMetrics metrics(labelFont(record));
    const auto touches = [&](int row, int column) {
        const QRect cell = grid.cell(row, column);
        if (!cell.intersects(area))
            return false;
        const auto label = cabinetLabel(style, row, column, grid.rows, grid.columns);
        const auto texts = label ? placedLabel(*label, style.position, cell) : std::vector<PlacedText>();
        return std::any_of(texts.begin(), texts.end(), [&](const PlacedText& placed) {
            return labelInk(placed, metrics).intersects(area);
        });
    };
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            if (touches(row, column) && !found(row, column))
                return;
        }
    }
}

} // namespace

QSize chartSize(const TestChartToolsData& record)
{
    return {record.publicData.resolutionWidth, record.publicData.resolutionHeight};
}

ChartLine customTextLine(const TestChartToolsData& record)
{
    const SelfChartData& data = record.selfData;
    return customTextLine(chartSize(record), QString::fromStdString(data.selfText), data.selfTextSize);
}

QRect customTextInk(const TestChartToolsData& record)
{
    if (!record.selfData.showSelfText || record.selfData.selfTextColor.alpha == 0)
        return QRect();
    return lineInk(record, customTextLine(record), QString::fromStdString(record.selfData.selfText));
}

QString informationText(const TestChartToolsData& record)
{
    return informationText(chartSize(record), caption("ResolutionShow"), caption("BoxNumShow"),
                           quint32(record.publicData.boxRow) * quint32(record.publicData.boxCol));
}

ChartLine informationLine(const TestChartToolsData& record)
{
    return informationLine(chartSize(record), informationText(record), record.selfData.resolutionTextSize);
}

QRect informationInk(const TestChartToolsData& record)
{
    if (!record.selfData.showResolution || record.selfData.resolutionTextColor.alpha == 0)
        return QRect();
    return lineInk(record, informationLine(record), informationText(record));
}

bool showsTextLogo(const TestChartToolsData& record)
{
    return record.logoData.showLogo && record.logoData.textLogo;
}

bool showsPictureLogo(const TestChartToolsData& record)
{
    return record.logoData.showLogo && !record.logoData.textLogo;
}

TextLogo textLogo(const TestChartToolsData& record)
{
    const LogoChartData& data = record.logoData;
    return placedTextLogo(chartSize(record), QString::fromStdString(data.logoText), data.textSize,
                          data.displayPosition, logoAdjustment(data));
}

QString logoPicture(const TestChartToolsData& record)
{
    const std::string& path = record.logoData.picturePath;
    return path.empty() ? defaultLogo() : QString::fromStdString(path);
}

QRect logoInk(const TestChartToolsData& record)
{
    if (!record.logoData.showLogo || record.logoData.opacity == 0)
        return QRect();
    return onChart(record, showsTextLogo(record) ? textLogoInk(record) : pictureLogoInk(record));
}

int fittedLabelSize(const TestChartToolsData& record)
{
    return fittedLabelSize(record.inLineData.serialSize, textFont(), cabinetGrid(record.publicData));
}

CoveredLabels coveredLabels(const TestChartToolsData& record, const QRect& area)
{
    CoveredLabels covered;
    forEachCoveredLabel(record, area, [&](int row, int column) {
        if (covered.count++ == 0)
            covered.first = ChartCabinets::label(record, row, column);
        return true;
    });
    return covered;
}

bool coversLabels(const TestChartToolsData& record, const QRect& area)
{
    bool covers = false;
    forEachCoveredLabel(record, area, [&](int, int) {
        covers = true;
        return false;
    });
    return covers;
}

} // namespace vardeno::testcharttools
