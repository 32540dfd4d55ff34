#include "geometry/fittedtext.h"

#include "geometry/textfont.h"

#include <QFontMetrics>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

FittedText measured(const QString& text, int pixelSize)
{
    QFont font = textFont();
    if (pixelSize > 0) // a size of 0 would only warn and change nothing
        font.setPixelSize(pixelSize);
    font.setFamily(
        QStringLiteral("Arail")); // as it is written in every chart: the system's fallback draws it
    const QFontMetrics metrics(font);
    return {font, pixelSize, metrics.horizontalAdvance(text), metrics.height()};
}

} // namespace

FittedText fitText(const QString& text, int requested, double widthLimit, double heightLimit)
{
    const bool proportional =
        !text.contains(QLatin1Char('\t')); // the stops of tabulators stay where they are
    FittedText fitted = measured(text, requested);
    while ((fitted.advance > widthLimit || fitted.height > heightLimit) && fitted.pixelSize >= 1) {
        // Both grow with the size, but for the rounding of a pixel and of every character: what is in between
        // cannot fit either.
        const double scale =
            std::min({1.0, (heightLimit + 2) / std::max(fitted.height - 1, 1),
                      (widthLimit + 2.0 * text.size()) / std::max(fitted.advance - int(text.size()), 1)});
        const int smaller = fitted.pixelSize - 1;
        const int next = proportional ? std::min(smaller, int(fitted.pixelSize * scale) + 1) : smaller;
        if (next == 0)
            fitted.pixelSize = 0;
        else
            fitted = measured(text, next);
    }
    return fitted;
}

QRect lineReach(const FittedText& line, const QString& text)
{
    const int spare = line.height;
    const QRect told = QFontMetrics(line.font).boundingRect(text) | QRect(0, 0, line.advance, 1);
    return told.adjusted(-spare, -spare, spare, spare);
}

} // namespace vardeno::testcharttools
