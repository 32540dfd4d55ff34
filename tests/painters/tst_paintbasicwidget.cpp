#include "paintbasicwidget.h"
#include "testcase.h"

#include <QListWidget>
#include <QPainter>

#include <cmath>
#include <memory>

using namespace vardeno::testcharttools;

namespace {

enum Mode : uint
{
    Chess,
    Gradient,
    Stripes
};

using Colors = QVector<QColor>;
using PatternChange = void (*)(PaintBasicWidget&);
using Setter = void (*)(PaintBasicWidget&, QListWidget*);
using ListChange = void (*)(QListWidget&);

const QColor odd(0xff, 0xaa, 0xff);
const QColor even(0x55, 0xaa, 0xff);

void append(QListWidget& list, const QColor& color)
{
    auto* item = new QListWidgetItem(&list);
    item->setBackground(color);
}

void fill(QListWidget& list, const Colors& colors)
{
    for (const QColor& color : colors)
        append(list, color);
}

QImage transparent(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage bars(const QSize& size, const Colors& colors, int stripeWidth)
{
    QImage image = transparent(size);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int i = 0; i < colors.size(); ++i)
        painter.fillRect(i * stripeWidth, 0, stripeWidth, size.height(), colors.at(i));
    return image;
}

qint64 patternOf(const QLabel& layer)
{
    return layer.pixmap(Qt::ReturnByValue).cacheKey();
}

/// The cells (first and last) that one pixel of `extent` lies in when the extent is divided by `count`. The
/// arithmetic is that of whole numbers, so there is nothing to round.
std::pair<int, int> cellsUnder(int pixel, int extent, int count)
{
    return {int(qint64(pixel) * count / extent), int((qint64(pixel + 1) * count + extent - 1) / extent) - 1};
}

/// The first pixel that no cell under it explains, empty if there is none. A pixel that lies in one cell only
/// has that cell's colour; one that an edge passes through has the colour of either side.
QString misplacedPixel(const QImage& picture, int rows, int columns)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto [top, bottom] = cellsUnder(y, picture.height(), rows);
        for (int x = 0; x < picture.width(); ++x) {
            const auto [left, right] = cellsUnder(x, picture.width(), columns);
            const QColor color = picture.pixelColor(x, y);
            const bool edge = top != bottom || left != right;
            const QColor wanted = (top + left) % 2 == 0 ? odd : even;
            if (color == wanted || (edge && (color == odd || color == even)))
                continue;
            return QStringLiteral("(%1, %2) is %3 instead of %4")
                .arg(x)
                .arg(y)
                .arg(color.name(QColor::HexArgb), wanted.name(QColor::HexArgb));
        }
    }
    return {};
}

/// How many cells a running sum of fractional cell sizes lays along `extent`.
int cellsOfRunningSum(int extent, int count)
{
    int cells = 0;
    for (double x = 0; x < extent; x += double(extent) / count)
        ++cells;
    return cells;
}

/// The premultiplied colour that lies the part `t` of the way from `a` to `b`.
QRgb between(const QColor& a, const QColor& b, double t)
{
    const QRgb from = qPremultiply(a.rgba());
    const QRgb to = qPremultiply(b.rgba());
    const auto mix = [t](int p, int q) { return int(std::lround(p + (q - p) * t)); };
    return qRgba(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)), mix(qBlue(from), qBlue(to)),
                 mix(qAlpha(from), qAlpha(to)));
}

/// Whether the two differ by no more than a gradient's table of colours explains.
bool isNear(QRgb a, QRgb b, int tolerance = 4)
{
    const auto close = [tolerance](int p, int q) { return std::abs(p - q) <= tolerance; };
    return close(qRed(a), qRed(b)) && close(qGreen(a), qGreen(b)) && close(qBlue(a), qBlue(b)) &&
           close(qAlpha(a), qAlpha(b));
}

} // namespace

Q_DECLARE_METATYPE(PatternChange)
Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(ListChange)

class TestPaintBasicWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheDefaultChessboard()
    {
        PaintBasicWidget layer;
        QCOMPARE(layer.mode(), 0U);
        layer.resize(1600, 900);
        layer.grab();
        const QImage picture = layerImage(layer);
        QCOMPARE(picture.size(), QSize(1600, 900));
        for (int row = 0; row < 9; ++row) {
            for (int column = 0; column < 16; ++column) {
                const QImage cell = picture.copy(column * 100, row * 100, 100, 100);
                QImage expected(100, 100, QImage::Format_ARGB32_Premultiplied);
                expected.fill((row + column) % 2 == 0 ? odd : even);
                VD_COMPARE_IMAGES(cell, expected);
            }
        }
    }

    void chessCells_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("even divisions, whole cells") << QSize(1600, 900) << 10 << 16;
        QTest::newRow("odd divisions, whole cells") << QSize(1300, 700) << 7 << 13;
        QTest::newRow("fractional cells") << QSize(1920, 1080) << 7 << 13;
        QTest::newRow("portrait") << QSize(270, 480) << 16 << 9;
        QTest::newRow("edges at half pixels") << QSize(5, 7) << 2 << 2;
        QTest::newRow("one cell") << QSize(50, 40) << 1 << 1;
        QTest::newRow("one row") << QSize(50, 40) << 1 << 7;
        QTest::newRow("one column") << QSize(50, 40) << 7 << 1;
        QTest::newRow("cells of one pixel") << QSize(16, 9) << 9 << 16;
        QTest::newRow("little more than a pixel") << QSize(17, 10) << 9 << 16;
        QTest::newRow("cells smaller than pixels") << QSize(8, 5) << 9 << 16;
        QTest::newRow("as many as can be said") << QSize(16, 1) << 1 << 65535;
        QTest::newRow("a layer of one pixel") << QSize(1, 1) << 9 << 16;
    }

    void chessCells()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        PaintBasicWidget layer;
        layer.resize(size);
        layer.setRows(ushort(rows));
        layer.setColumns(ushort(columns));
        layer.grab();
        QCOMPARE(layerImage(layer).size(), size);
        const QString misplaced = misplacedPixel(layerImage(layer), rows, columns);
        QVERIFY2(misplaced.isEmpty(), qPrintable(misplaced));
    }

    /// The running sum of the cell sizes stays just below the far edge, and one more cell begins there.
    void theSliverOfOneMoreCellCoversNoPixel_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("right edge") << QSize(1920, 60) << 1 << 7;
        QTest::newRow("bottom edge") << QSize(60, 100) << 12 << 1;
        QTest::newRow("both edges") << QSize(100, 160) << 9 << 17;
    }

    void theSliverOfOneMoreCellCoversNoPixel()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QVERIFY(cellsOfRunningSum(size.width(), columns) > columns ||
                cellsOfRunningSum(size.height(), rows) > rows);
        PaintBasicWidget layer;
        layer.resize(size);
        layer.setRows(ushort(rows));
        layer.setColumns(ushort(columns));
        const QString misplaced = misplacedPixel(layerImage(layer), rows, columns);
        QVERIFY2(misplaced.isEmpty(), qPrintable(misplaced));
    }

    void chessColors_data()
    {
        QTest::addColumn<QColor>("first");
        QTest::addColumn<QColor>("second");
        QTest::newRow("opaque") << QColor(1, 2, 3) << QColor(250, 251, 252);
        QTest::newRow("translucent") << QColor(255, 0, 0, 128) << QColor(0, 255, 0, 1);
        QTest::newRow("invisible") << QColor(255, 0, 0, 0) << QColor(Qt::blue);
        QTest::newRow("both the same") << QColor(Qt::gray) << QColor(Qt::gray);
    }

    void chessColors()
    {
        QFETCH(QColor, first);
        QFETCH(QColor, second);
        PaintBasicWidget layer;
        layer.resize(40, 20);
        layer.setRows(1);
        layer.setColumns(2);
        layer.setOddColor(first);
        layer.setEvenColor(second);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(40, 20), {first, second}, 20));
    }

    void withoutRowsOrColumnsThePictureStays_data()
    {
        QTest::addColumn<PatternChange>("change");
        QTest::newRow("no rows") << PatternChange([](PaintBasicWidget& layer) { layer.setRows(0); });
        QTest::newRow("no columns") << PatternChange([](PaintBasicWidget& layer) { layer.setColumns(0); });
        QTest::newRow("no rows, then another color") << PatternChange([](PaintBasicWidget& layer) {
            layer.setRows(0);
            layer.setOddColor(Qt::black);
        });
        QTest::newRow("no rows, then another size") << PatternChange([](PaintBasicWidget& layer) {
            layer.setRows(0);
            layer.resize(80, 90);
        });
    }

    void withoutRowsOrColumnsThePictureStays()
    {
        QFETCH(PatternChange, change);
        PaintBasicWidget layer;
        layer.resize(160, 90);
        layer.grab();
        const qint64 picture = patternOf(layer);
        change(layer);
        QCOMPARE(patternOf(layer), picture);
        layer.grab();
        QCOMPARE(patternOf(layer), picture);
        layer.setRows(3);
        layer.setColumns(3);
        QVERIFY(patternOf(layer) != picture);
    }

    void anEmptyChessboardKeepsItsPicture_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no width") << QSize(0, 90);
        QTest::newRow("no height") << QSize(160, 0);
        QTest::newRow("neither") << QSize(0, 0);
    }

    void anEmptyChessboardKeepsItsPicture()
    {
        QFETCH(QSize, size);
        PaintBasicWidget layer;
        layer.resize(160, 90);
        layer.grab();
        const qint64 picture = patternOf(layer);
        layer.resize(size);
        layer.setOddColor(Qt::black);
        QCOMPARE(patternOf(layer), picture);
    }

    void withoutRowsTheOtherModesDraw_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::newRow("gradient") << uint(Gradient);
        QTest::newRow("stripes") << uint(Stripes);
    }

    void withoutRowsTheOtherModesDraw()
    {
        QFETCH(uint, mode);
        QListWidget list;
        fill(list, {Qt::red, Qt::red});
        PaintBasicWidget layer;
        layer.resize(40, 20);
        layer.setColorStripeList(&list);
        layer.setRows(0);
        layer.setColumns(0);
        layer.setMode(mode);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(40, 20), {Qt::red}, 40));
    }

    void gradient_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Colors>("colors");
        const QSize size(1000, 20);
        QTest::newRow("two colors") << size << Colors{Qt::yellow, Qt::blue};
        QTest::newRow("five colors") << size << Colors{Qt::yellow, Qt::green, Qt::cyan, Qt::magenta, Qt::red};
        QTest::newRow("the same color again") << size << Colors{Qt::red, Qt::red, Qt::blue};
        QTest::newRow("portrait") << QSize(200, 600) << Colors{Qt::black, Qt::white, Qt::black};
        QTest::newRow("translucent") << size << Colors{QColor(255, 0, 0, 0), QColor(255, 0, 0, 255)};
        QTest::newRow("translucent throughout")
            << size << Colors{QColor(0, 80, 0, 128), QColor(0, 0, 90, 128)};
    }

    void gradient()
    {
        QFETCH(QSize, size);
        QFETCH(Colors, colors);
        QListWidget list;
        fill(list, colors);
        PaintBasicWidget layer;
        layer.resize(size);
        layer.setColorStripeList(&list);
        layer.setMode(Gradient);
        const QImage picture = layerImage(layer);
        QCOMPARE(picture.size(), size);
        for (int x = 0; x < size.width(); ++x) {
            const double place = (x + 0.5) / size.width() * (colors.size() - 1);
            const int stop = std::min(int(place), int(colors.size()) - 2);
            const QRgb wanted = between(colors.at(stop), colors.at(stop + 1), place - stop);
            for (const int y : {0, size.height() / 2, size.height() - 1}) {
                const QRgb actual = picture.pixel(x, y);
                QVERIFY2(isNear(actual, wanted), qPrintable(QStringLiteral("column %1 is %2 instead of %3")
                                                                .arg(x)
                                                                .arg(actual, 8, 16)
                                                                .arg(wanted, 8, 16)));
            }
        }
    }

    void gradientOfTwoColorsIsPureAtItsEnds_data()
    {
        QTest::addColumn<int>("width");
        for (const int width : {1000, 1920, 4320})
            QTest::addRow("%d pixels", width) << width;
    }

    void gradientOfTwoColorsIsPureAtItsEnds()
    {
        QFETCH(int, width);
        QListWidget list;
        fill(list, {Qt::yellow, Qt::blue});
        PaintBasicWidget layer;
        layer.resize(width, 2);
        layer.setColorStripeList(&list);
        layer.setMode(Gradient);
        const QImage picture = layerImage(layer);
        QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::yellow));
        // The second colour stands at the edge itself, half a pixel beyond the last pixel's middle.
        QVERIFY(isNear(picture.pixel(width - 1, 0), QColor(Qt::blue).rgba(), 1));
    }

    void gradientOfOneColorIsThatColor()
    {
        QListWidget list;
        fill(list, {QColor(10, 200, 30)});
        PaintBasicWidget layer;
        layer.resize(40, 20);
        layer.setColorStripeList(&list);
        layer.setMode(Gradient);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(40, 20), {QColor(10, 200, 30)}, 40));
    }

    void gradientWithoutStopsGoesFromBlackToWhite_data()
    {
        QTest::addColumn<bool>("withList");
        QTest::newRow("empty list") << true;
        QTest::newRow("no list") << false;
    }

    void gradientWithoutStopsGoesFromBlackToWhite()
    {
        QFETCH(bool, withList);
        QListWidget list;
        PaintBasicWidget layer;
        layer.resize(1000, 20);
        layer.setColorStripeList(withList ? &list : nullptr);
        layer.setMode(Gradient);
        for (int x = 0; x < 1000; ++x)
            QVERIFY(isNear(layerImage(layer).pixel(x, 10), between(Qt::black, Qt::white, (x + 0.5) / 1000)));
    }

    void stripes_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Colors>("colors");
        QTest::addColumn<int>("stripeWidth");
        const Colors three{Qt::red, Qt::green, Qt::blue};
        QTest::newRow("3 of 333 pixels, the last column transparent") << QSize(1000, 20) << three << 333;
        QTest::newRow("no remainder") << QSize(999, 20) << three << 333;
        QTest::newRow("two columns left over") << QSize(1001, 20) << three << 333;
        QTest::newRow("one color") << QSize(40, 20) << Colors{Qt::cyan} << 40;
        QTest::newRow("translucent") << QSize(40, 20) << Colors{QColor(255, 0, 0, 128), QColor(0, 255, 0, 0)}
                                     << 20;
        QTest::newRow("more colors than columns") << QSize(2, 20) << three << 0;
        QTest::newRow("no colors") << QSize(40, 20) << Colors{} << 0;
    }

    void stripes()
    {
        QFETCH(QSize, size);
        QFETCH(Colors, colors);
        QFETCH(int, stripeWidth);
        QListWidget list;
        fill(list, colors);
        PaintBasicWidget layer;
        layer.resize(size);
        layer.setColorStripeList(&list);
        layer.setMode(Stripes);
        VD_COMPARE_IMAGES(layerImage(layer), bars(size, colors, stripeWidth));
    }

    void anUnknownModeDrawsNothing_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::newRow("the first") << 3U;
        QTest::newRow("the last") << 0xffffffffU;
    }

    void anUnknownModeDrawsNothing()
    {
        QFETCH(uint, mode);
        QListWidget list;
        fill(list, {Qt::red});
        PaintBasicWidget layer;
        layer.resize(40, 20);
        layer.setColorStripeList(&list);
        layer.setMode(Stripes);
        layer.setMode(mode);
        QCOMPARE(layer.mode(), mode);
        VD_COMPARE_IMAGES(layerImage(layer), transparent(QSize(40, 20)));
    }

    void modeAnswersWhatWasSet()
    {
        PaintBasicWidget layer;
        for (const uint mode : {Stripes, Gradient, Chess}) {
            layer.setMode(mode);
            QCOMPARE(layer.mode(), uint(mode));
        }
    }

    void theGradientListIsNotDrawn()
    {
        QListWidget list;
        QListWidget gradientList;
        fill(list, {Qt::red, Qt::red});
        fill(gradientList, {Qt::blue, Qt::blue});
        PaintBasicWidget layer;
        layer.resize(40, 20);
        layer.setColorStripeList(&list);
        layer.setGradientList(&gradientList);
        layer.setMode(Gradient);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(40, 20), {Qt::red}, 40));
    }

    void theNextPaintShowsWhatTheListHolds_data()
    {
        QTest::addColumn<ListChange>("change");
        QTest::addColumn<Colors>("colors");
        QTest::newRow("appended") << ListChange([](QListWidget& list) { append(list, Qt::blue); })
                                  << Colors{Qt::red, Qt::green, Qt::blue};
        QTest::newRow("taken out") << ListChange([](QListWidget& list) { delete list.takeItem(0); })
                                   << Colors{Qt::green};
        QTest::newRow("recolored") << ListChange([](QListWidget& list) {
            list.item(1)->setBackground(QColor(Qt::black));
        }) << Colors{Qt::red, Qt::black};
        QTest::newRow("other alpha") << ListChange([](QListWidget& list) {
            list.item(0)->setBackground(QColor(255, 0, 0, 100));
        }) << Colors{QColor(255, 0, 0, 100), Qt::green};
        QTest::newRow("other order") << ListChange([](QListWidget& list) {
            list.insertItem(0, list.takeItem(1));
        }) << Colors{Qt::green, Qt::red};
        QTest::newRow("emptied") << ListChange([](QListWidget& list) { list.clear(); }) << Colors{};
    }

    void theNextPaintShowsWhatTheListHolds()
    {
        QFETCH(ListChange, change);
        QFETCH(Colors, colors);
        QListWidget list;
        fill(list, {Qt::red, Qt::green});
        PaintBasicWidget layer;
        layer.resize(60, 20);
        layer.setColorStripeList(&list);
        layer.setMode(Stripes);
        const qint64 picture = patternOf(layer);

        change(list);
        layer.setColorStripeList(&list);
        QCOMPARE(patternOf(layer), picture);
        layer.grab();
        const int stripeWidth = colors.isEmpty() ? 0 : 60 / colors.size();
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(60, 20), colors, stripeWidth));
    }

    void anUnchangedListIsNotDrawnAgain()
    {
        QListWidget list;
        fill(list, {Qt::red, Qt::green});
        PaintBasicWidget layer;
        layer.resize(60, 20);
        layer.setColorStripeList(&list);
        layer.setMode(Stripes);
        layer.grab();
        const qint64 picture = patternOf(layer);
        list.item(0)->setText(QStringLiteral("not a color"));
        layer.grab();
        QCOMPARE(patternOf(layer), picture);
    }

    void aDeletedListIsEmpty()
    {
        auto list = std::make_unique<QListWidget>();
        auto gradientList = std::make_unique<QListWidget>();
        fill(*list, {Qt::red, Qt::green});
        PaintBasicWidget layer;
        layer.resize(60, 20);
        layer.setColorStripeList(list.get());
        layer.setGradientList(gradientList.get());
        layer.setMode(Stripes);
        layer.grab();
        list.reset();
        gradientList.reset();
        layer.grab();
        VD_COMPARE_IMAGES(layerImage(layer), transparent(QSize(60, 20)));
        layer.setMode(Gradient);
        QVERIFY(isNear(layerImage(layer).pixel(59, 10), between(Qt::black, Qt::white, 59.5 / 60)));
    }

    void anotherListIsDrawnAtOnce()
    {
        QListWidget list;
        QListWidget other;
        fill(list, {Qt::red});
        fill(other, {Qt::blue});
        PaintBasicWidget layer;
        layer.resize(60, 20);
        layer.setMode(Stripes);
        layer.setColorStripeList(&list);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(60, 20), {Qt::red}, 60));
        layer.setColorStripeList(&other);
        VD_COMPARE_IMAGES(layerImage(layer), bars(QSize(60, 20), {Qt::blue}, 60));
        layer.setColorStripeList(nullptr);
        VD_COMPARE_IMAGES(layerImage(layer), transparent(QSize(60, 20)));
    }

    void theSameValueRendersOnce_data()
    {
        QTest::addColumn<Setter>("set");
        const auto row = [](const char* name, Setter set) { QTest::newRow(name) << set; };
        row("mode", [](PaintBasicWidget& layer, QListWidget*) { layer.setMode(7); });
        row("odd color", [](PaintBasicWidget& layer, QListWidget*) { layer.setOddColor(Qt::red); });
        row("even color", [](PaintBasicWidget& layer, QListWidget*) { layer.setEvenColor(Qt::red); });
        row("rows", [](PaintBasicWidget& layer, QListWidget*) { layer.setRows(2); });
        row("columns", [](PaintBasicWidget& layer, QListWidget*) { layer.setColumns(2); });
        row("color list", [](PaintBasicWidget& layer, QListWidget* list) { layer.setColorStripeList(list); });
        row("gradient list", [](PaintBasicWidget& layer, QListWidget* list) { layer.setGradientList(list); });
    }

    void theSameValueRendersOnce()
    {
        QFETCH(Setter, set);
        QListWidget list;
        PaintBasicWidget layer;
        layer.resize(40, 30);
        layer.grab();
        const qint64 before = patternOf(layer);
        set(layer, &list);
        const qint64 after = patternOf(layer);
        QVERIFY(after != before);
        set(layer, &list);
        QCOMPARE(patternOf(layer), after);
    }

    void initialValuesRenderNothing()
    {
        PaintBasicWidget layer;
        layer.resize(40, 30);
        layer.setMode(0);
        layer.setOddColor(odd);
        layer.setEvenColor(even);
        layer.setRows(9);
        layer.setColumns(16);
        layer.setGradientList(nullptr);
        layer.setColorStripeList(nullptr);
        QVERIFY(layerImage(layer).isNull());
    }
};

VD_TEST_MAIN(TestPaintBasicWidget)
#include "tst_paintbasicwidget.moc"
