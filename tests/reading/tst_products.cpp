#include "testcase.h"

#include <products.h>

/// Products of rows against what OpenCV says.
class TestProducts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsOpenCv_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("others");
        QTest::addColumn<int>("length");
        QTest::newRow("one value") << 1 << 1 << 1;
        QTest::newRow("an odd number of rows") << 3 << 16 << 8;
        QTest::newRow("more than at once") << 4 << 17 << 8;
        QTest::newRow("longer than the cache holds") << 5 << 33 << 700;
        QTest::newRow("none") << 0 << 4 << 8;
        QTest::newRow("with none") << 4 << 0 << 8;
    }

    void sameAsOpenCv()
    {
        QFETCH(int, rows);
        QFETCH(int, others);
        QFETCH(int, length);
        cv::RNG random(1);
        cv::Mat a(rows, length, CV_32F);
        cv::Mat b(others, length, CV_32F);
        for (cv::Mat* matrix : {&a, &b}) {
            if (!matrix->empty())
                random.fill(*matrix, cv::RNG::UNIFORM, -1, 1);
        }
        const cv::Mat products = WallReading::productsOf(a, b);
        QCOMPARE(products.rows, rows);
        QCOMPARE(products.cols, others);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < others; ++j)
                QVERIFY(std::abs(double(products.at<float>(i, j)) - a.row(i).dot(b.row(j))) < 1e-3);
        }
    }
};

VD_TEST_MAIN(TestProducts)
#include "tst_products.moc"
