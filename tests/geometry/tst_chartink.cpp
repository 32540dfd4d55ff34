#include "testcase.h"

#include <chartink.h>

#include <QTemporaryDir>

#include <cstdlib>

using namespace vardeno::testcharttools;

class TestChartInk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void customText()
    {
        TestChartToolsData record;
        const QRect ink = ChartInk::customText(record);
        QVERIFY(QRect(0, 540, 1920, 540).contains(ink));
        QVERIFY(std::abs(ink.center().x() - 960) < 20);
        record.selfData.selfTextSize *= 2;
        QVERIFY(ChartInk::customText(record).height() > 3 * ink.height() / 2);
        record.selfData.showSelfText = false;
        QVERIFY(ChartInk::customText(record).isEmpty());
    }

    void logo()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("logo.png"));
        QImage picture(200, 100, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path));
        TestChartToolsData record;
        record.logoData.picturePath = path.toStdString();
        record.logoData.scale = 50;
        record.logoData.offsetY = 30;
        QCOMPARE(ChartInk::logo(record), QRect(960 - 50, 540 - 25 + 30, 100, 50));
        record.logoData.showLogo = false;
        QVERIFY(ChartInk::logo(record).isEmpty());
    }

    void labels()
    {
        TestChartToolsData record; // cabinets of 120 x 120
        QCOMPARE(ChartInk::labelSize(record), 20);
        QVERIFY(ChartInk::coversLabels(record, {0, 55, 120, 10}));
        QVERIFY(!ChartInk::coversLabels(record, {0, 100, 1920, 40})); // between two rows of them
        record.inLineData.serialPosition = 1;
        QVERIFY(!ChartInk::coversLabels(record, {0, 55, 120, 10}));
        QVERIFY(ChartInk::coversLabels(record, {0, 100, 1920, 40}));
        record.inLineData.showSerialNumber = false;
        QVERIFY(!ChartInk::coversLabels(record, {0, 0, 1920, 1080}));
        record.publicData.boxRow = 60; // 18 pixels high
        QVERIFY(ChartInk::labelSize(record) < 10);
    }
};

VD_TEST_MAIN(TestChartInk)
#include "tst_chartink.moc"
