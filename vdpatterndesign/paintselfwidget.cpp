#include "paintselfwidget.h"

#include "common/fittedtext.h"
#include "common/translation.h"
#include "testcharttoolsdata.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintSelfWidget::Impl : public QObject
{
public:
    QString infoText(const QSize& size) const;
    int drawLine(QPainter& painter, const QSize& size, const QString& text, int requested,
                 const QColor& color, int below) const;

    bool selfTextVisible = true;
    bool boxNumVisible = true;
    bool resolutionVisible = true;
    QString selfText = QString::fromStdString(SelfChartData().selfText);
    QColor selfTextColor = Qt::black;
    QColor boxNumColor = Qt::black;
    QColor resolutionColor = Qt::black;
    ushort selfTextSize = 70;
    ushort resolutionSize = 50;
    ushort rows = 9;
    ushort columns = 16;
    int fittedSelfTextSize = 70;
    int fittedResolutionSize = 50;
    QString resolutionCaption;
    QString boxNumCaption;
};

QString PaintSelfWidget::Impl::infoText(const QSize& size) const
{
    const QString resolution =
        resolutionCaption + QStringLiteral(":%1*%2").arg(size.width()).arg(size.height());
    if (!boxNumVisible)
        return resolution;
    return resolution + QLatin1Char(' ') + boxNumCaption + QLatin1Char(':') +
           QString::number(quint32(rows) * columns);
}

/// Draws `text` with its baseline half its height and `below` under the origin, and returns its fitted size.
int PaintSelfWidget::Impl::drawLine(QPainter& painter, const QSize& size, const QString& text, int requested,
                                    const QColor& color, int below) const
{
    const FittedText fitted = fitText(text, requested, size.width(), size.height());
    painter.setPen(color);
    painter.setFont(fitted.font);
    painter.drawText(-(fitted.advance / 2), below + fitted.height / 2, text);
    return fitted.pixelSize;
}

PaintSelfWidget::PaintSelfWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintSelfWidget::~PaintSelfWidget() = default;

void PaintSelfWidget::setSelfTextVisible(bool visible)
{
    assign(d->selfTextVisible, visible);
}

void PaintSelfWidget::setSelfText(QString text)
{
    assign(d->selfText, text);
}

void PaintSelfWidget::setSelfTextColor(const QColor& color)
{
    assign(d->selfTextColor, color);
}

void PaintSelfWidget::setSelfTextSize(ushort pixelSize)
{
    assign(d->selfTextSize, pixelSize);
}

void PaintSelfWidget::setResolutionVisible(bool visible)
{
    assign(d->resolutionVisible, visible);
}

void PaintSelfWidget::setResolutionColor(const QColor& color)
{
    assign(d->resolutionColor, color);
}

void PaintSelfWidget::setResolutionSize(ushort pixelSize)
{
    assign(d->resolutionSize, pixelSize);
}

void PaintSelfWidget::setBoxNumVisible(bool visible)
{
    assign(d->boxNumVisible, visible);
}

void PaintSelfWidget::setBoxNumColor(const QColor& color)
{
    assign(d->boxNumColor, color);
}

void PaintSelfWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintSelfWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

int PaintSelfWidget::selfTextSize() const
{
    return d->fittedSelfTextSize;
}

int PaintSelfWidget::resolutionSize() const
{
    return d->fittedResolutionSize;
}

void PaintSelfWidget::retranslate()
{
    assign(d->resolutionCaption, translated(QStringLiteral("ResolutionShow")));
    assign(d->boxNumCaption, translated(QStringLiteral("BoxNumShow")));
}

void PaintSelfWidget::draw(QPainter& painter, const QSize& size)
{
    const int middle = size.width() / 2;
    painter.translate(middle, size.height() / 1.5);
    if (d->selfTextVisible)
        d->fittedSelfTextSize = d->drawLine(painter, size, d->selfText, d->selfTextSize, d->selfTextColor, 0);
    if (d->resolutionVisible)
        d->fittedResolutionSize = d->drawLine(painter, size, d->infoText(size), d->resolutionSize,
                                              d->resolutionColor, size.height() / 6);
}

void PaintSelfWidget::showEvent(QShowEvent* event)
{
    render();
    LayerPainter::showEvent(event);
}

} // namespace vardeno::testcharttools
