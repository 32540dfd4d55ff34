#include "chartpreview.h"

#include "controls/wheelnotches.h"
#include "editor/chartlabel.h"
#include "editor/previewzoom.h"
#include "geometry/previewfit.h"
#include "support/translation.h"

#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

namespace vardeno::testcharttools {

namespace {

constexpr QSize usualSize(1199, 766);
constexpr QSize leastSize(240, 180);
constexpr int frame = 2;
constexpr int keySteps = 10; ///< of an arrow key from one end of the view to the other

/// The whole pixels that hold `place`, which is in pixels of a screen with `ratio` of them for each.
QRect enclosing(const QRect& place, double ratio)
{
    return QRectF(place.x() / ratio, place.y() / ratio, place.width() / ratio, place.height() / ratio)
        .toAlignedRect();
}

} // namespace

class ChartPreview::Impl
{
public:
    explicit Impl(ChartPreview* view)
        : owner(view)
        , label(new ChartLabel(view))
    {
    }

    /// What is left of the area by the frame that tells of the focus.
    QRect room() const
    {
        return zooms ? owner->rect().adjusted(frame, frame, -frame, -frame) : owner->rect();
    }
    QPointF onScreen(const QPointF& way) const { return way * owner->devicePixelRatioF(); }
    QPointF inView(const QPointF& place) const { return onScreen(place - room().topLeft()); }
    QPointF zoomPlace() const { return inView(hovered ? pointer : QRectF(owner->rect()).center()); }
    void takeRoom();
    Qt::CursorShape cursor() const;

    ChartPreview* owner;
    ChartLabel* label;
    PreviewZoom zoom;
    QSize chartSize;
    QImage chart;
    std::function<QString(const QPoint&)> cabinetAt = [](const QPoint&) { return QString(); };
    bool zooms = false;
    bool hovered = false;
    QPointF pointer;
    double toldScale = 0;
    QPoint toldPixel = {-1, -1};
    QColor toldColor;
    QString toldCabinet;
    WheelNotches wheel;
};

void ChartPreview::Impl::takeRoom()
{
    zoom.setView((QSizeF(room().size()) * owner->devicePixelRatioF()).toSize());
    zoom.setChart(chartSize);
}

Qt::CursorShape ChartPreview::Impl::cursor() const
{
    if (!zooms)
        return Qt::ArrowCursor;
    if (zoom.isFitted())
        return Qt::CrossCursor;
    return QGuiApplication::mouseButtons() & Qt::LeftButton ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
}

ChartPreview::ChartPreview(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Impl>(this))
{
    setObjectName(QStringLiteral("viewArea"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedSize(usualSize);
}

ChartPreview::~ChartPreview() = default;

bool ChartPreview::zooms() const
{
    return d->zooms;
}

double ChartPreview::scale() const
{
    return d->zoom.scale();
}

bool ChartPreview::isFitted() const
{
    return d->zoom.isFitted();
}

void ChartPreview::fitTo(const QSize& chart)
{
    d->chartSize = chart;
    d->takeRoom();
}

void ChartPreview::showChart(const std::function<void(QImage&)>& compose)
{
    d->label->clear(); // lets go of the chart, whose memory is used again
    compose(d->chart);
    d->label->setPixmap(QPixmap::fromImage(d->chart));
    const QPointer<ChartPreview> alive(this); // a host may delete the tool when it is told
    showZoom();
    if (alive)
        tellPointed();
}

void ChartPreview::hideChart()
{
    d->label->hide();
}

void ChartPreview::setCabinets(std::function<QString(const QPoint&)> labelAt)
{
    d->cabinetAt = std::move(labelAt);
}

void ChartPreview::setFollowsRoom(bool follows)
{
    setMinimumSize(follows ? leastSize : usualSize);
    setMaximumSize(follows ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : usualSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartPreview::setZooms(bool zooms)
{
    d->zooms = zooms;
    d->zoom.fit();
    d->label->setZoom(zooms ? &d->zoom : nullptr, &d->chart, d->room().topLeft());
    setFocusPolicy(zooms ? Qt::StrongFocus : Qt::NoFocus);
    setMouseTracking(zooms);
    d->takeRoom();
    showZoom();
}

void ChartPreview::retranslate()
{
    setAccessibleName(translated(QStringLiteral("Preview of the chart")));
    setAccessibleDescription(
        translated(QStringLiteral("Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; "
                                  "drags and arrow keys move")));
}

void ChartPreview::zoomIn()
{
    changeZoom([this] { d->zoom.zoom(1, d->zoomPlace()); });
}

void ChartPreview::zoomOut()
{
    changeZoom([this] { d->zoom.zoom(-1, d->zoomPlace()); });
}

void ChartPreview::fitToView()
{
    changeZoom([this] { d->zoom.fit(); });
}

void ChartPreview::showPixels()
{
    changeZoom([this] { d->zoom.showPixels(d->zoomPlace()); });
}

/// Only the place changes, not the chart.
void ChartPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->takeRoom();
    if (!d->chart.isNull())
        showZoom();
}

void ChartPreview::wheelEvent(QWheelEvent* event)
{
    if (!d->zooms || !(event->modifiers() & Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    const QPointF at = d->inView(event->position());
    const int steps = d->wheel.turn(event->angleDelta(), event->modifiers());
    changeZoom([&] { d->zoom.zoom(steps, at); });
    event->accept();
}

void ChartPreview::mousePressEvent(QMouseEvent* event)
{
    if (!d->zooms || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    d->pointer = event->localPos();
    setCursor(d->cursor());
}

void ChartPreview::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->zooms)
        return;
    const QPointF way = d->onScreen(event->localPos() - d->pointer);
    d->pointer = event->localPos();
    d->hovered = true;
    if (event->buttons() & Qt::LeftButton)
        changeZoom([&] { d->zoom.move(way); });
    else
        tellPointed();
}

void ChartPreview::mouseReleaseEvent(QMouseEvent*)
{
    setCursor(d->cursor());
}

void ChartPreview::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool plain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (!d->zooms || !plain)
        event->ignore();
    else if (key == Qt::Key_Plus || key == Qt::Key_Equal)
        zoomIn();
    else if (key == Qt::Key_Minus)
        zoomOut();
    else if (key == Qt::Key_0)
        fitToView();
    else if (key == Qt::Key_1)
        showPixels();
    else if (!moveByKey(key))
        event->ignore();
}

bool ChartPreview::moveByKey(int key)
{
    const double x = double(d->zoom.view().width()) / keySteps;
    const double y = double(d->zoom.view().height()) / keySteps;
    QPointF way;
    switch (key) {
    case Qt::Key_Left:
        way = {x, 0};
        break;
    case Qt::Key_Right:
        way = {-x, 0};
        break;
    case Qt::Key_Up:
        way = {0, y};
        break;
    case Qt::Key_Down:
        way = {0, -y};
        break;
    default:
        return false;
    }
    changeZoom([&] { d->zoom.move(way); });
    return true;
}

void ChartPreview::leaveEvent(QEvent*)
{
    d->hovered = false;
    tellPointed();
}

void ChartPreview::changeZoom(const std::function<void()>& change)
{
    if (!d->zooms)
        return;
    change();
    const QPointer<ChartPreview> alive(this);
    showZoom();
    if (alive)
        tellPointed();
}

void ChartPreview::showZoom()
{
    if (!d->zooms) {
        d->label->setGeometry(fittedPreview(size(), d->chartSize));
        return;
    }
    d->takeRoom(); // the window may have come to another screen
    const QRect seen = d->zoom.place().intersected(QRect(QPoint(), d->zoom.view()));
    d->label->setGeometry(enclosing(seen, devicePixelRatioF()).translated(d->room().topLeft()));
    d->label->update();
    setCursor(d->cursor());
    if (!qFuzzyCompare(d->toldScale, scale())) {
        d->toldScale = scale();
        Q_EMIT scaleChanged(d->toldScale);
    }
}

void ChartPreview::tellPointed()
{
    const QPoint at = d->zooms && d->hovered ? d->zoom.pixelAt(d->inView(d->pointer)) : QPoint(-1, -1);
    const bool onChart = d->chart.valid(at);
    const QPoint pixel = onChart ? at : QPoint(-1, -1);
    const QColor color = onChart ? d->chart.pixelColor(pixel) : QColor();
    const QString cabinet = onChart ? d->cabinetAt(pixel) : QString();
    if (pixel == d->toldPixel && color == d->toldColor && cabinet == d->toldCabinet)
        return;
    d->toldPixel = pixel;
    d->toldColor = color;
    d->toldCabinet = cabinet;
    Q_EMIT pointed(pixel, color, cabinet);
}

} // namespace vardeno::testcharttools
