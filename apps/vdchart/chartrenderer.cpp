#include "chartrenderer.h"

#include "exitcode.h"

#include <chartcheck.h>
#include <chartlanguages.h>
#include <translatemanager1.h>

using namespace vardeno::testcharttools;

ChartRenderer::ChartRenderer(const QString& language)
{
    ChartLanguages::load(language);
    TranslateManager1::instance().switchLanguage(language);
    m_captions = ChartCaptions::current();
}

QImage ChartRenderer::render(const TestChartToolsData& record) const
{
    const QString problem = ChartCheck::pictureProblem(record);
    if (!problem.isEmpty())
        throw Failure{ExitCode::Unreadable, problem};
    const QImage chart = ChartPicture(record, m_captions).image();
    if (chart.isNull())
        throw Failure{ExitCode::NotWritten, QStringLiteral("not enough memory for the picture")};
    return chart;
}
