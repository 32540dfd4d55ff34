#include "programtest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::testcharttools;

/// What the program writes costs nobody anything, and who it fails learns why.
class TestOutputs : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        write(QStringLiteral("small.json"), ChartRecordFile::toJson(smallRecord()));
        const QByteArray typed = ChartRecordFile::toJson(smallRecord()).replace("boxRow", "boxrow");
        write(QStringLiteral("typed.json"), typed);
        QCOMPARE(run({"render", "small.json", "-o", "logo.png"}).code, 0);
        write(QStringLiteral("walls.csv"), "name,width\na,160\nb,200\n");
    }

    void nothingIsWrittenOver_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("message");
        const QString record = QStringLiteral(": is the record that is drawn");
        QTest::newRow("a record of that name") << "$vdchart render w.png -o w.png"
                                               << "w.png" + record;
        QTest::newRow("a link to it") << "$vdchart render w.png -o link.png"
                                      << "link.png" + record;
        QTest::newRow("a link of a link") << "$vdchart render w.png -o again.png"
                                          << "again.png" + record;
        QTest::newRow("the same file") << "$vdchart render w.png -o hard.png"
                                       << "hard.png" + record;
        QTest::newRow("a linked record") << "$vdchart render link.png -o w.png"
                                         << "w.png" + record;
        QTest::newRow("from the standard input") << "$vdchart render - -o w.png < w.png"
                                                 << "w.png" + record;
        QTest::newRow("to the standard output") << "$vdchart render w.png -o - >> w.png"
                                                << "standard output: is a file that is read";
        QTest::newRow("by the check") << "$vdchart check w.png >> w.png"
                                      << "standard output: is a file that is read";
        QTest::newRow("by the differences") << "$vdchart verify logo.png w.png -d hard.png"
                                            << "hard.png: is the record of the chart";
        QTest::newRow("a logo by the differences")
            << "$vdchart verify logo.png small.json -s logoData.picturePath=w.png -d link.png"
            << "link.png: is the picture of the record's logo";
        QTest::newRow("by a batch") << "$vdchart batch small.json w.png -o ."
                                    << "./w.png: is a record of the batch";
        QTest::newRow("a record by a batch of walls")
            << "$vdchart batch small.json other.json -w walls.csv -o linked"
            << "linked/small-a.png: is a record of the batch";
        QTest::newRow("a table by a batch") << "$vdchart batch small.json -w w.png -o ."
                                            << "./w.png: is the table of walls";
        QTest::newRow("the logo of another wall") << "$vdchart batch small.json -w logos.csv -o ."
                                                  << "./a.png: is the picture of the record's logo";
        QTest::newRow("its own manifest") << "$vdchart batch small.json -o looped"
                                          << "looped/small.png: is another file that is written";
    }

    void nothingIsWrittenOver()
    {
        QFETCH(QString, script);
        QFETCH(QString, message);
        QCOMPARE(
            runInShell(QStringLiteral(
                           "rm -rf w.png link.png again.png hard.png linked looped; cp small.json w.png; "
                           "cp small.json other.json; ln -s w.png link.png; ln -s link.png again.png; "
                           "ln w.png hard.png; mkdir linked looped; ln -s ../other.json linked/small-a.png; "
                           "ln -s manifest.json looped/small.png; "
                           "echo -e 'name\\nw' > table.csv; cp logo.png a.png; "
                           "echo -e 'name,logoData.picturePath\\na,\\nb,a.png' > logos.csv"))
                .code,
            0);
        if (script.contains(QLatin1String("-w w.png")))
            QCOMPARE(runInShell(QStringLiteral("rm w.png hard.png; cp table.csv w.png")).code, 0);
        const QByteArray before = read(QStringLiteral("w.png"));
        const QByteArray logo = read(QStringLiteral("a.png"));
        const Outcome outcome = runInShell(script);
        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.errors, QStringLiteral("vdchart: %1\n").arg(message));
        QCOMPARE(read(QStringLiteral("w.png")), before);
        QCOMPARE(read(QStringLiteral("a.png")), logo);
        QCOMPARE(read(QStringLiteral("other.json")), read(QStringLiteral("small.json")));
    }

    void aBatchStaysInItsFolder_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("leadsOut");
        QTest::newRow("a picture outside") << "small.png"
                                           << "../kept/a.png" << true;
        QTest::newRow("a picture that is not there") << "small.png"
                                                     << "../kept/new.png" << true;
        QTest::newRow("the manifest") << "manifest.json"
                                      << "../kept/a.png" << true;
        QTest::newRow("a link of a link") << "small.png"
                                          << "again.png" << true;
        QTest::newRow("a folder of a like name") << "small.png"
                                                 << "../out2/a.png" << true;
        QTest::newRow("within") << "small.png"
                                << "other.png" << false;
    }

    void aBatchStaysInItsFolder()
    {
        QFETCH(QString, link);
        QFETCH(QString, target);
        QFETCH(bool, leadsOut);
        QCOMPARE(
            runInShell(QStringLiteral("rm -rf kept out out2; mkdir kept out out2; echo kept > kept/a.png; "
                                      "ln -s ../kept/a.png out/again.png; ln -s %1 out/%2")
                           .arg(target, link))
                .code,
            0);
        const Outcome outcome = run({"batch", "small.json", "-o", "out"});
        QCOMPARE(outcome.code, leadsOut ? 4 : 0);
        if (leadsOut)
            QCOMPARE(outcome.errors,
                     QStringLiteral(
                         "vdchart: out/%1: a symbolic link is in the way, which leads out of the folder\n")
                         .arg(link));
        QCOMPARE(files(QStringLiteral("kept")), QStringList(QStringLiteral("a.png")));
        QCOMPARE(read(QStringLiteral("kept/a.png")), QByteArray("kept\n"));
        QCOMPARE(files(QStringLiteral("out2")), QStringList());
        QVERIFY(leadsOut || !QImage(path(QStringLiteral("out/other.png"))).isNull());
    }

    void typingErrorsAreTold_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("onOutput");
        QTest::newRow("check") << QStringList{"check", "typed.json"} << 1 << true;
        QTest::newRow("strictly") << QStringList{"check", "--errors", "--strict", "typed.json"} << 1 << true;
        QTest::newRow("render") << QStringList{"render", "typed.json", "-o", "typed.png"} << 0 << false;
        QTest::newRow("batch") << QStringList{"batch", "typed.json", "-o", "typed"} << 0 << false;
        QTest::newRow("verify") << QStringList{"verify", "logo.png", "typed.json"} << 0 << false;
    }

    void typingErrorsAreTold()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(bool, onOutput);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, code);
        const QString kind = QLatin1String(arguments.contains("--strict") ? "error" : "warning");
        const QString text = QStringLiteral(": publicData.boxrow: unknown member, did you mean "
                                            "publicData.boxRow?\n");
        if (onOutput)
            QVERIFY2(outcome.output.startsWith(("typed.json: " + kind + text).toUtf8()),
                     outcome.output.constData());
        else
            QCOMPARE(outcome.errors, "vdchart: warning: typed.json" + text);
    }

    void unknownMembersAreNoErrors()
    {
        const Outcome outcome = run({"check", "--errors", "typed.json"});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, QByteArray());
    }

    void checkAsJson()
    {
        const Outcome outcome = run({"check", "-f", "json", "typed.json", "none.json", "small.json", "-s",
                                     "columns=7", "-s", "rows=7", "--strict"});
        QCOMPARE(outcome.code, 3);
        const QJsonObject told = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(told.value("format").toString(), QStringLiteral("testchart-check"));
        const QJsonArray records = told.value("records").toArray();
        QCOMPARE(records.size(), 3);
        const QJsonObject error = records.at(0).toObject().value("errors").toArray().at(0).toObject();
        QCOMPARE(error.value("field").toString(), QStringLiteral("publicData.boxrow"));
        QVERIFY(error.value("text").toString().startsWith("unknown member"));
        QVERIFY(records.at(1).toObject().value("unreadable").toString().contains("none.json: No such file"));
        QCOMPARE(records.at(2).toObject().value("record").toString(), QStringLiteral("small.json"));
        const QJsonObject warning = records.at(2).toObject().value("warnings").toArray().at(0).toObject();
        QCOMPARE(warning.value("text").toString(),
                 QStringLiteral("180 pixels / 7 cabinets leave a remainder of 5"));
    }

    /// The line with the resolution is looked at as it is drawn.
    void checkInALanguage()
    {
        write(QStringLiteral("default.json"), ChartRecordFile::toJson({}));
        const Outcome english = run({"check", "default.json"});
        QVERIFY2(english.output.contains("of 8 of 144 cabinets, first H-E"), english.output.constData());
        QVERIFY(run({"check", "default.json", "-l", "zh_CN"}).output != english.output);
    }

    void ignoredSignals_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("as nohup does it") << "HUP";
        QTest::newRow("as a shell does it for the background") << "INT";
    }

    void ignoredSignals()
    {
        QFETCH(QString, name);
        QByteArray walls = "name,width,height\n";
        for (int i = 0; i < 300; ++i)
            walls += "w" + QByteArray::number(i) + ",320,180\n";
        write(QStringLiteral("many.csv"), walls);
        const Outcome outcome = runInShell(
            QStringLiteral("rm -rf many; trap '' %1; $vdchart batch small.json -w many.csv -o many & "
                           "until ls many/*.png >/dev/null 2>&1; do sleep 0.02; done; kill -%1 $!; wait $!")
                .arg(name));
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, QByteArray("300 of 300 pictures written\n"));
    }

    /// At the first picture, or before.
    void unwritableTargets_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("message");
        QTest::newRow("a file for a folder")
            << "$vdchart batch small.json -o small.json/out"
            << "vdchart: small.json/out: the folder cannot be made: Not a directory\n";
        QTest::newRow("a folder for a picture")
            << "mkdir -p taken/b.png; $vdchart batch small.json -w walls.csv -o taken"
            << "vdchart: taken/b.png: it is a folder\n";
        QTest::newRow("a folder for the manifest")
            << "mkdir -p told/manifest.json; $vdchart batch small.json -w walls.csv -o told"
            << "vdchart: told/manifest.json: it is a folder\n";
        QTest::newRow("small files only")
            << "ulimit -f 1; $vdchart batch small.json -w walls.csv -o limited -j 1"
            << "vdchart: failed: a.png: limited/a.png: File too large\nvdchart: not begun: 1\n";
    }

    void unwritableTargets()
    {
        QFETCH(QString, script);
        QFETCH(QString, message);
        const Outcome outcome = runInShell(script);
        QCOMPARE(outcome.code, 4);
        QCOMPARE(outcome.errors, message);
    }

    void reasons_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("a reader that went away")
            << "{ $vdchart render small.json -c 0 -o -; echo $? >&3; } 3> code | true; exit $(cat code)" << 4
            << "vdchart: standard output: its reader went away\n";
        QTest::newRow("a large file") << "ulimit -f 4; $vdchart render small.json -c 0 -o large.png" << 4
                                      << "vdchart: large.png: File too large\n";
        QTest::newRow("two pictures of one name")
            << "mkdir -p sub; cp small.json sub; $vdchart batch small.json sub/small.json -o out" << 2
            << "vdchart: small.json and sub/small.json: two pictures would be called small.png\n";
        QTest::newRow("two rows of one name")
            << "echo -e 'name\\na\\nb\\nA' > twice.csv; $vdchart batch small.json -w twice.csv -o out" << 2
            << "vdchart: row 2 of twice.csv and row 4 of twice.csv: two pictures would be called A.png\n";
        QTest::newRow("two spellings of one name")
            << "echo -e 'name\\nB\\u00fchne\\nBu\\u0308hne' > spelled.csv; "
               "LC_ALL=C.UTF-8 $vdchart batch small.json -w spelled.csv -o out"
            << 2 << "row 3 of spelled.csv: two pictures would be called";
    }

    void reasons()
    {
        QFETCH(QString, script);
        QFETCH(int, code);
        QFETCH(QString, message);
        const Outcome outcome = runInShell(QStringLiteral("export LC_ALL=C.UTF-8; ") + script);
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
    }

    /// The libraries' own lines tell a user nothing.
    void brokenPictures_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("message");
        QTest::newRow("looked at") << "$vdchart verify cut.png small.json"
                                   << "vdchart: cut.png: Unable to read image data\n";
        QTest::newRow("a logo")
            << "$vdchart render small.json -o no.png -s logoData.picturePath=cut.png"
            << "vdchart: logoData.picturePath: \"cut.png\" cannot be read to its end; no logo is drawn\n";
    }

    void brokenPictures()
    {
        QFETCH(QString, script);
        QFETCH(QString, message);
        const Outcome outcome = runInShell(QStringLiteral("head -c 2000 logo.png > cut.png; ") + script);
        QCOMPARE(outcome.code, 3);
        QCOMPARE(outcome.errors, message);
    }

    void theBarEndsWithTheBatch()
    {
        if (runInShell(QStringLiteral("script -qec true /dev/null")).code != 0)
            QSKIP("there is no \"script\", or no terminal to be had");
        QByteArray walls = "name,width,height\n";
        for (int i = 0; i < 99; ++i)
            walls += "w" + QByteArray::number(i) + ",1920,1080\n";
        write(QStringLiteral("long.csv"), walls);
        const Outcome outcome = runInShell(QStringLiteral(
            "echo '$vdchart batch small.json -w long.csv -o long & until ls long/*.png > /dev/null 2>&1; do "
            "sleep 0.02; done; kill -TERM $!; wait $!' > long.sh; script -qec 'bash long.sh' /dev/null"));
        QCOMPARE(outcome.code, 130);
        QVERIFY2(outcome.output.contains("1/99") && !outcome.output.contains("98/99"),
                 outcome.output.constData());
    }

    void theOptionForThePicture()
    {
        for (const QStringList& arguments : {QStringList{"render", "small.json", "a.png"},
                                             QStringList{"render", "small.json", "a.png", "-o", "b.png"}}) {
            const Outcome outcome = run(arguments);
            QCOMPARE(outcome.code, 2);
            QVERIFY2(outcome.errors.contains("-o: vdchart render RECORD -o a.png"),
                     qPrintable(outcome.errors));
        }
    }

    void noPictureForATerminal()
    {
        if (runInShell(QStringLiteral("script -qec true /dev/null")).code != 0)
            QSKIP("there is no \"script\", or no terminal to be had");
        const Outcome outcome =
            runInShell(QStringLiteral("script -qec '$vdchart render small.json -o -' /dev/null"));
        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.output.startsWith("vdchart: standard output: it is a terminal"),
                 outcome.output.constData());
    }
};

VD_TEST_MAIN(TestOutputs)
#include "tst_outputs.moc"
