#include "editor/recordhistory.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

namespace {

TestChartToolsData brightness(int percent)
{
    TestChartToolsData record;
    record.publicData.brightness = percent;
    return record;
}

TestChartToolsData bars(const std::vector<QColor>& colors)
{
    TestChartToolsData record;
    for (const QColor& color : colors)
        record.basicData.colorStripeColors.emplace(int(record.basicData.colorStripeColors.size()), color);
    return record;
}

TestChartToolsData text(const std::string& text)
{
    TestChartToolsData record;
    record.logoData.logoText = text;
    return record;
}

int stepsBack(RecordHistory history)
{
    int steps = 0;
    while (history.canUndo()) {
        history.undo();
        ++steps;
    }
    return steps;
}

} // namespace

class TestRecordHistory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewHistoryHasNothing()
    {
        RecordHistory history;
        QVERIFY(!history.canUndo() && !history.canRedo());
        QVERIFY(history.undo() == TestChartToolsData());
        QVERIFY(history.redo() == TestChartToolsData());
    }

    void goesBackAndForth()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(20), false);
        history.note(brightness(30), false);
        QVERIFY(history.undo() == brightness(20));
        QVERIFY(history.canUndo() && history.canRedo());
        QVERIFY(history.undo() == brightness(10));
        QVERIFY(!history.canUndo());
        QVERIFY(history.redo() == brightness(20));
        QVERIFY(history.redo() == brightness(30));
        QVERIFY(!history.canRedo());
    }

    void theSameRecordIsNoChange()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(10), false);
        QVERIFY(!history.canUndo());
    }

    void aChangeForgetsWhatWasUndone()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(20), false);
        history.undo();
        history.note(brightness(30), false);
        QVERIFY(!history.canRedo());
        QVERIFY(history.undo() == brightness(10));
    }

    void restartForgetsAll()
    {
        RecordHistory history;
        history.note(brightness(20), false);
        history.restart(brightness(30));
        QVERIFY(!history.canUndo() && !history.canRedo());
        QVERIFY(history.current() == brightness(30));
    }

    void steps_data()
    {
        using Records = QVector<TestChartToolsData>;
        TestChartToolsData wide = brightness(20);
        wide.publicData.resolutionWidth = 640;
        TestChartToolsData off;
        off.logoData.showLogo = false;
        TestChartToolsData on;
        QTest::addColumn<Records>("records");
        QTest::addColumn<int>("steps");
        QTest::newRow("a number") << Records{brightness(10), brightness(20), brightness(30)} << 1;
        QTest::newRow("a text") << Records{text("a"), text("ab"), text("abc")} << 1;
        QTest::newRow("a color in the bar")
            << Records{bars({Qt::red, Qt::blue}), bars({Qt::red, Qt::green}), bars({Qt::red, Qt::cyan})} << 1;
        QTest::newRow("two numbers") << Records{brightness(10), brightness(20), wide} << 2;
        QTest::newRow("a longer color bar")
            << Records{bars({Qt::red}), bars({Qt::red, Qt::blue}), bars({Qt::red, Qt::blue, Qt::green})} << 2;
        QTest::newRow("a switch") << Records{on, off, on} << 2;
        QTest::newRow("there and back") << Records{brightness(10), brightness(20), brightness(10)} << 0;
    }

    /// What follows quickly.
    void steps()
    {
        QFETCH(QVector<TestChartToolsData>, records);
        QFETCH(int, steps);
        RecordHistory history;
        history.restart(records.first());
        for (const TestChartToolsData& record : records)
            history.note(record, true);
        QVERIFY(history.current() == records.last());
        QCOMPARE(stepsBack(history), steps);
    }

    void whatComesLaterIsAStepOfItsOwn()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(20), false);
        history.note(brightness(30), false);
        QCOMPARE(stepsBack(history), 2);
    }

    void nothingContinuesWhatWasComeBackTo()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(20), false);
        history.note(brightness(30), false);
        history.undo();
        history.note(brightness(40), true);
        QCOMPARE(stepsBack(history), 2);
        QVERIFY(history.undo() == brightness(20));
    }

    void anAmendedChangeIsOneStep()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.note(brightness(20), false);
        TestChartToolsData completed = brightness(20);
        completed.inLineData.circleSize = 100;
        history.amend(completed);
        QVERIFY(history.current() == completed);
        QVERIFY(history.undo() == brightness(10));
        QVERIFY(!history.canUndo());
        QVERIFY(history.redo() == completed);
    }

    void anAmendedBeginningIsNoChange()
    {
        RecordHistory history;
        history.restart(brightness(10));
        history.amend(brightness(20));
        QVERIFY(!history.canUndo());
        QVERIFY(history.current() == brightness(20));
    }

    void memoryIsBounded()
    {
        constexpr int kilobyte = 1024;
        RecordHistory history(100 * kilobyte);
        for (int i = 0; i < 1000; ++i)
            history.note(text(std::string(kilobyte, char('a' + i % 20))), false);
        QVERIFY2(stepsBack(history) > 20, qPrintable(QString::number(stepsBack(history))));
        QVERIFY2(stepsBack(history) < 100, qPrintable(QString::number(stepsBack(history))));
        QVERIFY(history.undo() == text(std::string(kilobyte, char('a' + 998 % 20))));
    }

    void colorsCountToo()
    {
        RecordHistory history(1024 * 1024);
        for (int i = 0; i < 100; ++i)
            history.note(bars(std::vector<QColor>(4000, QColor(i, i, i))), false);
        QVERIFY2(stepsBack(history) < 10, qPrintable(QString::number(stepsBack(history))));
        QVERIFY(history.canUndo());
    }

    void theLastChangeIsKeptHoweverLargeItIs()
    {
        RecordHistory history(1);
        history.restart(brightness(10));
        for (int percent = 20; percent <= 50; percent += 10)
            history.note(brightness(percent), false);
        QVERIFY(history.undo() == brightness(40));
        QVERIFY(!history.canUndo());
    }
};

VD_TEST_MAIN(TestRecordHistory)
#include "tst_recordhistory.moc"
