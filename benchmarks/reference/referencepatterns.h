#pragma once

#include "referencelayer.h"

class QListWidget;

namespace vardeno::testcharttools {

/// The bottom layer: chessboard, gradient or colour stripes.
class ReferenceBasic : public ReferenceLayer
{
    Q_OBJECT

public:
    void setMode(uint mode) { assign(m_mode, mode); }
    void setOddColor(const QColor& color) { assign(m_oddColor, color); }
    void setEvenColor(const QColor& color) { assign(m_evenColor, color); }
    void setRows(ushort rows) { assign(m_rows, rows); }
    void setColumns(ushort columns) { assign(m_columns, columns); }
    /// The list must outlive the layer. A change of its items is shown by the next paint.
    void setColorStripeList(QListWidget* list) { assign(m_colorStripeList, list); }

protected:
    bool draw(QPainter& painter) override;

private:
    bool drawChess(QPainter& painter) const;
    void drawGradient(QPainter& painter) const;
    void drawStripes(QPainter& painter) const;
    int colorCount() const;
    QColor colorAt(int row) const;

    uint m_mode = 0;
    QColor m_oddColor = QColor(0xff, 0xaa, 0xff);
    QColor m_evenColor = QColor(0x55, 0xaa, 0xff);
    QListWidget* m_colorStripeList = nullptr;
    ushort m_rows = 9;
    ushort m_columns = 16;
};

/// The brightness veil.
class ReferenceVeil : public ReferenceLayer
{
    Q_OBJECT

public:
    void setBrightness(ushort percent) { assign(m_brightness, percent); }

protected:
    bool draw(QPainter& painter) override;

private:
    ushort m_brightness = 100;
};

/// The outer border.
class ReferenceBorder : public ReferenceLayer
{
    Q_OBJECT

public:
    void setOutLineVisible(bool visible) { assign(m_outBorderVisible, visible); }
    void setOutLineWidth(int width) { assign(m_outLineWidth, width); }
    void setOutLineColor(const QColor& color) { assign(m_outLineColor, color); }
    void setRows(ushort rows) { assign(m_rows, rows); }
    void setColumns(ushort columns) { assign(m_columns, columns); }

protected:
    bool draw(QPainter& painter) override;

private:
    bool m_outBorderVisible = true;
    int m_outLineWidth = 6;
    QColor m_outLineColor = Qt::white;
    ushort m_rows = 9;
    ushort m_columns = 16;
};

} // namespace vardeno::testcharttools
