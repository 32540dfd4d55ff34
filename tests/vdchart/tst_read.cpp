#include "programtest.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <algorithm>

/// What `vdchart read` prints, writes and ends with.
class TestRead : public ProgramTest
{
    Q_OBJECT

private:
    static constexpr int cabinetSide = 120; ///< chart pixels

    /// The chart with a black cabinet, and two that are swapped.
    void saveWithFaults(const QString& name) const
    {
        const QImage chart(path(QStringLiteral("wall.png")));
        QImage shown(chart.size(), QImage::Format_RGB32); // a copy would carry the record
        QPainter painter(&shown);
        painter.drawImage(0, 0, chart);
        const QRect one(cabinetSide, 0, cabinetSide, cabinetSide);
        const QRect other(3 * cabinetSide, 2 * cabinetSide, cabinetSide, cabinetSide);
        painter.drawImage(one.topLeft(), chart.copy(other));
        painter.drawImage(other.topLeft(), chart.copy(one));
        painter.fillRect(2 * cabinetSide, cabinetSide, cabinetSide, cabinetSide, Qt::black);
        painter.end();
        QVERIFY(shown.save(path(name), nullptr, 85));
    }

    /// Black and white ones, of which no chart has any.
    static void paintSquares(QPainter& painter, const QRect& where, const QSize& square)
    {
        for (int y = 0; y < where.height() / square.height(); ++y) {
            for (int x = 0; x < where.width() / square.width(); ++x)
                painter.fillRect(QRect(where.x() + x * square.width(), where.y() + y * square.height(),
                                       square.width(), square.height()),
                                 (x + y) % 2 == 0 ? Qt::black : Qt::white);
        }
    }

    /// In order, for cabinets of equal weight may change places.
    static QStringList lines(const QByteArray& output)
    {
        QStringList lines = QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts);
        std::sort(lines.begin(), lines.end());
        return lines;
    }

private Q_SLOTS:
    void initTestCase()
    {
        write(QStringLiteral("wall.json"),
              run({"new", "-p", "numbering-top-left", "-s", "width=720", "-s", "height=480", "--grid", "6x4"})
                  .output);
        QCOMPARE(run({"render", "wall.json", "-o", "wall.png"}).code, 0);
        saveWithFaults(QStringLiteral("bad.jpg"));
        QImage grey(300, 200, QImage::Format_RGB32);
        grey.fill(Qt::gray);
        QVERIFY(grey.save(path(QStringLiteral("grey.png"))));
        write(QStringLiteral("empty.png"), "");
        write(QStringLiteral("text.jpg"), "This is no picture.");
        // Portable grey map: a head that promises more than is there.
        write(QStringLiteral("huge.pgm"), "P5 20000 20000 255\n");
        write(QStringLiteral("cut.png"), read(QStringLiteral("wall.png")).left(400));
    }

    /// Cabinets of two sizes, a hole and one that spans two places, in rows that hang on a port each.
    void walls()
    {
        write("main.wall.json", R"({"format": "testwall", "version": 1,
            "cabinets": {"columnWidths": [[5, 120]], "rowHeights": [[3, 120], [1, 60]],
                         "exceptions": [{"column": 1, "row": 1, "missing": true},
                                        {"column": 4, "row": 3, "columns": 2, "name": "Wide"}]},
            "numbering": {"style": "numbers", "prefix": "C"},
            "data": {"pattern": "each-line"}, "layers": {"names": true},
            "chart": {"record": {"format": "testchart", "version": 1, "logoData": {"showLogo": false}, "selfData": {"showSelfText": false}}}})");
        QCOMPARE(run({"render", "main.wall.json", "-o", "main.png"}).code, 0);
        const Outcome good = run({"read", "main.png"});
        QCOMPARE(good.errors, QString());
        QCOMPARE(good.output, QByteArray("main.png: nothing wrong was seen\n"));
        QCOMPARE(good.code, 0);

        const QImage chart(path("main.png"));
        QImage shown(chart.size(), QImage::Format_RGB32); // a copy would carry the wall
        QPainter painter(&shown);
        painter.drawImage(0, 0, chart);
        painter.fillRect(0, 0, 120, 120, QColor(90, 80, 70));      // what is seen through the hole
        paintSquares(painter, {3 * 120, 120, 120, 120}, {20, 20}); // the last two of the second row
        paintSquares(painter, {4 * 120, 120, 120, 120}, {15, 120});
        paintSquares(painter, {3 * 120, 2 * 120, 2 * 120, 120}, {240, 24}); // the wide one
        painter.end();
        QVERIFY(shown.save(path("shown.jpg"), nullptr, 90));
        const Outcome bad = run({"read", "shown.jpg", "main.wall.json", "--report", "page.html"});
        QCOMPARE(bad.code, 1);
        QCOMPARE(lines(bad.output),
                 (QStringList{"shown.jpg: C8 shows something else", "shown.jpg: C9 shows something else",
                              "shown.jpg: Wide shows something else",
                              "shown.jpg: port 2 from cabinet C8 on: 2 cabinets are wrong, which is what a "
                              "pulled data cable looks like"}));
        QVERIFY(read("page.html").contains("Wide shows something else"));
        const QJsonObject document =
            QJsonDocument::fromJson(run({"read", "shown.jpg", "main.wall.json", "-f", "json"}).output)
                .object();
        QCOMPARE(document.value("findings").toArray().size(), 3);
        const QJsonObject cable = document.value("pulledCables").toArray().at(0).toObject();
        QCOMPARE(cable.value("number").toInt(), 2);
        QCOMPARE(cable.value("from").toString(), QString("C8"));
    }

    void theRecordOfAWallIsProtected()
    {
        write("path.wall.json", R"({"format": "testwall", "version": 1, "chart": {"path": "wall.json"}})");
        const Outcome outcome = run({"read", "bad.jpg", "path.wall.json", "--report", "wall.json"});
        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.errors.contains("wall.json: is the record of the chart"),
                 qPrintable(outcome.errors));
    }

    void showsAreRefused()
    {
        write("a.show.json", R"({"format": "testshow", "version": 1,
            "show": {"outputs": [{"name": "Out", "width": 320, "height": 180}]}})");
        const Outcome outcome = run({"read", "bad.jpg", "a.show.json"});
        QCOMPARE(outcome.code, 3);
        QVERIFY2(
            outcome.errors.contains("a.show.json: a show; photographs are read by records and walls only"),
            qPrintable(outcome.errors));
    }

    void verifyHandsOver()
    {
        const Outcome outcome = run({"verify", "bad.jpg", "wall.json"});
        QCOMPARE(outcome.code, 1);
        QVERIFY2(outcome.output.contains("looks at it\nbad.jpg: 1-2 and 3-4 are swapped\n"),
                 outcome.output.constData());
        QVERIFY(!outcome.output.contains("pixels differ"));
    }

    void verifyHandsOverForPrograms()
    {
        const QJsonObject verdict =
            QJsonDocument::fromJson(run({"verify", "bad.jpg", "wall.json", "-f", "json"}).output).object();
        QCOMPARE(verdict.value("good").toBool(), false);
        QVERIFY(!verdict.value("findings").toArray().isEmpty());
        const QJsonObject reading = verdict.value("reading").toObject();
        QCOMPARE(reading.value("located").toBool(), true);
        QCOMPARE(reading.value("findings").toArray().size(), 3);
    }

    void verifyTellsWhatReadDoesNotFind()
    {
        write(QStringLiteral("other.json"),
              run({"new", "-p", "bars", "-s", "width=720", "-s", "height=480", "--grid", "6x4"}).output);
        const Outcome outcome = run({"verify", "bad.jpg", "other.json"});
        QCOMPARE(outcome.code, 1);
        QVERIFY2(outcome.output.contains("not this chart"), outcome.output.constData());
        QVERIFY2(outcome.output.contains("the chart was not found"), outcome.output.constData());
    }

    void codes_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("errors");
        QTest::newRow("its own chart") << QStringList{"wall.png", "wall.json"} << 0 << QString();
        QTest::newRow("with the carried record") << QStringList{"wall.png"} << 0 << QString();
        QTest::newRow("with faults") << QStringList{"bad.jpg", "wall.json"} << 1 << QString();
        QTest::newRow("twice") << QStringList{"bad.jpg", "bad.jpg", "wall.json"} << 1 << QString();
        QTest::newRow("another picture") << QStringList{"grey.png", "wall.json"} << 3 << QString();
        QTest::newRow("no record") << QStringList{"bad.jpg"} << 3 << "it carries no record";
        QTest::newRow("no picture") << QStringList{"text.jpg", "wall.json"} << 3 << "text.jpg: ";
        QTest::newRow("an empty picture") << QStringList{"empty.png", "wall.json"} << 3 << "empty.png: ";
        QTest::newRow("half a picture") << QStringList{"cut.png", "wall.json"} << 3 << "cut.png: ";
        QTest::newRow("too large") << QStringList{"huge.pgm", "wall.json"} << 3
                                   << "20000 x 20000 pixels are too many";
        QTest::newRow("not there") << QStringList{"none.jpg", "wall.json"} << 3 << "none.jpg: ";
        QTest::newRow("page over the picture")
            << QStringList{"bad.jpg", "wall.json", "--report", "bad.jpg"} << 2 << "bad.jpg";
        QTest::newRow("page on the output")
            << QStringList{"bad.jpg", "wall.json", "--report", "-"} << 2 << "--report";
    }

    void codes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, errors);
        const Outcome outcome = run(QStringList{QStringLiteral("read")} + arguments);
        QTEST(outcome.code, "code");
        QVERIFY2(outcome.errors.contains(errors), qPrintable(outcome.errors));
    }

    void saysItInSentences()
    {
        const QByteArray text = run({"read", "bad.jpg", "wall.json"}).output;
        QVERIFY2(text.contains("bad.jpg: 1-2 and 3-4 are swapped\n"), text);
        QVERIFY2(text.contains("bad.jpg: 2-3 is dark\n"), text);
        QCOMPARE(run({"read", "wall.png"}).output, QByteArray("wall.png: nothing wrong was seen\n"));
    }

    void saysItForPrograms()
    {
        const QJsonObject object =
            QJsonDocument::fromJson(run({"read", "bad.jpg", "wall.json", "-f", "json"}).output).object();
        QVERIFY(object.value(QLatin1String("located")).toBool());
        QCOMPARE(object.value(QLatin1String("corners")).toArray().size(), 4);
        QCOMPARE(object.value(QLatin1String("edges")).toArray().size(), 0);
        const QJsonArray findings = object.value(QLatin1String("findings")).toArray();
        QCOMPARE(findings.size(), 3);
        for (const QJsonValue& value : findings) {
            const QJsonObject finding = value.toObject();
            QVERIFY(finding.value(QLatin1String("confidence")).toDouble() > 0.5);
            QVERIFY(!finding.contains(QLatin1String("turn")));
            QVERIFY(!finding.contains(QLatin1String("shift")));
            const bool isSwapped = finding.value(QLatin1String("kind")) == QLatin1String("swapped");
            QCOMPARE(finding.contains(QLatin1String("shows")), isSwapped);
        }
    }

    void saysThatItIsNotThere()
    {
        const QJsonObject object =
            QJsonDocument::fromJson(run({"read", "grey.png", "wall.json", "-f", "json"}).output).object();
        QCOMPARE(object.value(QLatin1String("located")), QJsonValue(false));
        QVERIFY(!object.contains(QLatin1String("corners")));
    }

    void writesAPageOfItsOwn()
    {
        QCOMPARE(run({"read", "bad.jpg", "wall.json", "--report", "page.html", "--diff", "marked.png"}).code,
                 1);
        const QByteArray page = read(QStringLiteral("page.html"));
        QVERIFY(page.contains("1-2 and 3-4 are swapped"));
        QCOMPARE(page.count("class=\"bad\""), 3);
        QCOMPARE(page.count("class=\"pair\""), 3);
        QCOMPARE(page.count("<img"), page.count("src=\"data:image/jpeg;base64,"));
        QVERIFY(!page.contains("http"));
        const QImage marked(path(QStringLiteral("marked.png")));
        QCOMPARE(marked.size(), QSize(720, 480));
        QCOMPARE(marked.pixelColor(2 * cabinetSide + 2, cabinetSide + cabinetSide / 2), QColor(255, 32, 32));
    }
};

VD_TEST_MAIN(TestRead)
#include "tst_read.moc"
