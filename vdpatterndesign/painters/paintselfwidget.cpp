#include "paintselfwidget.h"

#include "geometry/chartlines.h"
#include "support/translation.h"
#include "testcharttoolsdata.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintSelfWidget::Impl : public QObject
{
public:
    QString infoText(const QSize& size) const;
    static int drawLine(QPainter& painter, const ChartLine& line, const QString& text, const QColor& color);

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
    if (!boxNumVisible)
        return informationText(size, resolutionCaption);
    return informationText(size, resolutionCaption, boxNumCaption, quint32(rows) * columns);
}

/// Draws `text` from the origin, and returns its fitted size.
int PaintSelfWidget::Impl::drawLine(QPainter& painter, const ChartLine& line, const QString& text,
                                    const QColor& color)
{
    painter.setPen(color);
    painter.setFont(line.fitted.font);
    painter.drawText(line.at, text);
    return line.fitted.pixelSize;
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
    painter.translate(chartLinesOrigin(size));
    if (d->selfTextVisible)
        d->fittedSelfTextSize = Impl::drawLine(painter, customTextLine(size, d->selfText, d->selfTextSize),
                                               d->selfText, d->selfTextColor);
    if (d->resolutionVisible) {
        const QString text = d->infoText(size);
        d->fittedResolutionSize =
            Impl::drawLine(painter, informationLine(size, text, d->resolutionSize), text, d->resolutionColor);
    }
}

void PaintSelfWidget::showEvent(QShowEvent* event)
{
    render();
    LayerPainter::showEvent(event);
}

} // namespace vardeno::testcharttools
