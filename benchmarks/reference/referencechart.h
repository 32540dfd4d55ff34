#pragma once

#include "referencegrids.h"
#include "referencelogos.h"
#include "referencepatterns.h"
#include "referencetexts.h"

#include <testcharttoolsdata.h>

#include <QImage>
#include <QListWidget>
#include <QStackedWidget>

#include <map>

namespace vardeno::testcharttools {

/// The test chart in the straightforward way, and nothing but that: what the library's pixels and speed are
/// compared with. Eight layers lie in one grid cell of a hidden view; each renders afresh at every change and
/// at every paint, and the view is composed by rendering it.
class ReferenceChart
{
public:
    enum class Logo
    {
        None,
        Picture,
        Text
    };

    ReferenceChart();

    /// Hands every value of `record` to its layer.
    void apply(const TestChartToolsData& record);

    /// Chart pixels.
    void setChartSize(const QSize& size) { m_view.setFixedSize(size); }
    /// The colours of gradient and stripes in the order of their keys.
    void setColorBar(const std::map<int, QColor>& colors);
    void showLogo(Logo logo);

    /// The chart in full resolution, black where nothing covers.
    QImage snapshot();

    ReferenceBasic* const basic = new ReferenceBasic;
    ReferenceSequence* const sequence = new ReferenceSequence;
    ReferenceInLine* const inLine = new ReferenceInLine;
    ReferenceTexts* const texts = new ReferenceTexts;
    ReferencePictureLogo* const pictureLogo = new ReferencePictureLogo;
    ReferenceTextLogo* const textLogo = new ReferenceTextLogo;
    ReferenceVeil* const veil = new ReferenceVeil;
    ReferenceBorder* const border = new ReferenceBorder;

private:
    void applyBasic(const BasicChartData& data);
    void applyPublic(const PublicChartData& data);
    void applyInLine(const InLineChartData& data);
    void applyLogo(const LogoChartData& data);
    void applySelf(const SelfChartData& data);

    QListWidget m_colorBar;
    QWidget m_view; ///< owns the layers
    QStackedWidget* const m_logos = new QStackedWidget;
};

} // namespace vardeno::testcharttools
