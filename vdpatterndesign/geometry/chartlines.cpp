#include "geometry/chartlines.h"

namespace vardeno::testcharttools {

namespace {

/// With its baseline half its height and `below` under the origin.
ChartLine centredLine(const QSize& chart, const QString& text, int requested, int below)
{
    const FittedText fitted = fitText(text, requested, chart.width(), chart.height());
    return {fitted, {-(fitted.advance / 2), below + fitted.height / 2}};
}

} // namespace

QPointF chartLinesOrigin(const QSize& chart)
{
    const int middle = chart.width() / 2;
    return {qreal(middle), chart.height() / 1.5};
}

ChartLine customTextLine(const QSize& chart, const QString& text, int requested)
{
    return centredLine(chart, text, requested, 0);
}

ChartLine informationLine(const QSize& chart, const QString& text, int requested)
{
    return centredLine(chart, text, requested, chart.height() / 6);
}

QString informationText(const QSize& chart, const QString& resolutionCaption)
{
    return resolutionCaption + QStringLiteral(":%1*%2").arg(chart.width()).arg(chart.height());
}

QString informationText(const QSize& chart, const QString& resolutionCaption, const QString& cabinetsCaption,
                        quint32 cabinets)
{
    return informationText(chart, resolutionCaption) + QLatin1Char(' ') + cabinetsCaption + QLatin1Char(':') +
           QString::number(cabinets);
}

} // namespace vardeno::testcharttools
