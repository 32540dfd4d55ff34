#include "schematable.h"
#include "testcase.h"

#include <wallfile.h>

using namespace vardeno::walls;
using namespace schematable;

/// The schema file and the manual say what the table of fields says. The environment variable
/// VD_UPDATE_SCHEMA=1 writes both anew.
class TestWallSchema : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsTheSchema()
    {
        const QString path = sourcePath("docs/wall.schema.json");
        update(path, WallFile::schema());
        QCOMPARE(QString::fromUtf8(contents(path)), QString::fromUtf8(WallFile::schema()));
    }

    void manualListsTheFields()
    {
        const QStringList names = fieldNames(WallFile::toJson(WallDocument()));
        compareManual(sourcePath("docs/walls.md"), "<!-- fields, written by tests/tst_wallschema.cpp -->\n",
                      manualTable(WallFile::schema(), names));
        QCOMPARE(names.size(), 48);
    }

    /// A range of the schema is the reader's.
    void rangesAreTheReaders()
    {
        const QJsonObject groups = objectOf(WallFile::schema()).value("properties").toObject();
        int ranges = 0;
        for (const QString& name : fieldNames(WallFile::toJson(WallDocument()))) {
            const QString group = name.section('.', 0, 0);
            const QString field = name.section('.', 1);
            const QJsonObject schema =
                groups.value(group).toObject().value("properties").toObject().value(field).toObject();
            if (schema.value("type") != QJsonValue("integer"))
                continue;
            ++ranges;
            const auto problems = [&](int value) {
                const QJsonObject document{
                    {"format", "testwall"}, {"version", 1}, {group, QJsonObject{{field, value}}}};
                return WallFile::fromJson(QJsonDocument(document).toJson()).problems.join('\n');
            };
            const int least = schema.value("minimum").toInt();
            const int most = schema.value("maximum").toInt();
            QCOMPARE(problems(least), QString());
            QCOMPARE(problems(most), QString());
            const QString wrong = QStringLiteral("%1: %2 is not in %3..%4").arg(name);
            QCOMPARE(problems(least - 1), wrong.arg(least - 1).arg(least).arg(most));
            QCOMPARE(problems(most + 1), wrong.arg(most + 1).arg(least).arg(most));
        }
        QCOMPARE(ranges, 17);
    }
};

VD_TEST_MAIN(TestWallSchema)
#include "tst_wallschema.moc"
