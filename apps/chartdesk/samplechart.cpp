#include "samplechart.h"

#include <chartpicture.h>

#include <QPainter>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr int mostSamples = 8; ///< rows of the chart for one of the picture

} // namespace

QImage sampledRows(const QSize& whole, const QSize& size,
                   const std::function<QImage(int top, int count)>& rows)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int y = 0; y < size.height(); ++y) {
        const int top = int(qint64(whole.height()) * y / size.height());
        const int next = int(qint64(whole.height()) * (y + 1) / size.height());
        const int count = std::clamp(next - top, 1, mostSamples);
        const QImage sampled = rows(top + (next - top - count) / 2, count);
        painter.drawImage(0, y,
                          sampled.scaled(size.width(), 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return picture;
}

QImage sampledChart(const TestChartToolsData& record, const QSize& size)
{
    const ChartPicture chart(record);
    return sampledRows(chart.size(), size, [&chart](int top, int count) { return chart.rows(top, count); });
}
