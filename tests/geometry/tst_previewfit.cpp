#include "geometry/previewfit.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestPreviewFit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data()
    {
        const QSize editor(1199, 766);
        QTest::addColumn<QSize>("view");
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("1920 x 1080") << editor << QSize(1920, 1080) << QRect(0, 46, 1199, 674);
        QTest::newRow("1080 x 1920") << editor << QSize(1080, 1920) << QRect(384, 0, 430, 766);
        QTest::newRow("3840 x 2160") << editor << QSize(3840, 2160) << QRect(0, 46, 1199, 674);
        QTest::newRow("smallest square") << editor << QSize(16, 16) << QRect(216, 0, 766, 766);
        QTest::newRow("largest square") << editor << QSize(4320, 4320) << QRect(216, 0, 766, 766);
        QTest::newRow("flattest") << editor << QSize(4320, 16) << QRect(0, 381, 1199, 4);
        QTest::newRow("thinnest") << editor << QSize(16, 4320) << QRect(598, 0, 2, 766);
        QTest::newRow("same as the view") << editor << editor << QRect(0, 0, 1199, 766);
        QTest::newRow("both choices fit: the height comes first in a wide view")
            << editor << QSize(1565, 1000) << QRect(0, 0, 1198, 766);

        const QSize tall(600, 900);
        QTest::newRow("tall view, 1920 x 1080") << tall << QSize(1920, 1080) << QRect(0, 282, 600, 337);
        QTest::newRow("tall view, 1080 x 1920") << tall << QSize(1080, 1920) << QRect(47, 0, 506, 900);
        QTest::newRow("tall view, square") << tall << QSize(500, 500) << QRect(0, 150, 600, 600);
        QTest::newRow("both choices fit: the width comes first in a tall view")
            << QSize(766, 1199) << QSize(1000, 1565) << QRect(0, 0, 766, 1198);

        QTest::newRow("square view, 1920 x 1080")
            << QSize(500, 500) << QSize(1920, 1080) << QRect(0, 110, 500, 281);
        QTest::newRow("both choices fit: the width comes first in a square view")
            << QSize(1000, 1000) << QSize(4320, 4319) << QRect(0, 1, 1000, 999);
        QTest::newRow("thinner than a pixel") << QSize(100, 100) << QSize(16, 4320) << QRect(50, 0, 0, 100);
        QTest::newRow("products beyond 32 bits, wide view")
            << QSize(65535, 65534) << QSize(65535, 65535) << QRect(0, 0, 65534, 65534);
        QTest::newRow("products beyond 32 bits, tall view")
            << QSize(65534, 65535) << QSize(65535, 65535) << QRect(0, 0, 65534, 65534);
    }

    void fits()
    {
        QFETCH(QSize, view);
        QFETCH(QSize, chart);
        QFETCH(QRect, expected);
        QCOMPARE(fittedPreview(view, chart), expected);
    }

    void nothingToFit_data()
    {
        QTest::addColumn<QSize>("view");
        QTest::addColumn<QSize>("chart");
        QTest::newRow("view without width") << QSize(0, 766) << QSize(1920, 1080);
        QTest::newRow("view without height") << QSize(1199, 0) << QSize(1920, 1080);
        QTest::newRow("chart without width") << QSize(1199, 766) << QSize(0, 1080);
        QTest::newRow("chart without height") << QSize(1199, 766) << QSize(1920, 0);
        QTest::newRow("invalid view") << QSize() << QSize(1920, 1080);
        QTest::newRow("invalid chart") << QSize(1199, 766) << QSize();
    }

    void nothingToFit()
    {
        QFETCH(QSize, view);
        QFETCH(QSize, chart);
        QCOMPARE(fittedPreview(view, chart), QRect());
    }
};

VD_TEST_MAIN(TestPreviewFit)
#include "tst_previewfit.moc"
