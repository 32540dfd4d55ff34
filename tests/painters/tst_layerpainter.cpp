#include "layerpainter.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QGridLayout>
#include <QPainter>
#include <QThread>

using namespace vardeno::testcharttools;

namespace {

/// Fills the layer with one colour, and counts how often it is asked to.
class PlainLayer : public LayerPainter
{
public:
    void setColor(const QColor& color) { assign(m_color, color); }

    bool draws = true; ///< whether there is anything to draw from
    bool sourceIsNew = false;
    QVector<QSize> drawn; ///< the sizes of all calls

protected:
    bool isDrawable() const override { return draws; }

    void draw(QPainter& painter, const QSize& size) override
    {
        drawn.append(size);
        sourceIsNew = false;
        painter.fillRect(QRect(QPoint(), size), m_color);
    }

    bool sourceChanged() const override { return sourceIsNew; }

private:
    QColor m_color = Qt::red;
};

qint64 pictureOf(const QLabel& layer)
{
    return layer.pixmap(Qt::ReturnByValue).cacheKey();
}

QImage filled(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QPixmap otherPicture(const QSize& size)
{
    return QPixmap::fromImage(filled(size, Qt::blue));
}

using Change = void (*)(PlainLayer&);

} // namespace

Q_DECLARE_METATYPE(Change)

class TestLayerPainter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSetterRendersAtOnce()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setColor(Qt::green);
        QCOMPARE(layer.drawn, QVector<QSize>{QSize(30, 20)});
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(30, 20), Qt::green));
    }

    void anEqualValueRendersNothing()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setColor(Qt::red);
        QVERIFY(layer.drawn.isEmpty());
        layer.setColor(Qt::green);
        const qint64 picture = pictureOf(layer);
        layer.setColor(Qt::green);
        QCOMPARE(layer.drawn.size(), 1);
        QCOMPARE(pictureOf(layer), picture);
    }

    void startsFromATransparentPicture()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setColor(QColor(0, 255, 0, 40));
        layer.setColor(QColor(0, 0, 255, 90));
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(30, 20), QColor(0, 0, 255, 90)));
    }

    void thePaintEventRendersWhatIsStale_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("renders");
        const auto row = [](const char* name, Change change, int renders) {
            QTest::newRow(name) << change << renders;
        };
        row(
            "nothing has changed", [](PlainLayer&) {}, 0);
        row(
            "new size", [](PlainLayer& layer) { layer.resize(50, 20); }, 1);
        row(
            "there and back again",
            [](PlainLayer& layer) {
                layer.resize(50, 20);
                layer.resize(30, 20);
            },
            0);
        row(
            "new source", [](PlainLayer& layer) { layer.sourceIsNew = true; }, 1);
        row(
            "someone else's picture", [](PlainLayer& layer) { layer.setPixmap(otherPicture(layer.size())); },
            1);
        row(
            "someone else's text", [](PlainLayer& layer) { layer.setText(QStringLiteral("text")); }, 1);
        row(
            "cleared", [](PlainLayer& layer) { layer.clear(); }, 1);
    }

    void thePaintEventRendersWhatIsStale()
    {
        QFETCH(Change, change);
        QFETCH(int, renders);
        PlainLayer layer;
        layer.resize(30, 20);
        layer.grab();
        QCOMPARE(layer.drawn.size(), 1);

        change(layer);
        layer.drawn.clear();
        const QImage shown = layer.grab().toImage();
        QCOMPARE(layer.drawn.size(), renders);
        VD_COMPARE_IMAGES(shown, filled(layer.size(), Qt::red));
        layer.grab();
        QCOMPARE(layer.drawn.size(), renders);
    }

    void aHostMayRenderTheWidget()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        QImage shown(layer.size(), QImage::Format_ARGB32_Premultiplied);
        layer.render(&shown);
        VD_COMPARE_IMAGES(shown, filled(layer.size(), Qt::red));
    }

    /// The texts of the chart are drawn in the application's font.
    void thePaintEventRendersInTheFontOfTheApplication()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.grab();
        layer.drawn.clear();
        const QFont before = QApplication::font();
        QFont other = before;
        other.setItalic(true);
        QApplication::setFont(other);
        layer.grab();
        QApplication::setFont(before);
        QCOMPARE(layer.drawn.size(), 1);
        layer.grab();
        layer.grab();
        QCOMPARE(layer.drawn.size(), 2);
    }

    void everyPaintReportsOnce()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        QSignalSpy painted(&layer, &LayerPainter::sigPaintEventUpdated);
        layer.setColor(Qt::green);
        QCOMPARE(painted.count(), 0);
        layer.grab();
        layer.grab();
        layer.resize(10, 10);
        layer.grab();
        QCOMPARE(painted.count(), 3);
    }

    void reportsAfterRendering()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        QImage atReport;
        connect(&layer, &LayerPainter::sigPaintEventUpdated, this, [&] { atReport = layerImage(layer); });
        layer.grab();
        VD_COMPARE_IMAGES(atReport, filled(QSize(30, 20), Qt::red));
    }

    void reportsBeforePainting()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        connect(&layer, &LayerPainter::sigPaintEventUpdated, this,
                [&] { layer.setPixmap(otherPicture(layer.size())); });
        VD_COMPARE_IMAGES(layer.grab().toImage(), filled(QSize(30, 20), Qt::blue));
    }

    void aLayerWithNothingToDrawFromKeepsItsPicture()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.grab();
        const qint64 picture = pictureOf(layer);

        layer.draws = false;
        layer.setColor(Qt::green);
        layer.grab();
        layer.resize(50, 40);
        layer.grab();
        QCOMPARE(layer.drawn.size(), 1);
        QCOMPARE(pictureOf(layer), picture);
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(30, 20), Qt::red));

        layer.draws = true;
        layer.setColor(Qt::blue);
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(50, 40), Qt::blue));
    }

    void aHeldLayerRendersOnceWhenItIsLetGo()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setHeld(true);
        layer.setColor(Qt::green);
        layer.setColor(Qt::blue);
        layer.resize(50, 40);
        QVERIFY(layer.drawn.isEmpty());
        layer.setHeld(false);
        QCOMPARE(layer.drawn, QVector<QSize>{QSize(50, 40)});
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(50, 40), Qt::blue));
        layer.setHeld(true);
        layer.setHeld(false);
        QCOMPARE(layer.drawn.size(), 1);
    }

    void aHeldLayerIsPaintedAsItIs()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setHeld(true);
        layer.setColor(Qt::green);
        VD_COMPARE_IMAGES(layer.grab().toImage(), filled(QSize(30, 20), Qt::green));
        layer.setHeld(false);
        QCOMPARE(layer.drawn.size(), 1);
    }

    void whoeverHoldsAPictureKeepsIt()
    {
        PlainLayer layer;
        layer.resize(30, 20);
        layer.setColor(Qt::green);
        const QImage before = layerImage(layer);
        const QPixmap held = layer.pixmap(Qt::ReturnByValue);
        layer.setColor(Qt::blue);
        VD_COMPARE_IMAGES(before, filled(QSize(30, 20), Qt::green));
        VD_COMPARE_IMAGES(held.toImage(), filled(QSize(30, 20), Qt::green));
    }

    void aShownLayerGoesOnPainting()
    {
        PlainLayer layer;
        layer.resize(200, 100);
        layer.setColor(Qt::green);
        layer.show();
        QVERIFY(QTest::qWaitForWindowExposed(&layer));
        const QSignalSpy reports(&layer, &LayerPainter::sigPaintEventUpdated);
        QTRY_VERIFY(reports.count() >= 4);
        QCOMPARE(layer.drawn.size(), 1);

        layer.hide();
        const int before = reports.count();
        QTest::qWait(300);
        QCOMPARE(reports.count(), before);
        layer.show();
        QTRY_VERIFY(reports.count() >= before + 3);
    }

    void anUnseenLayerPaintsWhenItIsAskedTo()
    {
        PlainLayer layer;
        layer.resize(200, 100);
        const QSignalSpy reports(&layer, &LayerPainter::sigPaintEventUpdated);
        layer.grab();
        QTest::qWait(300);
        QCOMPARE(reports.count(), 1);
    }

    void pausesAreLongBesideThePaints_data()
    {
        QTest::addColumn<int>("work");
        QTest::addColumn<int>("pause");
        QTest::newRow("next to nothing") << 0 << 50;
        QTest::newRow("5 ms") << 5 << 250;
        QTest::newRow("15 ms") << 15 << 750;
    }

    void pausesAreLongBesideThePaints()
    {
        QFETCH(int, work);
        QFETCH(int, pause);
        PlainLayer layer;
        layer.resize(200, 100);
        QElapsedTimer clock;
        clock.start();
        QVector<qint64> pauses;
        qint64 end = 0;
        connect(&layer, &LayerPainter::sigPaintEventUpdated, this, [&] {
            pauses.append(clock.elapsed() - end);
            QThread::msleep(ulong(work));
            end = clock.elapsed();
        });
        layer.show();
        QVERIFY(QTest::qWaitForWindowExposed(&layer));
        QTest::qWait(200); // what showing the window sets off
        const int shown = pauses.size();
        QTRY_VERIFY(pauses.size() >= shown + 3);
        for (int i = shown + 1; i < pauses.size(); ++i)
            QVERIFY2(pauses[i] >= pause - 1, qPrintable(QString::number(pauses[i])));
    }

    void anEmptyLayerIsNotDrawn_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no width") << QSize(0, 20);
        QTest::newRow("no height") << QSize(30, 0);
        QTest::newRow("neither") << QSize(0, 0);
    }

    void anEmptyLayerIsNotDrawn()
    {
        QFETCH(QSize, size);
        PlainLayer layer;
        layer.resize(size);
        layer.setColor(Qt::green);
        QVERIFY(layer.drawn.isEmpty());

        layer.resize(30, 20);
        layer.grab();
        VD_COMPARE_IMAGES(layerImage(layer), filled(QSize(30, 20), Qt::green));
    }

    void aLayoutGivesItTheSizeOfTheChart_data()
    {
        QTest::addColumn<QSize>("before");
        QTest::newRow("from a larger chart") << QSize(400, 300);
        QTest::newRow("from a smaller one") << QSize(20, 10);
        QTest::newRow("from a portrait") << QSize(60, 300);
    }

    void aLayoutGivesItTheSizeOfTheChart()
    {
        QFETCH(QSize, before);
        QWidget view;
        auto* layout = new QGridLayout(&view);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* layer = new PlainLayer;
        layout->addWidget(layer, 0, 0);
        view.resize(before);
        view.grab();
        QCOMPARE(layerImage(*layer).size(), before);

        view.resize(100, 80);
        view.grab();
        QCOMPARE(view.size(), QSize(100, 80));
        QCOMPARE(layer->size(), QSize(100, 80));
        QCOMPARE(layerImage(*layer).size(), QSize(100, 80));
    }

    void anUnseenLayerKeepsItsOldSizeUntilTheViewIsDrawn()
    {
        QWidget view;
        auto* layout = new QGridLayout(&view);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* layer = new PlainLayer;
        layout->addWidget(layer, 0, 0);
        QCOMPARE(layer->size(), QSize(640, 480));
        view.setFixedSize(100, 80);
        view.grab();
        view.setFixedSize(50, 40);
        QCOMPARE(layer->size(), QSize(100, 80));
        view.grab();
        QCOMPARE(layer->size(), QSize(50, 40));
    }
};

VD_TEST_MAIN(TestLayerPainter)
#include "tst_layerpainter.moc"
