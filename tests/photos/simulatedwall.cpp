#include "simulatedwall.h"

#include <QPainter>

#include <cabinetgrid.h>
#include <chartpicture.h>
#include <presets.h>
#include <readingmarkers.h>

#include <algorithm>
#include <utility>

using namespace vardeno::testcharttools;

namespace Photos {

double between(Random& random, double least, double most)
{
    return least + (most - least) * (double(random()) / double(Random::max()));
}

int wholeBetween(Random& random, int least, int most)
{
    return least + int(random() % unsigned(most - least + 1));
}

const std::vector<std::string>& chartKinds()
{
    static const std::vector<std::string> kinds = {"default", "numbered", "bars", "minimal"};
    return kinds;
}

namespace {

WallSize randomSize(Random& random)
{
    static const std::vector<WallSize> grids = {{1920, 1080, 16, 9}, {1920, 1152, 15, 9}, {2016, 1176, 12, 7},
                                                {1920, 1152, 10, 6}, {1920, 1080, 16, 9}, {1536, 1024, 8, 4}};
    return grids[random() % grids.size()];
}

void usePreset(TestChartToolsData& record, const char* name)
{
    const auto& all = presets();
    const auto found = std::find_if(
        all.begin(), all.end(), [name](const Preset& preset) { return preset.name == QLatin1String(name); });
    if (found != all.end())
        found->apply(record, *found);
}

void label(InLineChartData& data, const RgbaColor& color, int size)
{
    data.showSerialNumber = true;
    data.serialColor = color;
    data.serialSize = size;
}

TestChartToolsData recordOf(const std::string& kind, const WallSize& grid)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = grid.width;
    record.publicData.resolutionHeight = grid.height;
    record.publicData.boxCol = grid.columns;
    record.publicData.boxRow = grid.rows;
    if (kind == "numbered")
        usePreset(record, "numbering-top-left");
    if (kind == "bars") {
        usePreset(record, "bars");
        label(record.inLineData, {255, 255, 255, 255}, 32);
        record.inLineData.serialColor = {128, 128, 128, 255};
    }
    if (kind == "tags")
        usePreset(record, "tags");
    if (kind == "minimal") {
        usePreset(record, "flood-black");
        record.basicData.oddColor = {64, 64, 64, 255};
        record.basicData.evenColor = {96, 96, 96, 255};
        label(record.inLineData, {255, 255, 255, 255}, 28);
    }
    return record;
}

/// Puts `content` where `cabinet` is.
void put(Wall& wall, std::size_t cabinet, const QImage& content)
{
    QPainter painter(&wall.shown);
    const QRect rect = wall.cabinets.cabinets[cabinet].rect;
    painter.drawImage(rect.topLeft(), content.size() == rect.size() ? content : content.scaled(rect.size()));
}

QImage contentOf(const Wall& wall, std::size_t cabinet)
{
    return wall.chart.copy(wall.cabinets.cabinets[cabinet].rect);
}

/// Makes the faults of one wall, each in cabinets that are still right.
class FaultMaker
{
public:
    FaultMaker(Wall& wall, Random& random)
        : m_wall(wall)
        , m_random(random)
    {
        for (std::size_t i = 0; i < wall.cabinets.cabinets.size(); ++i)
            m_right.push_back(i);
    }

    void make(int count)
    {
        while (count > 0) {
            const int kind = wholeBetween(m_random, 0, 8);
            if (kind <= 1 && count >= 2)
                count -= ring(std::min(count, kind == 0 ? 2 : 3));
            else if (kind > 1)
                count -= single(kind);
        }
    }

private:
    Fault& fault(std::size_t cabinet, const char* kind)
    {
        Fault fault;
        fault.kind = kind;
        fault.row = m_wall.cabinets.rowOf(cabinet);
        fault.column = m_wall.cabinets.columnOf(cabinet);
        m_wall.faults.push_back(fault);
        return m_wall.faults.back();
    }

    std::size_t take()
    {
        const std::size_t at = m_random() % m_right.size();
        const std::size_t cabinet = m_right[at];
        m_right.erase(m_right.begin() + std::ptrdiff_t(at));
        return cabinet;
    }

    int ring(int length)
    {
        std::vector<std::size_t> members;
        for (int i = 0; i < length; ++i)
            members.push_back(take());
        for (std::size_t i = 0; i < members.size(); ++i) {
            const std::size_t shows = members[(i + 1) % members.size()];
            Fault& made = fault(members[i], "swapped");
            made.showsRow = m_wall.cabinets.rowOf(shows);
            made.showsColumn = m_wall.cabinets.columnOf(shows);
            put(m_wall, members[i], contentOf(m_wall, shows));
        }
        return length;
    }

    int single(int kind)
    {
        const std::size_t cabinet = take();
        if (kind >= 7 && litChannels(cabinet).empty())
            return 0; // nothing to see
        switch (kind) {
        case 2:
            turn(cabinet);
            break;
        case 3:
            fill(fault(cabinet, "dark"), cabinet, Qt::black);
            break;
        case 4:
            fill(fault(cabinet, "flat"), cabinet, flatColor());
            break;
        case 5:
            other(cabinet);
            break;
        case 6:
            shift(cabinet);
            break;
        case 7:
            brightness(cabinet);
            break;
        default:
            color(cabinet);
        }
        return 1;
    }

    QColor flatColor()
    {
        static const std::vector<QColor> colors = {Qt::red, Qt::green, Qt::blue, Qt::white,
                                                   QColor(0, 160, 160)};
        return colors[m_random() % colors.size()];
    }

    void fill(const Fault&, std::size_t cabinet, const QColor& color)
    {
        QImage content = contentOf(m_wall, cabinet);
        content.fill(color);
        put(m_wall, cabinet, content);
    }

    void turn(std::size_t cabinet)
    {
        const QImage content = contentOf(m_wall, cabinet);
        const bool isSquare = content.width() == content.height();
        const int choice = wholeBetween(m_random, 0, isSquare ? 3 : 1);
        Fault& made = fault(cabinet, choice == 0 ? "mirrored" : "turned");
        made.isMirrored = choice == 0;
        made.turn = choice == 0 ? 0 : choice == 1 ? 180 : choice == 2 ? 90 : 270;
        put(m_wall, cabinet,
            choice == 0 ? content.mirrored(true, false)
                        : content.transformed(QTransform().rotate(made.turn)));
    }

    /// A picture of something else: patches of grey and colour.
    void other(std::size_t cabinet)
    {
        fault(cabinet, "other");
        QImage content(6, 6, QImage::Format_RGB32);
        for (int y = 0; y < 6; ++y) {
            for (int x = 0; x < 6; ++x)
                content.setPixel(x, y,
                                 qRgb(wholeBetween(m_random, 0, 255), wholeBetween(m_random, 0, 255),
                                      wholeBetween(m_random, 0, 255)));
        }
        const QSize size = m_wall.cabinets.cabinets[cabinet].rect.size();
        put(m_wall, cabinet, content.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    void shift(std::size_t cabinet)
    {
        const QRect rect = m_wall.cabinets.cabinets[cabinet].rect;
        const int most = std::min(rect.width(), rect.height()) / 4;
        QPoint by;
        while (by.manhattanLength() < 8)
            by = QPoint(wholeBetween(m_random, -most, most), wholeBetween(m_random, -most, most));
        fault(cabinet, "shifted").shift = by;
        QImage content(rect.size(), QImage::Format_RGB32);
        content.fill(Qt::black);
        QPainter painter(&content);
        painter.drawImage(by, contentOf(m_wall, cabinet));
        painter.end();
        put(m_wall, cabinet, content);
    }

    /// Those that a cabinet without them would look different by.
    std::vector<int> litChannels(std::size_t cabinet) const
    {
        constexpr int lit = 40;
        const QColor mean = contentOf(m_wall, cabinet)
                                .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .pixelColor(0, 0);
        std::vector<int> channels;
        for (const auto& [channel, value] :
             {std::pair(0, mean.red()), std::pair(1, mean.green()), std::pair(2, mean.blue())}) {
            if (value >= lit)
                channels.push_back(channel);
        }
        return channels;
    }

    template <typename Change>
    void recolor(std::size_t cabinet, Change change)
    {
        QImage content = contentOf(m_wall, cabinet).convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < content.height(); ++y) {
            for (int x = 0; x < content.width(); ++x)
                content.setPixel(x, y, change(content.pixel(x, y)));
        }
        put(m_wall, cabinet, content);
    }

    void brightness(std::size_t cabinet)
    {
        fault(cabinet, "brightness");
        const double factor = between(m_random, 0.4, 0.7);
        recolor(cabinet, [factor](QRgb color) {
            return qRgb(int(qRed(color) * factor), int(qGreen(color) * factor), int(qBlue(color) * factor));
        });
    }

    void color(std::size_t cabinet)
    {
        fault(cabinet, "color");
        const std::vector<int> channels = litChannels(cabinet);
        const int missing = channels[m_random() % channels.size()];
        recolor(cabinet, [missing](QRgb color) {
            return qRgb(missing == 0 ? 0 : qRed(color), missing == 1 ? 0 : qGreen(color),
                        missing == 2 ? 0 : qBlue(color));
        });
    }

    Wall& m_wall;
    Random& m_random;
    std::vector<std::size_t> m_right;
};

} // namespace

Wall rightWall(const std::string& kind, const WallSize& size)
{
    Wall wall;
    wall.chartKind = kind;
    wall.record = recordOf(kind, size);
    wall.cabinets = cabinetsOf(wall.record);
    const MarkerData markers = {kind == "tags"};
    wall.markers = readingMarkers(wall.record, markers);
    wall.chart = ChartPicture(wall.record, {}, markers).image();
    wall.shown = wall.chart;
    return wall;
}

Wall simulatedWall(const std::string& kind, int faults, Random& random)
{
    Wall wall = rightWall(kind, randomSize(random));
    FaultMaker(wall, random).make(faults);
    return wall;
}

} // namespace Photos
