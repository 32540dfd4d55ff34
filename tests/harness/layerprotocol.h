#pragma once

#include "layerpainter.h"
#include "testcase.h"

#include <functional>

/// A layer that counts how often it is rendered.
template <typename Layer>
class CountedLayer : public Layer
{
public:
    int renders = 0;

protected:
    void draw(QPainter& painter, const QSize& size) override
    {
        ++renders;
        Layer::draw(painter, size);
    }
};

/// The picture of a layer that has been given the size.
inline QImage pictureAt(const QSize& size, QLabel& layer)
{
    layer.resize(size);
    layer.grab();
    return layerImage(layer);
}

/// Fails unless `change` gives the layer another picture with one render, and with none when it is repeated.
template <typename Layer>
void verifyRendersOnce(CountedLayer<Layer>& layer, const std::function<void(Layer&)>& change)
{
    const QImage before = layerImage(layer);
    layer.renders = 0;
    change(layer);
    QCOMPARE(layer.renders, 1);
    QVERIFY(!imageDifference(layerImage(layer), before).isEmpty());
    const qint64 shown = layer.pixmap(Qt::ReturnByValue).cacheKey();
    change(layer);
    QCOMPARE(layer.renders, 1);
    QCOMPARE(layer.pixmap(Qt::ReturnByValue).cacheKey(), shown);
}

/// Fails unless every paint of the layer reports once, after the layer was rendered and before it is painted.
inline void verifyPaintReports(vardeno::testcharttools::LayerPainter& layer)
{
    using vardeno::testcharttools::LayerPainter;
    layer.resize(64, 36);
    const QSignalSpy reports(&layer, &LayerPainter::sigPaintEventUpdated);
    layer.grab();
    QCOMPARE(reports.count(), 1);
    layer.grab();
    QCOMPARE(reports.count(), 2);

    QSize atReport;
    const QObject context;
    QObject::connect(&layer, &LayerPainter::sigPaintEventUpdated, &context, [&] {
        atReport = layer.pixmap(Qt::ReturnByValue).size();
        QPixmap red(layer.size());
        red.fill(Qt::red);
        layer.setPixmap(red);
    });
    layer.resize(80, 60);
    const QImage painted = layer.grab().toImage();
    QCOMPARE(atReport, QSize(80, 60));
    QCOMPARE(painted.pixelColor(40, 10), QColor(Qt::red));
}
