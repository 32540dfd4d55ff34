#include "chartcheck.h"

#include "geometry/cabinetmarkers.h"
#include "geometry/picturecheck.h"
#include "geometry/recordcabinets.h"
#include "geometry/recordcolors.h"
#include "geometry/recordink.h"

#include <algorithm>

namespace vardeno::testcharttools::ChartCheck {

namespace {

constexpr int mostLetters = 26;
constexpr int leastBrightness = 10; ///< percent

class Check
{
public:
    Check(const TestChartToolsData& record, const MarkerData& markers)
        : m_record(record)
        , m_markers(markers)
    {
    }

    QStringList run();

private:
    void warn(const char* field, const QString& what)
    {
        m_warnings.append(QLatin1String(field) + QLatin1String(": ") + what);
    }
    void warnIf(bool applies, const char* field, const char* what)
    {
        if (applies)
            warn(field, QLatin1String(what));
    }

    void checkPattern();
    void checkStripes();
    bool isFlood() const;
    void checkBrightness();
    void checkGrid();
    void checkDivision(const char* field, int pixels, int cabinets);
    void checkBorder();
    void checkCircleAndDiagonal();
    void checkLabels();
    void checkLabelMode();
    void checkLabelSize();
    void checkLabelColor();
    void checkRepeatedLabels();
    void checkLogo();
    void checkPictureLogo();
    void checkTextLogo();
    void checkLogoSize();
    void checkCustomText();
    void checkResolutionLine();
    void checkMarkers();
    void checkCoveredMarkers(const std::vector<CabinetMarker>& markers);
    void checkTextSize(const char* field, const QString& what, int requested, int fitted);
    void checkText(const char* field, const QString& what, const QRect& ink);
    void checkCovering(const char* field, const QString& what, const QRect& ink);

    const TestChartToolsData& m_record;
    const MarkerData m_markers;
    QStringList m_warnings;
};

/// Of a long text the beginning.
QString quoted(const QString& text)
{
    constexpr int longest = 40;
    const QString shown = text.size() > longest ? text.left(longest) + QChar(0x2026) : text;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString quoted(const std::string& text)
{
    return quoted(QString::fromStdString(text));
}

QString tooSmall(int size)
{
    return QStringLiteral("%1 pixels are below the %2 that can be read").arg(size).arg(readableTextSize);
}

QStringList Check::run()
{
    checkPattern();
    checkBrightness();
    checkGrid();
    checkBorder();
    checkCircleAndDiagonal();
    checkLabels();
    checkLogo();
    checkCustomText();
    checkResolutionLine();
    checkMarkers();
    return m_warnings;
}

void Check::checkPattern()
{
    const BasicChartData& data = m_record.basicData;
    warnIf(data.chessChecked == data.colorBarChecked, "basicData.chessChecked",
           data.chessChecked ? "basicData.colorBarChecked is true as well; the color bar is drawn"
                             : "basicData.colorBarChecked is false as well; the record does not say what to "
                               "draw");
    warnIf(hasPlainChess(data) && m_record.publicData.boxRow * m_record.publicData.boxCol > 1 && !isFlood(),
           "basicData.evenColor", "the same as basicData.oddColor; the cabinets cannot be told apart by it");
    if (data.colorBarChecked && !data.gradientChecked)
        checkStripes();
}

/// Nothing but one colour, and perhaps its frame: who leaves all the rest away means it.
bool Check::isFlood() const
{
    const InLineChartData& lines = m_record.inLineData;
    return !lines.showCircle && !lines.showDiagonal && !lines.showSerialNumber &&
           !m_record.logoData.showLogo && !m_record.selfData.showSelfText &&
           !m_record.selfData.showResolution;
}

void Check::checkStripes()
{
    const BasicChartData& data = m_record.basicData;
    const auto stripes = int(data.colorStripeColors.size());
    const int width = m_record.publicData.resolutionWidth;
    if (stripes == 0)
        warn("basicData.colorStripeColors", QStringLiteral("no colors; no stripes are drawn"));
    else if (stripes > width)
        warn("basicData.colorStripeColors",
             QStringLiteral("%1 stripes do not fit %2 pixels; none is drawn").arg(stripes).arg(width));
    else if (width % stripes > 0)
        warn("basicData.colorStripeColors",
             QStringLiteral("%1 pixels / %2 stripes leave a remainder of %3, which stays black")
                 .arg(width)
                 .arg(stripes)
                 .arg(width % stripes));
}

void Check::checkBrightness()
{
    const PublicChartData& data = m_record.publicData;
    const bool border = data.showOutBorder && data.outBorderColor.alpha > 0;
    warnIf(data.brightness == 0, "publicData.brightness",
           border ? "0 percent leaves nothing but the outer border" : "0 percent leaves a black chart");
    if (data.brightness > 0 && data.brightness < leastBrightness)
        warn("publicData.brightness",
             QStringLiteral("%1 percent leaves %2 of 255 levels, which are hardly seen")
                 .arg(data.brightness)
                 .arg(255 * data.brightness / 100));
}

void Check::checkGrid()
{
    const PublicChartData& data = m_record.publicData;
    checkDivision("publicData.boxRow", data.resolutionHeight, data.boxRow);
    checkDivision("publicData.boxCol", data.resolutionWidth, data.boxCol);
}

void Check::checkDivision(const char* field, int pixels, int cabinets)
{
    if (cabinets > pixels)
        warn(field, QStringLiteral("%1 cabinets do not fit %2 pixels").arg(cabinets).arg(pixels));
    else if (pixels % cabinets > 0)
        warn(field, QStringLiteral("%1 pixels / %2 cabinets leave a remainder of %3")
                        .arg(pixels)
                        .arg(cabinets)
                        .arg(pixels % cabinets));
}

void Check::checkBorder()
{
    const PublicChartData& data = m_record.publicData;
    warnIf(data.showOutBorder && data.outBorderColor.alpha == 0, "publicData.outBorderColor",
           "alpha 0 draws no outer border");
}

void Check::checkCircleAndDiagonal()
{
    const InLineChartData& data = m_record.inLineData;
    warnIf(data.showCircle && data.circleColor.alpha == 0, "inLineData.circleColor",
           "alpha 0 draws no circles");
    warnIf(data.showDiagonal && data.diagonalColor.alpha == 0, "inLineData.diagonalColor",
           "alpha 0 draws no diagonals");
}

void Check::checkLabels()
{
    if (!m_record.inLineData.showSerialNumber)
        return;
    if (m_record.inLineData.serialColor.alpha == 0) {
        warn("inLineData.serialColor", QStringLiteral("alpha 0 draws no labels"));
        return;
    }
    checkLabelMode();
    checkLabelSize();
    checkLabelColor();
    checkRepeatedLabels();
}

void Check::checkLabelMode()
{
    const InLineChartData& data = m_record.inLineData;
    const int modes = int(data.letterMode) + int(data.numMode) + int(data.combinationMode);
    if (modes > 1)
        warn("inLineData.letterMode, numMode, combinationMode",
             QStringLiteral("more than one is true; %1 decides")
                 .arg(QLatin1String(data.combinationMode ? "combinationMode" : "numMode")));
    warnIf(modes == 0, "inLineData.letterMode, numMode, combinationMode",
           "none is true; the record does not say how to label");
}

void Check::checkLabelSize()
{
    const int requested = m_record.inLineData.serialSize;
    const int fitted = fittedLabelSize(m_record);
    if (fitted >= readableTextSize)
        return;
    if (fitted == requested)
        warn("inLineData.serialSize", tooSmall(requested));
    else
        warn(
            "inLineData.serialSize",
            QStringLiteral("%1 pixels do not fit a cabinet of %2; drawn at %3, below the %4 that can be read")
                .arg(requested)
                .arg(sized(cabinetGrid(m_record.publicData).cell(0, 0).size()))
                .arg(fitted)
                .arg(readableTextSize));
}

void Check::checkLabelColor()
{
    const HiddenLabels hidden = hiddenLabels(m_record);
    const int cabinets = m_record.publicData.boxRow * m_record.publicData.boxCol;
    if (hidden.count > 0)
        warn("inLineData.serialColor",
             QStringLiteral("the labels of %1 of %2 cabinets can hardly be told from the cabinet, first %3")
                 .arg(QString::number(hidden.count), QString::number(cabinets), hidden.first));
}

void Check::checkRepeatedLabels()
{
    const uint mode = labelStyle(m_record.inLineData).mode;
    const PublicChartData& data = m_record.publicData;
    const auto check = [&](const char* field, int count, const char* what) {
        if (count > mostLetters)
            warn(field, QStringLiteral("the letters of %1 %2 repeat after %3; labels are not unique")
                            .arg(count)
                            .arg(QLatin1String(what))
                            .arg(mostLetters));
    };
    if (mode != 1)
        check("publicData.boxRow", data.boxRow, "rows");
    if (mode == 0)
        check("publicData.boxCol", data.boxCol, "columns");
}

void Check::checkLogo()
{
    const LogoChartData& data = m_record.logoData;
    if (!data.showLogo)
        return;
    warnIf(data.pictureLogo == data.textLogo, "logoData.pictureLogo",
           data.textLogo ? "logoData.textLogo is true as well; the text is drawn"
                         : "logoData.textLogo is false as well; the record does not say what to draw");
    if (data.opacity == 0) {
        warn("logoData.opacity", QStringLiteral("0 percent draws no logo"));
        return;
    }
    if (data.textLogo)
        checkTextLogo();
    else
        checkPictureLogo();
    checkLogoSize();
    checkCovering("logoData.showLogo", QStringLiteral("the logo"), logoInk(m_record));
}

void Check::checkPictureLogo()
{
    warnIf(m_record.logoData.scale == 0, "logoData.scale", "0 percent draws no logo");
    const QString problem = pictureProblem(m_record);
    if (!problem.isEmpty())
        m_warnings.append(problem);
}

void Check::checkTextLogo()
{
    const LogoChartData& data = m_record.logoData;
    if (data.logoText.empty()) {
        warn("logoData.logoText", QStringLiteral("empty; no logo is drawn"));
        return;
    }
    if (data.textSize == 0) {
        warn("logoData.textSize", QStringLiteral("0 pixels draw no logo"));
        return;
    }
    if (data.textColor.alpha != 255)
        warn("logoData.textColor",
             QStringLiteral("alpha %1 has no effect; logoData.opacity decides").arg(data.textColor.alpha));
    checkTextSize("logoData.textSize", quoted(data.logoText), data.textSize,
                  textLogo(m_record).fitted.pixelSize);
}

void Check::checkLogoSize()
{
    const QRect ink = logoInk(m_record);
    const QSize chart = chartSize(m_record);
    const double share = double(ink.width()) * ink.height() / (double(chart.width()) * chart.height());
    if (ink.isEmpty() || share <= 1.0 / 3.0)
        return;
    const QString covers =
        QStringLiteral("the logo covers %1 of the chart, %2 percent, more than a third of it")
            .arg(sized(ink.size()))
            .arg(int(share * 100));
    if (m_record.logoData.textLogo)
        warn("logoData.textSize", QStringLiteral("at %1 pixels ").arg(m_record.logoData.textSize) + covers);
    else
        warn("logoData.scale", QStringLiteral("at %1 percent ").arg(m_record.logoData.scale) + covers);
}

void Check::checkCustomText()
{
    const SelfChartData& data = m_record.selfData;
    if (!data.showSelfText)
        return;
    warnIf(data.selfText.empty(), "selfData.selfText", "empty; no custom text is drawn");
    warnIf(data.selfTextColor.alpha == 0, "selfData.selfTextColor", "alpha 0 draws no custom text");
    if (data.selfText.empty() || data.selfTextColor.alpha == 0)
        return;
    checkTextSize("selfData.selfTextSize", quoted(data.selfText), data.selfTextSize,
                  customTextLine(m_record).fitted.pixelSize);
    checkText("selfData.showSelfText", quoted(data.selfText), customTextInk(m_record));
}

void Check::checkResolutionLine()
{
    const SelfChartData& data = m_record.selfData;
    if (!data.showResolution)
        return;
    if (data.resolutionTextColor.alpha == 0) {
        warn("selfData.resolutionTextColor", QStringLiteral("alpha 0 draws no resolution"));
        return;
    }
    checkTextSize("selfData.resolutionTextSize", quoted(informationText(m_record)), data.resolutionTextSize,
                  informationLine(m_record).fitted.pixelSize);
    checkText("selfData.showResolution", QStringLiteral("the resolution"), informationInk(m_record));
}

void Check::checkMarkers()
{
    if (!m_markers.showMarkers)
        return;
    const std::vector<CabinetMarker> markers = cabinetMarkers(m_record);
    if (!markers.empty()) {
        checkCoveredMarkers(markers);
        return;
    }
    const bool isBesideLabels = m_record.inLineData.showSerialNumber;
    warn("markerData.showMarkers",
         QStringLiteral("cabinets of %1 have no room of %2 pixels%3 for a marker; none is drawn")
             .arg(sized(cabinetGrid(m_record.publicData).cell(0, 0).size()))
             .arg(leastMarkerRoom())
             .arg(QLatin1String(isBesideLabels ? " beside their labels" : "")));
}

/// The logo and the texts lie above them.
void Check::checkCoveredMarkers(const std::vector<CabinetMarker>& markers)
{
    const QRect inks[] = {logoInk(m_record), customTextInk(m_record), informationInk(m_record)};
    const auto isCovered = [&inks](const CabinetMarker& marker) {
        return std::any_of(std::begin(inks), std::end(inks),
                           [&marker](const QRect& ink) { return ink.intersects(marker.square); });
    };
    const auto covered = std::count_if(markers.begin(), markers.end(), isCovered);
    if (covered > 0)
        warn("markerData.showMarkers",
             QStringLiteral("the logo and the texts lie over the markers of %1 of %2 cabinets")
                 .arg(covered)
                 .arg(markers.size()));
}

void Check::checkTextSize(const char* field, const QString& what, int requested, int fitted)
{
    if (fitted >= readableTextSize)
        return;
    if (fitted == requested)
        warn(field, tooSmall(requested));
    else
        warn(field,
             QStringLiteral("%1 pixels are too many for %2; drawn at %3, below the %4 that can be read")
                 .arg(QString::number(requested), what, QString::number(fitted))
                 .arg(readableTextSize));
}

void Check::checkText(const char* field, const QString& what, const QRect& ink)
{
    checkCovering(field, what, ink);
    if (ink.intersects(logoInk(m_record)))
        warn(field, what + QLatin1String(" lies under the logo"));
}

void Check::checkCovering(const char* field, const QString& what, const QRect& ink)
{
    const CoveredLabels covered = coveredLabels(m_record, ink);
    if (covered.count == 0)
        return;
    const int cabinets = m_record.publicData.boxRow * m_record.publicData.boxCol;
    warn(field, QStringLiteral("%1 lies over the labels of %2 of %3 cabinets, first %4")
                    .arg(what, QString::number(covered.count), QString::number(cabinets), covered.first));
}

} // namespace

QStringList warnings(const TestChartToolsData& record)
{
    return warnings(record, {});
}

QStringList warnings(const TestChartToolsData& record, const MarkerData& markers)
{
    return Check(record, markers).run();
}

QString pictureProblem(const TestChartToolsData& record)
{
    const QString problem = logoFileProblem(record);
    return problem.isEmpty() ? problem : QLatin1String("logoData.picturePath: ") + problem;
}

} // namespace vardeno::testcharttools::ChartCheck
