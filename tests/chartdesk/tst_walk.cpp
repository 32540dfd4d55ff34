#include "languages.h"
#include "testcase.h"
#include "walk.h"

using namespace vardeno::testcharttools;

namespace {

ShownChart chart(bool hasRecord = true)
{
    TestChartToolsData record;
    record.publicData.boxRow = 2;
    record.publicData.boxCol = 3;
    ShownChart shown{QImage(1920, 1080, QImage::Format_RGB32), {}, {}, {}};
    if (hasRecord)
        shown.record = record;
    return shown;
}

} // namespace

/// The keys of a walk, and its pace.
class TestWalk : public TestCase
{
    Q_OBJECT

private:
    static QString labels(Walk& walk, int steps)
    {
        QStringList found;
        for (int step = 0; step < steps; ++step) {
            found.append(walk.text().section(QLatin1Char(' '), 1, 1));
            walk.press(Qt::Key_Right);
        }
        return found.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void initTestCase() { chooseLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    void throughTheCabinetsAndRound()
    {
        Walk walk;
        walk.setChart(chart());
        QVERIFY(walk.press(Qt::Key_H));
        QCOMPARE(labels(walk, 7), QStringLiteral("A-A A-B A-C B-A B-B B-C A-A"));
        walk.press(Qt::Key_Left);
        walk.press(Qt::Key_Left);
        QCOMPARE(walk.text(), QStringLiteral("Cabinet B-C (6 of 6)"));
    }

    void anotherWay()
    {
        Walk walk;
        walk.setChart(chart());
        walk.press(Qt::Key_S);
        walk.press(Qt::Key_O);
        QCOMPARE(labels(walk, 6), QStringLiteral("A-A B-A A-B B-B A-C B-C"));
        walk.press(Qt::Key_Z);
        QCOMPARE(labels(walk, 6), QStringLiteral("A-A B-A B-B A-B A-C B-C"));
    }

    void modes_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("needsCabinets");
        QTest::addColumn<int>("steps");
        QTest::newRow("highlight") << int(Qt::Key_H) << true << 6;
        QTest::newRow("alone") << int(Qt::Key_S) << true << 6;
        QTest::newRow("row") << int(Qt::Key_R) << true << 2;
        QTest::newRow("column") << int(Qt::Key_C) << true << 3;
        QTest::newRow("black") << int(Qt::Key_B) << false << 1;
        QTest::newRow("white") << int(Qt::Key_W) << false << 1;
        QTest::newRow("colors") << int(Qt::Key_F) << false << 5;
        QTest::newRow("greys") << int(Qt::Key_G) << false << 16;
        QTest::newRow("line") << int(Qt::Key_L) << false << 1080;
        QTest::newRow("counter") << int(Qt::Key_N) << false << 1000000;
    }

    void modes()
    {
        QFETCH(int, key);
        QFETCH(bool, needsCabinets);
        Walk walk;
        walk.setChart(chart());
        QVERIFY(walk.press(key));
        QVERIFY(walk.pattern());
        QTEST(walk.pattern()->steps(), "steps");
        walk.setChart(chart(false)); // a picture without a record comes
        QCOMPARE(walk.pattern() == nullptr, needsCabinets);
        walk.setMode(Walk::Mode::None);
        QVERIFY(walk.press(key));
        QCOMPARE(walk.pattern() == nullptr, needsCabinets);
    }

    void theSameKeyAgain()
    {
        Walk walk;
        walk.setChart(chart());
        walk.press(Qt::Key_B);
        walk.press(Qt::Key_B);
        QCOMPARE(walk.mode(), Walk::Mode::None);
        for (const LineDirection direction : {LineDirection::Horizontal, LineDirection::Vertical,
                                              LineDirection::Diagonal, LineDirection::Horizontal}) {
            walk.press(Qt::Key_L);
            QCOMPARE(walk.lineDirection(), direction);
        }
        QVERIFY(walk.press(Qt::Key_Escape));
        QCOMPARE(walk.mode(), Walk::Mode::None);
        QVERIFY(!walk.isRunning());
        QVERIFY(!walk.press(Qt::Key_Escape)); // it is the output's now
    }

    /// Black and white are for a moment: the arrows go on to the next chart.
    void keysThatAreNotAWalks_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("the chart") << int(Walk::Mode::None);
        QTest::newRow("black") << int(Walk::Mode::Black);
        QTest::newRow("white") << int(Walk::Mode::White);
    }

    void keysThatAreNotAWalks()
    {
        QFETCH(int, mode);
        Walk walk;
        walk.setChart(chart());
        walk.setMode(Walk::Mode(mode));
        for (const int key :
             {Qt::Key_Right, Qt::Key_Left, Qt::Key_Escape, Qt::Key_Space, Qt::Key_1, Qt::Key_X})
            QVERIFY(!walk.press(key));
    }

    void atAPace()
    {
        Walk walk;
        walk.setFrameRate(120);
        walk.setChart(chart());
        walk.press(Qt::Key_H);
        QVERIFY(!walk.isRunning());
        for (int press = 0; press < 10; ++press)
            walk.press(Qt::Key_Plus);
        QCOMPARE(walk.stepsPerMinute(), 3600);
        walk.press(Qt::Key_Space);
        QVERIFY(walk.isRunning());
        QCOMPARE(walk.paceText(), QStringLiteral("3600 steps a minute"));
        QSignalSpy steps(&walk, &Walk::stepChanged);
        QTRY_VERIFY(steps.size() >= 12);
        for (int step = 0; step < steps.size(); ++step) // each once, none left out
            QCOMPARE(steps.at(step).first().toInt(), (step + 1) % 6);
        walk.press(Qt::Key_Space);
        QVERIFY(!walk.isRunning());
        for (int press = 0; press < 10; ++press)
            walk.press(Qt::Key_Minus);
        QCOMPARE(walk.stepsPerMinute(), 30);
    }

    void aLineRunsAtOnce()
    {
        Walk walk;
        walk.setChart(chart());
        walk.press(Qt::Key_L);
        QVERIFY(walk.isRunning());
        for (int press = 0; press < 70; ++press)
            walk.changePace(1);
        QCOMPARE(walk.linePixels(), 60);
        QCOMPARE(walk.paceText(), QStringLiteral("60 pixels a frame"));
        QSignalSpy steps(&walk, &Walk::stepChanged);
        QTRY_VERIFY(steps.size() >= 20);
        for (int step = 0; step < steps.size(); ++step)
            QCOMPARE(steps.at(step).first().toInt(), (step + 1) * 60 % 1080);
        for (int press = 0; press < 70; ++press)
            walk.changePace(-1);
        QCOMPARE(walk.linePixels(), 1);
    }

    void theChartIsNotChanged()
    {
        Walk walk;
        ShownChart shown = chart();
        shown.picture.fill(Qt::blue);
        const QImage before = shown.picture.copy();
        walk.setChart(shown);
        for (const int key :
             {Qt::Key_H, Qt::Key_Right, Qt::Key_S, Qt::Key_Right, Qt::Key_R, Qt::Key_C, Qt::Key_F})
            walk.press(key);
        QCOMPARE(shown.picture, before);
    }

    /// At 1000 frames and 60 steps a second.
    void aStepTakesItsFrames()
    {
        Walk walk;
        walk.setFrameRate(1000);
        walk.setChart(chart());
        walk.press(Qt::Key_H);
        QCOMPARE(walk.stepsPerMinute(), 60); // at first
        walk.changePace(100);
        QSignalSpy frames(&walk.pacer(), &FramePacer::frame);
        QSignalSpy steps(&walk, &Walk::stepChanged);
        walk.setRunning(true);
        QTRY_VERIFY(steps.size() >= 3);
        walk.setRunning(false);
        QCOMPARE(frames.size() / 17, steps.size());
    }

    void theStepStaysWhereTheWayIsSet()
    {
        Walk walk;
        walk.setChart(chart());
        walk.press(Qt::Key_H);
        walk.press(Qt::Key_Left);
        walk.setPath(walk.path());
        QCOMPARE(walk.currentStep(), 5);
    }

    void noChosenCabinetsWithoutARecord()
    {
        Walk walk;
        walk.setChart(chart(false));
        walk.setMode(Walk::Mode::White);
        walk.walkThrough({});
        QCOMPARE(walk.mode(), Walk::Mode::White); // nothing happens
    }

    void noRateIsSixty()
    {
        Walk walk;
        walk.setFrameRate(0);
        walk.setChart(chart());
        walk.press(Qt::Key_N);
        QSignalSpy steps(&walk, &Walk::stepChanged);
        QTRY_VERIFY(steps.size() >= 3);
    }
};

VD_TEST_MAIN(TestWalk)
#include "tst_walk.moc"
