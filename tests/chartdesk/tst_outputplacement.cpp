#include "languages.h"
#include "outputplacement.h"
#include "testcase.h"

namespace {

using Sides = QVector<int>; ///< left, top, right, bottom

Sides sides(const QMargins& margins)
{
    return {margins.left(), margins.top(), margins.right(), margins.bottom()};
}

} // namespace

/// Where a chart stands on a display, and what is told of it.
class TestOutputPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chooseLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    void difference_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QRect>("shown");
        QTest::addColumn<Sides>("cut");
        QTest::addColumn<Sides>("black");
        QTest::addColumn<QString>("text");
        const QSize display(1920, 1080);
        QTest::newRow("equal") << display << QPoint() << QRect(QPoint(), display) << Sides(4) << Sides(4)
                               << QString();
        QTest::newRow("smaller") << QSize(1000, 500) << QPoint() << QRect(0, 0, 1000, 500) << Sides(4)
                                 << Sides{0, 0, 920, 580}
                                 << "The chart has 1000 x 500 pixels, the display 1920 x 1080. "
                                    "Pixels that stay black: 920 right, 580 below.";
        QTest::newRow("larger") << QSize(3840, 1080) << QPoint() << QRect(0, 0, 1920, 1080)
                                << Sides{0, 0, 1920, 0} << Sides(4)
                                << "The chart has 3840 x 1080 pixels, the display 1920 x 1080. "
                                   "Pixels cut off: 1920 right.";
        QTest::newRow("moved") << display << QPoint(100, -50) << QRect(100, 0, 1820, 1030)
                               << Sides{0, 50, 100, 0} << Sides{100, 0, 0, 50}
                               << "The chart has 1920 x 1080 pixels, the display 1920 x 1080. "
                                  "Pixels cut off: 50 above, 100 right. "
                                  "Pixels that stay black: 100 left, 50 below.";
        QTest::newRow("within") << QSize(512, 256) << QPoint(10, 20) << QRect(10, 20, 512, 256) << Sides(4)
                                << Sides{10, 20, 1398, 804}
                                << "The chart has 512 x 256 pixels, the display 1920 x 1080. "
                                   "Pixels that stay black: 10 left, 20 above, 1398 right, 804 below.";
        QTest::newRow("beside it") << QSize(512, 256) << QPoint(-600, 0) << QRect() << Sides{512, 0, 0, 0}
                                   << Sides{0, 0, 1920, 824}
                                   << "The chart has 512 x 256 pixels, the display 1920 x 1080. "
                                      "Nothing of the chart is on the display.";
    }

    void difference()
    {
        QFETCH(QSize, chart);
        QFETCH(QPoint, at);
        const OutputPlacement placement{QSize(1920, 1080), chart, at};
        QTEST(sides(placement.difference().cut), "cut");
        QTEST(sides(placement.difference().black), "black");
        QTEST(differenceText(placement), "text");
        QFETCH(QRect, shown);
        QCOMPARE(placement.shown().isEmpty(), shown.isEmpty());
        if (!shown.isEmpty())
            QCOMPARE(placement.shown(), shown);
    }

    void place_data()
    {
        QTest::addColumn<bool>("isValid");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("0,0") << true << QPoint();
        QTest::newRow("120,-40") << true << QPoint(120, -40);
        QTest::newRow("120") << false << QPoint();
        QTest::newRow("120, 40") << false << QPoint();
        QTest::newRow("1.5,2") << false << QPoint();
        QTest::newRow("12345678,0") << false << QPoint();
    }

    void place()
    {
        QFETCH(bool, isValid);
        bool got = !isValid;
        const QPoint place = placeFrom(QString::fromLatin1(QTest::currentDataTag()), &got);
        QCOMPARE(got, isValid);
        if (isValid)
            QTEST(place, "place");
    }
};

VD_TEST_MAIN(TestOutputPlacement)
#include "tst_outputplacement.moc"
