#include "cableruns.h"
#include "records/documentfile.h"
#include "wallpicture.h"
#include "wallreport.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <map>

namespace vardeno::walls::WallReport {

using namespace testcharttools;

namespace {

constexpr int dotsPerInch = 300;
constexpr double dotsPerMillimeter = dotsPerInch / 25.4;
constexpr QSize pictureSize(3000, 1700); ///< pixels of the picture of a wall, about

/// One column of a table.
struct Column
{
    QString title;
    double width; ///< of the page, 0 to 1
    bool isNumber = true;
};

/// Writes pages one below the other.
class Pages
{
public:
    Pages(QPdfWriter& writer, QString title)
        : m_writer(writer)
        , m_painter(&writer)
        , m_title(std::move(title))
    {
    }

    void begin(const QString& heading);
    void line(const QString& text, double size = 9, bool bold = false);
    void picture(const QImage& image);
    void table(const QString& heading, const std::vector<Column>& columns,
               const std::vector<QStringList>& rows);

private:
    double millimeters(double length) const { return length * dotsPerMillimeter; }
    int width() const { return m_writer.width(); }
    double room() const { return m_writer.height() - m_y; }
    void row(const std::vector<Column>& columns, const QStringList& cells, bool bold);
    void setFont(double size, bool bold);

    QPdfWriter& m_writer;
    QPainter m_painter;
    QString m_title;
    double m_y = 0;
    int m_page = 0;
};

void Pages::setFont(double size, bool bold)
{
    QFont font = m_painter.font();
    font.setPointSizeF(size);
    font.setBold(bold);
    m_painter.setFont(font);
    m_painter.setPen(QColor(24, 26, 32));
}

void Pages::begin(const QString& heading)
{
    if (m_page++ > 0)
        m_writer.newPage();
    m_y = 0;
    setFont(9, false);
    m_painter.setPen(QColor(110, 116, 128));
    const QRectF top(0, 0, width(), millimeters(6));
    m_painter.drawText(top, Qt::AlignLeft | Qt::AlignVCenter, m_title);
    m_painter.drawText(top, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("page %1").arg(m_page));
    m_y = millimeters(8);
    line(heading, 16, true);
    m_y += millimeters(3);
}

void Pages::line(const QString& text, double size, bool bold)
{
    setFont(size, bold);
    const double height = size * dotsPerInch / 72.0 * 1.5;
    m_painter.drawText(QRectF(0, m_y, width(), height), Qt::AlignLeft | Qt::AlignVCenter, text);
    m_y += height;
}

void Pages::picture(const QImage& image)
{
    const QSizeF size = QSizeF(image.size()).scaled(width(), room(), Qt::KeepAspectRatio);
    const QRectF place((width() - size.width()) / 2, m_y, size.width(), size.height());
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(place, image);
    m_y += size.height();
}

void Pages::row(const std::vector<Column>& columns, const QStringList& cells, bool bold)
{
    setFont(9, bold);
    const double height = millimeters(5.2);
    double x = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const double columnWidth = columns[i].width * width();
        const QRectF box(x, m_y, columnWidth - millimeters(2), height);
        const QString text =
            m_painter.fontMetrics().elidedText(cells.value(int(i)), Qt::ElideMiddle, int(box.width()));
        m_painter.drawText(box, Qt::AlignVCenter | (columns[i].isNumber ? Qt::AlignRight : Qt::AlignLeft),
                           text);
        x += columnWidth;
    }
    m_y += height;
    m_painter.setPen(QPen(QColor(bold ? 90 : 214, bold ? 96 : 218, bold ? 108 : 226), millimeters(0.2)));
    m_painter.drawLine(QPointF(0, m_y), QPointF(x - millimeters(2), m_y));
}

/// On as many pages as it needs, each with the titles of the columns.
void Pages::table(const QString& heading, const std::vector<Column>& columns,
                  const std::vector<QStringList>& rows)
{
    QStringList titles;
    for (const Column& column : columns)
        titles.append(column.title);
    bool begun = false;
    for (const QStringList& cells : rows) {
        if (!begun || room() < millimeters(6)) {
            begin(begun ? heading + QStringLiteral(", continued") : heading);
            row(columns, titles, true);
            begun = true;
        }
        row(columns, cells, false);
    }
}

QString meters(qint64 millimeters)
{
    return millimeters > 0 ? QStringLiteral("%1 m").arg(double(millimeters) / 1000, 0, 'f', 1)
                           : QStringLiteral("–");
}

QString percent(double part)
{
    return QStringLiteral("%1 %").arg(100 * part, 0, 'f', 1);
}

void scale(CabinetSizes& sizes, double factor)
{
    for (int& pixels : sizes.pixels)
        pixels = std::max(1, int(pixels * factor + 0.5));
}

/// Takes a wall whose cables are there by hand: with other sizes a pattern would give others.
void scaleToPage(WallDocument& wall)
{
    const double factor = std::min(double(pictureSize.width()) / wall.columnWidths.total(),
                                   double(pictureSize.height()) / wall.rowHeights.total());
    scale(wall.columnWidths, factor);
    scale(wall.rowHeights, factor);
}

/// What is printed of a wall: its cabinets and cables on white paper, without its chart.
QImage plan(WallDocument wall, TestChartToolsData record)
{
    scaleToPage(wall);
    record.publicData.resolutionWidth = wall.columnWidths.total();
    record.publicData.resolutionHeight = wall.rowHeights.total();
    record.basicData.chessChecked = true;
    record.basicData.colorBarChecked = false;
    record.basicData.oddColor = {255, 255, 255, 255};
    record.basicData.evenColor = record.basicData.oddColor;
    record.publicData.brightness = 100;
    record.publicData.showOutBorder = false;
    record.inLineData.showCircle = false;
    record.inLineData.showDiagonal = false;
    record.inLineData.showSerialNumber = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    wall.layers.blackHoles = false; // which would take much ink
    wall.layers.frames = false;
    wall.layers.outlines = true;
    wall.layers.outlineWidth = 2;
    wall.layers.outlineColor = {130, 136, 148, 255};
    wall.layers.names = true;
    wall.layers.nameSize = 36;
    wall.layers.dataRuns = true;
    wall.layers.powerRuns = !wall.power.path.byHand.runs.empty();
    wall.layers.coordinates = false;
    return WallPicture(wall, record).image();
}

std::vector<QStringList> portTable(const std::vector<CableRow>& rows)
{
    std::vector<QStringList> table;
    for (const CableRow& row : rows)
        table.push_back({QStringLiteral("D%1").arg(row.number), row.first, row.last,
                         QString::number(row.cabinets), QString::number(row.pixels), percent(row.load),
                         QString::number(row.cabinets - 1), meters(row.longestLink), meters(row.linkLength)});
    return table;
}

std::vector<QStringList> circuitTable(const std::vector<CableRow>& rows)
{
    std::vector<QStringList> table;
    for (const CableRow& row : rows)
        table.push_back({QStringLiteral("P%1").arg(row.number), row.first, row.last,
                         QString::number(row.cabinets), QStringLiteral("%1 W").arg(row.watts),
                         QStringLiteral("%1 A").arg(row.amperes, 0, 'f', 1), percent(row.load),
                         QString::number(row.cabinets - 1), meters(row.longestLink), meters(row.linkLength)});
    return table;
}

/// How many cabinets of each size there are, with one spare for every twenty that were begun.
std::vector<QStringList> cabinetTable(const CabinetPlan& plan)
{
    std::map<std::pair<int, int>, int> counts;
    for (const WallCabinet& cabinet : plan.cabinets())
        ++counts[{cabinet.rect.width(), cabinet.rect.height()}];
    std::vector<QStringList> table;
    for (const auto& [size, count] : counts)
        table.push_back({QStringLiteral("%1 x %2 pixels").arg(size.first).arg(size.second),
                         QString::number(count), QString::number((count + 19) / 20)});
    return table;
}

void writePages(QPdfWriter& writer, const WallDocument& wall, const TestChartToolsData& record)
{
    const QString name = QString::fromStdString(wall.name);
    const QString title = name.isEmpty() ? QStringLiteral("Wall") : name;
    const CabinetPlan cabinets(wall);
    Pages pages(writer, title);
    pages.begin(title + QStringLiteral(", from the front"));
    pages.line(
        QStringLiteral("%1 x %2 pixels, %3 cabinets in %4 columns and %5 rows; ports of %6 pixels at %7 bit "
                       "and %8 Hz")
            .arg(cabinets.size().width())
            .arg(cabinets.size().height())
            .arg(cabinets.cabinets().size())
            .arg(cabinets.columns())
            .arg(cabinets.rows())
            .arg(portCapacity(wall.data))
            .arg(wall.data.bitDepth)
            .arg(wall.data.frameRate));
    const WallDocument back = mirrored(wall, record);
    pages.picture(
        plan(mirrored(back, record), record)); // twice: in front it has names and cables by hand, too
    pages.begin(title + QStringLiteral(", from the back"));
    pages.line(
        QStringLiteral("Left and right are exchanged: this is the side from which cables are plugged."));
    pages.picture(plan(back, record));
    const std::vector<Column> head = {
        {QString(), 0.06, false}, {QStringLiteral("from"), 0.13, false}, {QStringLiteral("to"), 0.13, false}};
    const auto with = [&head](std::vector<Column> columns) {
        columns.insert(columns.begin(), head.begin(), head.end());
        return columns;
    };
    pages.table(QStringLiteral("Data ports"),
                with({{QStringLiteral("cabinets"), 0.1},
                      {QStringLiteral("pixels"), 0.13},
                      {QStringLiteral("load"), 0.1},
                      {QStringLiteral("links"), 0.09},
                      {QStringLiteral("longest link"), 0.13},
                      {QStringLiteral("all links"), 0.13}}),
                portTable(dataRows(wall, record)));
    pages.table(QStringLiteral("Power circuits at %1 V").arg(wall.power.voltage),
                with({{QStringLiteral("cabinets"), 0.09},
                      {QStringLiteral("power"), 0.1},
                      {QStringLiteral("current"), 0.09},
                      {QStringLiteral("load"), 0.09},
                      {QStringLiteral("links"), 0.07},
                      {QStringLiteral("longest link"), 0.12},
                      {QStringLiteral("all links"), 0.12}}),
                circuitTable(powerRows(wall, record)));
    pages.table(QStringLiteral("Cabinets"),
                {{QStringLiteral("size"), 0.25, false},
                 {QStringLiteral("cabinets"), 0.12},
                 {QStringLiteral("spares"), 0.12}},
                cabinetTable(cabinets));
}

} // namespace

QString writePdf(const QString& path, const WallDocument& wall, const TestChartToolsData& record)
{
    QBuffer file; // what the writer could not write it does not tell
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setResolution(dotsPerInch);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setPageMargins(QMarginsF(12, 10, 12, 10), QPageLayout::Millimeter);
        writer.setTitle(QString::fromStdString(wall.name));
        writePages(writer, wall, record);
    }
    return saveDocument(path, file.data());
}

} // namespace vardeno::walls::WallReport
