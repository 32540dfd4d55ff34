#include "camera.h"
#include "testcase.h"

#include <wallreading.h>

#include <QPainter>

#include <cmath>
#include <functional>

using namespace WallReading;

/// Paints on a wall: the chart, and the two cabinets that are looked at.
using Change = std::function<void(QPainter&, const QImage&, const QRect&, const QRect&)>;

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(WallReading::Finding)

/// What is read from captures and photographs of walls.
class TestWallReading : public TestCase
{
    Q_OBJECT

private:
    Photos::Wall m_wall;

    Chart chart() const { return {m_wall.chart, m_wall.cabinets}; }

    QRect rectOf(int row, int column) const
    {
        return m_wall.cabinets.cabinets[std::size_t(row * m_wall.cabinets.columns + column)].rect;
    }

    /// The wall with the cabinet of row 1 and column 2 changed; the other one is that of row 2 and column 4.
    QImage changed(const Change& change) const
    {
        QImage shown = m_wall.chart;
        QPainter painter(&shown);
        change(painter, m_wall.chart, rectOf(1, 2), rectOf(2, 4));
        return shown;
    }

    static QStringList accused(const Reading& reading)
    {
        QStringList all;
        for (const Finding& finding : reading.findings) {
            if (isAccusation(finding.kind))
                all << QStringLiteral("%1 %2/%3")
                           .arg(kindName(finding.kind))
                           .arg(finding.cabinet.row)
                           .arg(finding.cabinet.column);
        }
        all.sort();
        return all;
    }

    static Finding findingOf(Kind kind)
    {
        Finding finding;
        finding.kind = kind;
        finding.label = QStringLiteral("B-3");
        finding.confidence = 0.9;
        return finding;
    }

    static Reading readingOf(const std::vector<Finding>& findings)
    {
        Reading reading;
        reading.isLocated = true;
        reading.findings = findings;
        return reading;
    }

private Q_SLOTS:
    void initTestCase() { m_wall = Photos::rightWall("numbered", {768, 512, 6, 4}); }

    void captures_data()
    {
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<Change>("change");
        const auto none = [](QPainter&, const QImage&, const QRect&, const QRect&) {};
        QTest::newRow("nothing wrong") << QStringList() << Change(none);
        QTest::newRow("dark") << QStringList{"dark 1/2"}
                              << Change([](QPainter& painter, const QImage&, const QRect& one, const QRect&) {
                                     painter.fillRect(one, Qt::black);
                                 });
        QTest::newRow("one colour") << QStringList{"flat 1/2"}
                                    << Change([](QPainter& painter, const QImage&, const QRect& one,
                                                 const QRect&) { painter.fillRect(one, Qt::red); });
        QTest::newRow("swapped") << QStringList{"swapped 1/2", "swapped 2/4"}
                                 << Change([](QPainter& painter, const QImage& chart, const QRect& one,
                                              const QRect& other) {
                                        painter.drawImage(one.topLeft(), chart.copy(other));
                                        painter.drawImage(other.topLeft(), chart.copy(one));
                                    });
        QTest::newRow("turned") << QStringList{"turned 1/2"}
                                << Change([](QPainter& painter, const QImage& chart, const QRect& one,
                                             const QRect&) {
                                       painter.drawImage(one.topLeft(), chart.copy(one).mirrored(true, true));
                                   });
        QTest::newRow("mirrored") << QStringList{"mirrored 1/2"}
                                  << Change([](QPainter& painter, const QImage& chart, const QRect& one,
                                               const QRect&) {
                                         painter.drawImage(one.topLeft(),
                                                           chart.copy(one).mirrored(true, false));
                                     });
        QTest::newRow("shifted") << QStringList{"shifted 1/2"}
                                 << Change([](QPainter& painter, const QImage& chart, const QRect& one,
                                              const QRect&) {
                                        painter.setClipRect(one);
                                        painter.fillRect(one, Qt::black);
                                        painter.drawImage(one.topLeft() + QPoint(14, -9), chart.copy(one));
                                    });
    }

    void captures()
    {
        QFETCH(QStringList, expected);
        QFETCH(Change, change);
        const QImage shown = changed(change);
        const QImage scaled =
            shown.scaled(shown.size() * 0.8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const Reading reading = read(Photos::compressed(scaled, 80), chart());
        QVERIFY(reading.isLocated);
        QCOMPARE(accused(reading), expected);
        QCOMPARE(reading.isGood(), expected.isEmpty());
        QVERIFY(std::hypot(reading.corners[2].x() - scaled.width(),
                           reading.corners[2].y() - scaled.height()) < 1.5);
    }

    /// Walls that were misread: what is said of the cabinet, or that nothing is.
    void onceMisread_data()
    {
        QTest::addColumn<int>("seed");
        QTest::addColumn<QString>("pictures");
        QTest::addColumn<QString>("cabinet");
        QTest::addColumn<QString>("kind");
        QTest::newRow("a bar at half brightness is no other colour") << 14 << "captures"
                                                                     << "5/6"
                                                                     << "brightness";
        QTest::newRow("a bar that moved leaves black") << 26 << "captures"
                                                       << "0/6"
                                                       << "shifted";
        QTest::newRow("a shoulder is nothing else that is shown") << 49 << "photos"
                                                                  << "3/0" << QString();
        QTest::newRow("a small label on black that moved is not another one") << 7021 << "captures"
                                                                              << "6/2"
                                                                              << "shifted";
        QTest::newRow("a dimmed cabinet is not one colour") << 5012 << "photos"
                                                            << "2/7"
                                                            << "brightness";
        QTest::newRow("a bar that somebody covers nearly whole has not moved") << 9014 << "photos"
                                                                               << "6/10" << QString();
        QTest::newRow("labels alike from the side are not swapped") << 59 << "photos"
                                                                    << "0/8" << QString();
        QTest::newRow("a cabinet that somebody covers for the most part is not dimmed") << 12005 << "tags"
                                                                                        << "3/7" << QString();
        QTest::newRow("a corner that is a little too bright for the light model is right")
            << 12034 << "tags"
            << "8/0" << QString();
    }

    void onceMisread()
    {
        QFETCH(int, seed);
        QFETCH(QString, pictures);
        QFETCH(QString, cabinet);
        QFETCH(QString, kind);
        Photos::Random random{unsigned(seed)};
        const std::vector<std::string> kinds =
            pictures == QLatin1String("tags") ? std::vector<std::string>{"tags"} : Photos::chartKinds();
        const int faults = Photos::wholeBetween(random, 0, 6);
        const Photos::Wall wall =
            Photos::simulatedWall(kinds[std::size_t(seed) % kinds.size()], faults, random);
        QImage picture;
        if (pictures == QLatin1String("captures")) {
            picture = Photos::captured(wall, Photos::randomCapture(random)).picture;
        } else {
            const Photos::Shot shot = Photos::randomShot(random, 0, 45);
            picture = Photos::photograph(wall, shot, random).picture;
        }
        const Reading reading = read(picture, {wall.chart, wall.cabinets}, wall.markers);
        QVERIFY(reading.isLocated);
        const QStringList said = accused(reading).filter(QLatin1Char(' ') + cabinet);
        QCOMPARE(said, kind.isEmpty() ? QStringList() : QStringList(kind + QLatin1Char(' ') + cabinet));
    }

    void saysBetweenWhichCabinetsAndByHowMuch()
    {
        const QImage shown =
            changed([](QPainter& painter, const QImage& chart, const QRect& one, const QRect& other) {
                painter.drawImage(one.topLeft(), chart.copy(other));
                painter.drawImage(other.topLeft(), chart.copy(one));
            });
        const Reading reading = read(shown, chart());
        QCOMPARE(reading.sentences(), QStringList{QStringLiteral("2-3 and 3-5 are swapped")});
        QVERIFY(reading.findings.front().shows);
        QVERIFY(reading.findings.front().confidence > 0.9);
    }

    void saysWhatIsWrongWithTheWhole_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::addColumn<QStringList>("sentences");
        const QSize size = m_wall.chart.size();
        QTest::newRow("turned") << m_wall.chart.mirrored(true, true)
                                << QStringList{QStringLiteral("the whole chart is turned by 180 degrees")};
        QTest::newRow("mirrored") << m_wall.chart.mirrored(true, false)
                                  << QStringList{QStringLiteral("the whole chart is mirrored left to right")};
        QTest::newRow("cut off") << m_wall.chart.copy(40, 0, size.width() - 40, size.height() - 7)
                                 << QStringList{
                                        QStringLiteral("40 chart pixels are missing at the left edge"),
                                        QStringLiteral("7 chart pixels are missing at the bottom edge")};
    }

    void saysWhatIsWrongWithTheWhole()
    {
        QFETCH(QImage, picture);
        QFETCH(QStringList, sentences);
        const Reading reading = read(picture, chart());
        QCOMPARE(reading.sentences().mid(0, sentences.size()), sentences);
        QCOMPARE(accused(reading), QStringList());
        QVERIFY(!reading.isGood());
    }

    void findsThePlaceInAPhotograph()
    {
        Photos::Random random(77);
        Photos::Shot shot = Photos::randomShot(random, 25, 26);
        shot.share = 0.8;
        shot.width = 1600;
        shot.height = 1200;
        shot.silhouettes = 0;
        Photos::Wall wall = m_wall;
        wall.shown = changed([](QPainter& painter, const QImage&, const QRect& one, const QRect&) {
            painter.fillRect(one, Qt::red);
        });
        const Photos::Photo photo = Photos::photograph(wall, shot, random);
        const Reading reading = read(photo.picture, chart());
        QVERIFY(reading.isLocated);
        for (std::size_t i = 0; i < 4; ++i) {
            const QPointF off = reading.corners[i] - photo.corners[i];
            QVERIFY(std::hypot(off.x(), off.y()) < 1.5 * photo.scale);
        }
        QCOMPARE(accused(reading), QStringList{"flat 1/2"});
    }

    /// Whoever stands before the wall covers some cabinets whole, and these are as dark as dead ones.
    void accusesNobodyBehindPeople()
    {
        const QImage shown =
            changed([](QPainter& painter, const QImage& chart, const QRect& one, const QRect&) {
                painter.fillRect(one, Qt::black);
                painter.setBrush(QColor(8, 8, 8));
                painter.setPen(Qt::NoPen);
                const int width = chart.width();
                const int height = chart.height();
                painter.drawEllipse(QRect(width * 45 / 100, height * 52 / 100, width / 2, height));
            });
        const Reading reading = read(Photos::compressed(shown, 80), chart());
        QVERIFY(reading.isLocated);
        QCOMPARE(accused(reading), QStringList{"dark 1/2"});
    }

    void findsNothingWhereNothingIs_data()
    {
        QTest::addColumn<QImage>("picture");
        QImage flat(800, 600, QImage::Format_RGB32);
        flat.fill(Qt::gray);
        QImage stripes = flat;
        QPainter painter(&stripes);
        for (int x = 0; x < 800; x += 40)
            painter.fillRect(x, 0, 20, 600, Qt::white);
        painter.end();
        QImage dot(1, 1, QImage::Format_RGB32);
        dot.fill(Qt::white);
        QTest::newRow("one colour") << flat;
        QTest::newRow("stripes") << stripes;
        QTest::newRow("one pixel") << dot;
    }

    void findsNothingWhereNothingIs()
    {
        QFETCH(QImage, picture);
        const Reading reading = read(picture, chart());
        QVERIFY(!reading.isLocated);
        QCOMPARE(int(reading.doubt), int(Doubt::NotFound));
        QCOMPARE(reading.sentences(), QStringList{QStringLiteral("the chart was not found in the picture")});
        QVERIFY(!reading.isGood());
    }

    void readsNoPicture()
    {
        QCOMPARE(int(read(QImage(), chart()).doubt), int(Doubt::NoPicture));
        QCOMPARE(int(read(m_wall.chart, Chart()).doubt), int(Doubt::NoPicture));
    }

    void combines_data()
    {
        QTest::addColumn<QVector<int>>("kinds"); ///< of the cabinet in two pictures, -1 where it is right
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char* name, int one, int other, const QStringList& expected) {
            QTest::newRow(name) << QVector<int>{one, other} << expected;
        };
        row("right in both", -1, -1, {});
        row("hidden in one, right in the other", int(Kind::Hidden), -1, {});
        row("hidden in one, dark in the other", int(Kind::Hidden), int(Kind::Dark), {"dark"});
        row("dark in both", int(Kind::Dark), int(Kind::Dark), {"dark"});
        row("dark in one, right in the other", int(Kind::Dark), -1, {"unsure"});
        row("dark in one, flat in the other", int(Kind::Dark), int(Kind::Flat), {"unsure"});
        row("hidden in both", int(Kind::Hidden), int(Kind::Hidden), {"hidden"});
    }

    void combines()
    {
        QFETCH(QVector<int>, kinds);
        QFETCH(QStringList, expected);
        std::vector<Reading> readings;
        for (const int kind : kinds)
            readings.push_back(kind < 0 ? readingOf({}) : readingOf({findingOf(Kind(kind))}));
        QStringList found;
        for (const Finding& finding : combined(readings, chart()).findings)
            found << kindName(finding.kind);
        QCOMPARE(found, expected);
    }

    void takesTheLocatedOne()
    {
        Reading lost;
        lost.doubt = Doubt::NotFound;
        QVERIFY(combined({lost, readingOf({})}, chart()).isLocated);
        QVERIFY(!combined({lost, lost}, chart()).isLocated);
        QVERIFY(!combined({}, chart()).isLocated);
    }

    void words_data()
    {
        QTest::addColumn<Finding>("finding");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* text, Finding finding) {
            QTest::newRow(text) << finding << QString(text);
        };
        Finding swapped = findingOf(Kind::Swapped);
        swapped.showsLabel = QStringLiteral("A-1");
        row("B-3 shows what belongs to A-1", swapped);
        swapped.turn = 180;
        row("B-3 shows what belongs to A-1, turned by 180 degrees", swapped);
        Finding turned = findingOf(Kind::Turned);
        turned.turn = 90;
        row("B-3 is turned by 90 degrees", turned);
        row("B-3 is mirrored left to right", findingOf(Kind::Mirrored));
        Finding flipped = findingOf(Kind::Mirrored);
        flipped.turn = 180;
        row("B-3 is mirrored top to bottom", flipped);
        row("B-3 is dark", findingOf(Kind::Dark));
        row("B-3 shows nothing but one colour", findingOf(Kind::Flat));
        row("B-3 shows something else", findingOf(Kind::Other));
        Finding shifted = findingOf(Kind::Shifted);
        shifted.shift = {-4, 7};
        row("B-3 is shifted by 4 left and 7 down chart pixels", shifted);
        shifted.shift = {4, -7};
        row("B-3 is shifted by 4 right and 7 up chart pixels", shifted);
        shifted.shift = {4, 0.4};
        row("B-3 is shifted by 4 right chart pixels", shifted);
        shifted.shift = {-1, 0};
        row("B-3 is shifted by 1 left chart pixels", shifted);
        shifted.shift = {0, 7};
        row("B-3 is shifted by 7 down chart pixels", shifted);
        shifted.shift = {0, -7};
        row("B-3 is shifted by 7 up chart pixels", shifted);
        Finding dim = findingOf(Kind::Brightness);
        dim.factor = 0.5;
        row("B-3 is too dark", dim);
        dim.factor = 1.5;
        row("B-3 is too bright", dim);
        row("B-3 shows wrong colours", findingOf(Kind::Color));
        row("B-3 is hidden", findingOf(Kind::Hidden));
        row("B-3 could not be judged", findingOf(Kind::Unsure));
    }

    void words()
    {
        QFETCH(Finding, finding);
        QFETCH(QString, text);
        QCOMPARE(sentence(finding), text);
    }

    void saysWhatLooksAlike_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("moved");
        QTest::newRow("columns") << 0 << 2 << "shifted by 2 columns";
        QTest::newRow("row and column") << -1 << 1 << "shifted by 1 row and 1 column";
        QTest::newRow("rows") << 3 << 0 << "shifted by 3 rows";
        QTest::newRow("turned") << 0 << 0 << "turned by 180 degrees";
    }

    void saysWhatLooksAlike()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, moved);
        Reading reading = readingOf({});
        reading.doubt = Doubt::AlikeWhenMoved;
        reading.alike = {row, column};
        QCOMPARE(reading.sentences(),
                 QStringList{
                     QStringLiteral("not sure which cabinet is which: this chart looks the same %1; give it "
                                    "labels")
                         .arg(moved)});
    }

    void saysWhichEdgesAreMissing()
    {
        Reading reading = readingOf({});
        reading.whole = {{Whole::Mirrored, 0}, {Whole::Turned, 90}};
        reading.edges = {{Edge::Left, 1}, {Edge::Top, 2}, {Edge::Right, 1}, {Edge::Bottom, 30}};
        QCOMPARE(reading.sentences(),
                 (QStringList{QStringLiteral("the whole chart is mirrored left to right"),
                              QStringLiteral("the whole chart is turned by 90 degrees"),
                              QStringLiteral("1 chart pixel is missing at the left edge"),
                              QStringLiteral("2 chart pixels are missing at the top edge"),
                              QStringLiteral("1 chart pixel is missing at the right edge"),
                              QStringLiteral("30 chart pixels are missing at the bottom edge")}));
    }

    /// The values come into the sentence where the language has their places.
    void speaksTheLanguageOfItsReader()
    {
        const Phrases say = [](const char* english) {
            return QByteArray(english) == "%1 shows what belongs to %2, turned by %3 degrees"
                       ? QStringLiteral("um %3 Grad, %2 statt %1")
                       : QLatin1Char('!') + QLatin1String(english);
        };
        Finding swapped = findingOf(Kind::Swapped);
        swapped.showsLabel = QStringLiteral("A-%1");
        swapped.turn = 180;
        QCOMPARE(sentence(swapped, say), QStringLiteral("um 180 Grad, A-%1 statt B-3"));
        QCOMPARE(sentence(EdgeLoss{Edge::Top, 3}, say),
                 QStringLiteral("!3 chart pixels are missing at the top edge"));
        QCOMPARE(sentence(WholeFinding{Whole::Turned, 90}, say),
                 QStringLiteral("!the whole chart is turned by 90 degrees"));
        Reading reading = readingOf({swapped, findingOf(Kind::Dark), findingOf(Kind::Hidden)});
        reading.doubt = Doubt::OutOfTime;
        QCOMPARE(reading.sentences(say),
                 (QStringList{"!the chart was not found in time", "um 180 Grad, A-%1 statt B-3",
                              "!B-3 is dark", "!hidden: B-3"}));
    }

    void listsWhatWasNotSeen()
    {
        const Reading reading =
            readingOf({findingOf(Kind::Dark), findingOf(Kind::Hidden), findingOf(Kind::Hidden)});
        QCOMPARE(reading.sentences(),
                 (QStringList{QStringLiteral("B-3 is dark"), QStringLiteral("hidden: B-3, B-3")}));
    }
};

VD_TEST_MAIN(TestWallReading)
#include "tst_wallreading.moc"
