#include "chartrenderer.h"

ChartRenderer::ChartRenderer(const QString& language)
{
    m_editor.loadLanguageFiles({QStringLiteral(":/translations/%1.ts").arg(language)});
    m_editor.switchLanguage(language);
}

QImage ChartRenderer::render(const vardeno::testcharttools::TestChartToolsData& record)
{
    m_editor.applyRecord(record);
    return m_editor.chartImage();
}
