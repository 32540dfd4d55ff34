#include "wallcanvas.h"

#include "hosttext.h"
#include "wallmodel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace vardeno::walls;

namespace {

constexpr double largestZoom = 64;
constexpr double zoomStep = 1.25;
constexpr int canvasMargin = 12; ///< around the whole wall, in pixels of the screen
constexpr int edgeReach = 4;     ///< from an edge, in pixels of the screen
constexpr int leastGrabbed = 20; ///< of a cabinet whose edge can be dragged

std::vector<int> edgesOfSizes(const CabinetSizes& sizes)
{
    std::vector<int> edges = {0};
    for (const int pixels : sizes.pixels)
        edges.push_back(edges.back() + pixels);
    return edges;
}

} // namespace

WallCanvas::WallCanvas(WallModel* model, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("wallCanvas"));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setMouseTracking(true);
    connect(model, &WallModel::changed, this, &WallCanvas::takeWall);
    takeWall();
}

void WallCanvas::setTool(Tool tool)
{
    m_tool = tool;
    viewport()->setCursor(tool == Tool::Select ? Qt::ArrowCursor : Qt::CrossCursor);
}

/// What is selected stays so, where it is still there.
void WallCanvas::takeWall()
{
    m_lefts = edgesOfSizes(m_model->wall().columnWidths);
    m_tops = edgesOfSizes(m_model->wall().rowHeights);
    m_exceptions = WallEdit::exceptionIndices(m_model->wall());
    const auto isThere = [this](Place place) {
        return place.column < m_model->plan().columns() && place.row < m_model->plan().rows();
    };
    WallEdit::Places kept;
    for (const Place place : m_selection) {
        if (isThere(place))
            kept.insert(place);
    }
    if (!isThere(m_current))
        m_current = {};
    const bool isOther = kept.size() != m_selection.size();
    m_selection = kept;
    if (!m_isHeld)
        fit();
    redraw();
    if (isOther)
        Q_EMIT selectionChanged();
}

/// The view follows the size of the wall and of the window.
void WallCanvas::fit()
{
    if (m_isWhole)
        showWhole();
    else
        updateBars();
}

void WallCanvas::redraw()
{
    m_isSceneOld = true;
    viewport()->update();
}

void WallCanvas::updateBars()
{
    const QSize wall = m_model->plan().size() * m_zoom;
    const QSize room = viewport()->size();
    const auto beyond = [this](int side, int available) { // a bar would change what the whole has to fit in
        return m_isWhole ? 0 : std::max(0, side + 2 * canvasMargin - available);
    };
    horizontalScrollBar()->setRange(0, beyond(wall.width(), room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setRange(0, beyond(wall.height(), room.height()));
    verticalScrollBar()->setPageStep(room.height());
}

/// Where the wall's first pixel lies in the viewport; a small wall in the middle.
QPointF WallCanvas::origin() const
{
    if (m_isHeld)
        return m_heldOrigin;
    const QSizeF wall = QSizeF(m_model->plan().size()) * m_zoom;
    const auto begin = [](double side, int room, const QScrollBar* bar) {
        return bar->maximum() > 0 ? double(canvasMargin - bar->value()) : std::floor((room - side) / 2);
    };
    return {begin(wall.width(), viewport()->width(), horizontalScrollBar()),
            begin(wall.height(), viewport()->height(), verticalScrollBar())};
}

QPoint WallCanvas::toWall(const QPoint& at) const
{
    const QPointF wall = (QPointF(at) - origin()) / m_zoom;
    return {int(std::floor(wall.x())), int(std::floor(wall.y()))};
}

QRect WallCanvas::toView(const QRect& wall) const
{
    const QPointF begin = origin();
    const int left = int(std::round(begin.x() + wall.left() * m_zoom));
    const int top = int(std::round(begin.y() + wall.top() * m_zoom));
    const int right = int(std::round(begin.x() + (wall.left() + wall.width()) * m_zoom));
    const int bottom = int(std::round(begin.y() + (wall.top() + wall.height()) * m_zoom));
    return {left, top, right - left, bottom - top};
}

QRect WallCanvas::rectOf(Place place) const
{
    const CabinetPlan& plan = m_model->plan();
    const int cabinet = plan.cabinetAt(place);
    if (cabinet >= 0)
        return toView(plan.cabinets()[std::size_t(cabinet)].rect);
    const CabinetException* hole = exceptionAt(place);
    return toView(hole ? plan.rect(hole->at, hole->columns, hole->rows) : plan.rect(place));
}

/// Null where it is a usual cabinet.
const CabinetException* WallCanvas::exceptionAt(Place place) const
{
    const int index = m_exceptions[std::size_t(place.row) * std::size_t(m_model->plan().columns()) +
                                   std::size_t(place.column)];
    return index < 0 ? nullptr : &m_model->wall().exceptions.list[std::size_t(index)];
}

/// Of the cabinet or the hole that has it: one that spans several is called by its first.
Place WallCanvas::cabinetPlace(Place place) const
{
    const CabinetException* special = exceptionAt(place);
    return special ? special->at : place;
}

bool WallCanvas::findPlace(const QPoint& at, Place& place) const
{
    const QPoint pixel = toWall(at);
    if (!QRect(QPoint(), m_model->plan().size()).contains(pixel))
        return false;
    const auto interval = [](const std::vector<int>& edges, int value) {
        return int(std::upper_bound(edges.begin(), edges.end(), value) - edges.begin()) - 1;
    };
    place = cabinetPlace({interval(m_lefts, pixel.x()), interval(m_tops, pixel.y())});
    return true;
}

/// The column or row that ends near `at`; -1 for none.
int WallCanvas::edgeNear(int at, const std::vector<int>& edges, double first) const
{
    const int pixel = int((at - first) / m_zoom);
    const auto behind = std::lower_bound(edges.begin() + 1, edges.end(), pixel);
    for (auto edge = behind == edges.begin() + 1 ? behind : behind - 1; edge != edges.end(); ++edge) {
        const double distance = first + *edge * m_zoom - at;
        if (distance > edgeReach)
            break;
        if (distance >= -edgeReach && (*edge - *(edge - 1)) * m_zoom >= leastGrabbed)
            return int(edge - edges.begin()) - 1;
    }
    return -1;
}

WallEdit::Places WallCanvas::between(Place one, Place other) const
{
    WallEdit::Places places;
    for (int row = std::min(one.row, other.row); row <= std::max(one.row, other.row); ++row) {
        for (int column = std::min(one.column, other.column); column <= std::max(one.column, other.column);
             ++column)
            places.insert(cabinetPlace({column, row}));
    }
    return places;
}

void WallCanvas::select(const WallEdit::Places& places)
{
    m_selection = places;
    if (!places.empty() && places.count(m_current) == 0)
        m_current = *places.begin();
    viewport()->update();
    Q_EMIT selectionChanged();
}

void WallCanvas::selectAll()
{
    select(between({0, 0}, {m_model->plan().columns() - 1, m_model->plan().rows() - 1}));
}

/// Restores where all of them are holes.
void WallCanvas::removeOrRestore()
{
    const bool areHoles = std::all_of(m_selection.begin(), m_selection.end(),
                                      [this](Place place) { return m_model->plan().cabinetAt(place) < 0; });
    if (!m_selection.empty())
        m_model->change(hostText(QStringLiteral("Remove or restore")),
                        WallEdit::withMissing(m_model->wall(), m_selection, !areHoles));
}

void WallCanvas::turn()
{
    m_model->change(hostText(QStringLiteral("Turn")), WallEdit::turned(m_model->wall(), m_selection));
}

void WallCanvas::resizeSelection(int columns, int rows)
{
    const WallDocument& wall = m_model->wall();
    if (m_selection.empty())
        return;
    const WallDocument wider = columns != 0 ? WallEdit::widened(wall, m_selection, columns) : wall;
    QString series = columns != 0 ? QStringLiteral("width") : QStringLiteral("height");
    for (const Place place : {*m_selection.begin(), *m_selection.rbegin()})
        series += QStringLiteral(" %1,%2").arg(place.column).arg(place.row);
    m_model->change(hostText(QStringLiteral("Size")),
                    rows != 0 ? WallEdit::heightened(wider, m_selection, rows) : wider, series);
}

void WallCanvas::moveCurrent(int columns, int rows, bool extends)
{
    Place next = m_current;
    const Place own = cabinetPlace(m_current);
    do { // out of a cabinet that spans several
        next = {next.column + columns, next.row + rows};
        if (next.column < 0 || next.row < 0 || next.column >= m_model->plan().columns() ||
            next.row >= m_model->plan().rows())
            return;
    } while (cabinetPlace(next) == own);
    m_current = cabinetPlace(next);
    if (!extends)
        m_anchor = m_current;
    select(extends ? between(m_anchor, m_current) : WallEdit::Places{m_current});
    const QPoint middle = rectOf(m_current).center();
    if (!viewport()->rect().contains(middle)) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + middle.x() -
                                        viewport()->width() / 2);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + middle.y() - viewport()->height() / 2);
    }
}

void WallCanvas::showWhole()
{
    const QSizeF room = QSizeF(viewport()->size()) - QSizeF(2 * canvasMargin, 2 * canvasMargin);
    const QSizeF wall = m_model->plan().size();
    const double fitting = std::min(room.width() / wall.width(), room.height() / wall.height());
    m_zoom = std::clamp(fitting, 0.001, largestZoom);
    m_isWhole = true;
    updateBars();
    redraw();
    Q_EMIT zoomChanged();
}

void WallCanvas::setZoom(double zoom)
{
    zoomAt(zoom, QRectF(viewport()->rect()).center());
}

/// The pixel that is there stays there.
void WallCanvas::zoomAt(double zoom, const QPointF& at)
{
    const QPointF pixel = (at - origin()) / m_zoom;
    m_zoom = std::clamp(zoom, 0.001, largestZoom);
    m_isWhole = false;
    updateBars();
    horizontalScrollBar()->setValue(qRound(pixel.x() * m_zoom + canvasMargin - at.x()));
    verticalScrollBar()->setValue(qRound(pixel.y() * m_zoom + canvasMargin - at.y()));
    redraw();
    Q_EMIT zoomChanged();
}

void WallCanvas::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    fit();
    redraw();
}

void WallCanvas::scrollContentsBy(int, int)
{
    redraw();
}

void WallCanvas::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier)
        zoomAt(m_zoom * std::pow(zoomStep, event->angleDelta().y() / 120.0), event->position());
    else
        QAbstractScrollArea::wheelEvent(event);
}

bool WallCanvas::event(QEvent* event)
{
    // An arrow with Shift would move the focus of a window that has scroll bars.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key >= Qt::Key_Left && key <= Qt::Key_Down) {
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

bool WallCanvas::handleZoomKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        setZoom(m_zoom * zoomStep);
        return true;
    case Qt::Key_Minus:
        setZoom(m_zoom / zoomStep);
        return true;
    case Qt::Key_0:
        showWhole();
        return true;
    case Qt::Key_1:
        setZoom(1);
        return true;
    default:
        return false;
    }
}

void WallCanvas::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isShift = event->modifiers() & Qt::ShiftModifier;
    const int columns = (key == Qt::Key_Right) - (key == Qt::Key_Left);
    const int rows = (key == Qt::Key_Down) - (key == Qt::Key_Up);
    if (columns != 0 || rows != 0) {
        if (event->modifiers() & Qt::ControlModifier)
            moveCurrent(columns, rows, isShift);
        else
            resizeSelection(columns * (isShift ? 10 : 1), rows * (isShift ? 10 : 1));
    } else if (key == Qt::Key_Escape && m_isHeld) {
        m_model->takeBack(m_dragSeries);
        endDrag();
    } else if (key == Qt::Key_Escape && (m_drag != Drag::None || !m_selection.empty())) {
        endDrag();
        select({});
    } else if (!handleZoomKey(key)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void WallCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        beginDrag(event->pos(), event->modifiers());
}

void WallCanvas::beginDrag(const QPoint& at, Qt::KeyboardModifiers keys)
{
    m_dragBegan = at;
    m_dragSeries = QStringLiteral("drag %1").arg(++m_drags);
    m_before = m_model->wall();
    if (m_tool != Tool::Select) {
        m_drag = Drag::Cable;
        m_cable.clear();
        addToCable(at);
        return;
    }
    const int column = edgeNear(at.x(), m_lefts, origin().x());
    const int row = edgeNear(at.y(), m_tops, origin().y());
    if (column >= 0 || row >= 0) {
        m_drag = column >= 0 ? Drag::Column : Drag::Row;
        m_dragged = column >= 0 ? column : row;
        m_heldOrigin = origin();
        m_isHeld = true;
        return;
    }
    Place place;
    if (!findPlace(at, place))
        return select({});
    m_drag = Drag::Selection;
    m_current = place;
    if (keys & Qt::ControlModifier) {
        WallEdit::Places toggled = m_selection;
        if (!toggled.insert(place).second)
            toggled.erase(place);
        m_drag = Drag::None;
        m_anchor = place;
        select(toggled);
    } else if (keys & Qt::ShiftModifier) {
        select(between(m_anchor, place));
    } else {
        m_anchor = place;
        select({place});
    }
}

void WallCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        drag(event->pos());
    Place place = {-1, -1};
    findPlace(event->pos(), place);
    Q_EMIT pointed(place);
    if (m_tool != Tool::Select || m_drag == Drag::Selection)
        return;
    const bool isColumn = m_drag == Drag::Column || edgeNear(event->pos().x(), m_lefts, origin().x()) >= 0;
    const bool isRow = m_drag == Drag::Row || edgeNear(event->pos().y(), m_tops, origin().y()) >= 0;
    viewport()->setCursor(isColumn ? Qt::SplitHCursor : isRow ? Qt::SplitVCursor : Qt::ArrowCursor);
}

void WallCanvas::drag(const QPoint& at)
{
    const QPointF moved = QPointF(at - m_dragBegan) / m_zoom;
    Place place;
    switch (m_drag) {
    case Drag::Selection:
        if (findPlace(at, place))
            select(between(m_anchor, place));
        break;
    case Drag::Column:
        m_model->change(hostText(QStringLiteral("Size")),
                        WallEdit::widened(m_before, {{m_dragged, 0}}, qRound(moved.x())), m_dragSeries);
        break;
    case Drag::Row:
        m_model->change(hostText(QStringLiteral("Size")),
                        WallEdit::heightened(m_before, {{0, m_dragged}}, qRound(moved.y())), m_dragSeries);
        break;
    case Drag::Cable:
        addToCable(at);
        break;
    case Drag::None:
        break;
    }
}

void WallCanvas::endDrag()
{
    m_drag = Drag::None;
    m_cable.clear();
    if (!m_isHeld)
        return;
    m_isHeld = false;
    fit();
    redraw();
}

void WallCanvas::addToCable(const QPoint& at)
{
    Place place;
    if (!findPlace(at, place) || m_model->plan().cabinetAt(place) < 0 ||
        std::find(m_cable.begin(), m_cable.end(), place) != m_cable.end())
        return;
    m_cable.push_back(place);
    viewport()->update();
}

void WallCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const std::vector<Place> cable = m_cable;
    const bool isCable = m_drag == Drag::Cable && !cable.empty();
    endDrag();
    if (!isCable)
        return;
    const bool isData = m_tool == Tool::DataCable;
    m_model->change(
        hostText(QLatin1String(isData ? hostSource("Draw data cable") : hostSource("Draw power cable"))),
        WallEdit::withRun(m_model->wall(), isData ? WallEdit::Cable::Data : WallEdit::Cable::Power, cable));
    viewport()->update();
}
