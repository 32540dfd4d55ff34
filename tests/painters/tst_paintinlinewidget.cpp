#include "expectedlabels.h"
#include "findink.h"
#include "layerprotocol.h"
#include "paintinlinewidget.h"
#include "testcase.h"

#include <QPen>

#include <limits>

using namespace vardeno::testcharttools;

using LinesChange = std::function<void(PaintInLineWidget& layer)>;
Q_DECLARE_METATYPE(LinesChange)

namespace {

constexpr uint unknown = std::numeric_limits<uint>::max();
const QColor green(0x00, 0xff, 0x00);

enum Graphics
{
    Circles = 1,
    Diagonals = 2,
    Labels = 4,
    All = 7
};

void showOnly(PaintInLineWidget& layer, int graphics)
{
    layer.setCircleVisible(graphics & Circles);
    layer.setDiagonalVisible(graphics & Diagonals);
    layer.setSerialVisible(graphics & Labels);
}

QPen linePen(const QColor& color, int width)
{
    return {QBrush(color), qreal(width), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

void drawDiagonals(QPainter& painter, const QSize& size, const QColor& color, int width)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(linePen(color, width));
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawLine(size.width(), 0, 0, size.height());
}

void drawCircles(QPainter& painter, const QRect& first, const QRect& second, const QColor& color, int width)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(linePen(color, width));
    painter.drawEllipse(first);
    painter.drawEllipse(second);
}

} // namespace

class TestPaintInLineWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void circleEdges_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("lineWidth");
        QTest::addColumn<QPoint>("firstCentre");
        QTest::addColumn<QPoint>("secondCentre");
        QTest::addColumn<QString>("across"); // through both centres
        QTest::addColumn<QString>("along");  // through one centre, from edge to edge
        const auto row = [](const char* name, const QSize& size, int radius, int lineWidth,
                            const QPoint& first, const QPoint& second, const char* across,
                            const char* along) {
            QTest::newRow(name) << size << radius << lineWidth << first << second
                                << QString::fromLatin1(across) << QString::fromLatin1(along);
        };
        row("1920 x 1080", {1920, 1080}, 535, 6, {535, 540}, {1385, 540}, "0-5 850-855 1064-1069 1914-1919",
            "5-10 1069-1074");
        row("1920 x 1080, larger than the height", {1920, 1080}, 5000, 6, {540, 540}, {1380, 540},
            "0-5 840-845 1074-1079 1914-1919", "0-5 1074-1079");
        row("1920 x 1080, apart", {1920, 1080}, 200, 20, {200, 540}, {1720, 540},
            "0-19 380-399 1520-1539 1900-1919", "340-359 720-739");
        row("portrait", {1080, 1920}, 535, 6, {540, 535}, {540, 1385}, "0-5 850-855 1064-1069 1914-1919",
            "5-10 1069-1074");
        row("portrait, larger than the width", {1080, 1920}, 541, 6, {540, 540}, {540, 1380},
            "0-5 840-845 1074-1079 1914-1919", "0-5 1074-1079");
        row("square", {1000, 1000}, 200, 10, {200, 500}, {800, 500}, "0-9 390-399 600-609 990-999",
            "300-309 690-699");
        row("square, as large as it, twice the same", {1000, 1000}, 500, 10, {500, 500}, {500, 500},
            "0-9 990-999", "0-9 990-999");
    }

    void circleEdges()
    {
        QFETCH(QSize, size);
        QFETCH(int, radius);
        QFETCH(int, lineWidth);
        QFETCH(QPoint, firstCentre);
        QFETCH(QPoint, secondCentre);
        QFETCH(QString, across);
        QFETCH(QString, along);
        PaintInLineWidget layer;
        showOnly(layer, Circles);
        layer.setCircleRadius(ushort(radius));
        layer.setCircleLineWidth(ushort(lineWidth));
        layer.setCircleColor(Qt::red);
        const QImage image = pictureAt(size, layer);

        if (firstCentre.x() < secondCentre.x() || size.width() == size.height()) {
            QCOMPARE(inkInRow(image, firstCentre.y()), across);
            QCOMPARE(inkInColumn(image, firstCentre.x()), along);
            QCOMPARE(inkInColumn(image, secondCentre.x()), along);
        } else {
            QCOMPARE(inkInColumn(image, firstCentre.x()), across);
            QCOMPARE(inkInRow(image, firstCentre.y()), along);
            QCOMPARE(inkInRow(image, secondCentre.y()), along);
        }
        QCOMPARE(opaquePixelsNotOf(Qt::red, image), 0);
    }

    void circleGeometry_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("lineWidth");
        QTest::addColumn<int>("diameter");
        QTest::addColumn<QRect>("first");
        QTest::addColumn<QRect>("second");
        const auto row = [](const char* name, const QSize& size, int radius, int lineWidth, int diameter,
                            const QRect& first, const QRect& second) {
            QTest::newRow(name) << size << radius << lineWidth << diameter << first << second;
        };
        row("1920 x 1080", {1920, 1080}, 535, 6, 1070, {3, 8, 1064, 1064}, {853, 8, 1064, 1064});
        row("portrait", {1080, 1920}, 535, 6, 1070, {8, 3, 1064, 1064}, {8, 853, 1064, 1064});
        row("square", {500, 500}, 200, 10, 400, {5, 55, 390, 390}, {105, 55, 390, 390});
        row("larger than half the short side", {640, 360}, 181, 6, 360, {3, 3, 354, 354}, {283, 3, 354, 354});
        row("odd pen", {640, 360}, 100, 7, 200, {3, 83, 193, 193}, {444, 83, 193, 193});
        row("pen of 1", {640, 360}, 100, 1, 200, {0, 80, 199, 199}, {441, 80, 199, 199});
        row("pen of 0, a hairline", {640, 360}, 100, 0, 200, {0, 80, 200, 200}, {440, 80, 200, 200});
        row("pen wider than the circle", {640, 360}, 10, 31, 20, {15, 180, 0, 0}, {625, 180, 0, 0});
        row("doubled radius beyond 16 bits", {640, 360}, 32868, 6, 200, {3, 83, 194, 194},
            {443, 83, 194, 194});
        row("radius 0", {640, 360}, 0, 6, 0, {3, 180, 0, 0}, {637, 180, 0, 0});
        row("1 x 1", {1, 1}, 535, 6, 1, {3, 0, 0, 0}, {-2, 0, 0, 0});
    }

    void circleGeometry()
    {
        QFETCH(QSize, size);
        QFETCH(int, radius);
        QFETCH(int, lineWidth);
        QFETCH(int, diameter);
        QFETCH(QRect, first);
        QFETCH(QRect, second);
        PaintInLineWidget layer;
        showOnly(layer, Circles);
        layer.setCircleRadius(ushort(radius));
        layer.setCircleLineWidth(ushort(lineWidth));
        const QImage image = pictureAt(size, layer);
        QCOMPARE(int(layer.effectiveDiameter()), diameter);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              drawCircles(painter, first, second, green, lineWidth);
                          }));
    }

    void diameterIsThatOfTheLastRender()
    {
        PaintInLineWidget layer;
        pictureAt({640, 360}, layer);
        QCOMPARE(int(layer.effectiveDiameter()), 360);
        layer.setCircleRadius(100);
        QCOMPARE(int(layer.effectiveDiameter()), 200);
        layer.setCircleVisible(false);
        layer.setCircleRadius(50);
        QCOMPARE(int(layer.effectiveDiameter()), 200);
        layer.setCircleVisible(true);
        QCOMPARE(int(layer.effectiveDiameter()), 100);
    }

    void diagonals_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("lineWidth");
        QTest::addColumn<bool>("alongRow");
        QTest::addColumn<int>("quarter"); // of the row or column that is looked at
        QTest::addColumn<QString>("spans");
        QTest::newRow("1920 x 1080") << QSize(1920, 1080) << 6 << true << 270
                                     << QStringLiteral("475-486 1433-1444");
        QTest::newRow("portrait") << QSize(1080, 1920) << 6 << false << 270
                                  << QStringLiteral("475-486 1433-1444");
        QTest::newRow("square") << QSize(1000, 1000) << 10 << true << 250
                                << QStringLiteral("243-257 742-756");
    }

    void diagonals()
    {
        QFETCH(QSize, size);
        QFETCH(int, lineWidth);
        QFETCH(bool, alongRow);
        QFETCH(int, quarter);
        QFETCH(QString, spans);
        PaintInLineWidget layer;
        showOnly(layer, Diagonals);
        layer.setDiagonalLineWidth(ushort(lineWidth));
        layer.setDiagonalColor(Qt::blue);
        const QImage image = pictureAt(size, layer);

        const int right = size.width() - 1;
        const int bottom = size.height() - 1;
        for (const QPoint& end : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom),
                                  QPoint(right / 2, bottom / 2)})
            QCOMPARE(image.pixelColor(end), QColor(Qt::blue));
        for (const QPoint& middle : {QPoint(right / 2, 0), QPoint(right / 2, bottom), QPoint(0, bottom / 2),
                                     QPoint(right, bottom / 2)})
            QCOMPARE(image.pixelColor(middle).alpha(), 0);
        QCOMPARE(alongRow ? inkInRow(image, quarter) : inkInColumn(image, quarter), spans);
        QCOMPARE(opaquePixelsNotOf(Qt::blue, image), 0);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              drawDiagonals(painter, size, Qt::blue, lineWidth);
                          }));
    }

    void startsWithEverything()
    {
        const QSize size(1920, 1080);
        PaintInLineWidget layer;
        const QImage image = pictureAt(size, layer);
        QCOMPARE(int(layer.effectiveDiameter()), 1070);
        QCOMPARE(int(layer.workingSerialSize()), 15);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              drawDiagonals(painter, size, green, 6);
                              drawCircles(painter, {3, 8, 1064, 1064}, {853, 8, 1064, 1064}, green, 6);
                              ExpectedLabels{size}.draw(painter);
                          }));
    }

    void visibility_data()
    {
        QTest::addColumn<int>("graphics");
        QTest::newRow("nothing") << 0;
        QTest::newRow("circles") << int(Circles);
        QTest::newRow("diagonals") << int(Diagonals);
        QTest::newRow("labels") << int(Labels);
        QTest::newRow("circles and diagonals") << int(Circles | Diagonals);
        QTest::newRow("circles and labels") << int(Circles | Labels);
        QTest::newRow("diagonals and labels") << int(Diagonals | Labels);
    }

    void visibility()
    {
        QFETCH(int, graphics);
        const QSize size(1600, 900);
        PaintInLineWidget layer;
        showOnly(layer, graphics);
        layer.setCircleRadius(300);
        VD_COMPARE_IMAGES(pictureAt(size, layer), drawnPicture(size, [&](QPainter& painter) {
                              if (graphics & Diagonals)
                                  drawDiagonals(painter, size, green, 6);
                              if (graphics & Circles)
                                  drawCircles(painter, {3, 153, 594, 594}, {1003, 153, 594, 594}, green, 6);
                              if (graphics & Labels)
                                  ExpectedLabels{size}.draw(painter);
                          }));
    }

    void labelsLieOverCirclesOverDiagonals()
    {
        const QSize size(800, 450);
        PaintInLineWidget layer;
        layer.setDiagonalColor(Qt::blue);
        layer.setDiagonalLineWidth(60);
        layer.setCircleColor(Qt::red);
        layer.setCircleLineWidth(60);
        layer.setSerialColor(Qt::white);
        const QImage all = pictureAt(size, layer);
        showOnly(layer, Diagonals);
        const QImage diagonals = layerImage(layer);
        showOnly(layer, Circles);
        const QImage circles = layerImage(layer);
        showOnly(layer, Labels);
        const QImage labels = layerImage(layer);

        int circleOverDiagonal = 0;
        int labelOverCircle = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const bool circle = qAlpha(circles.pixel(x, y)) == 255;
                const int label = qAlpha(labels.pixel(x, y));
                if (circle && label == 255) {
                    ++labelOverCircle;
                    QCOMPARE(all.pixelColor(x, y), QColor(Qt::white));
                } else if (circle && label == 0 && qAlpha(diagonals.pixel(x, y)) == 255) {
                    ++circleOverDiagonal;
                    QCOMPARE(all.pixelColor(x, y), QColor(Qt::red));
                }
            }
        }
        QVERIFY(circleOverDiagonal > 100);
        QVERIFY(labelOverCircle > 10);
    }

    void translucentColours()
    {
        const QSize size(320, 180);
        PaintInLineWidget layer;
        showOnly(layer, Circles | Diagonals);
        layer.setCircleColor(QColor(255, 0, 0, 100));
        layer.setDiagonalColor(QColor(0, 0, 255, 50));
        VD_COMPARE_IMAGES(
            pictureAt(size, layer), drawnPicture(size, [&](QPainter& painter) {
                drawDiagonals(painter, size, QColor(0, 0, 255, 50), 6);
                drawCircles(painter, {3, 3, 174, 174}, {143, 3, 174, 174}, QColor(255, 0, 0, 100), 6);
            }));
    }

    void labels_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("sort");
        QTest::addColumn<uint>("position");
        const char* const modes[] = {"letters", "numbers", "letter and number"};
        const char* const sorts[] = {"down and right", "down and left", "up and right", "up and left"};
        const char* const positions[] = {"centre", "left up", "left down"};
        for (uint mode = 0; mode < 3; ++mode) {
            for (uint sort = 0; sort < 4; ++sort) {
                for (uint position = 0; position < 3; ++position) {
                    QTest::newRow(qPrintable(QStringLiteral("%1, %2, %3")
                                                 .arg(QLatin1String(modes[mode]), QLatin1String(sorts[sort]),
                                                      QLatin1String(positions[position]))))
                        << mode << sort << position;
                }
            }
        }
    }

    /// Each label is the text that is expected, in its cabinet, and nothing else is drawn.
    void labels()
    {
        QFETCH(uint, mode);
        QFETCH(uint, sort);
        QFETCH(uint, position);
        const ExpectedLabels expected{QSize(711, 499), 5, 7, mode, sort, position, 13, QColor(Qt::darkRed)};
        PaintInLineWidget layer;
        showOnly(layer, Labels);
        layer.setRows(5);
        layer.setColumns(7);
        layer.setSerialSize(13);
        layer.setSerialColor(expected.color);
        layer.setSerialMode(mode);
        layer.setSerialSort(sort);
        layer.setSerialPosition(position);
        const QImage image = pictureAt(expected.chart, layer);
        QCOMPARE(int(layer.workingSerialSize()), 13);
        VD_COMPARE_IMAGES(image,
                          drawnPicture(expected.chart, [&](QPainter& painter) { expected.draw(painter); }));
        QCOMPARE(opaquePixelsNotOf(expected.color, image), 0);

        QRegion boxes;
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 7; ++column) {
                const QRect cell = expected.cell(row, column);
                const QRect ink = inkBounds(image, cell);
                const QPoint half(cell.width() / 2, cell.height() / 2);
                const QRect leftUp(cell.topLeft(), QSize(half.x(), half.y()));
                const QRect rightUp = leftUp.translated(half.x(), 0);
                const QRect leftDown = leftUp.translated(0, half.y());
                const QRect rightDown = leftUp.translated(half);
                QCOMPARE(inkBounds(image, leftUp).isEmpty(), position == 2);
                QCOMPARE(inkBounds(image, rightDown).isEmpty(), position == 2);
                QCOMPARE(inkBounds(image, leftDown).isEmpty(), position == 1);
                QCOMPARE(inkBounds(image, rightUp).isEmpty(), position == 1);
                if (position == 0) // the middle of the text is the middle of the cell
                    QVERIFY(qAbs((ink.left() + ink.right()) - (cell.left() + cell.right())) <= 6);
                boxes += ink;
            }
        }
        QCOMPARE(boxes.boundingRect(), inkBounds(image));
    }

    void labelsWrapAfter26()
    {
        ExpectedLabels expected{QSize(1200, 1200), 30, 30};
        PaintInLineWidget layer;
        showOnly(layer, Labels);
        layer.setRows(30);
        layer.setColumns(30);
        const QImage image = pictureAt(expected.chart, layer);
        expected.pixelSize = layer.workingSerialSize();
        VD_COMPARE_IMAGES(image,
                          drawnPicture(expected.chart, [&](QPainter& painter) { expected.draw(painter); }));
        const QImage first = image.copy(expected.cell(0, 0));
        VD_COMPARE_IMAGES(image.copy(expected.cell(26, 26)), first);
        QVERIFY(!imageDifference(image.copy(expected.cell(25, 25)), first).isEmpty());
    }

    void fittedSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("requested");
        QTest::addColumn<QSize>("limits"); // of two letters
        QTest::newRow("fits") << QSize(1600, 900) << 9 << 16 << 15 << QSize(50, 51);
        QTest::newRow("100 in cells of 100") << QSize(1600, 900) << 9 << 16 << 100 << QSize(50, 51);
        QTest::newRow("100 rows") << QSize(1600, 900) << 100 << 16 << 15 << QSize(50, 4);
        QTest::newRow("100 columns") << QSize(1600, 900) << 9 << 100 << 15 << QSize(8, 51);
        QTest::newRow("cells of a few pixels") << QSize(48, 27) << 9 << 16 << 15 << QSize(1, 1);
        QTest::newRow("cells below a pixel") << QSize(5, 3) << 9 << 16 << 15 << QSize(0, 0);
        QTest::newRow("no rows") << QSize(1600, 900) << 0 << 16 << 15 << QSize(50, 0);
        QTest::newRow("no columns") << QSize(1600, 900) << 9 << 0 << 15 << QSize(0, 51);
    }

    void fittedSize()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(int, requested);
        QFETCH(QSize, limits);
        PaintInLineWidget layer;
        layer.setRows(ushort(rows));
        layer.setColumns(ushort(columns));
        layer.setSerialSize(ushort(requested));
        pictureAt(size, layer);

        QCOMPARE(int(layer.workingSerialSize()), expectedLabelSize(requested, limits));
        if (limits.width() <= 1 || limits.height() <= 1)
            QCOMPARE(int(layer.workingSerialSize()), 1);
    }

    void fittedSizeIsThatOfTheLastRender()
    {
        PaintInLineWidget layer;
        pictureAt({1600, 900}, layer);
        layer.setRows(100);
        QVERIFY(layer.workingSerialSize() < 15);
        const ushort small = layer.workingSerialSize();
        layer.setSerialVisible(false);
        layer.setRows(9);
        QCOMPARE(layer.workingSerialSize(), small);
        layer.setSerialVisible(true); // the requested size was kept
        QCOMPARE(int(layer.workingSerialSize()), 15);
    }

    /// The toolkit refuses a pixel size of 0: the font stays the painter's.
    void sizeZeroDrawsInTheDefaultSize()
    {
        const QSize size(1600, 900);
        PaintInLineWidget layer;
        showOnly(layer, Labels);
        layer.setSerialSize(0);
        const QImage image = pictureAt(size, layer);
        QCOMPARE(int(layer.workingSerialSize()), 0);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              for (int row = 0; row < 9; ++row) {
                                  for (int column = 0; column < 16; ++column)
                                      ExpectedLabels{size}.drawCell(painter, row, column);
                              }
                          }));
    }

    void noLabels_data()
    {
        QTest::addColumn<LinesChange>("change");
        QTest::newRow("no rows") << LinesChange([](PaintInLineWidget& layer) { layer.setRows(0); });
        QTest::newRow("no columns") << LinesChange([](PaintInLineWidget& layer) { layer.setColumns(0); });
        QTest::newRow("mode 3") << LinesChange([](PaintInLineWidget& layer) { layer.setSerialMode(3); });
        QTest::newRow("largest mode")
            << LinesChange([](PaintInLineWidget& layer) { layer.setSerialMode(unknown); });
        QTest::newRow("sort 4") << LinesChange([](PaintInLineWidget& layer) { layer.setSerialSort(4); });
        QTest::newRow("largest sort")
            << LinesChange([](PaintInLineWidget& layer) { layer.setSerialSort(unknown); });
        QTest::newRow("position 3") << LinesChange(
            [](PaintInLineWidget& layer) { layer.setSerialPosition(3); });
        QTest::newRow("largest position")
            << LinesChange([](PaintInLineWidget& layer) { layer.setSerialPosition(unknown); });
    }

    void noLabels()
    {
        QFETCH(LinesChange, change);
        const QSize size(640, 360);
        PaintInLineWidget layer;
        change(layer);
        const QImage image = pictureAt(size, layer);
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              drawDiagonals(painter, size, green, 6);
                              drawCircles(painter, {3, 3, 354, 354}, {283, 3, 354, 354}, green, 6);
                          }));
        layer.setRows(9);
        layer.setColumns(16);
        layer.setSerialMode(0);
        layer.setSerialSort(0);
        layer.setSerialPosition(0);
        QVERIFY(!imageDifference(layerImage(layer), image).isEmpty());
    }

    void tinySizes_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("1 x 1") << QSize(1, 1);
        QTest::newRow("2 x 1") << QSize(2, 1);
        QTest::newRow("3 x 200") << QSize(3, 200);
        QTest::newRow("200 x 3") << QSize(200, 3);
    }

    void tinySizes()
    {
        QFETCH(QSize, size);
        PaintInLineWidget layer;
        const QImage image = pictureAt(size, layer);
        QCOMPARE(image.size(), size);
        QCOMPARE(int(layer.effectiveDiameter()), qMin(size.width(), size.height()));
        QCOMPARE(int(layer.workingSerialSize()), 1);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 255);
    }

    void emptySizeShowsNothing()
    {
        PaintInLineWidget layer;
        layer.resize(0, 0);
        layer.setRows(3);
        QVERIFY(layer.pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(!pictureAt({40, 30}, layer).isNull());
    }

    void setters_data()
    {
        QTest::addColumn<LinesChange>("change");
        const auto row = [](const char* name, const LinesChange& change) { QTest::newRow(name) << change; };
        row("circle visible", [](PaintInLineWidget& layer) { layer.setCircleVisible(false); });
        row("circle colour", [](PaintInLineWidget& layer) { layer.setCircleColor(Qt::red); });
        row("circle line width", [](PaintInLineWidget& layer) { layer.setCircleLineWidth(20); });
        row("circle radius", [](PaintInLineWidget& layer) { layer.setCircleRadius(100); });
        row("diagonal visible", [](PaintInLineWidget& layer) { layer.setDiagonalVisible(false); });
        row("diagonal colour", [](PaintInLineWidget& layer) { layer.setDiagonalColor(Qt::blue); });
        row("diagonal line width", [](PaintInLineWidget& layer) { layer.setDiagonalLineWidth(20); });
        row("serial visible", [](PaintInLineWidget& layer) { layer.setSerialVisible(false); });
        row("serial colour", [](PaintInLineWidget& layer) { layer.setSerialColor(Qt::red); });
        row("serial size", [](PaintInLineWidget& layer) { layer.setSerialSize(7); });
        row("serial mode", [](PaintInLineWidget& layer) { layer.setSerialMode(1); });
        row("serial sort", [](PaintInLineWidget& layer) { layer.setSerialSort(3); });
        row("serial position", [](PaintInLineWidget& layer) { layer.setSerialPosition(2); });
        row("rows", [](PaintInLineWidget& layer) { layer.setRows(5); });
        row("columns", [](PaintInLineWidget& layer) { layer.setColumns(4); });
    }

    void setters()
    {
        QFETCH(LinesChange, change);
        CountedLayer<PaintInLineWidget> layer;
        pictureAt({640, 360}, layer);
        verifyRendersOnce(layer, change);
    }

    void defaultsAreNotRenderedAgain()
    {
        CountedLayer<PaintInLineWidget> layer;
        pictureAt({64, 36}, layer);
        layer.renders = 0;
        showOnly(layer, All);
        layer.setCircleColor(green);
        layer.setCircleLineWidth(6);
        layer.setCircleRadius(535);
        layer.setDiagonalColor(green);
        layer.setDiagonalLineWidth(6);
        layer.setSerialColor(Qt::black);
        layer.setSerialSize(15);
        layer.setSerialMode(0);
        layer.setSerialSort(0);
        layer.setSerialPosition(0);
        layer.setRows(9);
        layer.setColumns(16);
        QCOMPARE(layer.renders, 0);
    }

    void resizeRenders()
    {
        CountedLayer<PaintInLineWidget> layer;
        layer.resize(200, 100);
        layer.show();
        QVERIFY(QTest::qWaitForWindowExposed(&layer));
        QTRY_COMPARE(layer.size(), layer.pixmap(Qt::ReturnByValue).size());
        const int renders = layer.renders;
        const QSize larger = layer.size() + QSize(120, 90);
        layer.resize(larger);
        QCOMPARE(layer.renders, renders + 1);
        QCOMPARE(layer.pixmap(Qt::ReturnByValue).size(), larger);
    }

    void everyPaintReportsBeforeItPaints()
    {
        PaintInLineWidget layer;
        verifyPaintReports(layer);
    }
};

VD_TEST_MAIN(TestPaintInLineWidget)
#include "tst_paintinlinewidget.moc"
