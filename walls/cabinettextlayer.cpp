#include "cabinettextlayer.h"

#include "geometry/textfont.h"
#include "inkshapes.h"
#include "layers/textbatch.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <map>

namespace vardeno::walls {

namespace {

constexpr int measuredSize = 100; ///< font pixels
constexpr double widthShare = 0.86;
constexpr double heightShare = 0.26; ///< of a cabinet
const QColor plateColor(12, 12, 16, 190);

QFont sizedFont(int size)
{
    QFont font = testcharttools::textFont();
    font.setPixelSize(std::max(size, 1));
    return font;
}

/// The largest size in which a text of that width, measured at `measuredSize`, fits the cabinet.
int fittingSize(const QSize& cabinet, int width, int height)
{
    const double across = cabinet.width() * widthShare / std::max(width, 1);
    const double down = cabinet.height() * heightShare / std::max(height, 1);
    return int(measuredSize * std::min(across, down));
}

int padding(int size)
{
    return std::max(1, size / 5);
}

} // namespace

void CabinetTextLayer::fit(const QSize&)
{
    const QFontMetrics metrics(sizedFont(measuredSize));
    int common = size;
    for (Text& text : texts) {
        text.size = fittingSize(text.cabinet.size(), metrics.horizontalAdvance(text.text), metrics.height());
        if (!text.isSpecial)
            common = std::min(common, text.size);
    }
    for (Text& text : texts) {
        text.size = std::clamp(text.size, 1, std::max(common, 1));
        place(text);
    }
}

/// At the left, where no cable goes up or down through the cabinet's middle.
void CabinetTextLayer::place(Text& text) const
{
    const QFontMetrics metrics(sizedFont(text.size));
    const int pad = padding(text.size);
    const QSize plate(metrics.horizontalAdvance(text.text) + 2 * pad, metrics.height());
    const int gap = inset + std::max(1, std::min(text.cabinet.width(), text.cabinet.height()) / 32);
    const int top = below ? text.cabinet.bottom() + 1 - gap - plate.height() : text.cabinet.top() + gap;
    text.plate = QRect(QPoint(text.cabinet.left() + gap, top), plate);
}

void CabinetTextLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    std::map<int, std::vector<const Text*>> bySize;
    for (const Text& text : texts) {
        if (!text.plate.adjusted(-2, -2, 2, 2).intersects(area) || text.text.isEmpty())
            continue;
        drawInkBox(painter, plateColor, text.plate, padding(text.size), area);
        bySize[text.size].push_back(&text);
    }
    painter.setPen(color);
    for (const auto& [size, sized] : bySize) {
        painter.setFont(sizedFont(size));
        testcharttools::TextBatch batch(painter);
        for (const Text* text : sized)
            batch.add(text->plate, Qt::AlignCenter, text->text);
        batch.draw();
    }
}

} // namespace vardeno::walls
