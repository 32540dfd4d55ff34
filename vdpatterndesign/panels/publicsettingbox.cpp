#include "publicsettingbox.h"

#include "controls/sliderentry.h"
#include "controls/swatch.h"
#include "controls/wholevalue.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "panels/settingrows.h"
#include "testcharttoolsdata.h"

#include <spineditbox.h>

#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int smallestResolution = 16;
constexpr int usualHeight = 160;
constexpr QSize captionSize(80, 24);
constexpr QSize shortEntry(70, 24);
constexpr QSize entrySize(110, 24);

} // namespace

class PublicSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(PublicSettingBox* box)
        : owner(box)
    {
    }

    void buildRows(PanelControls& controls);
    void connectControls();
    void showBorderColor(const QColor& color);

    SliderEntry brightness;
    QPushButton* brightReset = nullptr;
    SpinEditBox* width = nullptr;
    SpinEditBox* height = nullptr;
    SpinEditBox* row = nullptr;
    SpinEditBox* col = nullptr;
    QCheckBox* borderSwitch = nullptr;
    SpinEditBox* borderWidth = nullptr;
    QPushButton* borderColor = nullptr;
    QPointer<PaintPublicWidget> borderPainter;
    QPointer<PaintPublicBrightWidget> brightPainter;
    PublicSettingBox* owner;
    QColor colorBeforePicking;
    SwitchedSwatch borderSwatch;

public Q_SLOTS:
    void slotAdjustBrightnessChangeLineedit() { brightness.entryFollows(); }
    void slotAdjustBrightness();
    void slotChangeSlider();
    void slotResetSliderAndLineedit();
    void slotOutLineWidth();
    void slotSelectColor();
    void slotOutLineWidthColor(bool bChecked) { borderSwatch.keep(bChecked); }
    void slotSetOutLineVisible(bool bChecked);
    void slotEmitSignal();
    void slotSetRow();
    void slotSetCol();
    void slotResolutionWidthEditFinished() {}
    void slotResolutionHeightEditFinished() {}
    void slotOutLineWidthEditFinished() {}
    void slotBoxRowEditFinished() {}
    void slotBoxColEditFinished() {}
    void slotResetResolutionWidthEditFinished(QString strOldName);
    void slotResetResolutionHeightEditFinished(QString strOldName);
};

void PublicSettingBox::Impl::buildRows(PanelControls& controls)
{
    auto* inner = new QWidget(owner);
    inner->setObjectName(QStringLiteral("publicWidget"));
    inner->setStyleSheet(
        QStringLiteral("QWidget#publicWidget{border-left : 1px solid #535465; border-right : 1px "
                       "solid #535465; border-bottom : 1px solid #535465}"));
    auto* column = new QVBoxLayout(inner);
    column->setContentsMargins(10, 7, 10, 7);
    column->setSpacing(5);

    const auto whenBorderOn = [this] { return borderSwitch->isChecked(); };
    SettingRows rows(inner, controls, column, captionSize);
    rows.row(QStringLiteral("Brightness"))
        .slider(brightness.slider, 100)
        .named(QStringLiteral("Brightness in percent"))
        .spin(brightness.entry, shortEntry, range(0, 100).value(100))
        .named(QStringLiteral("Brightness in percent"))
        .iconButton(brightReset, QStringLiteral(":/resources/images/icon_reset.png"), QStringLiteral("Reset"),
                    QStringLiteral("BrightResetBtn"));
    rows.row(QStringLiteral("Resolution"))
        .spin(width, shortEntry, range(smallestResolution, 4320).value(1920))
        .named(QStringLiteral("Chart width in pixels"))
        .spin(height, shortEntry, range(smallestResolution, 4320).value(1080))
        .named(QStringLiteral("Chart height in pixels"));
    rows.row(QStringLiteral("Box RowColNum"))
        .spin(row, shortEntry, range(1, 100).value(9))
        .named(QStringLiteral("Rows of cabinets"))
        .spin(col, shortEntry, range(1, 100).value(16))
        .named(QStringLiteral("Columns of cabinets"));
    row->setObjectName(QStringLiteral("Row"));
    col->setObjectName(QStringLiteral("Col"));
    rows.row(QStringLiteral("OutBorder")).toggle(borderSwitch, true).named(QStringLiteral("Show the border"));
    rows.row(QStringLiteral("BorderWidth"))
        .spin(borderWidth, entrySize, range(1, 100).value(6).suffix(QStringLiteral("px")), whenBorderOn)
        .named(QStringLiteral("Width of the border"))
        .caption(QStringLiteral("Color"), captionSize)
        .swatch(borderColor, QStringLiteral("outLineColorButton"), QStringLiteral("outLineColorButton"),
                whenBorderOn)
        .named(QStringLiteral("Color of the border"));
    borderSwatch = SwitchedSwatch(borderColor);
    borderSwatch.paint(Qt::white);

    auto* outer = new QVBoxLayout(owner);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(inner);
}

void PublicSettingBox::Impl::connectControls()
{
    connect(brightness.slider, &QSlider::valueChanged, this, &Impl::slotAdjustBrightnessChangeLineedit);
    connect(brightness.slider, &QSlider::sliderReleased, this, &Impl::slotAdjustBrightness);
    connect(brightness.entry, &SpinEditBox::valueChanged, this, &Impl::slotChangeSlider);
    connect(brightReset, &QPushButton::clicked, this, &Impl::slotResetSliderAndLineedit);
    connect(borderWidth, &SpinEditBox::valueChanged, this, &Impl::slotOutLineWidth);
    connect(borderColor, &QPushButton::clicked, this, &Impl::slotSelectColor);
    connect(borderSwitch, &QCheckBox::toggled, this, &Impl::slotOutLineWidthColor);
    connect(borderSwitch, &QCheckBox::toggled, this, &Impl::slotSetOutLineVisible);
    connect(width, &SpinEditBox::valueChanged, this, &Impl::slotEmitSignal);
    connect(height, &SpinEditBox::valueChanged, this, &Impl::slotEmitSignal);
    connect(row, &SpinEditBox::valueChanged, this, &Impl::slotSetRow);
    connect(col, &SpinEditBox::valueChanged, this, &Impl::slotSetCol);
}

void PublicSettingBox::Impl::showBorderColor(const QColor& color)
{
    borderSwatch.paint(color);
    if (borderPainter)
        borderPainter->setOutLineColor(color);
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotAdjustBrightness()
{
    if (brightPainter)
        brightPainter->setBrightness(ushort(brightness.slider->value()));
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotChangeSlider()
{
    if (brightness.sliderFollows())
        slotAdjustBrightness();
}

void PublicSettingBox::Impl::slotResetSliderAndLineedit()
{
    brightness.set(100);
    slotAdjustBrightness();
}

void PublicSettingBox::Impl::slotOutLineWidth()
{
    if (borderPainter)
        borderPainter->setOutLineWidth(wholeValue(borderWidth));
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotSelectColor()
{
    colorBeforePicking = swatchColor(borderColor);
    Q_EMIT owner->colorBtnSignal(borderColor);
}

void PublicSettingBox::Impl::slotSetOutLineVisible(bool bChecked)
{
    if (borderPainter)
        borderPainter->setOutLineVisible(bChecked);
    owner->controls().update();
    borderSwatch.show(bChecked);
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotEmitSignal()
{
    Q_EMIT owner->resolutionSignal();
    Q_EMIT owner->editingFinished();
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotSetRow()
{
    if (borderPainter)
        borderPainter->setRows(ushort(wholeValue(row)));
    Q_EMIT owner->rowSignal(wholeValue(row));
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotSetCol()
{
    if (borderPainter)
        borderPainter->setColumns(ushort(wholeValue(col)));
    Q_EMIT owner->colSignal(wholeValue(col));
    Q_EMIT owner->publicSignal();
}

void PublicSettingBox::Impl::slotResetResolutionWidthEditFinished(QString)
{
    width->setValue(std::max<double>(width->value(), smallestResolution));
}

void PublicSettingBox::Impl::slotResetResolutionHeightEditFinished(QString)
{
    height->setValue(std::max<double>(height->value(), smallestResolution));
}

PublicSettingBox::PublicSettingBox(QWidget* parent)
    : SettingPanel(usualHeight, parent)
    , d(new Impl(this))
{
    setFixedWidth(410);
    connect(this, &PublicSettingBox::publicSignal, this, &SettingPanel::changed);
    connect(this, &PublicSettingBox::colorBtnSignal, this, &SettingPanel::colorRequested);
    d->buildRows(controls());
    d->connectControls();
    retranslate();
}

PublicSettingBox::~PublicSettingBox() = default;

void PublicSettingBox::setPaintPublicWidget(PaintPublicWidget* painter)
{
    if (painter)
        d->borderPainter = painter;
}

void PublicSettingBox::setPaintPublicBrightWidget(PaintPublicBrightWidget* painter)
{
    if (painter)
        d->brightPainter = painter;
}

PublicChartData PublicSettingBox::getData() const
{
    PublicChartData data;
    data.brightness = wholeValue(d->brightness.entry);
    data.resolutionWidth = resolutionWidth();
    data.resolutionHeight = resolutionHeight();
    data.boxRow = wholeValue(d->row);
    data.boxCol = wholeValue(d->col);
    data.showOutBorder = d->borderSwitch->isChecked();
    data.outBorderWidth = wholeValue(d->borderWidth);
    data.outBorderColor = toRgbaColor(d->borderSwatch.color());
    return data;
}

void PublicSettingBox::setData(const PublicChartData& data)
{
    // In this order, each only where it differs. Painters and shell follow through the controls' own signals;
    // a changed row or column is announced once more.
    if (d->brightness.slider->value() != data.brightness) {
        d->brightness.slider->setValue(data.brightness);
        if (d->brightPainter) // even while the slider is held
            d->brightPainter->setBrightness(ushort(d->brightness.slider->value()));
    }
    d->height->setValue(data.resolutionHeight);
    d->width->setValue(data.resolutionWidth);
    if (wholeValue(d->row) != data.boxRow) {
        d->row->setValue(data.boxRow);
        d->slotSetRow();
    }
    if (wholeValue(d->col) != data.boxCol) {
        d->col->setValue(data.boxCol);
        d->slotSetCol();
    }
    d->borderWidth->setValue(data.outBorderWidth);
    d->brightness.entry->setValue(data.brightness);
    d->brightness.entry->setProperty("lastValue", d->brightness.entry->value());
    d->borderSwitch->setChecked(data.showOutBorder);
    const QColor color = toQColor(data.outBorderColor);
    if (color != d->borderSwatch.color())
        d->showBorderColor(color);
}

void PublicSettingBox::setBrightnessValue(int percent)
{
    d->brightness.setQuietly(percent);
    d->brightness.entry->setProperty("lastValue", d->brightness.entry->value());
}

int PublicSettingBox::resolutionWidth() const
{
    return std::max(wholeValue(d->width), smallestResolution);
}

int PublicSettingBox::resolutionHeight() const
{
    return std::max(wholeValue(d->height), smallestResolution);
}

void PublicSettingBox::setOutLineColor(const QColor& color)
{
    d->showBorderColor(color);
}

void PublicSettingBox::restoreOutLineColor()
{
    if (d->colorBeforePicking.isValid())
        d->showBorderColor(d->colorBeforePicking);
}

void PublicSettingBox::collectInto(TestChartToolsData& record) const
{
    record.publicData = getData();
}

void PublicSettingBox::pushFrom(const TestChartToolsData& record)
{
    setData(record.publicData);
}

void PublicSettingBox::setRoleColor(const QString& role, const QColor& color)
{
    if (role == QLatin1String("outlineWidth"))
        setOutLineColor(color);
}

} // namespace vardeno::testcharttools

#include "publicsettingbox.moc"
