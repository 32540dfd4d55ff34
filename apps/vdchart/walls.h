#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

/// A row of a table of walls.
struct Wall
{
    QString name;                      ///< as part of a file name
    int row = 0;                       ///< in its table, from 1
    std::vector<std::string> settings; ///< "group.field=value"
};

/// Reads a table in CSV (RFC 4180, UTF-8, with or without a byte order mark) whose first row names the
/// columns: "name", "width" and "height" (chart pixels), "rows" and "columns" (of cabinets), or any field of
/// a record, such as "publicData.brightness". At most 10,000 rows. An empty cell leaves the record's own
/// value. `source` stands in the messages of the Failure that is thrown for a table that is none.
std::vector<Wall> readWalls(const QByteArray& csv, const QString& source);
