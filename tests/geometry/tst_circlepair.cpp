#include "geometry/circlepair.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestCirclePair : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void diameter_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("diameter");
        const QSize landscape(1920, 1080);
        QTest::newRow("usual") << landscape << 535 << 1070;
        QTest::newRow("just below the limit") << landscape << 539 << 1078;
        QTest::newRow("at the limit") << landscape << 540 << 1080;
        QTest::newRow("just over the limit") << landscape << 541 << 1080;
        QTest::newRow("odd limit") << QSize(1920, 1081) << 541 << 1081;
        QTest::newRow("portrait, the width limits") << QSize(1080, 1920) << 600 << 1080;
        QTest::newRow("square") << QSize(1000, 1000) << 500 << 1000;
        QTest::newRow("largest of the panel") << landscape << 16384 << 1080;
        QTest::newRow("smallest") << landscape << 1 << 2;
        QTest::newRow("none") << landscape << 0 << 0;
        QTest::newRow("largest that is doubled whole") << landscape << 32767 << 1080;
        QTest::newRow("doubled to 65536, which is 0") << landscape << 32768 << 0;
        QTest::newRow("doubled to 65538, which is 2") << landscape << 32769 << 2;
        QTest::newRow("doubled to 66000, which is 464") << landscape << 33000 << 464;
        QTest::newRow("largest") << landscape << 65535 << 1080;
        QTest::newRow("1 x 1") << QSize(1, 1) << 535 << 1;
        QTest::newRow("empty chart") << QSize(0, 0) << 535 << 0;
    }

    void diameter()
    {
        QFETCH(QSize, chart);
        QFETCH(int, radius);
        QFETCH(int, diameter);
        QCOMPARE(int(effectiveDiameter(chart, ushort(radius))), diameter);
    }

    void circles_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("diameter");
        QTest::addColumn<int>("lineWidth");
        QTest::addColumn<QRect>("first");
        QTest::addColumn<QRect>("second");
        const auto row = [](const char* name, const QSize& chart, int diameter, int lineWidth,
                            const QRect& first, const QRect& second) {
            QTest::newRow(name) << chart << diameter << lineWidth << first << second;
        };
        row("usual", {1920, 1080}, 1070, 6, {3, 8, 1064, 1064}, {853, 8, 1064, 1064});
        row("portrait", {1080, 1920}, 1070, 6, {8, 3, 1064, 1064}, {8, 853, 1064, 1064});
        row("at the limit", {1920, 1080}, 1080, 6, {3, 3, 1074, 1074}, {843, 3, 1074, 1074});
        row("square, side by side", {1000, 1000}, 800, 10, {5, 105, 790, 790}, {205, 105, 790, 790});
        row("square at the limit, twice the same", {1000, 1000}, 1000, 10, {5, 5, 990, 990},
            {5, 5, 990, 990});
        row("one pixel wider than high", {1001, 1000}, 800, 10, {5, 105, 790, 790}, {206, 105, 790, 790});
        row("one pixel higher than wide", {1000, 1001}, 800, 10, {105, 5, 790, 790}, {105, 206, 790, 790});
        row("odd pen, half of it rounded down", {1920, 1080}, 1070, 5, {2, 7, 1065, 1065},
            {853, 7, 1065, 1065});
        row("pen of 1", {1920, 1080}, 1070, 1, {0, 5, 1069, 1069}, {851, 5, 1069, 1069});
        row("no pen", {1920, 1080}, 1070, 0, {0, 5, 1070, 1070}, {850, 5, 1070, 1070});
        row("pen as wide as the diameter", {1920, 1080}, 20, 20, {10, 540, 0, 0}, {1910, 540, 0, 0});
        row("pen wider than the diameter", {1920, 1080}, 20, 31, {15, 540, 0, 0}, {1905, 540, 0, 0});
        row("pen wider than the diameter, portrait", {1080, 1920}, 20, 31, {540, 15, 0, 0},
            {540, 1905, 0, 0});
        row("widest pen", {1920, 1080}, 1070, 65535, {32767, 540, 0, 0}, {-30847, 540, 0, 0});
        row("1 x 1", {1, 1}, 1, 6, {3, 0, 0, 0}, {-2, 0, 0, 0});
        row("1 x 1 with a pen of 0", {1, 1}, 1, 0, {0, 0, 1, 1}, {0, 0, 1, 1});
    }

    void circles()
    {
        QFETCH(QSize, chart);
        QFETCH(int, diameter);
        QFETCH(int, lineWidth);
        QFETCH(QRect, first);
        QFETCH(QRect, second);
        const auto pair = circlePair(chart, ushort(diameter), ushort(lineWidth));
        QCOMPARE(pair.first, first);
        QCOMPARE(pair.second, second);
    }
};

VD_TEST_MAIN(TestCirclePair)
#include "tst_circlepair.moc"
