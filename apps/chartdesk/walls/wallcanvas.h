#pragma once

#include "walledit.h"

#include <QAbstractScrollArea>
#include <QPixmap>

class WallModel;

/// The cabinets of a wall, to be selected and changed with mouse and keys:
///
/// - a click selects a cabinet or a hole, Ctrl adds to it, Shift and dragging select all between;
/// - the edges of columns and rows are dragged; arrows make the selected ones wider, narrower, higher and
/// lower by a
///   pixel, with Shift by ten; with Ctrl they go from cabinet to cabinet;
/// - with a cable in hand, dragging through cabinets draws a run;
/// - Ctrl and the wheel, + and - zoom from the whole wall to 64 pixels of the screen for one.
class WallCanvas : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Tool
    {
        Select,
        DataCable,
        PowerCable
    };

    explicit WallCanvas(WallModel* model, QWidget* parent = nullptr);

    void setTool(Tool tool);
    Tool tool() const { return m_tool; }

    const WallEdit::Places& selection() const { return m_selection; }
    void select(const WallEdit::Places& places);

    /// Pixels of the screen for one of the wall.
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    void showWhole();
    /// Where a place of the grid lies in the viewport.
    QRect rectOf(WallEdit::Place place) const;

public Q_SLOTS:
    void selectAll();
    void removeOrRestore();
    void turn();

Q_SIGNALS:
    void selectionChanged();
    /// Also while the wall is shown as a whole.
    void zoomChanged();
    /// The cabinet under the pointer; an invalid place for none.
    void pointed(WallEdit::Place place);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    enum class Drag
    {
        None,
        Selection,
        Column,
        Row,
        Cable
    };
    void takeWall();
    void fit();
    void updateBars();
    void redraw();
    QPointF origin() const;
    QPoint toWall(const QPoint& at) const;
    QRect toView(const QRect& wall) const;
    bool findPlace(const QPoint& at, WallEdit::Place& place) const;
    int edgeNear(int at, const std::vector<int>& edges, double first) const;
    const vardeno::walls::CabinetException* exceptionAt(WallEdit::Place place) const;
    WallEdit::Place cabinetPlace(WallEdit::Place place) const;
    WallEdit::Places between(WallEdit::Place one, WallEdit::Place other) const;
    void zoomAt(double zoom, const QPointF& at);
    void beginDrag(const QPoint& at, Qt::KeyboardModifiers keys);
    void drag(const QPoint& at);
    void endDrag();
    void addToCable(const QPoint& at);
    void moveCurrent(int columns, int rows, bool extends);
    void resizeSelection(int columns, int rows);
    bool handleZoomKey(int key);
    void drawScene();
    void drawCabinets(QPainter& painter, const QRect& seen);
    void drawNames(QPainter& painter, const QRect& seen);
    void drawRuns(QPainter& painter, bool isData);
    void drawSelection(QPainter& painter);
    void drawCable(QPainter& painter);

    WallModel* m_model;
    Tool m_tool = Tool::Select;
    double m_zoom = 1;
    bool m_isWhole = true;
    std::vector<int> m_lefts; ///< of the columns, in pixels of the wall, and the right edge
    std::vector<int> m_tops;
    std::vector<int> m_exceptions; ///< of the wall's list, by place: where the holes begin and end
    WallEdit::Places m_selection;
    WallEdit::Place m_current;
    WallEdit::Place m_anchor; ///< where a selection between two places began
    Drag m_drag = Drag::None;
    int m_dragged = 0; ///< the column or row
    QPoint m_dragBegan;
    int m_drags = 0;       ///< so far
    QString m_dragSeries;  ///< of changes: each drag is one step
    bool m_isHeld = false; ///< while an edge is dragged, the wall stays where it is under the pointer
    QPointF m_heldOrigin;
    vardeno::walls::WallDocument m_before; ///< the drag
    std::vector<WallEdit::Place> m_cable;
    QPixmap m_scene;
    bool m_isSceneOld = true;
};
