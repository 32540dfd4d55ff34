#include "charttool.h"

#include <chartpreview.h>

#include <QMainWindow>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace charttool;

namespace {

/// A tool whose preview zooms, with a chart that is larger than it.
struct Shown
{
    explicit Shown(const QSize& chart = {1920, 1080})
        : tool(new VTestChartTools(&window))
        , user(*tool)
    {
        window.setCentralWidget(tool);
        tool->setZoomablePreview(true);
        record.publicData.resolutionWidth = chart.width();
        record.publicData.resolutionHeight = chart.height();
        tool->applyRecord(record);
    }

    bool show()
    {
        if (!user.show())
            return false;
        chart = tool->chartImage();
        return true;
    }

    ChartPreview* preview() const { return tool->preview(); }
    void press(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }
    QPoint inWindow(const QPoint& place) const { return preview()->mapTo(&window, place); }
    void point(const QPoint& place) { QTest::mouseMove(window.windowHandle(), inWindow(place)); }
    void turn(const QPoint& place, int notches, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(inWindow(place), preview()->mapToGlobal(place), {}, {0, notches * 120},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }
    /// The preview as it is on the screen.
    QImage seen() const { return preview()->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    TestChartToolsData record;
    QMainWindow window;
    VTestChartTools* tool;
    User user;
    QImage chart;
};

const QPoint middle(600, 383);

} // namespace

class TestZoomedPreview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    void offAtFirst()
    {
        VTestChartTools tool;
        QVERIFY(!tool.zoomablePreview());
        QCOMPARE(tool.preview()->focusPolicy(), Qt::NoFocus);
        const QRect fitted = User(tool).preview()->geometry();
        tool.preview()->zoomIn();
        tool.preview()->showPixels();
        QVERIFY(tool.preview()->isFitted());
        QCOMPARE(User(tool).preview()->geometry(), fitted);
        QVERIFY(!tool.findChild<QWidget*>(QStringLiteral("previewBar")));
    }

    /// Each pixel of the screen is the chart's own.
    void pixelForPixel()
    {
        Shown shown;
        QVERIFY(shown.show());
        shown.preview()->showPixels();
        const QImage seen = shown.seen();
        const QSize room = seen.size() - QSize(4, 4);
        const QPoint corner((1920 - room.width()) / 2, (1080 - room.height()) / 2);
        VD_COMPARE_IMAGES(seen.copy(QRect(QPoint(2, 2), room)), shown.chart.copy(QRect(corner, room)));
    }

    /// Every pixel is a square of its colour, with a line at its left and upper edge from 8 on.
    void magnified_data()
    {
        QTest::addColumn<int>("scale");
        for (const int scale : {2, 3, 4, 6, 8, 12, 16})
            QTest::newRow(qPrintable(QString::number(scale))) << scale;
    }
    void magnified()
    {
        QFETCH(int, scale);
        Shown shown;
        QVERIFY(shown.show());
        while (shown.preview()->scale() < scale)
            shown.preview()->zoomIn();
        QCOMPARE(shown.preview()->scale(), double(scale));
        QSignalSpy pointed(shown.preview(), &ChartPreview::pointed);
        const QImage seen = shown.seen();
        for (const QPoint& place : {QPoint(10, 10), QPoint(300, 200), QPoint(1170, 740)}) {
            shown.point(place + QPoint(1, 0)); // so that each is a move
            shown.point(place);
            QTRY_VERIFY(!pointed.isEmpty());
            const QPoint pixel = pointed.last().at(0).toPoint();
            QCOMPARE(pointed.last().at(1).value<QColor>(), shown.chart.pixelColor(pixel));
            int own = 0;
            for (int y = 0; y < scale; ++y) {
                for (int x = 0; x < scale; ++x)
                    own +=
                        seen.pixel(place + QPoint(x - scale / 2, y - scale / 2)) == shown.chart.pixel(pixel);
            }
            QVERIFY2(own > 0, qPrintable(QString::number(own)));
        }
    }

    void theGridComesWithEight_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<bool>("grid");
        QTest::newRow("6") << 6 << false;
        QTest::newRow("8") << 8 << true;
        QTest::newRow("16") << 16 << true;
    }
    void theGridComesWithEight()
    {
        QFETCH(int, scale);
        QFETCH(bool, grid);
        Shown shown;
        TestChartToolsData plain = bareRecord();
        plain.basicData.evenColor = plain.basicData.oddColor;
        shown.tool->applyRecord(plain);
        QVERIFY(shown.show());
        while (shown.preview()->scale() < scale)
            shown.preview()->zoomIn();
        const QImage seen = shown.seen();
        const QRgb color = toQColor(plain.basicData.oddColor).rgb();
        int lines = 0;
        for (int x = 400; x < 400 + 10 * scale; ++x) {
            int own = 0;
            for (int y = 300; y < 300 + scale; ++y)
                own += seen.pixel(x, y) == color;
            lines += own == 0;
            QVERIFY(own == 0 || own == (grid ? scale - 1 : scale));
        }
        QCOMPARE(lines, grid ? 10 : 0);
    }

    void keys()
    {
        Shown shown;
        QVERIFY(shown.show());
        const double fitted = shown.preview()->scale();
        QTest::mouseClick(shown.window.windowHandle(), Qt::LeftButton, {}, shown.inWindow({5, 5}));
        QVERIFY(shown.preview()->hasFocus());
        shown.press(Qt::Key_1);
        QCOMPARE(shown.preview()->scale(), 1.0);
        shown.press(Qt::Key_Plus);
        QCOMPARE(shown.preview()->scale(), 2.0);
        const QImage before = shown.seen();
        for (const auto& [there, back] :
             {std::pair(Qt::Key_Right, Qt::Key_Left), std::pair(Qt::Key_Down, Qt::Key_Up)}) {
            shown.press(there);
            QVERIFY(shown.seen() != before);
            shown.press(back);
            QCOMPARE(shown.seen(), before);
        }
        shown.press(Qt::Key_Minus);
        QCOMPARE(shown.preview()->scale(), 1.0);
        shown.press(Qt::Key_0);
        QVERIFY(shown.preview()->isFitted());
        QCOMPARE(shown.preview()->scale(), fitted);
        QVERIFY(shown.tool->getTestChartToolsData() == shown.record);
    }

    void theWheelWithCtrl()
    {
        Shown shown;
        QVERIFY(shown.show());
        const QPoint at(200, 150);
        QSignalSpy pointed(shown.preview(), &ChartPreview::pointed);
        shown.turn(at, 1, Qt::NoModifier);
        QVERIFY(shown.preview()->isFitted());
        shown.point(at + QPoint(3, 3));
        shown.point(at);
        QTRY_VERIFY(!pointed.isEmpty());
        const QPoint pixel = pointed.last().at(0).toPoint();
        shown.turn(at, 4, Qt::ControlModifier);
        QCOMPARE(shown.preview()->scale(), 4.0);
        const QPoint moved = pointed.last().at(0).toPoint() - pixel;
        QVERIFY(qAbs(moved.x()) <= 1 && qAbs(moved.y()) <= 1);
        shown.turn(at, -4, Qt::ControlModifier);
        QVERIFY(shown.preview()->isFitted());
    }

    void dragsMove()
    {
        Shown shown;
        QVERIFY(shown.show());
        shown.preview()->showPixels();
        const QImage before = shown.seen();
        QWindow* window = shown.window.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, shown.inWindow(middle));
        QTest::mouseMove(window, shown.inWindow(middle + QPoint(30, 20)));
        QCoreApplication::processEvents();
        QTRY_COMPARE(shown.preview()->cursor().shape(), Qt::ClosedHandCursor);
        QTest::mouseRelease(window, Qt::LeftButton, {}, shown.inWindow(middle + QPoint(30, 20)));
        QTRY_COMPARE(shown.seen().copy(100, 100, 500, 400), before.copy(70, 80, 500, 400));
        QCOMPARE(shown.preview()->cursor().shape(), Qt::OpenHandCursor);
    }

    void whatIsUnderThePointer()
    {
        Shown shown;
        QVERIFY(shown.show());
        QSignalSpy pointed(shown.preview(), &ChartPreview::pointed);
        shown.preview()->showPixels();
        shown.point(middle);
        QTRY_VERIFY(!pointed.isEmpty());
        const QPoint pixel = pointed.last().at(0).toPoint();
        QVERIFY(QRect(955, 535, 10, 10).contains(pixel));
        QCOMPARE(pointed.last().at(1).value<QColor>(), shown.chart.pixelColor(pixel));
        QCOMPARE(pointed.last().at(2).toString(), QStringLiteral("E-I"));
        const auto text = [&](const char* name) { return shown.user.named<QLabel>(name)->text(); };
        QCOMPARE(text("previewPixel"), QStringLiteral("x %1  y %2").arg(pixel.x()).arg(pixel.y()));
        QVERIFY(text("previewColor").contains(shown.chart.pixelColor(pixel).name().toUpper()));
        QCOMPARE(text("previewCabinet"), QStringLiteral("E-I"));
        QCOMPARE(text("previewScale"), QStringLiteral("100 %"));

        // What is there changes under a pointer at rest.
        TestChartToolsData other = bareRecord();
        other.basicData.oddColor = other.basicData.evenColor = {1, 2, 3, 255};
        other.inLineData.numMode = true;
        other.inLineData.letterMode = false;
        shown.tool->applyRecord(other);
        QTRY_COMPARE(text("previewCabinet"), QStringLiteral("5-9"));
        QVERIFY(text("previewColor").contains(QLatin1String("#010203")));

        shown.point({600, -40 + shown.preview()->height() + 60}); // the buttons below
        QTRY_COMPARE(text("previewPixel"), QString());
        QCOMPARE(pointed.last().at(0).toPoint(), QPoint(-1, -1));
        QVERIFY(shown.user.settle());
    }

    /// A change is seen where the view has been zoomed to.
    void changesShowInTheZoom()
    {
        Shown shown;
        QVERIFY(shown.show());
        shown.preview()->zoomIn();
        shown.preview()->zoomIn();
        const QImage before = shown.seen();
        shown.user.click(shown.user.toggle("Show Circle"));
        QVERIFY(shown.user.settle());
        QVERIFY(shown.seen() != before);
        QCOMPARE(shown.preview()->scale(), 2.0);
        TestChartToolsData small = smallRecord();
        shown.tool->applyRecord(small);
        QVERIFY(shown.user.settle());
        QCOMPARE(shown.user.shownChart().size(), QSize(160, 90));
        QCOMPARE(shown.preview()->scale(), 2.0);
    }

    void buttons()
    {
        Shown shown;
        QVERIFY(shown.show());
        const double fitted = shown.preview()->scale();
        QHash<QString, QPushButton*> button;
        const auto found = shown.user.named<QWidget>("previewBar")->findChildren<QPushButton*>();
        for (QPushButton* each : found) {
            button.insert(each->accessibleName(), each);
            QVERIFY(!each->toolTip().isEmpty());
        }
        shown.user.click(button["Show pixel for pixel"]);
        QCOMPARE(shown.preview()->scale(), 1.0);
        shown.user.click(button["Zoom in"]);
        QCOMPARE(shown.preview()->scale(), 2.0);
        shown.user.click(button["Zoom out"]);
        QCOMPARE(shown.preview()->scale(), 1.0);
        shown.user.click(button["Show the whole chart"]);
        QCOMPARE(shown.preview()->scale(), fitted);
    }

    void switchedOff()
    {
        Shown shown;
        QVERIFY(shown.show());
        shown.preview()->showPixels();
        shown.tool->setZoomablePreview(false);
        QVERIFY(!shown.user.named<QWidget>("previewBar")->isVisible());
        QCOMPARE(shown.user.preview()->geometry(), QRect(0, 46, 1199, 674));
        QCOMPARE(shown.preview()->focusPolicy(), Qt::NoFocus);
    }
};

VD_TEST_MAIN(TestZoomedPreview)
#include "tst_zoomedpreview.moc"
