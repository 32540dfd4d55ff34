#include "chartrenderer.h"

#include "chartinput.h"
#include "exitcode.h"

#include <chartcheck.h>
#include <chartlanguages.h>
#include <showpicture.h>
#include <translatemanager1.h>
#include <wallpicture.h>

using namespace vardeno::testcharttools;

namespace {

void requireLogo(const TestChartToolsData& record)
{
    const QString problem = ChartCheck::pictureProblem(record);
    if (!problem.isEmpty())
        throw Failure{ExitCode::Unreadable, problem};
}

} // namespace

ChartRenderer::ChartRenderer(const QString& language)
{
    ChartLanguages::load(language);
    TranslateManager1::instance().switchLanguage(language);
    m_captions = ChartCaptions::current();
}

QImage ChartRenderer::render(const ChartInput& input) const
{
    const PictureRows picture = rows(input);
    return picture.rows(0, picture.size.height());
}

PictureRows ChartRenderer::rows(const ChartInput& input) const
{
    if (input.show)
        return rows(*input.show, input.output);
    requireLogo(input.record);
    if (!input.wall)
        return ChartPicture(input.record, m_captions, input.markers).strips();
    return vardeno::walls::WallPicture(*input.wall, input.record, m_captions, input.markers).strips();
}

PictureRows ChartRenderer::rows(const ShowInput& show, int output) const
{
    for (const auto& wall : show.walls)
        requireLogo(wall.record);
    return vardeno::walls::ShowPicture(show.show, show.walls, output, m_captions).strips();
}
