#include "exitcode.h"
#include "fields.h"
#include "filename.h"
#include "require.h"
#include "walls.h"

#include <cstdint>

namespace {

/// As the shape of a table that reads the same.
QByteArray tableOf(const std::vector<Wall>& walls)
{
    QByteArray table = "name\n";
    for (const Wall& wall : walls)
        table += '"' + wall.name.toUtf8() + "\"\n"; // which has no quotation mark
    return table;
}

void checkWalls(const std::vector<Wall>& walls)
{
    for (const Wall& wall : walls) {
        require(!wall.name.isEmpty() && fileNameProblem(wall.name).isEmpty(), "a name is one of a file");
        require(wall.row > 1, "a wall is below the names of the columns");
        for (const std::string& setting : wall.settings) {
            const QString text = QString::fromStdString(setting);
            require(isField(text.section(QLatin1Char('='), 0, 0)), "what is set is a field");
        }
    }
    const std::vector<Wall> again = readWalls(tableOf(walls), QStringLiteral("again"));
    require(again.size() == walls.size(), "there are as many walls");
    for (std::size_t i = 0; i < walls.size(); ++i)
        require(again[i].name == walls[i].name, "names are the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<Wall> walls;
    try {
        walls =
            readWalls(QByteArray(reinterpret_cast<const char*>(data), int(size)), QStringLiteral("table"));
    } catch (const Failure& failure) {
        require(failure.message.startsWith(QLatin1String("table: ")), "a message names the table");
        return 0;
    }
    checkWalls(walls);
    return 0;
}
