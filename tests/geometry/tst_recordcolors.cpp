#include "geometry/recordcolors.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

namespace {

/// Stripes or a gradient over 1600 pixels and 16 cabinets.
TestChartToolsData barRecord(const QVector<QColor>& colors, bool gradient)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = 1600;
    record.basicData.chessChecked = false;
    record.basicData.colorBarChecked = true;
    record.basicData.gradientChecked = gradient;
    for (int i = 0; i < colors.size(); ++i)
        record.basicData.colorStripeColors[i] = colors.at(i);
    return record;
}

} // namespace

Q_DECLARE_METATYPE(RgbaColor)

class TestRecordColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void chess()
    {
        TestChartToolsData record;
        QCOMPARE(cabinetColor(record, 0, 0), QColor(255, 170, 255));
        QCOMPARE(cabinetColor(record, 0, 1), QColor(85, 170, 255));
        QCOMPARE(cabinetColor(record, 1, 1), QColor(255, 170, 255));
        record.basicData.oddColor.alpha = 0;
        QCOMPARE(cabinetColor(record, 0, 0), QColor(Qt::black));
    }

    void stripes()
    {
        const TestChartToolsData record = barRecord({Qt::red, Qt::green, Qt::blue}, false);
        QCOMPARE(cabinetColor(record, 0, 0), QColor(Qt::red));
        QCOMPARE(cabinetColor(record, 3, 5), QColor(Qt::green)); // 533 pixels each
        QCOMPARE(cabinetColor(record, 0, 15), QColor(Qt::blue));
        QCOMPARE(cabinetColor(barRecord({}, false), 0, 0), QColor(Qt::black));
    }

    void moreStripesThanPixels()
    {
        TestChartToolsData record = barRecord(QVector<QColor>(17, Qt::red), false);
        record.publicData.resolutionWidth = 16;
        QCOMPARE(cabinetColor(record, 0, 0), QColor(Qt::black));
    }

    void gradients()
    {
        const TestChartToolsData record = barRecord({Qt::black, Qt::white, Qt::black}, true);
        QVERIFY(cabinetColor(record, 0, 0).red() < 20);
        QVERIFY(cabinetColor(record, 0, 7).red() > 230);
        QVERIFY(cabinetColor(record, 0, 15).red() < 20);
        QCOMPARE(cabinetColor(barRecord({Qt::red}, true), 0, 9), QColor(Qt::red));
    }

    void plainChess()
    {
        TestChartToolsData record;
        QVERIFY(!hasPlainChess(record.basicData));
        record.basicData.evenColor = record.basicData.oddColor;
        QVERIFY(hasPlainChess(record.basicData));
        record.basicData.colorBarChecked = true;
        QVERIFY(!hasPlainChess(record.basicData));
    }

    void labelsOnTheirColor_data()
    {
        QTest::addColumn<RgbaColor>("label");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");
        QTest::newRow("other colour") << RgbaColor{0, 0, 100, 255} << 0 << "";
        QTest::newRow("the odd one") << RgbaColor{255, 170, 255, 255} << 72 << "A-A";
        QTest::newRow("near the even one") << RgbaColor{85, 185, 240, 255} << 72 << "A-B";
        QTest::newRow("far enough") << RgbaColor{85, 186, 255, 255} << 0 << "";
        QTest::newRow("faint") << RgbaColor{0, 0, 100, 10} << 144 << "A-A";
    }

    void labelsOnTheirColor()
    {
        QFETCH(RgbaColor, label);
        TestChartToolsData record;
        record.inLineData.serialColor = label;
        const HiddenLabels hidden = hiddenLabels(record);
        QTEST(hidden.count, "count");
        QTEST(hidden.first, "first");
    }
};

VD_TEST_MAIN(TestRecordColors)
#include "tst_recordcolors.moc"
