#include "paintpublicwidget.h"
#include "testcase.h"

#include <QPainter>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

/// A frame of four filled rectangles; each corner lies under two of them.
QImage frame(const QSize& size, int width, const QColor& color = Qt::white)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int across = std::min(width, size.width());
    const int down = std::min(width, size.height());
    QPainter painter(&image);
    painter.fillRect(0, 0, size.width(), down, color);
    painter.fillRect(0, size.height() - down, size.width(), down, color);
    painter.fillRect(0, 0, across, size.height(), color);
    painter.fillRect(size.width() - across, 0, across, size.height(), color);
    return image;
}

using BorderChange = void (*)(PaintPublicWidget&);

} // namespace

Q_DECLARE_METATYPE(BorderChange)

class TestPaintPublicWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void border_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("width");
        const QSize landscape(1920, 1080);
        QTest::newRow("1 pixel: the outermost ring") << landscape << 1;
        QTest::newRow("2 pixels") << landscape << 2;
        QTest::newRow("5 pixels") << landscape << 5;
        QTest::newRow("6 pixels") << landscape << 6;
        QTest::newRow("100 pixels") << landscape << 100;
        QTest::newRow("portrait, 1 pixel") << QSize(1080, 1920) << 1;
        QTest::newRow("portrait, 5 pixels") << QSize(1080, 1920) << 5;
        QTest::newRow("portrait, 6 pixels") << QSize(1080, 1920) << 6;
        QTest::newRow("odd sizes, even width") << QSize(33, 17) << 2;
        QTest::newRow("odd sizes, odd width") << QSize(33, 17) << 3;
        QTest::newRow("smallest chart") << QSize(16, 16) << 1;
        QTest::newRow("as wide as half of the chart") << QSize(16, 16) << 8;
        QTest::newRow("wider than the chart") << QSize(64, 36) << 100;
        QTest::newRow("a chart of one pixel") << QSize(1, 1) << 1;
    }

    void border()
    {
        QFETCH(QSize, size);
        QFETCH(int, width);
        PaintPublicWidget layer;
        layer.resize(size);
        layer.setOutLineWidth(width + 1);
        layer.setOutLineWidth(width);
        VD_COMPARE_IMAGES(layerImage(layer), frame(size, width));
    }

    void startsWithAWhiteBorderOfSixPixels()
    {
        PaintPublicWidget layer;
        layer.resize(200, 100);
        VD_COMPARE_IMAGES(layer.grab().toImage(), [] {
            QImage shown(200, 100, QImage::Format_ARGB32_Premultiplied);
            shown.fill(QWidget().palette().window().color());
            QPainter(&shown).drawImage(0, 0, frame(QSize(200, 100), 6));
            return shown;
        }());
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 6));
    }

    void noBorderLeavesTheLayerTransparent()
    {
        PaintPublicWidget layer;
        layer.resize(200, 100);
        layer.setOutLineVisible(false);
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 0));
        layer.setOutLineVisible(true);
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 6));
    }

    void whatIsSetWhileTheBorderIsOffShowsLater()
    {
        PaintPublicWidget layer;
        layer.resize(200, 100);
        layer.setOutLineVisible(false);
        layer.setOutLineWidth(12);
        layer.setOutLineColor(Qt::cyan);
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 0));
        layer.setOutLineVisible(true);
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 12, Qt::cyan));
    }

    void color_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque") << QColor(1, 128, 254);
        QTest::newRow("translucent, twice in the corners") << QColor(255, 0, 0, 128);
        QTest::newRow("invisible") << QColor(255, 0, 0, 0);
    }

    void color()
    {
        QFETCH(QColor, color);
        PaintPublicWidget layer;
        layer.resize(120, 60);
        layer.setOutLineColor(color);
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(120, 60), 6, color));
    }

    void followsItsSize()
    {
        PaintPublicWidget layer;
        layer.resize(200, 100);
        layer.grab();
        layer.resize(90, 160);
        layer.grab();
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(90, 160), 6));
    }

    void rowsAndColumnsDrawNothing_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("a grid") << 3 << 4;
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("as many as can be said") << 65535 << 65535;
    }

    void rowsAndColumnsDrawNothing()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        PaintPublicWidget layer;
        layer.resize(200, 100);
        layer.setRows(ushort(rows));
        layer.setColumns(ushort(columns));
        VD_COMPARE_IMAGES(layerImage(layer), frame(QSize(200, 100), 6));
    }

    void theSameValueRendersOnce_data()
    {
        QTest::addColumn<BorderChange>("set");
        QTest::addColumn<BorderChange>("setOther");
        const auto row = [](const char* name, BorderChange set, BorderChange setOther) {
            QTest::newRow(name) << set << setOther;
        };
        row(
            "visible", [](PaintPublicWidget& layer) { layer.setOutLineVisible(false); },
            [](PaintPublicWidget& layer) { layer.setOutLineVisible(true); });
        row(
            "width", [](PaintPublicWidget& layer) { layer.setOutLineWidth(9); },
            [](PaintPublicWidget& layer) { layer.setOutLineWidth(10); });
        row(
            "color", [](PaintPublicWidget& layer) { layer.setOutLineColor(Qt::red); },
            [](PaintPublicWidget& layer) { layer.setOutLineColor(QColor(255, 0, 0, 254)); });
        row(
            "rows", [](PaintPublicWidget& layer) { layer.setRows(3); },
            [](PaintPublicWidget& layer) { layer.setRows(4); });
        row(
            "columns", [](PaintPublicWidget& layer) { layer.setColumns(3); },
            [](PaintPublicWidget& layer) { layer.setColumns(4); });
    }

    void theSameValueRendersOnce()
    {
        QFETCH(BorderChange, set);
        QFETCH(BorderChange, setOther);
        PaintPublicWidget layer;
        layer.resize(40, 30);
        set(layer);
        const qint64 picture = layer.pixmap(Qt::ReturnByValue).cacheKey();
        QVERIFY(picture != 0);
        set(layer);
        QCOMPARE(layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
        setOther(layer);
        QVERIFY(layer.pixmap(Qt::ReturnByValue).cacheKey() != picture);
    }

    void initialValuesRenderNothing()
    {
        PaintPublicWidget layer;
        layer.resize(40, 30);
        layer.setOutLineVisible(true);
        layer.setOutLineWidth(6);
        layer.setOutLineColor(QColor(255, 255, 255));
        layer.setRows(9);
        layer.setColumns(16);
        QVERIFY(layerImage(layer).isNull());
    }
};

VD_TEST_MAIN(TestPaintPublicWidget)
#include "tst_paintpublicwidget.moc"
