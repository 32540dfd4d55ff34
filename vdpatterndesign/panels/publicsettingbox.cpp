#include "publicsettingbox.h"

#include "controls/sliderentry.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "panels/fieldrange.h"
#include "panels/recordbinding.h"
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

constexpr int publicHeight = 160;

/// Whatever a host has made of the entries' ranges.
int smallestResolution()
{
    return int(rangeOf(&PublicChartData::resolutionWidth).minimum);
}

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
    void bindControls();
    void pushBrightness(int percent);
    void setBorderColor(const QColor& color);

    SliderEntry brightness;
    QPushButton* brightReset = nullptr;
    SpinEditBox* width = nullptr;
    SpinEditBox* height = nullptr;
    SpinEditBox* row = nullptr;
    SpinEditBox* col = nullptr;
    QCheckBox* borderSwitch = nullptr;
    SpinEditBox* borderWidth = nullptr;
    ColorRole borderColor;
    QPointer<PaintPublicWidget> borderPainter;
    QPointer<PaintPublicBrightWidget> brightPainter;
    PublicSettingBox* owner;
    RecordBinding<PublicChartData> binding;

public Q_SLOTS:
    void slotAdjustBrightnessChangeLineedit() { brightness.entryFollows(); }
    void slotAdjustBrightness();
    void slotChangeSlider();
    void slotResetSliderAndLineedit();
    void slotOutLineWidth();
    void slotSelectColor();
    void slotOutLineWidthColor(bool bChecked) { borderColor.keep(bChecked); }
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
    const SpinRange percents = rangeOf(&PublicChartData::brightness).value(100);
    QPushButton* colorButton = nullptr;
    SettingRows rows(inner, controls, column, captionSize);
    rows.row(QStringLiteral("Brightness"))
        .slider(brightness.slider, int(percents.maximum))
        .named(QStringLiteral("Brightness in percent"))
        .spin(brightness.entry, shortEntry, percents)
        .named(QStringLiteral("Brightness in percent"))
        .iconButton(brightReset, QStringLiteral(":/resources/images/icon_reset.png"), QStringLiteral("Reset"),
                    QStringLiteral("BrightResetBtn"));
    rows.row(QStringLiteral("Resolution"))
        .spin(width, shortEntry, rangeOf(&PublicChartData::resolutionWidth).value(1920))
        .named(QStringLiteral("Chart width in pixels"))
        .spin(height, shortEntry, rangeOf(&PublicChartData::resolutionHeight).value(1080))
        .named(QStringLiteral("Chart height in pixels"));
    rows.row(QStringLiteral("Box RowColNum"))
        .spin(row, shortEntry, rangeOf(&PublicChartData::boxRow).value(9))
        .named(QStringLiteral("Rows of cabinets"))
        .spin(col, shortEntry, rangeOf(&PublicChartData::boxCol).value(16))
        .named(QStringLiteral("Columns of cabinets"));
    row->setObjectName(QStringLiteral("Row"));
    col->setObjectName(QStringLiteral("Col"));
    rows.row(QStringLiteral("OutBorder")).toggle(borderSwitch, true).named(QStringLiteral("Show the border"));
    rows.row(QStringLiteral("BorderWidth"))
        .spin(borderWidth, entrySize,
              rangeOf(&PublicChartData::outBorderWidth).value(6).suffix(QStringLiteral("px")), whenBorderOn)
        .named(QStringLiteral("Width of the border"))
        .caption(QStringLiteral("Color"), captionSize)
        .swatch(colorButton, QStringLiteral("outLineColorButton"), QStringLiteral("outLineColorButton"),
                whenBorderOn)
        .named(QStringLiteral("Color of the border"));
    borderColor.init(colorButton, Qt::white, [this](const QColor& color) {
        if (borderPainter)
            borderPainter->setOutLineColor(color);
    });

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
    connect(borderColor.button(), &QPushButton::clicked, this, &Impl::slotSelectColor);
    connect(borderSwitch, &QCheckBox::toggled, this, &Impl::slotOutLineWidthColor);
    connect(borderSwitch, &QCheckBox::toggled, this, &Impl::slotSetOutLineVisible);
    connect(width, &SpinEditBox::valueChanged, this, &Impl::slotEmitSignal);
    connect(height, &SpinEditBox::valueChanged, this, &Impl::slotEmitSignal);
    connect(row, &SpinEditBox::valueChanged, this, &Impl::slotSetRow);
    connect(col, &SpinEditBox::valueChanged, this, &Impl::slotSetCol);
}

/// Each only where it differs. Painters and shell follow through the controls' own signals; a changed row or
/// column is announced once more.
void PublicSettingBox::Impl::bindControls()
{
    using Data = PublicChartData;
    binding.bind({}, [this](const Data& data) { pushBrightness(data.brightness); });
    binding.bind([this](Data& data) { data.resolutionHeight = owner->resolutionHeight(); },
                 [this](const Data& data) { height->setValue(data.resolutionHeight); });
    binding.bind([this](Data& data) { data.resolutionWidth = owner->resolutionWidth(); },
                 [this](const Data& data) { width->setValue(data.resolutionWidth); });
    const auto bindCount = [this](int Data::*count, SpinEditBox* entry, void (Impl::*announce)()) {
        binding.bind([=](Data& data) { data.*count = wholeValue(entry); },
                     [=](const Data& data) {
                         if (wholeValue(entry) == data.*count)
                             return;
                         entry->setValue(data.*count);
                         (this->*announce)();
                     });
    };
    bindCount(&Data::boxRow, row, &Impl::slotSetRow);
    bindCount(&Data::boxCol, col, &Impl::slotSetCol);
    binding.bind(&Data::outBorderWidth, borderWidth);
    binding.bind(&Data::brightness, brightness.entry,
                 [this] { brightness.entry->setProperty("lastValue", brightness.entry->value()); });
    binding.bind(&Data::showOutBorder, borderSwitch);
    binding.bind(&Data::outBorderColor, borderColor, [this](const QColor& color) {
        if (color != borderColor.color())
            setBorderColor(color);
    });
}

void PublicSettingBox::Impl::pushBrightness(int percent)
{
    if (brightness.slider->value() == percent)
        return;
    brightness.slider->setValue(percent);
    if (brightPainter) // even while the slider is held
        brightPainter->setBrightness(ushort(brightness.slider->value()));
}

void PublicSettingBox::Impl::setBorderColor(const QColor& color)
{
    borderColor.set(color);
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
    borderColor.beginPicking();
    Q_EMIT owner->colorBtnSignal(borderColor.button());
}

void PublicSettingBox::Impl::slotSetOutLineVisible(bool bChecked)
{
    if (borderPainter)
        borderPainter->setOutLineVisible(bChecked);
    owner->controls().update();
    borderColor.show(bChecked);
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
    width->setValue(std::max<double>(width->value(), smallestResolution()));
}

void PublicSettingBox::Impl::slotResetResolutionHeightEditFinished(QString)
{
    height->setValue(std::max<double>(height->value(), smallestResolution()));
}

PublicSettingBox::PublicSettingBox(QWidget* parent)
    : SettingPanel(publicHeight, parent)
    , d(new Impl(this))
{
    setFixedWidth(410);
    connect(this, &PublicSettingBox::publicSignal, this, &SettingPanel::changed);
    connect(this, &PublicSettingBox::colorBtnSignal, this, &SettingPanel::colorRequested);
    d->buildRows(controls());
    d->bindControls();
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
    d->binding.collect(data);
    return data;
}

void PublicSettingBox::setData(const PublicChartData& data)
{
    d->binding.push(data);
}

void PublicSettingBox::setBrightnessValue(int percent)
{
    d->brightness.setQuietly(percent);
    d->brightness.entry->setProperty("lastValue", d->brightness.entry->value());
}

int PublicSettingBox::resolutionWidth() const
{
    return std::max(wholeValue(d->width), smallestResolution());
}

int PublicSettingBox::resolutionHeight() const
{
    return std::max(wholeValue(d->height), smallestResolution());
}

void PublicSettingBox::setOutLineColor(const QColor& color)
{
    d->setBorderColor(color);
}

void PublicSettingBox::restoreOutLineColor()
{
    if (d->borderColor.beforePicking().isValid())
        d->setBorderColor(d->borderColor.beforePicking());
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
