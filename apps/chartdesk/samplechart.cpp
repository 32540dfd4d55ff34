#include "samplechart.h"

#include <chartpicture.h>

#include <QPainter>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr int mostSamples = 8; ///< rows of the chart for one of the picture

} // namespace

QImage sampledChart(const TestChartToolsData& record, const QSize& size)
{
    const ChartPicture chart(record);
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int y = 0; y < size.height(); ++y) {
        const int top = int(qint64(chart.size().height()) * y / size.height());
        const int next = int(qint64(chart.size().height()) * (y + 1) / size.height());
        const int count = std::clamp(next - top, 1, mostSamples);
        const QImage rows = chart.rows(top + (next - top - count) / 2, count);
        painter.drawImage(0, y,
                          rows.scaled(size.width(), 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return picture;
}
