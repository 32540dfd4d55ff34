#include "display.h"
#include "testcase.h"

#include <QScreen>

/// Displays as values, and those of the desktop.
class TestDisplay : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Every usual length, as the toolkit rounds it at each scale factor.
    void physicalLengths_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0})
            QTest::newRow(qPrintable(QString::number(scale))) << scale;
    }

    void physicalLengths()
    {
        QFETCH(qreal, scale);
        for (const int length : {600,  720,  768,  800,  900,  1024, 1050, 1080, 1200, 1280, 1366, 1400, 1440,
                                 1600, 1680, 1920, 2048, 2160, 2560, 3440, 3840, 4096, 4320, 5120, 7680})
            QCOMPARE(physicalLength(qRound(length / scale), scale), length);
    }

    void anOddLengthThatIsNotScaled() { QCOMPARE(physicalLength(1023, 1), 1023); }

    void found_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<int>("number");
        QTest::newRow("by number") << "2" << 2;
        QTest::newRow("by name") << "HDMI-1" << 1;
        QTest::newRow("by name in another case") << "dp-2" << 2;
        QTest::newRow("a number that is none") << "3" << 0;
        QTest::newRow("a part of a name") << "HDMI" << 0;
        QTest::newRow("nothing") << "" << 0;
    }

    void found()
    {
        QFETCH(QString, wanted);
        QFETCH(int, number);
        const QVector<DeskDisplay> all = {{1, QStringLiteral("HDMI-1"), QSize(1920, 1080), 1},
                                          {2, QStringLiteral("DP-2"), QSize(3840, 2160), 1.5}};
        const DeskDisplay* display = findDisplay(all, wanted);
        QCOMPARE(display ? display->number : 0, number);
    }

    void aLineForATerminal()
    {
        QCOMPARE(displayLine({2, QStringLiteral("DP-2"), QSize(3840, 2160), 1.25}),
                 QStringLiteral("2   DP-2   3840 x 2160   scale 1.25"));
    }

    void thoseOfTheDesktop()
    {
        const QVector<DeskDisplay> all = displays();
        QCOMPARE(all.size(), QGuiApplication::screens().size());
        QCOMPARE(all.first().number, 1);
        QCOMPARE(screenNamed(all.first().name), QGuiApplication::screens().first());
        QCOMPARE(all.first().pixels, QGuiApplication::screens().first()->size());
        QCOMPARE(screenNamed(QStringLiteral("no such display")), nullptr);
    }
};

VD_TEST_MAIN(TestDisplay)
#include "tst_display.moc"
