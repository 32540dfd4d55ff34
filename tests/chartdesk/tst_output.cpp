#include "chartfiles.h"
#include "display.h"
#include "languages.h"
#include "output.h"
#include "outputwindow.h"
#include "showcommand.h"
#include "testcase.h"
#include "walk.h"

#include <QScreen>
#include <QTemporaryDir>

using namespace chartfiles;
using namespace vardeno::testcharttools;

/// What a display shows of a list of charts, on the display of the test.
class TestOutput : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QStringList m_charts;

    static QString display() { return displays().first().name; }

    /// The colour of the shown chart; none while there is none.
    static QColor color(const Output& output)
    {
        return output.window() && !output.window()->chart().isNull()
                   ? output.window()->chart().pixelColor(3, 3)
                   : QColor();
    }

    static void press(Output& output, int key) { QTest::keyClick(output.window(), Qt::Key(key)); }

    static QColor colorOf(int chart) { return {chart * 10, 255 - chart * 10, 100}; }

private Q_SLOTS:
    void initTestCase()
    {
        chooseLanguage(QStringLiteral("en"));
        for (int chart = 0; chart < 12; ++chart) {
            m_charts.append(m_folder.filePath(QStringLiteral("%1.png").arg(chart)));
            QVERIFY(writePicture(m_charts.last(), colorOf(chart), QSize(160, 90)));
        }
    }

    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    void keysGoThroughTheCharts_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<int>("to");
        QTest::newRow("right") << 0 << QVector<int>{Qt::Key_Right} << 1;
        QTest::newRow("down, page down") << 0 << QVector<int>{Qt::Key_Down, Qt::Key_PageDown} << 2;
        QTest::newRow("left, up") << 5 << QVector<int>{Qt::Key_Left, Qt::Key_Up} << 3;
        QTest::newRow("not before the first") << 0 << QVector<int>{Qt::Key_Left} << 0;
        QTest::newRow("not after the last") << 11 << QVector<int>{Qt::Key_Right} << 11;
        QTest::newRow("the first") << 5 << QVector<int>{Qt::Key_Home} << 0;
        QTest::newRow("the last") << 5 << QVector<int>{Qt::Key_End} << 11;
        QTest::newRow("1") << 5 << QVector<int>{Qt::Key_1} << 0;
        QTest::newRow("9") << 5 << QVector<int>{Qt::Key_9} << 8;
        QTest::newRow("0") << 5 << QVector<int>{Qt::Key_0} << 9;
        QTest::newRow("on from black") << 5 << QVector<int>{Qt::Key_B, Qt::Key_Right} << 6;
        QTest::newRow("another key") << 5 << QVector<int>{Qt::Key_X} << 5;
    }

    void keysGoThroughTheCharts()
    {
        QFETCH(int, from);
        QFETCH(QVector<int>, keys);
        QFETCH(int, to);
        Output output;
        output.setCharts(m_charts);
        output.start(display(), QPoint(), m_charts.at(from));
        QTRY_COMPARE(color(output), colorOf(from));
        for (const int key : keys)
            press(output, key);
        QCOMPARE(output.current(), to);
        QTRY_COMPARE(color(output), colorOf(to));
        QCOMPARE(output.walk()->mode(), Walk::Mode::None);
    }

    /// So that the desk's menu does not take them, too.
    void keysThatDoSomethingAreTaken()
    {
        Output output;
        output.setCharts(m_charts);
        output.start(display(), QPoint(), m_charts.at(5));
        for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Up,
                              Qt::Key_PageUp, Qt::Key_X}) {
            QKeyEvent event(QEvent::KeyPress, key, {});
            output.press(&event);
            QCOMPARE(event.isAccepted(), key != Qt::Key_X);
        }
    }

    void escapeLeaves()
    {
        Output output;
        QSignalSpy ended(&output, &Output::ended);
        output.setCharts(m_charts);
        output.start(display(), QPoint(), m_charts.first());
        QVERIFY(output.isOn());
        press(output, Qt::Key_W);
        QCOMPARE(output.walk()->mode(), Walk::Mode::White);
        press(output, Qt::Key_Escape);
        QVERIFY(!output.isOn());
        QCOMPARE(output.window(), nullptr);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(output.status(), QString());
    }

    void aClosedWindowEndsIt()
    {
        Output output;
        output.start(display(), QPoint(), m_charts.first());
        output.window()->close();
        QTRY_VERIFY(!output.isOn());
    }

    void theStatusTellsWhatIsShown()
    {
        Output output;
        output.setCharts(m_charts);
        output.start(display(), QPoint(), m_charts.at(3));
        QVERIFY2(output.status().endsWith(QStringLiteral("3.png")), qPrintable(output.status()));
        QTRY_COMPARE(color(output), colorOf(3));
        press(output, Qt::Key_G);
        press(output, Qt::Key_Right);
        QVERIFY2(output.status().endsWith(QStringLiteral("Color 17, 17, 17")), qPrintable(output.status()));
    }

    void aDisplayThatIsNotThere()
    {
        Output output;
        output.start(QStringLiteral("none"), QPoint(), m_charts.first());
        QVERIFY(output.isOn());
        QCOMPARE(output.window(), nullptr);
        QVERIFY(output.status().contains(QStringLiteral("unplugged")));
        output.showChart(0);
        output.stop();
        QVERIFY(!output.isOn());
    }

    void anEditIsShownLive()
    {
        Output output;
        output.setCharts(m_charts);
        output.start(display(), QPoint(), m_charts.first());
        QTRY_COMPARE(color(output), colorOf(0));
        QImage edited(160, 90, QImage::Format_RGB32);
        edited.fill(Qt::cyan);
        output.setLive({edited, {}, TestChartToolsData(), {}});
        QCOMPARE(color(output), QColor(Qt::cyan));
        press(output, Qt::Key_Right); // the edited chart stays
        QCOMPARE(color(output), QColor(Qt::cyan));
        output.endLive({});
        QTRY_COMPARE(color(output), colorOf(0));
        output.setLive({edited, {}, TestChartToolsData(), {}});
        output.endLive(m_charts.at(4));
        QTRY_COMPARE(color(output), colorOf(4));
    }

    void aChangedFileIsReadAgain()
    {
        const QTemporaryDir folder;
        const QString chart = folder.filePath(QStringLiteral("a.png"));
        QVERIFY(writePicture(chart, Qt::red));
        Output output;
        output.setCharts({chart, m_charts.first()});
        output.start(display(), QPoint(), chart);
        QTRY_COMPARE(color(output), QColor(Qt::red));
        output.next();
        QTRY_COMPARE(color(output), colorOf(0));
        QVERIFY(writePicture(chart, Qt::green));
        QFile file(chart);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(QDateTime::currentDateTime().addSecs(10),
                                                                    QFileDevice::FileModificationTime));
        file.close();
        output.previous();
        QTRY_COMPARE(color(output), QColor(Qt::green));
    }

    void aChartThatCannotBeShownIsTold()
    {
        const QTemporaryDir folder;
        const QString broken = folder.filePath(QStringLiteral("broken.png"));
        QVERIFY(writeFile(broken, "no picture"));
        Output output;
        QSignalSpy failed(&output, &Output::failed);
        output.setCharts({m_charts.first(), broken});
        output.start(display(), QPoint(), m_charts.first());
        QTRY_COMPARE(color(output), colorOf(0));
        output.next();
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(), broken);
        QCOMPARE(color(output), colorOf(0)); // what was shown stays
    }

    void aRecordIsDrawn()
    {
        const QTemporaryDir folder;
        const QString record = folder.filePath(QStringLiteral("wall.json"));
        TestChartToolsData data;
        data.publicData.resolutionWidth = 320;
        data.publicData.resolutionHeight = 180;
        QVERIFY(writeFile(record, ChartRecordFile::toJson(data)));
        Output output;
        output.start(display(), QPoint(), record);
        QTRY_COMPARE(output.window()->chart(), ChartPicture(data, ChartCaptions::current()).image());
        QVERIFY(output.walk()->hasCabinets());
    }

    void aRecordOfAnotherSizeIsNotThePictures()
    {
        const QTemporaryDir folder;
        const QString chart = folder.filePath(QStringLiteral("a.png"));
        QVERIFY(writeChart(chart, Qt::red));
        const ShownChart shown = ShownChart::read(chart, {});
        QCOMPARE(shown.problem, QString());
        QVERIFY(!shown.record); // 1920 x 1080, the picture is 16 x 9
    }

    void theChartsAroundAFile()
    {
        const QTemporaryDir folder;
        const QString first = folder.filePath(QStringLiteral("20260101_000000/a.png"));
        const QString second = folder.filePath(QStringLiteral("20260101_000001/b.png"));
        QVERIFY(writePicture(first, Qt::red) && writePicture(second, Qt::red));
        QCOMPARE(chartsAround(first), (QStringList{second, first}));
        QCOMPARE(chartsAround(m_charts.first()), QStringList{m_charts.first()});
    }
};

VD_TEST_MAIN(TestOutput)
#include "tst_output.moc"
