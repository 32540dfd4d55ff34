#include "editor/previewbar.h"

#include "chartpreview.h"
#include "panels/contentsize.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize leastButton(26, 24);
constexpr int gap = 4;
constexpr int wideGap = 14;

} // namespace

PreviewBar::PreviewBar(ChartPreview* preview, QWidget* parent)
    : QWidget(parent)
    , m_preview(preview)
{
    setObjectName(QStringLiteral("previewBar"));
    addButton(QStringLiteral("\u2212"), QStringLiteral("Zoom out"), &ChartPreview::zoomOut);
    m_scale = addReadout("previewScale", QStringLiteral("1600 %"));
    m_scale->setAlignment(Qt::AlignCenter);
    m_parts.back().gap = gap;
    addButton(QStringLiteral("+"), QStringLiteral("Zoom in"), &ChartPreview::zoomIn);
    addButton(QStringLiteral("1:1"), QStringLiteral("Show pixel for pixel"), &ChartPreview::showPixels);
    QPushButton* fitButton = addButton({}, QStringLiteral("Show the whole chart"), &ChartPreview::fitToView);
    m_captions.add(QStringLiteral("Fit"), [fitButton](const QString& text) { fitButton->setText(text); });
    m_parts.back().gap = wideGap;
    m_pixel = addReadout("previewPixel", QStringLiteral("x 00000  y 00000"));
    m_color = addReadout("previewColor", QStringLiteral("\u25a0 #DDDDDD"));
    m_cabinet = addReadout("previewCabinet", QStringLiteral("WW-WW"));
    connect(preview, &ChartPreview::scaleChanged, this, &PreviewBar::showScale);
    connect(preview, &ChartPreview::pointed, this, &PreviewBar::showPointed);
    showScale(preview->scale());
    retranslate();
}

QPushButton* PreviewBar::addButton(const QString& text, const QString& name, void (ChartPreview::*slot)())
{
    auto* button = new QPushButton(text, this);
    button->setFlat(true);
    connect(button, &QPushButton::clicked, m_preview, slot);
    m_captions.add(name, [button](const QString& translation) {
        button->setAccessibleName(translation);
        button->setToolTip(translation);
    });
    m_parts.push_back({button, {}, gap});
    return button;
}

QLabel* PreviewBar::addReadout(const char* objectName, const QString& widest)
{
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(objectName));
    m_parts.push_back({label, widest, wideGap});
    return label;
}

void PreviewBar::retranslate()
{
    m_captions.retranslate();
    m_preview->retranslate();
    fit();
}

void PreviewBar::fit()
{
    for (const Part& part : m_parts) {
        part.widget->ensurePolished();
        const QFontMetrics metrics = part.widget->fontMetrics();
        if (part.widest.isEmpty()) {
            const auto* button = static_cast<QPushButton*>(part.widget);
            part.widget->resize(textSize(button, button->text(), 12).expandedTo(leastButton));
        } else {
            part.widget->resize(metrics.horizontalAdvance(part.widest), metrics.height());
        }
    }
    updateGeometry();
    place();
}

QSize PreviewBar::sizeHint() const
{
    QSize size;
    for (const Part& part : m_parts)
        size = {size.width() + part.widget->width() + part.gap,
                std::max(size.height(), part.widget->height())};
    return size;
}

void PreviewBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void PreviewBar::place()
{
    int x = 0;
    for (const Part& part : m_parts) {
        part.widget->move(x, (height() - part.widget->height()) / 2);
        part.widget->setVisible(x + part.widget->width() <= width());
        x += part.widget->width() + part.gap;
    }
}

void PreviewBar::showScale(double scale)
{
    m_scale->setText(QString::number(scale * 100, 'f', scale < 0.1 ? 1 : 0) + QLatin1String(" %"));
}

void PreviewBar::showPointed(const QPoint& pixel, const QColor& color, const QString& cabinet)
{
    const bool onChart = color.isValid();
    m_pixel->setText(onChart ? QStringLiteral("x %1  y %2").arg(pixel.x()).arg(pixel.y()) : QString());
    m_color->setText(
        onChart
            ? QStringLiteral("<font color=\"%1\">\u25a0</font> %2").arg(color.name(), color.name().toUpper())
            : QString());
    m_cabinet->setText(cabinet);
}

} // namespace vardeno::testcharttools
