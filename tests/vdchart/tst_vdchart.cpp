#include "pngbomb.h"
#include "programtest.h"

#include <vdpatterndesign_version.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRegularExpression>

using namespace vardeno::testcharttools;

class TestVdchart : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        write(QStringLiteral("small.json"), ChartRecordFile::toJson(smallRecord()));
        TestChartToolsData other = smallRecord();
        other.basicData.oddColor = {255, 0, 0, 255};
        write(QStringLiteral("other.json"), ChartRecordFile::toJson(other));
        write(QStringLiteral("wrong.json"), ChartRecordFile::toJson(smallRecord()).replace("320", "50000"));
        write(QStringLiteral("broken.json"), "{\"format\": ");
        write(QStringLiteral("manifest.json"), ChartRecordFile::toJson(smallRecord()));
        write(QStringLiteral("taken.png"), "not to be written over");
        write(QStringLiteral("large%2.json"), QByteArray((1 << 20) + 1, ' '));
    }

    void help()
    {
        const Outcome outcome = run({QStringLiteral("--help")});
        QCOMPARE(outcome.code, 0);
        for (const char* command : {"new", "presets", "check", "render", "batch", "verify"}) {
            QVERIFY(outcome.output.contains(command));
            QCOMPARE(run({QLatin1String(command), QStringLiteral("--help")}).code, 0);
        }
        QCOMPARE(run({QStringLiteral("--version")}).output,
                 QByteArray("vdchart " VDPATTERNDESIGN_VERSION "\n"));
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << QStringList() << "Usage";
        QTest::newRow("unknown command") << QStringList{"draw"} << "draw";
        QTest::newRow("unknown option") << QStringList{"new", "--loud"} << "--loud";
        QTest::newRow("unknown preset") << QStringList{"new", "--preset", "mauve"} << "there is no \"mauve\"";
        QTest::newRow("no output") << QStringList{"render", "small.json"} << "--output";
        QTest::newRow("unknown ending") << QStringList{"render", "small.json", "-o", "a.gif"} << "a.gif";
        QTest::newRow("unknown field")
            << QStringList{"new", "--set", "publicData.rows=1"} << "publicData.rows";
        QTest::newRow("out of range") << QStringList{"new", "--set", "publicData.boxRow=1001"}
                                      << "publicData.boxRow: 1001 is not in 1..1000";
        QTest::newRow("no value") << QStringList{"new", "--set", "publicData.boxRow"} << "publicData.boxRow";
        QTest::newRow("compression") << QStringList{"render", "small.json", "-o", "a.png", "-c", "10"}
                                     << "--compression";
        QTest::newRow("language") << QStringList{"render", "small.json", "-o", "a.png", "--lang", "tlh"}
                                  << "--lang";
        QTest::newRow("jobs") << QStringList{"batch", "small.json", "-o", "out", "-j", "-1"} << "--jobs";
        QTest::newRow("empty folder")
            << QStringList{"batch", "small.json", "-o", ""} << "--output: The path is empty";
        QTest::newRow("empty table") << QStringList{"batch", "small.json", "-w", "", "-o", "empty"}
                                     << "--walls: The path is empty";
        QTest::newRow("empty difference")
            << QStringList{"verify", "taken.png", "small.json", "-d", ""} << "--diff: The path is empty";
        QTest::newRow("one input for two") << QStringList{"verify", "-", "-"} << "standard input";
        QTest::newRow("one output for two")
            << QStringList{"verify", "a.png", "small.json", "--diff", "-"} << "--diff: a file is needed";
        QTest::newRow("the same name twice")
            << QStringList{"batch", "small.json", "./small.json", "-o", "out"}
            << "two pictures would be called small.png";
        QTest::newRow("the standard input twice") << QStringList{"check", "-", "-"} << "-: stands twice";
        QTest::newRow("record and walls from one input")
            << QStringList{"batch", "-", "-w", "-", "-o", "out"} << "-: stands twice";
        QTest::newRow("record and picture from one input")
            << QStringList{"verify", "-", "-"} << "-: stands twice";
        QTest::newRow("the differences over the picture")
            << QStringList{"verify", "taken.png", "small.json", "-d", "./taken.png"}
            << "./taken.png: is the picture that is looked at";
        QTest::newRow("the manifest over a record")
            << QStringList{"batch", "small.json", "manifest.json", "-o", "."}
            << "manifest.json: is a record of the batch";
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const QStringList before = files();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(files(), before);
    }

    void newRecords()
    {
        const Outcome plain = run({QStringLiteral("new")});
        QCOMPARE(plain.code, 0);
        write(QStringLiteral("plain.json"), plain.output);
        QCOMPARE(run({"check", "plain.json"}).code, 0);
        const Outcome made = run({"new", "-p", "uhd", "--preset", "chess", "-s", "publicData.boxRow=12",
                                  "--set", "selfData.selfText=left, \"up\""});
        QCOMPARE(made.code, 0);
        const TestChartToolsData record = ChartRecordFile::fromJson(made.output).record;
        QCOMPARE(record.publicData.resolutionWidth, 3840);
        QCOMPARE(record.publicData.boxRow, 12);
        QCOMPARE(record.selfData.selfText, std::string("left, \"up\""));
        QVERIFY(!record.inLineData.showCircle);
    }

    /// A wall leaves the picture as it is, also behind it.
    void presetsInAnyOrder()
    {
        const QByteArray wallFirst = run({"new", "-p", "uhd", "-p", "numbering-top-left"}).output;
        QVERIFY(ChartRecordFile::fromJson(wallFirst).record.inLineData.numMode);
        QCOMPARE(run({"new", "-p", "numbering-top-left", "-p", "uhd"}).output, wallFirst);
    }

    void presetsAreListed()
    {
        const QByteArray names = run({QStringLiteral("presets"), QStringLiteral("--names")}).output;
        const QByteArray list = run({QStringLiteral("presets")}).output;
        QVERIFY(names.contains("numbering-bottom-right\n"));
        QCOMPARE(list.count('\n'), names.count('\n'));
        QVERIFY(list.contains("1920 x 1080, 16 x 9 cabinets of 120 x 120"));
    }

    void unreadableInput_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing") << "missing.json"
                                 << "missing.json: No such file";
        QTest::newRow("no name") << ""
                                 << ": No file name";
        QTest::newRow("a folder") << "."
                                  << ".: it is a folder";
        QTest::newRow("not JSON") << "broken.json"
                                  << "broken.json: not JSON";
        QTest::newRow("a wrong field") << "wrong.json"
                                       << "wrong.json: publicData.resolutionWidth: 50000 is not in 16..32768";
        QTest::newRow("a large one, with a percent sign") << "large%2.json"
                                                          << "large%2.json: more than 1048576 bytes";
        QTest::newRow("endless") << "/dev/zero"
                                 << "/dev/zero: more than 1048576 bytes";
    }

    void unreadableInput()
    {
        QFETCH(QString, record);
        QFETCH(QString, message);
        const Outcome outcome =
            run({QStringLiteral("render"), record, QStringLiteral("-o"), QStringLiteral("no.png")});
        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QVERIFY(!files().contains(QStringLiteral("no.png")));
    }

    /// A chart without its logo would be another chart.
    void missingLogo_data()
    {
        QTest::addColumn<QStringList>("settings");
        QTest::addColumn<int>("code");
        QTest::newRow("missing") << QStringList{"-s", "logoData.picturePath=none.png"} << 3;
        QTest::newRow("not shown") << QStringList{"-s", "logoData.picturePath=none.png", "-s",
                                                  "logoData.showLogo=false"}
                                   << 0;
        QTest::newRow("a text instead")
            << QStringList{"-s", "logoData.picturePath=none.png", "-s", "logoData.pictureLogo=false",
                           "-s", "logoData.textLogo=true"}
            << 0;
    }

    void missingLogo()
    {
        QFETCH(QStringList, settings);
        QFETCH(int, code);
        const Outcome outcome = run(QStringList{"render", "small.json", "-o", "logo.png"} + settings);
        QCOMPARE(outcome.code, code);
        QCOMPARE(outcome.errors.contains(QStringLiteral("logoData.picturePath: \"none.png\" does not exist")),
                 code == 3);
        QCOMPARE(QFile::remove(path(QStringLiteral("logo.png"))), code == 0);
    }

    /// As when the program alone was copied somewhere: the built-in picture comes with it.
    void theProgramAlone()
    {
        const QString copy = path(QStringLiteral("vdchart"));
        QVERIFY(QFile::copy(programPath("vdchart"), copy));
        const Outcome outcome = runInShell(QStringLiteral("./vdchart render small.json -o -"));
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, run({"render", "small.json", "-o", "-"}).output);
        QVERIFY(QFile::remove(copy));
    }

    void logoPictures_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("read") << "$vdchart render small.json -o l.png -s logoData.picturePath=logos/good.png"
                              << 0 << "";
        QTest::newRow("missing") << "$vdchart render small.json -o l.png -s logoData.picturePath=logos/no.png"
                                 << 3 << "logoData.picturePath: \"logos/no.png\" does not exist";
        QTest::newRow("cut off")
            << "$vdchart render small.json -o l.png -s logoData.picturePath=logos/cut.png" << 3
            << "logoData.picturePath: \"logos/cut.png\" cannot be read to its end";
        QTest::newRow("a pipe")
            << "timeout 9 $vdchart render small.json -o l.png -s logoData.picturePath=logos/pipe" << 3
            << "logoData.picturePath: \"logos/pipe\" is not a picture";
        QTest::newRow("written over")
            << "$vdchart render small.json -o logos/../logos/good.png -s logoData.picturePath=logos/good.png"
            << 2 << "logos/../logos/good.png: is the picture of the record's logo";
        QTest::newRow("written over by a batch")
            << "$vdchart batch small.json -o logos -s logoData.picturePath=logos/small.png" << 2
            << "logos/small.png: is the picture of the record's logo";
    }

    void logoPictures()
    {
        QCOMPARE(runInShell(QStringLiteral(
                                "mkdir -p logos && cd logos && $vdchart render ../small.json -o good.png && "
                                "cp good.png small.png && head -c 2000 good.png > cut.png && "
                                "{ test -p pipe || mkfifo pipe; }"))
                     .code,
                 0);
        const QByteArray picture = read(QStringLiteral("logos/good.png"));
        QFETCH(QString, script);
        QFETCH(int, code);
        QFETCH(QString, message);
        const Outcome outcome = runInShell(script);
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QCOMPARE(read(QStringLiteral("logos/good.png")), picture);
        QCOMPARE(read(QStringLiteral("logos/small.png")), picture);
    }

    void check_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("good") << QStringList{"check", "good.json"} << 0 << "";
        QTest::newRow("an error")
            << QStringList{"check", "wrong.json"} << 1
            << "wrong.json: error: publicData.resolutionWidth: 50000 is not in 16..32768";
        QTest::newRow("a warning") << QStringList{"check", "good.json", "--set", "publicData.boxCol=7"} << 1
                                   << "good.json: warning: publicData.boxCol";
        QTest::newRow("errors only") << QStringList{"check", "good.json", "--errors", "--set",
                                                    "publicData.boxCol=7"}
                                     << 0 << "";
        QTest::newRow("several") << QStringList{"check", "good.json", "wrong.json"} << 1
                                 << "wrong.json: error";
        QTest::newRow("one is missing")
            << QStringList{"check", "missing.json", "wrong.json"} << 3 << "wrong.json: error";
    }

    void check()
    {
        write(QStringLiteral("good.json"), run({"new", "--preset", "chess"}).output);
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, message);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.output.startsWith(message.toUtf8()), outcome.output.constData());
        QCOMPARE(outcome.output.isEmpty(), message.isEmpty());
    }

    void formats_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("png") << "a.png" << QByteArray("\x89PNG");
        QTest::newRow("jpg") << "a.jpg" << QByteArray("\xff\xd8\xff");
        QTest::newRow("jpeg") << "a.JPEG" << QByteArray("\xff\xd8\xff");
        QTest::newRow("bmp") << "a.bmp" << QByteArray("BM");
    }

    void formats()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, begin);
        const Outcome outcome =
            run({QStringLiteral("render"), QStringLiteral("small.json"), QStringLiteral("-o"), file});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.errors, QString());
        QVERIFY(read(file).startsWith(begin));
        QCOMPARE(QImage(path(file)).size(), QSize(320, 180));
    }

    void streams()
    {
        QCOMPARE(run({"render", "small.json", "-o", "file.png"}).code, 0);
        const Outcome piped = run({"render", "-", "-o", "-"}, read(QStringLiteral("small.json")));
        QCOMPARE(piped.code, 0);
        QVERIFY(!piped.output.isEmpty());
        QCOMPARE(piped.output, read(QStringLiteral("file.png")));
    }

    /// Record and picture arrive in parts, as through a network.
    void slowStreams()
    {
        const Outcome slow = runInShell(QStringLiteral(
            "set -o pipefail; { head -c 99 small.json; sleep 0.3; tail -c +100 small.json; } | "
            "$vdchart render - -c 0 -o slow.png && "
            "{ head -c 9999 slow.png; sleep 0.3; tail -c +10000 slow.png; } | $vdchart verify - small.json"));
        QCOMPARE(slow.errors, QString());
        QCOMPARE(slow.code, 0);
    }

    /// The picture is not to go where the toolkit has opened something in the place of the standard output.
    void closedStreams_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("output") << "$vdchart render small.json -o - >&-" << 4
                                << "standard output: Bad file descriptor";
        QTest::newRow("text") << "$vdchart presets >&-" << 4 << "standard output: ";
        QTest::newRow("input") << "$vdchart render - -o - <&-" << 3 << "standard input: Bad file descriptor";
        QTest::newRow("none that is needed")
            << "$vdchart render small.json -o closed.png <&- >&- 2>&-" << 0 << "";
    }

    void closedStreams()
    {
        QFETCH(QString, script);
        QFETCH(int, code);
        QFETCH(QString, message);
        const Outcome outcome = runInShell(script);
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
    }

    /// Which would have other fonts, or no display.
    void theDesktopDoesNotMatter_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::newRow("without a display") << "-u DISPLAY QT_QPA_PLATFORM=xcb";
        QTest::newRow("another platform") << "QT_QPA_PLATFORM=minimal";
        QTest::newRow("a scaled desktop") << "QT_SCALE_FACTOR=2 QT_FONT_DPI=192";
        QTest::newRow("another language") << "LC_ALL=tr_TR.UTF-8";
        QTest::newRow("nothing but a sanitizer's options") << "-i LSAN_OPTIONS=\"$LSAN_OPTIONS\"";
    }

    void theDesktopDoesNotMatter()
    {
        QFETCH(QString, environment);
        const Outcome outcome =
            runInShell(QStringLiteral("env %1 $vdchart render small.json -o -").arg(environment));
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, run({"render", "small.json", "-o", "-"}).output);
    }

    void settings()
    {
        QCOMPARE(run({"render", "small.json", "-o", "wide.png", "-s", "publicData.resolutionWidth=400"}).code,
                 0);
        QCOMPARE(QImage(path(QStringLiteral("wide.png"))).size(), QSize(400, 180));
    }

    void language()
    {
        const QByteArray english = run({"render", "small.json", "-o", "-"}).output;
        QCOMPARE(run({"render", "small.json", "-o", "-", "--lang", "en"}).output, english);
        QVERIFY(run({"render", "small.json", "-o", "-", "--lang", "de"}).output != english);
    }

    /// The program knows the languages of the texts, and no others.
    void everyLanguage()
    {
        const QByteArray help = run({"render", "--help"}).output;
        QStringList codes;
        for (const QFileInfo& texts :
             QDir(sourcePath("translations")).entryInfoList({"*.ts"}, QDir::Files, QDir::Name))
            codes.append(texts.completeBaseName());
        QVERIFY(codes.size() > 1);
        QVERIFY2(help.contains('{' + codes.join(',').toUtf8() + '}'), help.constData());
    }

    void compression()
    {
        const QByteArray stored = run({"render", "small.json", "-o", "-", "-c", "0"}).output;
        const QByteArray smallest = run({"render", "small.json", "-o", "-", "-c", "9"}).output;
        QVERIFY(stored.size() > 320 * 180 * 3);
        QVERIFY(smallest.size() < stored.size() / 4);
        VD_COMPARE_IMAGES(QImage::fromData(stored), QImage::fromData(smallest));
    }

    void notWritten_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("no folder") << "$vdchart render small.json -o nowhere/a.png";
        QTest::newRow("a folder") << "mkdir -p f.png && $vdchart render small.json -o f.png";
        QTest::newRow("full disk") << "$vdchart render small.json -o - > /dev/full";
        QTest::newRow("text on a full disk") << "$vdchart presets > /dev/full";
        QTest::newRow("too large a file") << "ulimit -f 4; $vdchart render small.json -c 0 -o large.png";
        QTest::newRow("not even a small file")
            << "ulimit -f 0; $vdchart render small.json -s publicData.resolutionWidth=16 "
               "-s publicData.resolutionHeight=16 -s inLineData.showSerialNumber=false -o large.png";
        QTest::newRow("nobody reads")
            << "{ $vdchart render small.json -c 0 -o -; echo $? >&3; } 3> code | true; exit $(cat code)";
        QTest::newRow("the manifest") << "mkdir -p b/manifest.json && $vdchart batch small.json -o b";
    }

    void notWritten()
    {
        QFETCH(QString, script);
        if (script.contains(QLatin1String("/dev/full")) && !QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("there is no /dev/full, and a file of that name would not be full");
        const Outcome outcome = runInShell(script);
        QCOMPARE(outcome.code, 4);
        QVERIFY2(outcome.errors.startsWith(QLatin1String("vdchart: ")), qPrintable(outcome.errors));
        QVERIFY(!files().contains(QStringLiteral("large.png")));
        for (const QString& file : files())
            QVERIFY2(!file.startsWith(QLatin1String("large.png")), qPrintable(file)); // nor a part of it
    }

    void anOldPictureStaysWhole()
    {
        QCOMPARE(run({"render", "small.json", "-o", "kept.png"}).code, 0);
        const QByteArray before = read(QStringLiteral("kept.png"));
        QCOMPARE(runInShell(QStringLiteral("ulimit -f 4; $vdchart render small.json -c 0 -o kept.png")).code,
                 4);
        QCOMPARE(read(QStringLiteral("kept.png")), before);
    }

    void batchOfRecords()
    {
        const Outcome outcome = run({"batch", "small.json", "other.json", "-o", "records"});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.output, QByteArray("2 of 2 pictures written\n"));
        QCOMPARE(outcome.errors, QString()); // no bar where there is no terminal
        QCOMPARE(files(QStringLiteral("records")), QStringList({"manifest.json", "other.png", "small.png"}));
        QCOMPARE(read(QStringLiteral("records/small.png")), run({"render", "small.json", "-o", "-"}).output);
    }

    void batchOfWalls()
    {
        write(QStringLiteral("walls.csv"),
              "name,width,height,rows,columns\nleft,160,90,3,4\nright,320,200,,\n");
        const Outcome outcome =
            run({"batch", "small.json", "--walls", "walls.csv", "-o", "walls", "-f", "bmp"});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(files(QStringLiteral("walls")), QStringList({"left.bmp", "manifest.json", "right.bmp"}));
        QCOMPARE(QImage(path(QStringLiteral("walls/left.bmp"))).size(), QSize(160, 90));
    }

    void batchOfBoth()
    {
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nright,320\n");
        QCOMPARE(run({"batch", "small.json", "other.json", "-w", "walls.csv", "-o", "both", "-j", "1"}).code,
                 0);
        QCOMPARE(files(QStringLiteral("both")),
                 QStringList({"manifest.json", "other-left.png", "other-right.png", "small-left.png",
                              "small-right.png"}));
    }

    void batchOfTheStandardInput()
    {
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nright,320\n");
        const Outcome outcome =
            run({"batch", "-", "-w", "walls.csv", "-o", "piped"}, read(QStringLiteral("small.json")));
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.code, 0);
        QCOMPARE(files(QStringLiteral("piped")), QStringList({"left.png", "manifest.json", "right.png"}));
        QCOMPARE(run({"batch", "-", "-w", "walls.csv", "-o", "none"}, "{").code, 3);
        QCOMPARE(files(QStringLiteral("none")), QStringList({"manifest.json"}));
    }

    void batchOfWallsFromTheStandardInput()
    {
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nright,320\n");
        const QStringList pictures{"left.png", "manifest.json", "right.png"};
        QCOMPARE(run({"batch", "-", "-w", "walls.csv", "-o", "one"}, read(QStringLiteral("small.json"))).code,
                 0);
        QCOMPARE(files(QStringLiteral("one")), pictures);
        QCOMPARE(run({"batch", "small.json", "-w", "-", "-o", "two"}, read(QStringLiteral("walls.csv"))).code,
                 0);
        QCOMPARE(files(QStringLiteral("two")), pictures);
    }

    /// As a spreadsheet may save them.
    void wallsThatAreNotUtf8_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<int>("line");
        QTest::newRow("Latin-1") << QByteArray("name,selfData.selfText\na,Left\nb,B\xfchne\n") << 3;
        QTest::newRow("UTF-16") << QByteArray("\xff\xfen\0a\0m\0e\0\n\0x\0\n\0", 16) << 1;
        QTest::newRow("half a character") << QByteArray("name\na\xc3") << 2;
        QTest::newRow("character of value 0") << QByteArray("name\na\0b\n", 9) << 2;
    }

    void wallsThatAreNotUtf8()
    {
        QFETCH(QByteArray, table);
        QFETCH(int, line);
        const Outcome outcome = run({"batch", "small.json", "-w", "-", "-o", "no"}, table);
        QCOMPARE(outcome.code, 3);
        QCOMPARE(outcome.errors,
                 QStringLiteral("vdchart: standard input: line %1: not UTF-8 text\n").arg(line));
    }

    void aBatchGoesOn()
    {
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nlarge,50000\nright,320\n");
        const Outcome outcome = run({"batch", "small.json", "wrong.json", "-w", "walls.csv", "-o", "some"});
        QCOMPARE(outcome.code, 3);
        QCOMPARE(outcome.output, QByteArray("2 of 6 pictures written\n"));
        QVERIFY(
            outcome.errors.contains(QStringLiteral("failed: small-large.png: wall \"large\": "
                                                   "publicData.resolutionWidth: 50000 is not in 16..32768")));
        QVERIFY(outcome.errors.contains(QStringLiteral("failed: wrong-left.png: ")));
        QCOMPARE(files(QStringLiteral("some")),
                 QStringList({"manifest.json", "small-left.png", "small-right.png"}));
    }

    /// The toolkit draws large glyphs from outlines, which small ones of the same font may leave changed.
    void picturesDoNotDependOnThoseBefore()
    {
        QStringList records;
        for (int i = 0; i < 16; ++i) {
            TestChartToolsData record = smallRecord();
            record.publicData.boxRow = 1 + i % 3;
            record.publicData.boxCol = 1 + i % 4;
            record.inLineData.serialSize = 100 - 6 * i;
            record.selfData.selfText = i % 2 ? "Qg" : "&8 屏";
            record.selfData.selfTextSize = 30 + 10 * i;
            record.selfData.resolutionTextSize = 10 + i;
            record.logoData.textLogo = true;
            record.logoData.pictureLogo = false;
            record.logoData.logoText = "W" + std::to_string(i);
            record.logoData.textSize = 20 + 5 * i;
            records.append(QStringLiteral("text%1.json").arg(i));
            write(records.last(), ChartRecordFile::toJson(record));
        }
        QCOMPARE(run(QStringList{"batch", "-j", "1", "-o", "forwards"} + records).code, 0);
        const QStringList reversed(records.rbegin(), records.rend());
        QCOMPARE(run(QStringList{"batch", "-j", "1", "-o", "backwards"} + reversed).code, 0);
        for (const QString& record : records) {
            const QString picture = QFileInfo(record).completeBaseName() + ".png";
            const QByteArray alone = run({"render", record, "-o", "-"}).output;
            QVERIFY2(read("forwards/" + picture) == alone, qPrintable(record));
            QVERIFY2(read("backwards/" + picture) == alone, qPrintable(record));
        }
    }

    void manifest()
    {
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nlarge,50000\n");
        QCOMPARE(run({"batch", "small.json", "-w", "walls.csv", "-o", "told"}).code, 3);
        const QJsonObject told = QJsonDocument::fromJson(read(QStringLiteral("told/manifest.json"))).object();
        QCOMPARE(told.value("version").toInt(), 1);
        QCOMPARE(told.value("program").toString(), QStringLiteral("vdchart " VDPATTERNDESIGN_VERSION));
        const QJsonObject left = told.value("pictures").toArray().at(0).toObject();
        const QByteArray file = read(QStringLiteral("told/left.png"));
        QCOMPARE(left.value("file").toString(), QStringLiteral("left.png"));
        QCOMPARE(left.value("record").toString(), QStringLiteral("small.json"));
        QCOMPARE(left.value("wall").toString(), QStringLiteral("left"));
        QCOMPARE(left.value("width").toInt(), 160);
        QCOMPARE(left.value("height").toInt(), 180);
        QCOMPARE(left.value("size").toInt(), file.size());
        QCOMPARE(left.value("sha256").toString().toLatin1(),
                 QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex());
        const QJsonObject large = told.value("failed").toArray().at(0).toObject();
        QCOMPARE(large.value("file").toString(), QStringLiteral("large.png"));
        QVERIFY(large.value("problem").toString().contains(QStringLiteral("50000")));
    }

    void anInterruptedBatchTellsWhatItDid()
    {
        QByteArray walls = "name,width,height\n";
        for (int i = 0; i < 200; ++i)
            walls += "w" + QByteArray::number(i) + ",1920,1080\n";
        write(QStringLiteral("many.csv"), walls);
        const Outcome outcome = runInShell(QStringLiteral(
            "$vdchart batch small.json -w many.csv -o many & "
            "until ls many/*.png >/dev/null 2>&1; do sleep 0.02; done; kill -TERM $!; wait $!"));
        QCOMPARE(outcome.code, 130);
        const QJsonObject told = QJsonDocument::fromJson(read(QStringLiteral("many/manifest.json"))).object();
        const int done = told.value("pictures").toArray().size();
        QVERIFY(done > 0 && done < 200);
        QCOMPARE(done + told.value("failed").toArray().size(), 200);
        QCOMPARE(files(QStringLiteral("many")).size(), done + 1);
        QCOMPARE(outcome.errors, QStringLiteral("vdchart: interrupted: not begun: %1\n").arg(200 - done));
    }

    /// Where memory lacks for pictures or for threads, the batch fails as it may, but does not wait for ever.
    void aBatchWithoutMemoryEnds()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer needs addresses without a limit");
#endif
        write(QStringLiteral("largest.json"), run({"new", "-p", "square-4320"}).output);
        write(QStringLiteral("eight.csv"), "name\na\nb\nc\nd\ne\nf\ng\nh\n");
        for (const char* limit : {"300000", "400000", "500000"}) {
            const Outcome outcome = runInShell(
                QStringLiteral("ulimit -v %1; timeout -k 1 8 $vdchart batch largest.json -w eight.csv -j 4 "
                               "-f bmp -o poor")
                    .arg(QLatin1String(limit)));
            QVERIFY2(outcome.code != 124 && outcome.code != 137, limit); // stopped after the time
        }
    }

    void aBarOnATerminal()
    {
        if (runInShell(QStringLiteral("script -qec true /dev/null")).code != 0)
            QSKIP("there is no \"script\", or no terminal to be had");
        const Outcome outcome =
            runInShell(QStringLiteral("script -qec '$vdchart batch small.json other.json -o bar' /dev/null"));
        QCOMPARE(outcome.code, 0);
        QVERIFY2(outcome.output.contains("[........................] 0/2 small.png"),
                 outcome.output.constData());
        QVERIFY2(outcome.output.contains("[############............] 1/2 other.png"),
                 outcome.output.constData());
    }

    void verify_data()
    {
        QTest::addColumn<QString>("image");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("the chart") << "chart.png" << 0 << "chart.png: this is the chart, pixel for pixel\n";
        QTest::newRow("as BMP") << "chart.bmp" << 0 << "chart.bmp: this is the chart";
        QTest::newRow("as JPEG") << "chart.jpg" << 1 << "chart.jpg: a little different everywhere";
        QTest::newRow("mirrored") << "mirrored.png" << 1 << "mirrored.png: ";
        QTest::newRow("two cabinets swapped") << "swapped.png" << 1 << "swapped.png: ";
        QTest::newRow("another chart") << "other.png" << 1 << "other.png: ";
        QTest::newRow("missing") << "missing.png" << 3 << "";
        QTest::newRow("no picture") << "numbers.json" << 3 << "";
    }

    void verify()
    {
        write(
            QStringLiteral("numbers.json"),
            run({"new", "-p", "numbering-top-left", "-s", "publicData.resolutionWidth=320", "-s",
                 "publicData.resolutionHeight=180", "-s", "publicData.boxRow=3", "-s", "publicData.boxCol=4"})
                .output);
        QCOMPARE(run({"render", "numbers.json", "-o", "chart.png"}).code, 0);
        QCOMPARE(run({"render", "numbers.json", "-o", "chart.bmp"}).code, 0);
        QCOMPARE(run({"render", "numbers.json", "-o", "chart.jpg"}).code, 0);
        QCOMPARE(run({"render", "small.json", "-o", "other.png"}).code, 0);
        const QImage chart = QImage(path(QStringLiteral("chart.png")))
                                 .convertToFormat(QImage::Format_RGB32); // it has a palette
        QVERIFY(chart.mirrored(true, false).save(path(QStringLiteral("mirrored.png"))));
        QImage swapped = chart;
        QPainter painter(&swapped);
        painter.drawImage(0, 0, chart, 80, 60, 80, 60);
        painter.drawImage(80, 60, chart, 0, 0, 80, 60);
        painter.end();
        QVERIFY(swapped.save(path(QStringLiteral("swapped.png"))));

        QFETCH(QString, image);
        QFETCH(int, code);
        QFETCH(QString, message);
        const Outcome outcome = run({"verify", image, "numbers.json", "--diff", "difference.png"});
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.output.startsWith(message.toUtf8()), outcome.output.constData());
        QCOMPARE(QFile::exists(path(QStringLiteral("difference.png"))), code == 1);
        QCOMPARE(outcome.errors.isEmpty(), code != 3);
        QFile::remove(path(QStringLiteral("difference.png")));
        if (image == QLatin1String("swapped.png"))
            QVERIFY2(outcome.output.contains("1-1") && outcome.output.contains("2-2"),
                     outcome.output.constData());
    }

    void translucentPicture()
    {
        QImage picture = QImage::fromData(run({"render", "small.json", "-o", "-"}).output)
                             .convertToFormat(QImage::Format_ARGB32);
        QVERIFY(picture.save(path(QStringLiteral("opaque.png"))));
        QCOMPARE(run({"verify", "opaque.png", "small.json"}).code, 0);
        QRgb& pixel = reinterpret_cast<QRgb*>(picture.scanLine(7))[9];
        pixel = qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), 254);
        QVERIFY(picture.save(path(QStringLiteral("translucent.png"))));
        const Outcome outcome = run({"verify", "translucent.png", "small.json"});
        QCOMPARE(outcome.code, 1);
        QCOMPARE(outcome.output, QByteArray("translucent.png: 1 pixels are translucent\n"));
    }

    void pictureFromTheStandardInput()
    {
        const QByteArray picture = run({"render", "small.json", "-o", "-"}).output;
        QCOMPARE(run({"verify", "-", "small.json"}, picture).code, 0);
    }

    /// A file of a few bytes that says it has more pixels than the memory.
    /// Small files which would fill the memory.
    void hugePictures_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QByteArray bmp("BM\0\0\0\0\0\0\0\0\66\0\0\0\50\0\0\0", 18);
        bmp += QByteArray::fromHex("e02e0000"
                                   "20d1ffff"
                                   "0100"
                                   "1800"); // 12000 x -12000, 24 bits
        bmp += QByteArray(200, '\0');
        QByteArray gif("GIF89a\x20\x4e\x20\x4e\x80\0\0\0\0\xff\0\0\0", 19); // 20000 x 20000
        gif += QByteArray(",\0\0\0\0\4\0\4\0\0\2\4\x84\x8f\x09\5\0;", 18);
        QTest::newRow("PPM") << QByteArray("P6 30000 30000 255\n") << "30000 x 30000 pixels are too many";
        QTest::newRow("BMP, rows from the top") << bmp << "12000 x 12000 pixels are too many";
        QTest::newRow("GIF of a large screen") << gif << "20000 x 20000 pixels are too many";
        QTest::newRow("PNG full of text") << pngBomb() << "its texts have more than 8388608 bytes";
    }

    void hugePictures()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        write(QStringLiteral("huge.png"), bytes);
        const Outcome verify = run({"verify", "huge.png", "small.json"});
        QCOMPARE(verify.errors, "vdchart: huge.png: " + reason + "\n");
        QCOMPARE(verify.code, 3);
    }

    /// Nor is a record looked for in them.
    void aPictureFullOfTextIsNoRecord()
    {
        write(QStringLiteral("bomb.png"), pngBomb());
        const Outcome render = run({"render", "bomb.png", "-o", "out.png"});
        QCOMPARE(render.errors,
                 QStringLiteral("vdchart: bomb.png: its texts have more than 8388608 bytes\n"));
        QCOMPARE(render.code, 3);
    }

    void documentedCommands_data()
    {
        QTest::addColumn<QString>("command");
        for (const char* document : {"README.md", "docs/commandline.md"}) {
            QFile file(sourcePath(document));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QRegularExpression line(QStringLiteral("^(?:vdchart|for \\w+ in) .*$"),
                                          QRegularExpression::MultilineOption);
            auto lines = line.globalMatch(QString::fromUtf8(file.readAll()));
            while (lines.hasNext()) {
                const QString command = lines.next().captured();
                QTest::newRow(qPrintable(command)) << command;
            }
        }
    }

    /// One after the other, in one folder, as a reader would do it.
    void documentedCommands()
    {
        QFETCH(QString, command);
        write(QStringLiteral("walls.csv"), "name,width\nleft,160\nright,320\n");
        if (command.contains(QLatin1String("captured.png")))
            QVERIFY(QFile::copy(path(QStringLiteral("wall.png")), path(QStringLiteral("captured.png"))));
        const Outcome outcome =
            runInShell(QStringLiteral("vdchart() { $vdchart \"$@\"; }; set -o pipefail; ") + command);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.code, 0);
    }

    void manualAndCompletions()
    {
        QVERIFY(run({"--generate", "man"}).output.contains("130 interrupted"));
        const QByteArray man = run({"--generate", "man"}).output;
        QVERIFY(man.startsWith(".TH VDCHART 1"));
        for (const char* kind : {"bash", "zsh"}) {
            const QByteArray script = run({"--generate", QLatin1String(kind)}).output;
            for (const char* word :
                 {"render", "--compression", "--walls", "zh_CN", "presets --names", "selfData.selfText"})
                QVERIFY2(script.contains(word), word);
        }
        for (const char* option : {"\\-\\-compression", "\\-\\-walls", "vdchart verify", ".SH EXIT STATUS"})
            QVERIFY2(man.contains(option), option);
    }

    void bashCompletes_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("completions");
        QTest::newRow("command") << "vdchart ren"
                                 << "render";
        QTest::newRow("option") << "vdchart render --comp"
                                << "--compression";
        QTest::newRow("value") << "vdchart render --lang zh"
                               << "zh_CN";
        QTest::newRow("preset") << "vdchart new --preset ramp-1"
                                << "ramp-16";
        QTest::newRow("language behind a sign") << "vdchart render --lang = zh"
                                                << "zh_CN";
        QTest::newRow("the sign itself") << "vdchart batch --format ="
                                         << "png jpg bmp json";
        QTest::newRow("field") << "vdchart new --set publicData.boxR"
                               << "publicData.boxRow=";
        QTest::newRow("short field") << "vdchart render small.json -s col"
                                     << "columns=";
        QTest::newRow("file") << "vdchart render smal"
                              << "small.json";
    }

    void bashCompletes()
    {
        QFETCH(QString, words);
        QFETCH(QString, completions);
        const Outcome outcome = runInShell(
            QStringLiteral(
                "PATH=$(dirname $vdchart):$PATH; source <(vdchart --generate bash); COMP_WORDS=(%1); "
                "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _vdchart; echo \"${COMPREPLY[@]}\"")
                .arg(words));
        QCOMPARE(QString::fromUtf8(outcome.output).trimmed(), completions);
    }
};

VD_TEST_MAIN(TestVdchart)
#include "tst_vdchart.moc"
