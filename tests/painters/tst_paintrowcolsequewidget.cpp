#include "expectedlabels.h"
#include "findink.h"
#include "layerprotocol.h"
#include "paintrowcolsequewidget.h"
#include "testcase.h"

#include <QFontMetrics>

using namespace vardeno::testcharttools;

using SequenceChange = std::function<void(PaintRowColSequeWidget& layer)>;
Q_DECLARE_METATYPE(SequenceChange)

namespace {

void setGrid(PaintRowColSequeWidget& layer, int rows, int columns)
{
    layer.setRows(ushort(rows));
    layer.setColumns(ushort(columns));
}

/// Lines one pixel wide at the places, from edge to edge.
QImage lines(const QSize& size, const QList<int>& rows, const QList<int>& columns, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (const int y : rows) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, color);
    }
    for (const int x : columns) {
        for (int y = 0; y < size.height(); ++y)
            image.setPixelColor(x, y, color);
    }
    return image;
}

QImage nothing(const QSize& size)
{
    return lines(size, {}, {}, Qt::black);
}

} // namespace

class TestPaintRowColSequeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsTransparent()
    {
        const QSize size(1600, 900);
        PaintRowColSequeWidget layer;
        VD_COMPARE_IMAGES(pictureAt(size, layer), nothing(size));
        QCOMPARE(layer.sequeSize(), 15);
    }

    void bothOffIsTransparentAgain()
    {
        const QSize size(1600, 900);
        PaintRowColSequeWidget layer;
        layer.setRowColVisible(true);
        layer.setSequeVisible(true);
        QVERIFY(!imageDifference(pictureAt(size, layer), nothing(size)).isEmpty());
        layer.setRowColVisible(false);
        layer.setSequeVisible(false);
        VD_COMPARE_IMAGES(layerImage(layer), nothing(size));
        layer.setRowColColor(Qt::red);
        layer.setSequeColor(Qt::red);
        VD_COMPARE_IMAGES(layerImage(layer), nothing(size));
    }

    void lines_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QList<int>>("y");
        QTest::addColumn<QList<int>>("x");
        const auto row = [](const char* name, const QSize& size, int rows, int columns, const QList<int>& y,
                            const QList<int>& x) {
            QTest::newRow(name) << size << rows << columns << y << x;
        };
        row("1600 x 900", {1600, 900}, 9, 16, {100, 200, 300, 400, 500, 600, 700, 800},
            {100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 1100, 1200, 1300, 1400, 1500});
        row("truncated", {100, 71}, 6, 7, {11, 23, 35, 47, 59}, {14, 28, 42, 57, 71, 85});
        row("portrait", {60, 100}, 4, 3, {25, 50, 75}, {20, 40});
        row("1 x 1, no line", {160, 90}, 1, 1, {}, {});
        row("1 row", {160, 90}, 1, 4, {}, {40, 80, 120});
        row("1 column", {160, 90}, 3, 1, {30, 60}, {});
        row("2 x 2", {160, 90}, 2, 2, {45}, {80});
        row("a line on every pixel but the first", {4, 3}, 3, 4, {1, 2}, {1, 2, 3});
        row("more lines than pixels", {4, 3}, 9, 8, {0, 1, 2}, {0, 1, 2, 3});
        row("rounded short of the edge, where no line is", {40, 30}, 11, 2,
            {2, 5, 8, 10, 13, 16, 19, 21, 24, 27}, {20});
        row("no rows", {160, 90}, 0, 4, {}, {40, 80, 120});
        row("no columns", {160, 90}, 3, 0, {30, 60}, {});
        row("nothing", {160, 90}, 0, 0, {}, {});
        row("1 x 1 pixel", {1, 1}, 1, 1, {}, {});
    }

    void lines()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(QList<int>, y);
        QFETCH(QList<int>, x);
        PaintRowColSequeWidget layer;
        setGrid(layer, rows, columns);
        layer.setRowColVisible(true);
        VD_COMPARE_IMAGES(pictureAt(size, layer), ::lines(size, y, x, Qt::black));
        layer.setRowColColor(QColor(12, 200, 90));
        VD_COMPARE_IMAGES(layerImage(layer), ::lines(size, y, x, QColor(12, 200, 90)));
    }

    void linesOfTheLargestGrid()
    {
        const QSize size(432, 216);
        QList<int> rows;
        QList<int> columns;
        for (int i = 1; i < 100; ++i) {
            rows << 216 * i / 100;
            columns << 432 * i / 100;
        }
        PaintRowColSequeWidget layer;
        setGrid(layer, 100, 100);
        layer.setRowColVisible(true);
        VD_COMPARE_IMAGES(pictureAt(size, layer), ::lines(size, rows, columns, Qt::black));
    }

    void translucentLinesAddUpWhereTheyCross()
    {
        const QColor veil(0, 0, 0, 100);
        PaintRowColSequeWidget layer;
        setGrid(layer, 2, 2);
        layer.setRowColColor(veil);
        layer.setRowColVisible(true);
        const QImage image = pictureAt({40, 20}, layer);
        QCOMPARE(image.pixelColor(3, 10).alpha(), 100);
        QCOMPARE(image.pixelColor(20, 3).alpha(), 100);
        QVERIFY(image.pixelColor(20, 10).alpha() > 100);
    }

    void labels_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("sort");
        QTest::addColumn<int>("location");
        const char* const models[] = {"letters", "numbers", "letter and number"};
        const char* const locations[] = {"in central", "left up", "left down"};
        for (int model = 0; model < 3; ++model) {
            for (int sort = 0; sort < 4; ++sort) {
                for (int location = 0; location < 3; ++location) {
                    QTest::newRow(qPrintable(QStringLiteral("%1, sort %2, %3")
                                                 .arg(QLatin1String(models[model]))
                                                 .arg(sort)
                                                 .arg(QLatin1String(locations[location]))))
                        << model << sort << location;
                }
            }
        }
    }

    void labels()
    {
        QFETCH(int, model);
        QFETCH(int, sort);
        QFETCH(int, location);
        const ExpectedLabels expected{QSize(711, 499),     5, 7, uint(model), uint(sort), uint(location), 13,
                                      QColor(Qt::darkBlue)};
        PaintRowColSequeWidget layer;
        setGrid(layer, 5, 7);
        layer.setSequeSize(13);
        layer.setSequeColor(Qt::darkBlue);
        layer.setShowModel(model);
        layer.setSortType(sort);
        layer.setLocation(location);
        layer.setSequeVisible(true);
        const QImage image = pictureAt(expected.chart, layer);
        QCOMPARE(layer.sequeSize(), 13);
        VD_COMPARE_IMAGES(image,
                          drawnPicture(expected.chart, [&](QPainter& painter) { expected.draw(painter); }));
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 7; ++column)
                QVERIFY(!inkBounds(image, expected.cell(row, column)).isEmpty());
        }
    }

    void labelTexts_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("sort");
        QTest::addColumn<QSize>("grid"); // columns x rows
        QTest::addColumn<QPoint>("cell");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, int model, int sort, const QSize& grid, const QPoint& cell,
                            const char* text) {
            QTest::newRow(name) << model << sort << grid << cell << QString::fromLatin1(text);
        };
        row("letters, row 26", 0, 0, {4, 30}, {0, 25}, "Z-A");
        row("letters, row 27 is A again", 0, 0, {4, 30}, {0, 26}, "A-A");
        row("letters, row 28", 0, 0, {4, 30}, {0, 27}, "B-A");
        row("letters, row 29", 0, 0, {4, 30}, {0, 28}, "C-A");
        row("letters, row 30", 0, 0, {4, 30}, {3, 29}, "D-D");
        row("letters decrease from Z", 0, 3, {4, 5}, {1, 1}, "Y-Y");
        row("letter and number decrease from a small z", 2, 2, {16, 9}, {0, 0}, "z-1");
        row("letter and number, second row", 2, 2, {16, 9}, {1, 1}, "y-2");
        row("letter and number, numbers from the left", 2, 2, {16, 9}, {2, 0}, "z-3");
        row("numbers from below right, top left", 1, 3, {16, 9}, {0, 0}, "9-16");
        row("numbers from below right, bottom right", 1, 3, {16, 9}, {15, 8}, "1-1");
        row("numbers, third row, fifth column", 1, 0, {16, 9}, {4, 2}, "3-5");
        row("letters, third row, fifth column", 0, 0, {16, 9}, {4, 2}, "C-E");
        row("letter and number, third row, fifth column", 2, 0, {16, 9}, {4, 2}, "C-5");
    }

    void labelTexts()
    {
        QFETCH(int, model);
        QFETCH(int, sort);
        QFETCH(QSize, grid);
        QFETCH(QPoint, cell);
        QFETCH(QString, text);
        const QSize size = grid * 60;
        PaintRowColSequeWidget layer;
        setGrid(layer, grid.height(), grid.width());
        layer.setSequeSize(11);
        layer.setShowModel(model);
        layer.setSortType(sort);
        layer.setSequeVisible(true);
        const QImage image = pictureAt(size, layer);
        QCOMPARE(layer.sequeSize(), 11);
        const QRect box(cell * 60, QSize(60, 60));
        const QImage expected = drawnPicture(size, [&](QPainter& painter) {
            QFont font = painter.font();
            font.setPixelSize(11);
            painter.setFont(font);
            painter.drawText(box, Qt::AlignCenter, text);
        });
        VD_COMPARE_IMAGES(image.copy(box), expected.copy(box));
    }

    void noLabels_data()
    {
        QTest::addColumn<SequenceChange>("change");
        QTest::newRow("model 3") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setShowModel(3); });
        QTest::newRow("model -1") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setShowModel(-1); });
        QTest::newRow("sort 4") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setSortType(4); });
        QTest::newRow("sort -1") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setSortType(-1); });
        QTest::newRow("location 3") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setLocation(3); });
        QTest::newRow("location -1") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setLocation(-1); });
        QTest::newRow("no rows") << SequenceChange([](PaintRowColSequeWidget& layer) { layer.setRows(0); });
        QTest::newRow("no columns") << SequenceChange(
            [](PaintRowColSequeWidget& layer) { layer.setColumns(0); });
    }

    void noLabels()
    {
        QFETCH(SequenceChange, change);
        const QSize size(640, 360);
        PaintRowColSequeWidget layer;
        layer.setSequeVisible(true);
        QVERIFY(!imageDifference(pictureAt(size, layer), nothing(size)).isEmpty());
        change(layer);
        VD_COMPARE_IMAGES(layerImage(layer), nothing(size));
    }

    /// A line runs through the first pixels of a cabinet; a label that reaches there is drawn over it.
    void labelsLieOverLines()
    {
        ExpectedLabels expected{QSize(320, 180), 9, 16, 0, 0, 2, 15, QColor(Qt::white)};
        PaintRowColSequeWidget layer;
        layer.setRowColColor(Qt::black);
        layer.setSequeColor(Qt::white);
        layer.setLocation(2);
        layer.setRowColVisible(true);
        layer.setSequeVisible(true);
        const QImage image = pictureAt(expected.chart, layer);
        expected.pixelSize = layer.sequeSize();

        const auto drawLines = [&](QPainter& painter) {
            painter.setPen(Qt::black);
            for (int y = 20; y < 180; y += 20)
                painter.drawLine(0, y, 319, y);
            for (int x = 20; x < 320; x += 20)
                painter.drawLine(x, 0, x, 179);
        };
        const QImage labelsAbove = drawnPicture(expected.chart, [&](QPainter& painter) {
            drawLines(painter);
            expected.draw(painter);
        });
        const QImage linesAbove = drawnPicture(expected.chart, [&](QPainter& painter) {
            expected.draw(painter);
            drawLines(painter);
        });
        QVERIFY(!imageDifference(labelsAbove, linesAbove).isEmpty());
        VD_COMPARE_IMAGES(image, labelsAbove);
    }

    void fittedSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("requested");
        QTest::addColumn<QSize>("limits"); // of two letters
        QTest::newRow("15 in cells of 100") << QSize(1600, 900) << 9 << 16 << 15 << QSize(50, 51);
        QTest::newRow("500 in cells of 100") << QSize(1600, 900) << 9 << 16 << 500 << QSize(50, 51);
        QTest::newRow("100 rows") << QSize(1600, 900) << 100 << 16 << 15 << QSize(50, 4);
        QTest::newRow("100 columns") << QSize(1600, 900) << 9 << 100 << 15 << QSize(8, 51);
        QTest::newRow("fractional cells") << QSize(1000, 701) << 30 << 30 << 15 << QSize(16, 11);
        QTest::newRow("cells of 3 x 3") << QSize(48, 27) << 9 << 16 << 15 << QSize(1, 1);
        QTest::newRow("cells below a pixel") << QSize(5, 3) << 9 << 16 << 15 << QSize(0, 0);
        QTest::newRow("no rows") << QSize(1600, 900) << 0 << 16 << 15 << QSize(50, 0);
        QTest::newRow("requested 1") << QSize(1600, 900) << 9 << 16 << 1 << QSize(50, 51);
    }

    void fittedSize()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(int, requested);
        QFETCH(QSize, limits);
        const int expected = expectedLabelSize(requested, limits);
        for (const bool onlyLines : {false, true}) {
            PaintRowColSequeWidget layer;
            setGrid(layer, rows, columns);
            layer.setSequeSize(ushort(requested));
            if (onlyLines)
                layer.setRowColVisible(true);
            else
                layer.setSequeVisible(true);
            pictureAt(size, layer);
            QCOMPARE(layer.sequeSize(), expected);
        }
        if (limits.width() <= 1 || limits.height() <= 1)
            QCOMPARE(expected, 1);
    }

    void usualSizeFitsUsualCells()
    {
        QFont font;
        font.setPixelSize(15);
        QVERIFY(QFontMetrics(font).height() <= 51);
        QVERIFY(QFontMetrics(font).horizontalAdvance(QStringLiteral("WW")) <= 50);
        PaintRowColSequeWidget layer;
        layer.setSequeVisible(true);
        pictureAt({1600, 900}, layer);
        QCOMPARE(layer.sequeSize(), 15);
    }

    void fittedSizeIsThatOfTheLastRender()
    {
        PaintRowColSequeWidget layer;
        pictureAt({1600, 900}, layer);
        layer.setSequeSize(30); // nothing is drawn, so nothing is fitted
        QCOMPARE(layer.sequeSize(), 15);
        layer.setSequeVisible(true);
        QCOMPARE(layer.sequeSize(), expectedLabelSize(30, {50, 51}));
        layer.setRows(100);
        const int small = layer.sequeSize();
        QCOMPARE(small, expectedLabelSize(30, {50, 4}));
        layer.setSequeVisible(false);
        layer.setRows(9);
        QCOMPARE(layer.sequeSize(), small);
        layer.setRowColVisible(true); // the requested size was kept
        QCOMPARE(layer.sequeSize(), expectedLabelSize(30, {50, 51}));
    }

    /// The toolkit refuses a pixel size of 0: the font stays the painter's.
    void sizeZeroDrawsInTheDefaultSize()
    {
        const QSize size(1600, 900);
        PaintRowColSequeWidget layer;
        layer.setSequeSize(0);
        layer.setSequeVisible(true);
        const QImage image = pictureAt(size, layer);
        QCOMPARE(layer.sequeSize(), 0);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              for (int row = 0; row < 9; ++row) {
                                  for (int column = 0; column < 16; ++column)
                                      ExpectedLabels{size}.drawCell(painter, row, column);
                              }
                          }));
    }

    void setters_data()
    {
        QTest::addColumn<SequenceChange>("change");
        const auto row = [](const char* name, const SequenceChange& change) {
            QTest::newRow(name) << change;
        };
        row("lines visible", [](PaintRowColSequeWidget& layer) { layer.setRowColVisible(false); });
        row("labels visible", [](PaintRowColSequeWidget& layer) { layer.setSequeVisible(false); });
        row("line colour", [](PaintRowColSequeWidget& layer) { layer.setRowColColor(Qt::red); });
        row("label colour", [](PaintRowColSequeWidget& layer) { layer.setSequeColor(Qt::red); });
        row("label size", [](PaintRowColSequeWidget& layer) { layer.setSequeSize(7); });
        row("model", [](PaintRowColSequeWidget& layer) { layer.setShowModel(1); });
        row("sort", [](PaintRowColSequeWidget& layer) { layer.setSortType(3); });
        row("location", [](PaintRowColSequeWidget& layer) { layer.setLocation(2); });
        row("rows", [](PaintRowColSequeWidget& layer) { layer.setRows(5); });
        row("columns", [](PaintRowColSequeWidget& layer) { layer.setColumns(4); });
    }

    void setters()
    {
        QFETCH(SequenceChange, change);
        CountedLayer<PaintRowColSequeWidget> layer;
        layer.setRowColVisible(true);
        layer.setSequeVisible(true);
        pictureAt({640, 360}, layer);
        verifyRendersOnce(layer, change);
    }

    void defaultsAreNotRenderedAgain()
    {
        CountedLayer<PaintRowColSequeWidget> layer;
        pictureAt({64, 36}, layer);
        layer.renders = 0;
        setGrid(layer, 9, 16);
        layer.setRowColVisible(false);
        layer.setRowColColor(Qt::black);
        layer.setSequeVisible(false);
        layer.setSequeColor(Qt::black);
        layer.setSequeSize(15);
        layer.setShowModel(0);
        layer.setSortType(0);
        layer.setLocation(0);
        QCOMPARE(layer.renders, 0);
    }

    void paintFollowsTheSize()
    {
        PaintRowColSequeWidget layer;
        layer.setRowColVisible(true);
        pictureAt({160, 90}, layer);
        const QImage image = pictureAt({320, 180}, layer);
        QCOMPARE(image.size(), QSize(320, 180));
        QCOMPARE(inkInRow(image, 10),
                 QStringLiteral("20-20 40-40 60-60 80-80 100-100 120-120 140-140 160-160 "
                                "180-180 200-200 220-220 240-240 260-260 280-280 300-300"));
    }

    void everyPaintReportsBeforeItPaints()
    {
        PaintRowColSequeWidget layer;
        verifyPaintReports(layer);
    }
};

VD_TEST_MAIN(TestPaintRowColSequeWidget)
#include "tst_paintrowcolsequewidget.moc"
