#pragma once

#include "vdpatterndesign_export.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <memory>

class QImage;

namespace vardeno::testcharttools {

/// The area of the chart tool in which the chart is shown, as large as fits: `VTestChartTools::preview`.
///
/// Where it zooms (`VTestChartTools::setZoomablePreview`), it takes the focus and shows a part of the chart,
/// up to 16 pixels of the screen for one of its own, then with a grid between them: the wheel with Ctrl, the
/// keys plus, minus, 0 (all of it) and 1 (pixel for pixel), drags and arrow keys. GUI thread only.
class VDPATTERNDESIGN_EXPORT ChartPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ChartPreview(QWidget* parent);
    ~ChartPreview() override;

    bool zooms() const;
    /// Pixels of the screen for one of the chart.
    double scale() const;
    bool isFitted() const;

    /// For the tool: the size of the charts that are shown from now on.
    void fitTo(const QSize& chart);
    /// For the tool: shows what `compose` draws into the image that it gets, the one that was shown before.
    void showChart(const std::function<void(QImage&)>& compose);
    void hideChart();
    /// For the tool: the label of the cabinet at a pixel of the chart.
    void setCabinets(std::function<QString(const QPoint& pixel)> labelAt);
    /// For the tool: takes the room that there is.
    void setFollowsRoom(bool follows);
    void setZooms(bool zooms);
    /// For the tool: its name for screen readers in the current language.
    void retranslate();

public Q_SLOTS:
    /// One step, around the pointer where it is over the chart, else around the middle. Nothing, as with the
    /// others, where the preview does not zoom.
    void zoomIn();
    void zoomOut();
    /// All of the chart, as large as fits.
    void fitToView();
    /// One pixel of the screen for each of the chart.
    void showPixels();

Q_SIGNALS:
    /// Pixels of the screen for one of the chart, also when the room has changed.
    void scaleChanged(double scale);
    /// The pointer is over this pixel of the chart, or what is there has changed; (-1, -1), no colour and no
    /// cabinet when it has left the chart.
    void pointed(const QPoint& pixel, const QColor& color, const QString& cabinet);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    class Impl;

    bool moveByKey(int key);
    void changeZoom(const std::function<void()>& change);
    void showZoom();
    void tellPointed();

    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
