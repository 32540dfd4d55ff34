#pragma once

#include "edgelayer.h"

#include <QString>

#include <vector>

namespace vardeno::walls {

/// A text in every cabinet, on a dark plate at the cabinet's upper or lower edge.
class CabinetTextLayer : public WallLayer
{
public:
    struct Text
    {
        QRect cabinet;
        QString text;
        bool isSpecial = false; ///< by itself smaller where it is too long; the others have one size
        int size = 1;           ///< font pixels; found by `fit`, and so is
        QRect plate;            ///< this
    };

    bool hasTexts() const override { return true; }
    void fit(const QSize& chart) override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    std::vector<Text> texts;
    bool below = false; ///< at the lower edge
    int size = 32;      ///< font pixels, fewer where cabinets are small
    int inset = 2;      ///< from the cabinet's edges, which have lines
    QColor color = Qt::white;

private:
    void place(Text& text) const;
};

} // namespace vardeno::walls
