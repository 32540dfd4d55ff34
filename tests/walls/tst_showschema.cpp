#include "schematable.h"
#include "testcase.h"

#include <showfile.h>

using namespace vardeno::walls;
using namespace schematable;

/// The schema file and the manual say what the table of fields says. The environment variable
/// VD_UPDATE_SCHEMA=1 writes both anew.
class TestShowSchema : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsTheSchema()
    {
        const QString path = sourcePath("docs/show.schema.json");
        update(path, ShowFile::schema());
        QCOMPARE(QString::fromUtf8(contents(path)), QString::fromUtf8(ShowFile::schema()));
    }

    void manualListsTheFields()
    {
        const QStringList names = fieldNames(ShowFile::toJson(ShowDocument()));
        QCOMPARE(names.size(), 6);
        compareManual(sourcePath("docs/shows.md"), "<!-- fields, written by tests/tst_showschema.cpp -->\n",
                      manualTable(ShowFile::schema(), names));
    }

    /// What stands in the lists, too: its members are those of the documents.
    void listsHaveTheirMembers()
    {
        const QJsonObject lists =
            objectOf(ShowFile::schema()).value("properties").toObject().value("show").toObject();
        const auto item = [&](const char* list) {
            return lists.value("properties").toObject().value(list).toObject().value("items").toObject();
        };
        QCOMPARE(item("outputs").value("required").toVariant().toStringList(),
                 QStringList({"name", "width", "height"}));
        QCOMPARE(item("walls").value("required").toVariant().toStringList(), QStringList({"name", "path"}));
        QCOMPARE(item("placements").value("properties").toObject().keys(),
                 QStringList({"mirrored", "output", "part", "turned", "wall", "x", "y"}));
        const QJsonObject x = item("placements").value("properties").toObject().value("x").toObject();
        QCOMPARE(x.value("minimum").toInt(), -32768);
    }
};

VD_TEST_MAIN(TestShowSchema)
#include "tst_showschema.moc"
