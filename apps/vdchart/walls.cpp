#include "walls.h"

#include "exitcode.h"
#include "fields.h"
#include "filename.h"

#include <utf8.h>

#include <QHash>
#include <QStringList>

#include <csv.h>

#include <algorithm>
#include <new>

namespace {

using Table = std::vector<QStringList>;

// Each row is a picture of some megabytes; a record has fewer fields.
constexpr std::size_t mostRows = 10000;
constexpr int mostColumns = 1000;

/// Collects what libcsv reads. Its functions are called from C, whose frames let no exception through.
struct Collector
{
    Table table;
    QStringList row;
    bool isOutOfMemory = false;
    bool isTooLong = false; ///< a row, or the table

    bool isFull() const { return isOutOfMemory || isTooLong; }

    template <typename Step>
    void take(Step step) noexcept
    {
        try {
            if (!isFull()) // the rest is not kept
                step();
        } catch (const std::bad_alloc&) {
            isOutOfMemory = true;
        }
    }
};

void addCell(void* bytes, std::size_t count, void* data)
{
    auto& collector = *static_cast<Collector*>(data);
    collector.take([&] {
        // A byte order mark is left by files that were joined; nobody sees it in a name.
        collector.row.append(
            QString::fromUtf8(static_cast<const char*>(bytes), int(count)).remove(QChar::ByteOrderMark));
    });
    collector.isTooLong |= collector.row.size() > mostColumns;
}

void addRow(int, void* data)
{
    auto& collector = *static_cast<Collector*>(data);
    collector.take([&] { collector.table.push_back(collector.row); });
    collector.isTooLong |= collector.table.size() > mostRows;
    collector.row.clear();
}

/// Of the first row, whose names hold none: spreadsheets write the one of the country they are used in.
char separatorOf(const QByteArray& csv)
{
    const auto endsLine = [](char c) { return c == '\r' || c == '\n'; };
    const auto begin = std::find_if_not(csv.begin(), csv.end(), endsLine);
    const auto end = std::find_if(begin, csv.end(), endsLine);
    for (const char separator : {',', ';', '\t'}) {
        if (std::find(begin, end, separator) != end)
            return separator;
    }
    return ',';
}

Table parsed(const QByteArray& csv, const QString& source)
{
    csv_parser parser{};
    if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI) != 0)
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: not enough memory").arg(source)};
    csv_set_delim(&parser, static_cast<unsigned char>(separatorOf(csv)));
    Collector collector;
    const auto length = std::size_t(csv.size());
    const bool read = csv_parse(&parser, csv.constData(), length, addCell, addRow, &collector) == length &&
                      csv_fini(&parser, addCell, addRow, &collector) == 0;
    csv_free(&parser);
    if (collector.isOutOfMemory)
        throw std::bad_alloc();
    if (collector.isTooLong)
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: more than %2 rows, or %3 cells in one")
                          .arg(source, QString::number(mostRows), QString::number(mostColumns))};
    if (!read)
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: row %2: a quotation mark has no end, or stands in a cell without "
                                     "quotation marks around it")
                          .arg(source, QString::number(collector.table.size() + 1))};
    return collector.table;
}

QString problemOfColumns(const QStringList& columns)
{
    if (!columns.contains(QStringLiteral("name")))
        return QStringLiteral("the first row has no column \"name\"");
    QHash<QString, QString> columnOf;
    for (const QString& column : columns) {
        QString& other = columnOf[fieldOf(column)];
        if (other == column)
            return QStringLiteral("there are several columns \"%1\"").arg(column);
        if (!other.isEmpty())
            return QStringLiteral("the columns \"%1\" and \"%2\" are of one field").arg(other, column);
        other = column;
        if (column != QLatin1String("name") && !isField(fieldOf(column)))
            return QStringLiteral(
                       "the column \"%1\" is neither name, width, height, rows, columns nor a field of a "
                       "record")
                .arg(column);
    }
    return QString();
}

/// Names become names of files, in one folder, on any file system.
QString problemOfName(const QString& name)
{
    return name.isEmpty() ? QStringLiteral("the name is missing") : fileNameProblem(name);
}

QString problemOfRow(const QStringList& row, const QStringList& columns)
{
    if (row.size() != columns.size())
        return QStringLiteral("%1 cells for %2 columns").arg(row.size()).arg(columns.size());
    return problemOfName(row.at(columns.indexOf(QStringLiteral("name"))).trimmed());
}

Wall wallOf(const QStringList& row, const QStringList& columns, std::size_t number)
{
    Wall wall;
    wall.row = int(number);
    for (int i = 0; i < columns.size(); ++i) {
        const QString cell = row.at(i).trimmed();
        if (columns.at(i) == QLatin1String("name"))
            wall.name = cell;
        else if (!cell.isEmpty())
            wall.settings.push_back((fieldOf(columns.at(i)) + QLatin1Char('=') + cell).toStdString());
    }
    return wall;
}

bool isText(const QByteArray& bytes)
{
    return vardeno::testcharttools::isUtf8(bytes) && !bytes.contains('\0');
}

/// From 0.
int firstBadLine(const QByteArray& bytes)
{
    const QList<QByteArray> lines = bytes.split('\n');
    return int(std::find_if_not(lines.begin(), lines.end(), isText) - lines.begin());
}

/// The text would go into the charts with other characters. It is looked at in parts of whole lines: one by
/// one millions of them take seconds, and a list of all more memory than the table.
void requireUtf8(const QByteArray& csv, const QString& source)
{
    constexpr int partSize = 65536;
    int before = 0;
    for (int begin = 0; begin < csv.size();) {
        const int end = csv.indexOf('\n', std::min(begin + partSize, int(csv.size())));
        const QByteArray part = csv.mid(begin, end < 0 ? -1 : end + 1 - begin);
        if (!isText(part))
            throw Failure{ExitCode::Unreadable,
                          QStringLiteral("%1: line %2: not UTF-8 text")
                              .arg(source, QString::number(before + firstBadLine(part) + 1))};
        before += int(part.count('\n'));
        begin += int(part.size());
    }
}

} // namespace

std::vector<Wall> readWalls(const QByteArray& csv, const QString& source)
{
    requireUtf8(csv, source);
    const Table table = parsed(csv.startsWith("\xef\xbb\xbf") ? csv.mid(3) : csv, source);
    const auto refuse = [&source](std::size_t row, const QString& problem) {
        if (!problem.isEmpty())
            throw Failure{ExitCode::Unreadable,
                          QStringLiteral("%1: row %2: %3").arg(source, QString::number(row), problem)};
    };
    if (table.empty())
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: there is nothing in it").arg(source)};
    QStringList columns;
    for (const QString& column : table.front())
        columns.append(column.trimmed());
    refuse(1, problemOfColumns(columns));
    std::vector<Wall> walls;
    for (std::size_t row = 1; row < table.size(); ++row) {
        refuse(row + 1, problemOfRow(table[row], columns));
        walls.push_back(wallOf(table[row], columns, row + 1));
    }
    return walls;
}
