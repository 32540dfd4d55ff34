#include "controls/wheelnotches.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

using Numbers = QList<int>;
Q_DECLARE_METATYPE(Numbers)

class TestWheelNotches : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void turns_data()
    {
        QTest::addColumn<Numbers>("angles");
        QTest::addColumn<Numbers>("notches");
        QTest::newRow("away") << Numbers{120} << Numbers{1};
        QTest::newRow("towards") << Numbers{-120} << Numbers{-1};
        QTest::newRow("two at once") << Numbers{240} << Numbers{2};
        QTest::newRow("nothing") << Numbers{0} << Numbers{0};
        QTest::newRow("in parts") << Numbers{40, 40, 40, 40} << Numbers{0, 0, 1, 0};
        QTest::newRow("in parts, towards") << Numbers{-40, -40, -40} << Numbers{0, 0, -1};
        QTest::newRow("a part is kept") << Numbers{180, 60} << Numbers{1, 1};
        QTest::newRow("not quite") << Numbers{119} << Numbers{0};
        QTest::newRow("the other way starts afresh") << Numbers{100, -120} << Numbers{0, -1};
        QTest::newRow("and back") << Numbers{-100, 20, 99, 1} << Numbers{0, 0, 0, 1};
        QTest::newRow("a pause keeps the part") << Numbers{100, 0, 20} << Numbers{0, 0, 1};
    }

    void turns()
    {
        QFETCH(Numbers, angles);
        QFETCH(Numbers, notches);
        WheelNotches wheel;
        Numbers counted;
        for (int angle : angles)
            counted.append(wheel.turn(QPoint(0, angle), Qt::NoModifier));
        QCOMPARE(counted, notches);
    }

    void directions_data()
    {
        QTest::addColumn<QPoint>("angle");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("notches");
        QTest::newRow("sideways") << QPoint(120, 0) << int(Qt::NoModifier) << 0;
        QTest::newRow("sideways with Control") << QPoint(120, 0) << int(Qt::ControlModifier) << 0;
        QTest::newRow("sideways with Alt") << QPoint(-120, 0) << int(Qt::AltModifier) << -1;
        QTest::newRow("sideways with Shift") << QPoint(120, 0) << int(Qt::ShiftModifier) << 1;
        QTest::newRow("upwards with Alt") << QPoint(0, 120) << int(Qt::AltModifier) << 1;
        QTest::newRow("slanting") << QPoint(-240, 120) << int(Qt::NoModifier) << 1;
        QTest::newRow("slanting with Alt") << QPoint(-240, 120) << int(Qt::AltModifier) << 1;
    }

    void directions()
    {
        QFETCH(QPoint, angle);
        QFETCH(int, modifiers);
        QFETCH(int, notches);
        QCOMPARE(WheelNotches().turn(angle, Qt::KeyboardModifiers(modifiers)), notches);
    }

    void factors_data()
    {
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<double>("factor");
        QTest::newRow("none") << int(Qt::NoModifier) << 1.0;
        QTest::newRow("Control") << int(Qt::ControlModifier) << 10.0;
        QTest::newRow("Shift") << int(Qt::ShiftModifier) << 100.0;
        QTest::newRow("Shift and Control") << int(Qt::ShiftModifier | Qt::ControlModifier) << 1000.0;
        QTest::newRow("Alt") << int(Qt::AltModifier) << 1.0;
        QTest::newRow("Alt and Control") << int(Qt::AltModifier | Qt::ControlModifier) << 10.0;
        QTest::newRow("Alt and Shift") << int(Qt::AltModifier | Qt::ShiftModifier) << 100.0;
    }

    void factors()
    {
        QFETCH(int, modifiers);
        QFETCH(double, factor);
        QCOMPARE(wheelFactor(Qt::KeyboardModifiers(modifiers)), factor);
    }
};

VD_TEST_MAIN(TestWheelNotches)
#include "tst_wheelnotches.moc"
