#include "exitcode.h"
#include "fileclaims.h"
#include "testcase.h"

#include <QDir>
#include <QTemporaryDir>

#include <functional>

#include <sys/stat.h>
#include <unistd.h>

using Claim = std::function<void(FileClaims& claims)>;
Q_DECLARE_METATYPE(Claim)

/// In a folder with record.json, link.json to it, hard.json that is it, nowhere.json to what is not there,
/// a pipe, and the folder "inner" with a link to its parent.
class TestFileClaims : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_before;

    static QString messageOf(const FileClaims& claims, const QString& output)
    {
        try {
            claims.protect(output);
        } catch (const Failure& failure) {
            return failure.code == ExitCode::Usage ? failure.message : QStringLiteral("another code");
        }
        return QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder.path()));
        QFile record(QStringLiteral("record.json"));
        QVERIFY(record.open(QIODevice::WriteOnly));
        QVERIFY(QDir().mkdir(QStringLiteral("inner")));
        QCOMPARE(symlink("record.json", "link.json"), 0);
        QCOMPARE(link("record.json", "hard.json"), 0);
        QCOMPARE(symlink("nothing.json", "nowhere.json"), 0);
        QCOMPARE(symlink("..", "inner/up"), 0);
        QCOMPARE(mkfifo("pipe", 0600), 0);
    }

    void cleanupTestCase() { QDir::setCurrent(m_before); }

    void outputs_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<bool>("taken");
        QTest::newRow("itself") << "record.json" << true;
        QTest::newRow("another path") << "./inner/../record.json" << true;
        QTest::newRow("a whole path") << m_folder.filePath(QStringLiteral("record.json")) << true;
        QTest::newRow("a link") << "link.json" << true;
        QTest::newRow("a hard link") << "hard.json" << true;
        QTest::newRow("through a linked folder") << "inner/up/link.json" << true;
        QTest::newRow("another file") << "inner/record.json" << false;
        QTest::newRow("in no folder") << "outer/record.json" << false;
        QTest::newRow("none") << QString() << false;
    }

    void outputs()
    {
        QFETCH(QString, output);
        QFETCH(bool, taken);
        FileClaims claims;
        claims.reads(QStringLiteral("record.json"), QStringLiteral("the record"));
        QCOMPARE(messageOf(claims, output), taken ? output + QStringLiteral(": is the record") : QString());
    }

    /// Of which no file tells the number yet.
    void filesThatAreNotThere_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("same");
        QTest::newRow("one name") << "new.png"
                                  << "new.png" << true;
        QTest::newRow("another path") << "new.png"
                                      << "inner/../new.png" << true;
        QTest::newRow("through a linked folder") << "new.png"
                                                 << "inner/up/new.png" << true;
        QTest::newRow("a link that leads nowhere") << "nothing.json"
                                                   << "nowhere.json" << true;
        QTest::newRow("another folder") << "new.png"
                                        << "inner/new.png" << false;
        QTest::newRow("one that is there") << "record.json"
                                           << "new.png" << false;
        QTest::newRow("no folder") << "outer/new.png"
                                   << "./outer/new.png" << true;
    }

    void filesThatAreNotThere()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        FileClaims claims;
        claims.writes(first);
        QTEST(!messageOf(claims, second).isEmpty(), "same");
    }

    void devicesAndPipesAreNobodys()
    {
        FileClaims claims;
        claims.reads(QStringLiteral("/dev/null"), QStringLiteral("the record"));
        claims.reads(QStringLiteral("pipe"), QStringLiteral("the record"));
        QCOMPARE(messageOf(claims, QStringLiteral("/dev/null")), QString());
        QCOMPARE(messageOf(claims, QStringLiteral("pipe")), QString());
    }

    void theLogoIsAnInput()
    {
        vardeno::testcharttools::LogoChartData logo;
        FileClaims claims;
        claims.readsLogo(logo);
        QCOMPARE(messageOf(claims, QStringLiteral("record.json")), QString());
        logo.picturePath = "link.json";
        claims.readsLogo(logo);
        QCOMPARE(messageOf(claims, QStringLiteral("record.json")),
                 QStringLiteral("record.json: is the picture of the record's logo"));
    }
};

VD_TEST_MAIN(TestFileClaims)
#include "tst_fileclaims.moc"
