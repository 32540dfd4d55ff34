#include "cabinetpattern.h"
#include "colorpattern.h"
#include "counterpattern.h"
#include "languages.h"
#include "linepattern.h"
#include "testcase.h"

#include <QPainter>

#include <functional>

using namespace vardeno::testcharttools;

namespace {

const QSize size(300, 200);

TestChartToolsData wall(int rows = 4, int columns = 5)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = size.width();
    record.publicData.resolutionHeight = size.height();
    record.publicData.boxRow = rows;
    record.publicData.boxCol = columns;
    return record;
}

/// As the output draws it, on a chart that is blue.
void paint(QImage& image, const OutputPattern& pattern, int step, const QRect& place)
{
    QPainter painter(&image);
    painter.setClipRect(place);
    painter.fillRect(place, Qt::black);
    for (const QRect& part : pattern.chartPart(step, image.rect()))
        painter.fillRect(part, Qt::blue);
    pattern.draw(painter, step, place);
}

QImage picture(const OutputPattern& pattern, int step)
{
    QImage image(size, QImage::Format_RGB32);
    paint(image, pattern, step, image.rect());
    return image;
}

int countOf(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgb();
    }
    return count;
}

using Pattern = std::shared_ptr<const OutputPattern>;

} // namespace

Q_DECLARE_METATYPE(Pattern)

/// What is drawn over the chart on the output.
class TestOutputPatterns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chooseLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    /// Only what has changed is painted, and then the picture is that of the step.
    void changesAreWhole_data()
    {
        QTest::addColumn<Pattern>("pattern");
        QTest::addColumn<int>("by");
        const auto add = [](const char* name, const Pattern& pattern, int by = 1) {
            QTest::newRow(name) << pattern << by;
        };
        add("highlight", std::make_shared<CabinetPattern>(wall(), CabinetLook::Highlight));
        add("alone", std::make_shared<CabinetPattern>(wall(7, 9), CabinetLook::Alone, WalkPath{true, true}),
            5);
        add("row", std::make_shared<CabinetPattern>(wall(), CabinetLook::Row));
        add("column", std::make_shared<CabinetPattern>(wall(), CabinetLook::Column));
        add("horizontal", std::make_shared<LinePattern>(size, LineDirection::Horizontal));
        add("vertical", std::make_shared<LinePattern>(size, LineDirection::Vertical), 60);
        add("diagonal", std::make_shared<LinePattern>(size, LineDirection::Diagonal), 7);
        add("colors", std::make_shared<ColorPattern>(size, ColorPattern::primaries()));
        add("greys", std::make_shared<ColorPattern>(size, ColorPattern::greys()));
        add("counter", std::make_shared<CounterPattern>(size), 99);
    }

    void changesAreWhole()
    {
        QFETCH(Pattern, pattern);
        QFETCH(int, by);
        int step = 0;
        QImage shown = picture(*pattern, step);
        for (int round = 0; round < 25; ++round) {
            const int next = (step + by) % pattern->steps();
            for (const QRect& part : pattern->changed(step, next) & shown.rect())
                paint(shown, *pattern, next, part);
            VD_COMPARE_IMAGES(shown, picture(*pattern, next));
            step = next;
        }
    }

    /// Columns and rows of which the last are smaller, and odd ones: each pixel is one cabinet's.
    void unevenCabinetsAreWalkedWhole_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<QSize>("grid");
        QTest::newRow("a remainder of columns") << QSize(1003, 540) << QSize(16, 9);
        QTest::newRow("a remainder of rows") << QSize(960, 547) << QSize(16, 9);
        QTest::newRow("of both") << QSize(1001, 703) << QSize(7, 11);
        QTest::newRow("fewer than two pixels each") << QSize(101, 67) << QSize(100, 60);
    }

    void unevenCabinetsAreWalkedWhole()
    {
        QFETCH(QSize, chart);
        QFETCH(QSize, grid);
        TestChartToolsData record = wall(grid.height(), grid.width());
        record.publicData.resolutionWidth = chart.width();
        record.publicData.resolutionHeight = chart.height();
        for (const CabinetLook look : {CabinetLook::Alone, CabinetLook::Row, CabinetLook::Column}) {
            const CabinetPattern pattern(record, look);
            QRegion walked;
            int pixels = 0;
            for (int step = 0; step < pattern.steps(); ++step) {
                const QRegion place = pattern.chartPart(step, QRect(QPoint(), chart));
                QVERIFY(!place.isEmpty());
                pixels += place.boundingRect().width() * place.boundingRect().height();
                walked += place;
            }
            QCOMPARE(walked, QRegion(QRect(QPoint(), chart)));
            QCOMPARE(pixels, chart.width() * chart.height());
        }
    }

    void aHighlightedCabinet()
    {
        const CabinetPattern pattern(wall(), CabinetLook::Highlight);
        QCOMPARE(pattern.steps(), 20);
        QCOMPARE(pattern.place(6), QRect(60, 50, 60, 50));
        QCOMPARE(pattern.text(6), QStringLiteral("Cabinet B-B (7 of 20)"));
        const QImage image = picture(pattern, 6);
        QCOMPARE(image.pixelColor(59, 60), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(60, 50), QColor(Qt::white));
        QVERIFY(image.pixelColor(90, 75) != QColor(Qt::blue));
    }

    void aCabinetAlone()
    {
        const QImage image = picture(CabinetPattern(wall(), CabinetLook::Alone), 0);
        QCOMPARE(countOf(image, Qt::blue), 58 * 48);
        QCOMPARE(countOf(image, Qt::white), 60 * 50 - 58 * 48);
        QCOMPARE(countOf(image, Qt::black), 300 * 200 - 60 * 50);
    }

    void rowsAndColumns()
    {
        TestChartToolsData record = wall();
        record.inLineData.serialSort = 3; // from the bottom right
        record.inLineData.letterMode = false;
        record.inLineData.numMode = true;
        const CabinetPattern rows(record, CabinetLook::Row);
        QCOMPARE(rows.steps(), 4);
        QCOMPARE(rows.place(0), QRect(0, 150, 300, 50));
        QVERIFY(rows.text(0).startsWith(QStringLiteral("Row 1 (1 of 4)")));
        const CabinetPattern columns(record, CabinetLook::Column);
        QCOMPARE(columns.steps(), 5);
        QCOMPARE(columns.place(4), QRect(0, 0, 60, 200));
        QVERIFY(columns.text(0).endsWith(QStringLiteral("(1 of 5)")));
    }

    void lines_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<QPoint>("on");
        QTest::newRow("horizontal") << int(LineDirection::Horizontal) << 300 << QPoint(299, 17);
        QTest::newRow("vertical") << int(LineDirection::Vertical) << 200 << QPoint(17, 199);
        QTest::newRow("diagonal") << int(LineDirection::Diagonal) << 200 << QPoint(17 + 100, 100);
    }

    void lines()
    {
        QFETCH(int, direction);
        QFETCH(QPoint, on);
        const QImage image = picture(LinePattern(size, LineDirection(direction)), 17);
        QTEST(countOf(image, Qt::white), "pixels");
        QCOMPARE(countOf(image, Qt::black), 300 * 200 - countOf(image, Qt::white));
        QCOMPARE(image.pixelColor(on), QColor(Qt::white));
    }

    void theStepsOfALine()
    {
        QCOMPARE(LinePattern(size, LineDirection::Horizontal).steps(), 200);
        QCOMPARE(LinePattern(size, LineDirection::Vertical).steps(), 300);
        QCOMPARE(LinePattern(size, LineDirection::Diagonal).steps(), 300);
        QCOMPARE(LinePattern(QSize(), LineDirection::Diagonal).steps(), 1);
    }

    void colors()
    {
        const ColorPattern colors(size, ColorPattern::primaries());
        QCOMPARE(colors.steps(), 5);
        QCOMPARE(countOf(picture(colors, 1), Qt::green), 300 * 200);
        QCOMPARE(colors.text(2), QStringLiteral("Color 0, 0, 255"));
        const ColorPattern greys(size, ColorPattern::greys());
        QCOMPARE(greys.steps(), 16);
        QCOMPARE(greys.color(0), QColor(Qt::black));
        QCOMPARE(greys.color(1), QColor(17, 17, 17));
        QCOMPARE(greys.color(15), QColor(Qt::white));
    }

    /// A digit has its seven strokes, and one box is lit.
    void theCounter()
    {
        const CounterPattern counter(size);
        const QImage image = picture(counter, 123458);
        const auto lit = [&](const QRect& place) { return countOf(image.copy(place), Qt::white); };
        const int unit = counter.digitPlace(0).width() / 5;
        QVERIFY(unit > 1);
        QCOMPARE(lit(counter.digitPlace(0)), 9 * unit * unit);  // 1
        QCOMPARE(lit(counter.digitPlace(5)), 27 * unit * unit); // 8
        for (int box = 0; box < 10; ++box)
            QCOMPARE(lit(counter.boxPlace(box)) > 0, box == 8);
        QVERIFY(QRect(QPoint(), size).contains(counter.boxPlace(9)));
        QCOMPARE(counter.boxPlace(0).left(),
                 counter.digitPlace(0).left()); // the boxes are as wide as the digits
        const int missing = counter.digitPlace(5).right() - counter.boxPlace(9).right();
        QVERIFY(missing >= 0 && missing < 9); // what is left by nine whole steps
        QCOMPARE(counter.text(42), QStringLiteral("Frame 000042"));
    }

    void theCounterOnTheSmallestChart()
    {
        const CounterPattern counter(QSize(16, 16));
        QImage image(16, 16, QImage::Format_RGB32);
        paint(image, counter, 5, image.rect());
        QVERIFY(countOf(image, Qt::white) > 0);
    }
};

VD_TEST_MAIN(TestOutputPatterns)
#include "tst_outputpatterns.moc"
