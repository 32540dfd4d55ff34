#pragma once

#include "outputpattern.h"

#include <QColor>
#include <QSize>

#include <vector>

/// The whole chart in one colour, one after the other.
class ColorPattern : public OutputPattern
{
public:
    ColorPattern(const QSize& chart, const std::vector<QColor>& colors);

    /// Red, green, blue, white and black.
    static std::vector<QColor> primaries();
    /// From black to white, even steps.
    static std::vector<QColor> greys();

    QColor color(int step) const { return m_colors.at(size_t(step)); }
    int steps() const override { return int(m_colors.size()); }
    QRegion chartPart(int, const QRect&) const override { return {}; }
    void draw(QPainter& painter, int step, const QRect& place) const override;
    QRegion changed(int from, int to) const override;
    QString text(int step) const override;

private:
    QRect m_chart;
    std::vector<QColor> m_colors;
};
