#include "testcase.h"

#include <runfaults.h>

using namespace vardeno::walls;

class TestRunFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void faults_data()
    {
        QTest::addColumn<QVector<int>>("bad");
        QTest::addColumn<QString>("faults");
        QTest::newRow("none") << QVector<int>{} << QString();
        QTest::newRow("the last two") << QVector<int>{2, 3} << "0 from 2";
        QTest::newRow("a whole run") << QVector<int>{4, 5, 6} << "1 from 0";
        QTest::newRow("two runs") << QVector<int>{1, 2, 3, 5, 4} << "0 from 1, 1 from 1";
        QTest::newRow("only the last one") << QVector<int>{3} << QString();
        QTest::newRow("not to the end") << QVector<int>{1, 2} << QString();
        QTest::newRow("with a good one between") << QVector<int>{1, 3} << QString();
        QTest::newRow("a run of a single one") << QVector<int>{7} << QString();
    }

    void faults()
    {
        QFETCH(QVector<int>, bad);
        std::vector<bool> flags(8, false);
        for (const int cabinet : bad)
            flags[std::size_t(cabinet)] = true;
        QStringList faults;
        for (const RunFault& fault : faultyRuns({{{0, 1, 2, 3}, 0}, {{6, 5, 4}, 0}, {{7}, 0}}, flags))
            faults.append(QStringLiteral("%1 from %2").arg(fault.run).arg(fault.from));
        QTEST(faults.join(", "), "faults");
    }
};

VD_TEST_MAIN(TestRunFaults)
#include "tst_runfaults.moc"
