#include "programtest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::testcharttools;

/// What a batch leaves in its folder, for another batch and for those who got the folder.
class TestManifest : public ProgramTest
{
    Q_OBJECT

private:
    QByteArray batch(const QStringList& more) const
    {
        const Outcome outcome =
            run(QStringList{"batch", "small.json", "-w", "walls.csv", "-o", "out"} + more);
        return outcome.code == 0 && outcome.errors.isEmpty() ? outcome.output
                                                             : outcome.output + outcome.errors.toUtf8();
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        write(QStringLiteral("small.json"), ChartRecordFile::toJson(smallRecord()));
        write(QStringLiteral("walls.csv"), "name,width\na,160\nb,200\nc,240\n");
        QVERIFY(QDir(path(QStringLiteral("out"))).removeRecursively());
        QCOMPARE(batch({}), QByteArray("3 of 3 pictures written\n"));
    }

    void nothingIsMadeTwice()
    {
        const QByteArray manifest = read(QStringLiteral("out/manifest.json"));
        QCOMPARE(batch({"--resume"}), QByteArray("0 of 3 pictures written, 3 kept\n"));
        QCOMPARE(read(QStringLiteral("out/manifest.json")), manifest);
    }

    void resumed_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("made");
        QTest::newRow("a picture is gone") << "rm out/b.png" << QStringList() << 1;
        QTest::newRow("a picture was changed") << "echo >> out/b.png" << QStringList() << 1;
        QTest::newRow("a picture is a folder no more") << "rm out/b.png; mkdir out/d" << QStringList() << 1;
        QTest::newRow("another wall") << "sed -i s/200/210/ walls.csv" << QStringList() << 1;
        QTest::newRow("another record") << "sed -i 's/: 180/: 190/' small.json" << QStringList() << 3;
        QTest::newRow("another spelling of the record") << "sed -i 's/  //' small.json" << QStringList() << 0;
        QTest::newRow("a setting") << "true" << QStringList{"-s", "rows=3"} << 3;
        QTest::newRow("another language") << "true" << QStringList{"-l", "de"} << 3;
        QTest::newRow("another compression") << "true" << QStringList{"-c", "9"} << 3;
        QTest::newRow("no manifest") << "rm out/manifest.json" << QStringList() << 3;
        QTest::newRow("a manifest without hashes")
            << "sed -i s/source/sauce/ out/manifest.json" << QStringList() << 3;
    }

    void resumed()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, options);
        QFETCH(int, made);
        QCOMPARE(runInShell(script).code, 0);
        const QString kept = made < 3 ? QStringLiteral(", %1 kept").arg(3 - made) : QString();
        QCOMPARE(QString::fromUtf8(batch(QStringList("--resume") + options)),
                 QStringLiteral("%1 of 3 pictures written%2\n").arg(made).arg(kept));
        QCOMPARE(run({"verify", "out"}).code, 0);
    }

    /// At once, as by a power cut.
    void aKilledBatch()
    {
        QByteArray walls = "name,width,height\n";
        for (int i = 0; i < 300; ++i)
            walls += "w" + QByteArray::number(i) + ",320,180\n";
        write(QStringLiteral("many.csv"), walls);
        QCOMPARE(runInShell("$vdchart batch small.json -w many.csv -o killed & "
                            "until [ -s killed/manifest.json ]; do sleep 0.05; done; kill -KILL $!; wait $!")
                     .code,
                 137);
        const QByteArray manifest = read(QStringLiteral("killed/manifest.json"));
        const int done = manifest.count("\"sha256\"");
        QVERIFY(done > 0 && done < 300);
        QCOMPARE(manifest.count("\"file\""), done);
        const Outcome resumed = run({"batch", "small.json", "-w", "many.csv", "-o", "killed", "-r"});
        QCOMPARE(resumed.output,
                 QStringLiteral("%1 of 300 pictures written, %2 kept\n").arg(300 - done).arg(done).toUtf8());
    }

    void aLogoThatChanged()
    {
        const QStringList logo = {"-s", "logoData.picturePath=logo.png"};
        QCOMPARE(runInShell("$vdchart render small.json -o logo.png").code, 0);
        QCOMPARE(batch(logo), QByteArray("3 of 3 pictures written\n"));
        QCOMPARE(batch(logo + QStringList("-r")), QByteArray("0 of 3 pictures written, 3 kept\n"));
        QCOMPARE(runInShell("$vdchart render small.json -s rows=2 -o logo.png").code, 0);
        QCOMPARE(batch(logo + QStringList("-r")), QByteArray("3 of 3 pictures written\n"));
    }

    void noManifest()
    {
        write(QStringLiteral("out/manifest.json"), "{}");
        const QString message = QStringLiteral("vdchart: out/manifest.json: not the manifest of a batch\n");
        const Outcome resumed = run({"batch", "small.json", "-o", "out", "--resume"});
        QCOMPARE(resumed.code, 3);
        QCOMPARE(resumed.errors, message);
        const Outcome verified = run({"verify", "out"});
        QCOMPARE(verified.code, 3);
        QCOMPARE(verified.errors, message);
    }

    void folders_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("as it was") << "true" << QByteArray("3 of 3 pictures are as they were written\n");
        QTest::newRow("missing") << "rm out/a.png"
                                 << QByteArray(
                                        "out/a.png: is missing\n2 of 3 pictures are as they were written\n");
        QTest::newRow("changed") << "echo >> out/b.png"
                                 << QByteArray("out/b.png: is not the file that was written\n"
                                               "2 of 3 pictures are as they were written\n");
        QTest::newRow("swapped") << "mv out/a.png x; mv out/b.png out/a.png; mv x out/b.png"
                                 << QByteArray("out/a.png: is not the file that was written\n"
                                               "out/b.png: is not the file that was written\n"
                                               "1 of 3 pictures are as they were written\n");
        QTest::newRow("another file") << "echo > out/d.png"
                                      << QByteArray("out/d.png: is not in the manifest\n"
                                                    "3 of 4 pictures are as they were written\n");
        QTest::newRow("another folder")
            << "sed -i 's,\"a.png\",\"../walls.csv\",' out/manifest.json; rm out/a.png"
            << QByteArray("out/../walls.csv: the manifest names no file of its folder\n"
                          "2 of 3 pictures are as they were written\n");
    }

    void folders()
    {
        QFETCH(QString, script);
        QFETCH(QByteArray, output);
        QCOMPARE(runInShell(script).code, 0);
        const Outcome outcome = run({"verify", "out"});
        QCOMPARE(outcome.output, output);
        QCOMPARE(outcome.code, output.count('\n') > 1 ? 1 : 0);
    }

    void whatWasNotMade()
    {
        QCOMPARE(run({"batch", "small.json", "-w", "walls.csv", "-o", "out", "-s", "logoData.picturePath=no"})
                     .code,
                 3);
        const Outcome outcome = run({"verify", "out", "-f", "json"});
        QCOMPARE(outcome.code, 1);
        const QJsonArray files = QJsonDocument::fromJson(outcome.output).object().value("files").toArray();
        QStringList states;
        for (const QJsonValue& file : files)
            states.append(file.toObject().value("state").toString());
        QCOMPARE(states, QStringList({"failed", "failed", "failed"}));
    }

    void asJson()
    {
        const Outcome outcome = run({"batch", "small.json", "-o", "json", "-f", "bmp", "-f", "json"});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, read(QStringLiteral("json/manifest.json")));
        QVERIFY(read(QStringLiteral("json/small.bmp")).startsWith("BM"));
        QCOMPARE(run({"verify", "out", "-f", "json"}).output.count("\"good\""), 3);
    }
};

VD_TEST_MAIN(TestManifest)
#include "tst_manifest.moc"
