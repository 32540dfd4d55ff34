#include "geometry/previewfit.h"

#include <cstdint>

namespace vardeno::testcharttools {

QRect fittedPreview(const QSize& view, const QSize& chart)
{
    if (view.isEmpty() || chart.isEmpty())
        return {};

    const auto heightFor = [&](int width) {
        return int(std::int64_t(width) * chart.height() / chart.width());
    };
    const auto widthFor = [&](int height) {
        return int(std::int64_t(height) * chart.width() / chart.height());
    };
    const QSize fullWidth(view.width(), heightFor(view.width()));
    const QSize fullHeight(widthFor(view.height()), view.height());

    // The first choice decides where rounding lets both candidates fit.
    const QSize fitted = view.height() >= view.width()
                             ? (fullWidth.height() <= view.height() ? fullWidth : fullHeight)
                             : (fullHeight.width() <= view.width() ? fullHeight : fullWidth);
    return {QPoint(view.width() / 2 - fitted.width() / 2, view.height() / 2 - fitted.height() / 2), fitted};
}

} // namespace vardeno::testcharttools
