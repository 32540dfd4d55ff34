#pragma once

#include "referencelayer.h"

namespace vardeno::testcharttools {

/// How the cabinets of a grid are labelled.
struct ReferenceLabels
{
    ushort rows = 9;
    ushort columns = 16;
    uint mode = 0;
    uint sort = 0;
    uint position = 0;

    QString rowPart(int row) const;
    QString columnPart(int column) const;
    void drawCell(QPainter& painter, const QRect& cell, int row, int column) const;
};

/// What the two layers with cabinet labels have in common.
class ReferenceGridLayer : public ReferenceLayer
{
    Q_OBJECT

public:
    void setRows(ushort rows) { assign(m_labels.rows, rows); }
    void setColumns(ushort columns) { assign(m_labels.columns, columns); }

protected:
    double cellHeight() const { return height() / (ushort(m_labels.rows - 1) + 1.0); }
    double cellWidth() const { return width() / (ushort(m_labels.columns - 1) + 1.0); }
    /// Gives the painter its own font in the size, at most `requested`, in which two letters fit a cell.
    void setLabelFont(QPainter& painter, int requested) const;
    void drawLabels(QPainter& painter, const QColor& color) const;

    ReferenceLabels m_labels;
};

/// Diagonals, circles and cabinet labels.
class ReferenceInLine : public ReferenceGridLayer
{
    Q_OBJECT

public:
    void setCircleVisible(bool visible) { assign(m_circleVisible, visible); }
    void setCircleColor(const QColor& color) { assign(m_circleColor, color); }
    void setCircleLineWidth(ushort width) { assign(m_circleLineWidth, width); }
    void setCircleRadius(ushort radius) { assign(m_circleRadius, radius); }
    void setDiagonalVisible(bool visible) { assign(m_diagonalVisible, visible); }
    void setDiagonalColor(const QColor& color) { assign(m_diagonalColor, color); }
    void setDiagonalLineWidth(ushort width) { assign(m_diagonalLineWidth, width); }
    void setSerialVisible(bool visible) { assign(m_serialVisible, visible); }
    void setSerialColor(const QColor& color) { assign(m_serialColor, color); }
    void setSerialSize(ushort pixelSize) { assign(m_serialSize, pixelSize); }
    void setSerialMode(uint mode) { assign(m_labels.mode, mode); }
    void setSerialSort(uint sort) { assign(m_labels.sort, sort); }
    void setSerialPosition(uint position) { assign(m_labels.position, position); }

protected:
    bool draw(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void drawDiagonals(QPainter& painter) const;
    void drawCircles(QPainter& painter) const;

    QColor m_circleColor = QColor(0x00, 0xff, 0x00);
    QColor m_diagonalColor = QColor(0x00, 0xff, 0x00);
    ushort m_circleLineWidth = 6;
    ushort m_diagonalLineWidth = 6;
    ushort m_circleRadius = 535;
    bool m_circleVisible = true;
    bool m_diagonalVisible = true;
    bool m_serialVisible = true;
    ushort m_serialSize = 15;
    QColor m_serialColor = Qt::black;
};

/// Grid lines and cabinet labels.
class ReferenceSequence : public ReferenceGridLayer
{
    Q_OBJECT

public:
    void setRowColVisible(bool visible) { assign(m_rowColVisible, visible); }
    void setRowColColor(const QColor& color) { assign(m_rowColColor, color); }
    void setSequeVisible(bool visible) { assign(m_sequeVisible, visible); }
    void setSequeColor(const QColor& color) { assign(m_sequeColor, color); }
    void setSequeSize(ushort pixelSize) { assign(m_sequeSize, pixelSize); }
    void setShowModel(int model) { assign(m_labels.mode, uint(model)); }
    void setSortType(int sort) { assign(m_labels.sort, uint(sort)); }
    void setLocation(int location) { assign(m_labels.position, uint(location)); }

protected:
    bool draw(QPainter& painter) override;

private:
    void drawLines(QPainter& painter) const;

    bool m_rowColVisible = false;
    bool m_sequeVisible = false;
    ushort m_sequeSize = 15;
    QColor m_rowColColor = Qt::black;
    QColor m_sequeColor = Qt::black;
};

} // namespace vardeno::testcharttools
