#include "support/parallel.h"
#include "testcase.h"

#include <QThread>

#include <atomic>
#include <stdexcept>
#include <vector>

using namespace vardeno::testcharttools;

class TestParallel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberOnce_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 2, 3, 1000})
            QTest::newRow(qPrintable(QString::number(count))) << count;
    }

    void everyNumberOnce()
    {
        QFETCH(int, count);
        std::vector<std::atomic<int>> calls(std::size_t(count) + 1);
        inParallel(count, [&calls](int i) { ++calls[std::size_t(i)]; });
        for (int i = 0; i < count; ++i)
            QCOMPARE(calls[std::size_t(i)].load(), 1);
        QCOMPARE(calls.back().load(), 0);
    }

    void whatComesFirstIsDoneHere()
    {
        QThread* where = nullptr;
        std::atomic<int> others{0};
        inParallel(
            3, [&others](int) { ++others; }, [&where] { where = QThread::currentThread(); });
        QCOMPARE(where, QThread::currentThread());
        QCOMPARE(others.load(), 3);
    }

    /// Work that is shared within shared work ends as well, however few threads there are.
    void nested()
    {
        std::atomic<int> calls{0};
        inParallel(8, [&calls](int) { inParallel(8, [&calls](int) { ++calls; }); });
        QCOMPARE(calls.load(), 64);
    }

    void passesOnWhatIsThrown()
    {
        const auto fail = [](int i) {
            if (i == 5)
                throw std::runtime_error("five");
        };
        QVERIFY_EXCEPTION_THROWN(inParallel(20, fail), std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(inParallel(
                                     20, [](int) {}, [] { throw std::runtime_error("first"); }),
                                 std::runtime_error);
        int calls = 0;
        inParallel(1, [&calls](int) { ++calls; }); // helpers are to be had again
        QCOMPARE(calls, 1);
    }
};

VD_TEST_MAIN(TestParallel)
#include "tst_parallel.moc"
