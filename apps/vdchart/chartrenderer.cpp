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

constexpr qint64 stripBytes = qint64(16) * 1024 * 1024; ///< of a large chart, at a time

QImage required(const QImage& drawn)
{
    if (drawn.isNull())
        throw Failure{ExitCode::NotWritten, QStringLiteral("not enough memory for the picture")};
    return drawn;
}

/// Of a chart's picture or of a wall's.
template <typename Picture>
PictureRows rowsOfPicture(const Picture& picture)
{
    if (!picture.isDrawnInParts())
        return rowsOf(required(picture.image()));
    const auto rows = [picture](int top, int count) { return required(picture.rows(top, count)); };
    const qint64 rowBytes = qint64(picture.size().width()) * qint64(sizeof(QRgb));
    return {picture.size(), rows, int(qMax<qint64>(1, stripBytes / rowBytes))};
}

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
    return required(picture.rows(0, picture.size.height()));
}

PictureRows ChartRenderer::rows(const ChartInput& input) const
{
    if (input.show)
        return rows(*input.show, input.output);
    requireLogo(input.record);
    if (!input.wall)
        return rowsOfPicture(ChartPicture(input.record, m_captions, input.markers));
    return rowsOfPicture(vardeno::walls::WallPicture(*input.wall, input.record, m_captions, input.markers));
}

PictureRows ChartRenderer::rows(const ShowInput& show, int output) const
{
    for (const auto& wall : show.walls)
        requireLogo(wall.record);
    return rowsOfPicture(vardeno::walls::ShowPicture(show.show, show.walls, output, m_captions));
}
