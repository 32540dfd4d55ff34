#include "chartrenderer.h"

#include "exitcode.h"

#include <chartcheck.h>

using namespace vardeno::testcharttools;

ChartRenderer::ChartRenderer(const QString& language)
{
    m_editor.loadLanguageFiles({QStringLiteral(":/vardeno/translations/%1.ts").arg(language)});
    m_editor.switchLanguage(language);
}

QImage ChartRenderer::render(const TestChartToolsData& record)
{
    const QString problem = ChartCheck::pictureProblem(record);
    if (!problem.isEmpty())
        throw Failure{ExitCode::Unreadable, problem};
    m_editor.applyRecord(record);
    return m_editor.chartImage();
}
