#include "findingjson.h"
#include "pngencoder.h"
#include "programtest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>

using namespace ChartComparison;

/// What is told of pictures, and where the record comes from.
class TestVerify : public ProgramTest
{
    Q_OBJECT

private:
    static void encodeWith(const std::vector<PngText>& texts, const QString& file)
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        PngOptions options;
        options.texts = texts;
        QFile output(file);
        if (output.open(QIODevice::WriteOnly))
            encodePng(rowsOf(image), options,
                      [&output](const char* bytes, qint64 count) { output.write(bytes, count); });
    }

    /// Every channel a step away from the chart's.
    void saveOff(const QString& name, int steps) const
    {
        QImage chart = QImage(path(QStringLiteral("small.png"))).convertToFormat(QImage::Format_RGB888);
        for (int y = 0; y < chart.height(); ++y) {
            uchar* const row = chart.scanLine(y);
            for (int x = 0; x < 3 * chart.width(); ++x)
                row[x] = uchar(row[x] < 128 ? row[x] + steps : row[x] - steps);
        }
        QImage bare(chart.size(), QImage::Format_RGB32);
        bare.fill(Qt::black);
        QPainter(&bare).drawImage(0, 0, chart);
        QVERIFY(bare.save(path(name)));
    }

private Q_SLOTS:
    void initTestCase()
    {
        write(QStringLiteral("small.json"),
              run({"new", "-p", "numbering-top-left", "-s", "width=640", "-s", "height=360", "--grid", "4x3",
                   "-s", "selfData.showResolution=true"})
                  .output);
        QCOMPARE(run({"render", "small.json", "-o", "small.png"}).code, 0);
    }

    void withTheCarriedRecord_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("code");
        QTest::newRow("its own chart") << "$vdchart verify small.png" << 0;
        QTest::newRow("from the standard input") << "$vdchart verify - < small.png" << 0;
        QTest::newRow("another chart") << "$vdchart verify small.png -s rows=5" << 1;
        QTest::newRow("in its language")
            << "$vdchart render small.json -l de -o de.png && $vdchart verify de.png" << 0;
        QTest::newRow("in another language")
            << "$vdchart render small.json -l de -o de.png && $vdchart verify de.png -l en" << 1;
        QTest::newRow("of a batch") << "$vdchart batch small.json -o out && $vdchart verify out/small.png"
                                    << 0;
        QTest::newRow("without")
            << "$vdchart render small.json --no-record -o bare.png && $vdchart verify bare.png" << 3;
        QTest::newRow("a batch without")
            << "$vdchart batch small.json --no-record -o bare && $vdchart verify bare/small.png" << 3;
        QTest::newRow("as BMP") << "$vdchart render small.json -o small.bmp && $vdchart verify small.bmp"
                                << 3;
        QTest::newRow("moved with its logo")
            << "mkdir here && cp small.png here/logo.png && $vdchart render small.json "
               "-s logoData.picturePath=here/logo.png -s logoData.showLogo=true -o here/w.png && mv here "
               "there && "
               "$vdchart verify there/w.png"
            << 0;
    }

    void withTheCarriedRecord()
    {
        QFETCH(QString, script);
        const Outcome outcome = runInShell(script);
        QTEST(outcome.code, "code");
        QCOMPARE(outcome.errors.contains(QLatin1String("carries no record")), outcome.code == 3);
    }

    /// What anyone may have written into a picture.
    void aCarriedRecordThatIsNone_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("message");
        QTest::newRow("no JSON") << "{]"
                                 << "en"
                                 << "carried.png: ";
        QTest::newRow("out of range")
            << "{\"format\": \"testchart\", \"version\": 1, \"publicData\": {\"boxRow\": 50000}}"
            << "en"
            << "publicData.boxRow";
        QTest::newRow("too large") << "{}" + QString(3 << 20, QLatin1Char(' ')) << "en"
                                   << "carried.png: ";
        QTest::newRow("a language that is none") << "{}"
                                                 << "xx"
                                                 << "for the language \"xx\"";
    }

    void aCarriedRecordThatIsNone()
    {
        QFETCH(QString, record);
        QFETCH(QString, language);
        QFETCH(QString, message);
        encodeWith({{"testchart-record", record}, {"testchart-language", language}},
                   path(QStringLiteral("carried.png")));
        const Outcome outcome = run({"verify", "carried.png"});
        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
    }

    void anOldDifferenceIsRemoved()
    {
        QCOMPARE(run({"verify", "small.png", "-s", "rows=5", "-d", "difference.png"}).code, 1);
        QVERIFY(QFile::exists(path(QStringLiteral("difference.png"))));
        QCOMPARE(run({"verify", "small.png", "-d", "difference.png"}).code, 0);
        QVERIFY(!QFile::exists(path(QStringLiteral("difference.png"))));
        QCOMPARE(run({"verify", "small.png", "-d", "difference.png"}).code, 0);
    }

    void asJson()
    {
        const Outcome good = run({"verify", "small.png", "--format", "json"});
        QCOMPARE(good.code, 0);
        QJsonObject verdict = QJsonDocument::fromJson(good.output).object();
        QCOMPARE(verdict.value("format").toString(), QStringLiteral("testchart-verification"));
        QCOMPARE(verdict.value("good").toBool(), true);
        QCOMPARE(verdict.value("findings").toArray(), QJsonArray());

        QImage wall = QImage(path(QStringLiteral("small.png"))).convertToFormat(QImage::Format_RGB32);
        QPainter(&wall).fillRect(QRect(160, 240, 160, 120), Qt::black);
        QVERIFY(wall.save(path(QStringLiteral("wall.png"))));
        const Outcome bad = run({"verify", "wall.png", "small.json", "--format", "json"});
        QCOMPARE(bad.code, 1);
        verdict = QJsonDocument::fromJson(bad.output).object();
        QCOMPARE(verdict.value("good").toBool(), false);
        const QJsonObject finding = verdict.value("findings").toArray().first().toObject();
        QCOMPARE(finding.value("kind").toString(), QStringLiteral("cabinetMissing"));
        QCOMPARE(finding.value("color").toString(), QStringLiteral("#000000"));
        const QJsonObject cabinet = finding.value("cabinets").toArray().first().toObject();
        QCOMPARE(cabinet.value("row").toInt(), 2);
        QCOMPARE(cabinet.value("column").toInt(), 1);
        QCOMPARE(cabinet.value("label").toString(), QStringLiteral("3-2"));
    }

    void values_data()
    {
        QTest::addColumn<QJsonObject>("actual");
        QTest::addColumn<QByteArray>("expected");
        const std::vector<CabinetPlace> cabinets(2);
        const auto add = [&cabinets](Kind kind, const Details& details, const char* expected) {
            QJsonObject object = findingJson({kind, details, cabinets, {}});
            object.remove("text");
            object.remove("cabinets");
            QTest::addRow("%d, %d", int(kind), int(details.index()))
                << object << QByteArray(expected).replace('\'', '"');
        };
        const SizeChange sizes{{4, 3}, {8, 6}};
        add(Kind::NotThisChart, {}, "{'kind':'notThisChart'}");
        add(Kind::NotThisChart, sizes, "{'expectedSize':[8,6],'kind':'notThisChart','size':[4,3]}");
        add(Kind::OneColor, SingleColor{0xff102030, sizes},
            "{'color':'#102030','expectedSize':[8,6],'kind':'oneColor','size':[4,3]}");
        add(Kind::Cropped, EdgeChange{QMargins(1, 2, 3, 4), sizes, true},
            "{'ambiguous':true,'bottom':4,'expectedSize':[8,6],'kind':'cropped','left':1,'right':3,'size':[4,"
            "3],'top':2}");
        add(Kind::Shifted, Shift{QPoint(5, -6), true, false},
            "{'ambiguous':false,'kind':'shifted','wraps':true,'x':5,'y':-6}");
        add(Kind::Scaled, ScaleChange{QRectF(0, 0, 8, 6), QRect(0, 0, 4, 3), true, sizes},
            "{'content':[0,0,4,3],'expectedSize':[8,6],'factors':[0.5,0.5],'kind':'scaled','part':[0,0,8,6],'"
            "size':[4,3],'smooth':true}");
        add(Kind::Turned, Turn::Transversed, "{'kind':'turned','turn':'transversed'}");
        add(Kind::CabinetSwapped, Swap{true}, "{'kind':'cabinetSwapped','mutual':true}");
        add(Kind::CabinetSwapped, Further{7}, "{'further':7,'kind':'cabinetSwapped'}");
        add(Kind::Lossy, Deviation{3, 0.5, 0.25},
            "{'differingShare':0.25,'greatest':3,'kind':'lossy','mean':0.5}");
        add(Kind::OutsideCabinets, PixelDifference{1, 9, {QPoint(2, 1), 0xff000000, 0xffffffff}, {}, 0},
            "{'differing':1,'first':{'color':'#000000','expectedColor':'#ffffff','x':2,'y':1},'kind':'"
            "outsideCabinets','pixels':9}");
        ColorEffect effect;
        effect.pairs = {{0xff000000, 0xff0000ff, 12}};
        add(Kind::ColorsChanged, effect,
            "{'colors':[{'from':'#000000','pixels':12,'to':'#0000ff'}],'effect':'colorsExchanged','kind':'"
            "colorsChanged'}");
        effect = {};
        effect.type = ColorEffect::Type::Brightness;
        effect.factors = {0.5, 0.5, 0.5};
        add(Kind::ColorsChanged, effect,
            "{'effect':'brightness','factors':[0.5,0.5,0.5],'kind':'colorsChanged'}");
        effect = {};
        effect.type = ColorEffect::Type::Decoded709;
        add(Kind::ColorsChanged, effect, "{'effect':'decoded709','kind':'colorsChanged'}");
        effect.type = ColorEffect::Type::ColorsExchanged;
        add(Kind::ColorsChanged, effect, "{'effect':'colorsExchanged','kind':'colorsChanged'}");
    }

    void values()
    {
        QFETCH(QJsonObject, actual);
        QFETCH(QByteArray, expected);
        QCOMPARE(QJsonDocument(actual).toJson(QJsonDocument::Compact), expected);
    }

    void tolerance_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << QStringList{"off.png", "small.json"} << 1 << "off.png: ";
        QTest::newRow("too little") << QStringList{"off.png", "small.json", "-t", "1"} << 1 << "off.png: ";
        QTest::newRow("enough") << QStringList{"off.png", "small.json", "--tolerance", "2"} << 0
                                << "off.png: this is the chart; channels are off by up to 2 of the 2 steps "
                                   "that are tolerated";
        QTest::newRow("not needed") << QStringList{"small.png", "--tolerance", "2"} << 0
                                    << "this is the chart, pixel for pixel";
        QTest::newRow("negative") << QStringList{"off.png", "small.json", "-t", "-1"} << 2
                                  << "Value -1 not in range";
        QTest::newRow("too much") << QStringList{"off.png", "small.json", "-t", "256"} << 2
                                  << "Value 256 not in range";
        QTest::newRow("of a folder") << QStringList{".", "-t", "1"} << 2
                                     << "--tolerance: the pictures of a folder are compared by their "
                                        "checksums";
    }

    void tolerance()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, text);
        saveOff(QStringLiteral("off.png"), 2);
        const Outcome outcome = run(QStringList{"verify"} + arguments);
        QTEST(outcome.code, "code");
        const QString all = QString::fromUtf8(outcome.output) + outcome.errors;
        QVERIFY2(all.contains(text), qPrintable(all));
    }

    void toleranceForPrograms()
    {
        saveOff(QStringLiteral("off.png"), 2);
        const QJsonObject tolerated =
            QJsonDocument::fromJson(run({"verify", "off.png", "small.json", "-t", "5", "-f", "json"}).output)
                .object();
        QCOMPARE(tolerated.value("good").toBool(), true);
        QCOMPARE(tolerated.value("tolerance").toInt(), 5);
        QCOMPARE(tolerated.value("greatestTolerated").toInt(), 2);
        const QJsonObject exact =
            QJsonDocument::fromJson(run({"verify", "small.png", "-f", "json"}).output).object();
        QCOMPARE(exact.keys(),
                 (QStringList{"findings", "format", "good", "picture", "translucentPixels", "version"}));
    }

    /// Whether the program was built with the reading or not.
    void aLossyPictureIsForTheReading()
    {
        QVERIFY(QImage(path(QStringLiteral("small.png"))).save(path(QStringLiteral("lossy.jpg")), "JPG", 60));
        const Outcome outcome = run({"verify", "lossy.jpg", "small.json"});
        QCOMPARE(outcome.code, 1);
        QVERIFY2(outcome.output.contains("\"vdchart read\" looks at it"), outcome.output.constData());
    }

    void alternativesAndCabinets()
    {
        Finding finding{Kind::CabinetTurned, Turn::Half, {{1, 2, QStringLiteral("B-C"), true}}, {}};
        finding.alternatives = {{Kind::Shifted, Shift{QPoint(1, 0), false, false}, {}, {}}};
        const QJsonObject object = findingJson(finding);
        QCOMPARE(object.value("text").toString(),
                 QStringLiteral("B-C is turned by 180 degrees; or shifted 1 pixel to the right"));
        QCOMPARE(object.value("alternatives").toArray().first().toObject().value("x").toInt(), 1);
        QCOMPARE(object.value("cabinets").toArray().first().toObject().value("column").toInt(), 2);
    }
};

VD_TEST_MAIN(TestVerify)
#include "tst_verify.moc"

using namespace vardeno::testcharttools;
