#include "logosettingbox.h"

#include "controls/sliderentry.h"
#include "controls/textentry.h"
#include "paintpiclogowidget.h"
#include "painttextlogowidget.h"
#include "panels/fieldrange.h"
#include "panels/recordbinding.h"
#include "testcharttoolsdata.h"

#include <combobox.h>

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace vardeno::testcharttools {

namespace {

enum LogoPage
{
    PicturePage,
    TextPage
};

constexpr int logoHeight = 245;
constexpr QSize radioSize(115, 24);
constexpr int radioMargin = 2; ///< also of the radio buttons, whose indicators are not counted
constexpr QSize axisCaption(12, 24);
constexpr int storedTextSize = 100; ///< what the reset button sets on the text page

} // namespace

class LogoSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(LogoSettingBox* box)
        : owner(box)
    {
    }

    void build(PanelControls& controls);
    QWidget* buildPicturePage(PanelControls& controls);
    QLayout* buildHint(QWidget* page, PanelControls& controls);
    QWidget* buildTextPage(PanelControls& controls);
    void buildPlacementRows(SettingRows& rows);
    void bindControls();
    void bindPlacement();
    void pushPicture(const LogoChartData& data);
    void connectControls();
    void connectValues();

    bool isOn() const { return showButton->isChecked(); }
    bool onPicturePage() const { return pages->currentIndex() == PicturePage; }
    void showPage(LogoPage page);
    void showCurrentPainter();
    template <typename Value>
    void tellCurrent(void (PaintPicLogoWidget::*ofPicture)(Value), void (PaintTextLogoWidget::*ofText)(Value),
                     Value value);
    template <typename Value>
    void tellBoth(void (PaintPicLogoWidget::*ofPicture)(Value), void (PaintTextLogoWidget::*ofText)(Value),
                  Value value);

    QPushButton* showButton = nullptr;
    QRadioButton* pictureRadio = nullptr;
    QRadioButton* textRadio = nullptr;
    QStackedWidget* pages = nullptr;
    QPushButton* uploadButton = nullptr;
    SliderEntry scale;
    QPushButton* scaleReset = nullptr;
    QLineEdit* text = nullptr;
    SpinEditBox* textSize = nullptr;
    ColorRole textColor;
    ComboBox* position = nullptr;
    SpinEditBox* moveX = nullptr;
    SpinEditBox* moveY = nullptr;
    SliderEntry opacity;
    QPushButton* opacityReset = nullptr;
    QPointer<PaintPicLogoWidget> picturePainter;
    QPointer<PaintTextLogoWidget> textPainter;
    QPointer<QStackedWidget> logoStack;
    LogoSettingBox* owner;
    RecordBinding<LogoChartData> binding;
    bool positionChanged = false;

public Q_SLOTS:
    void slotLogoVisible(bool on);
    void slotChangeLogo();
    void slotChangeText();
    void slotUpdateLabelLocation(int index);
    void slotUploadLogo();
    void soltChangeTextInputLogo();
    void slotScaleLogo();
    void slotChangeScaleSlider();
    void slotChangeScaleSpinbox() { scale.entryFollows(); }
    void slotChangeOpacitySlider();
    void slotOpacityChangeSpinbox() { opacity.entryFollows(); }
    void slotChangeLogoOpacity();
    void slotXMoveLineedit();
    void slotYMoveLineedit();
    void slotChangeXY();
    void slotUpScaleSpinBoxSlider();
    void slotUpOpacitySpinBoxSlider();
    void slotXEditFinished(QString strOldName) { moveX->setValue(strOldName.toInt()); }
    void slotYEditFinished(QString strOldName) { moveY->setValue(strOldName.toInt()); }
    void slotScaleEditFinished(QString strOldName) { scale.entry->setValue(strOldName.toInt()); }
    void slotOpacityEditFinished(QString strOldName) { opacity.entry->setValue(strOldName.toInt()); }
    void slotTextLogoSizeEditFinished(QString strOldName) { textSize->setValue(strOldName.toInt()); }
    void slotTextLogoEditFinished(QString strOldName);
    void slotLogoColor();
    void slotTextColor(bool checked) { textColor.keep(checked); }
};

void LogoSettingBox::Impl::build(PanelControls& controls)
{
    auto* column = new QVBoxLayout(owner);
    column->setContentsMargins(10, 0, 10, 7);
    column->setSpacing(6);
    const auto whenOn = [this] { return isOn(); };
    SettingRows rows(owner, controls, column, captionSize);
    rows.row(QStringLiteral("Show Logo")).toggle(showButton, true).named(QStringLiteral("Show the logo"));
    rows.row(QStringLiteral("Logo Style"))
        .radio(pictureRadio, QStringLiteral("Picture Logo"), radioSize, whenOn, radioMargin)
        .radio(textRadio, QStringLiteral("Text Logo"), radioSize, whenOn, radioMargin);
    pictureRadio->setChecked(true);
    pages = new QStackedWidget(owner);
    pages->setFixedWidth(410);
    controls.addWide(pages);
    pages->addWidget(buildPicturePage(controls));
    pages->addWidget(buildTextPage(controls));
    column->addWidget(pages);
    buildPlacementRows(rows);
    column->addStretch();
    column->addWidget(createRule(owner, "logoLine", 353, QFrame::HLine), 0, Qt::AlignCenter);
}

QWidget* LogoSettingBox::Impl::buildPicturePage(PanelControls& controls)
{
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("piclogoTmpWidget"));
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(5);
    const auto whenOn = [this] { return isOn(); };
    SettingRows rows(page, controls, column, captionSize);
    const SpinRange percents = rangeOf(&LogoChartData::scale).value(100);
    rows.row(QStringLiteral("UpLogo"))
        .button(uploadButton, QStringLiteral("Upload your logo"), QSize(120, 24),
                QStringLiteral("CancleButton"), whenOn);
    column->addLayout(buildHint(page, controls));
    rows.row(QStringLiteral("Scale Logo"))
        .slider(scale.slider, int(percents.maximum), whenOn)
        .named(QStringLiteral("Size of the logo in percent"))
        .spin(scale.entry, shortEntry, percents, whenOn)
        .named(QStringLiteral("Size of the logo in percent"))
        .iconButton(scaleReset, QStringLiteral(":/resources/images/icon_reset.png"), QStringLiteral("Reset"),
                    QStringLiteral("scalelogoBtn"), whenOn);
    scale.slider->setPageStep(0);
    return page;
}

QLayout* LogoSettingBox::Impl::buildHint(QWidget* page, PanelControls& controls)
{
    auto* spacer = new QLabel(page);
    spacer->setFixedSize(88, 12);
    controls.addFirstCaption(spacer, {88, 12});
    auto* icon = new QLabel(page);
    icon->setFixedSize(12, 12);
    icon->setPixmap(QPixmap(QStringLiteral(":/resources/images/suggest.png")));
    auto* hint = new QLabel(page);
    hint->setObjectName(QStringLiteral("_suggestLabel"));
    hint->setFixedWidth(200);
    controls.addSized(hint, {200, -1});
    hint->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    controls.captions.add(hint, QStringLiteral("SuggestTransparentbackgroundrecommended"));
    auto* row = new QHBoxLayout;
    row->setSpacing(0); // the spacer reaches to the controls
    row->addWidget(spacer);
    row->addWidget(icon);
    row->addSpacing(8);
    row->addWidget(hint);
    row->addStretch();
    return row;
}

QWidget* LogoSettingBox::Impl::buildTextPage(PanelControls& controls)
{
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("logoTmpWidget"));
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(5);
    const auto whenOn = [this] { return isOn(); };
    SettingRows rows(page, controls, column, captionSize);
    QPushButton* colorButton = nullptr;
    rows.row(QStringLiteral("Text Logo"))
        .text(text, QString::fromStdString(LogoChartData().logoText), QSize(266, 24), whenOn)
        .named(QStringLiteral("Text of the logo"));
    rows.row(QStringLiteral("Text Size"))
        .spacing(0)
        .gap(8)
        .spin(textSize, shortEntry,
              rangeOf(&LogoChartData::textSize).value(storedTextSize).suffix(QStringLiteral("px")), whenOn)
        .named(QStringLiteral("Size of the logo text"))
        .gap(12)
        .caption(QStringLiteral("Color"), captionSize)
        .gap(7)
        .swatch(colorButton, QStringLiteral("textColorBtn"), QStringLiteral("logo"), whenOn)
        .named(QStringLiteral("Color of the logo text"));
    textColor.init(colorButton, Qt::black, [this](const QColor& color) {
        if (textPainter)
            textPainter->setTextColor(color);
    });
    column->addStretch();
    return page;
}

void LogoSettingBox::Impl::buildPlacementRows(SettingRows& rows)
{
    const auto whenOn = [this] { return isOn(); };
    rows.row(QStringLiteral("Display Position"))
        .combo(position,
               {QStringLiteral("Center"), QStringLiteral("Left Up"), QStringLiteral("Left Down"),
                QStringLiteral("Right Up"), QStringLiteral("Right Down")},
               QSize(110, 24), whenOn)
        .named(QStringLiteral("Position of the logo"));
    position->installEventFilter(owner);
    rows.row(QStringLiteral("Position adjustment"))
        .caption(QStringLiteral("X"), axisCaption)
        .spin(moveX, shortEntry, rangeOf(&LogoChartData::offsetX), whenOn)
        .named(QStringLiteral("Sideways shift of the logo in pixels"))
        .caption(QStringLiteral("Y"), axisCaption)
        .spin(moveY, shortEntry, rangeOf(&LogoChartData::offsetY), whenOn)
        .named(QStringLiteral("Vertical shift of the logo in pixels"));
    const SpinRange percents = rangeOf(&LogoChartData::opacity).value(100);
    rows.row(QStringLiteral("Opacity"))
        .slider(opacity.slider, int(percents.maximum), whenOn)
        .named(QStringLiteral("Opacity of the logo in percent"))
        .spin(opacity.entry, shortEntry, percents, whenOn)
        .named(QStringLiteral("Opacity of the logo in percent"))
        .iconButton(opacityReset, QStringLiteral(":/resources/images/icon_reset.png"),
                    QStringLiteral("Reset"), QStringLiteral("logoOpacityBtn"), whenOn);
    opacity.slider->setPageStep(0);
}

/// The painters are told of every value but those that their controls tell them of anyway.
void LogoSettingBox::Impl::bindControls()
{
    using Data = LogoChartData;
    binding.bind(&Data::showLogo, showButton);
    binding.bind(&Data::pictureLogo, pictureRadio);
    binding.bind(&Data::textLogo, textRadio);
    binding.bind({}, [this](const Data& data) {
        scale.slider->setValue(data.scale);
        slotScaleLogo();
    });
    binding.bind(&Data::scale, scale.entry);
    bindPlacement();
    binding.bind(&Data::logoText, text);
    binding.bind(&Data::textSize, textSize, [this] { slotScaleLogo(); });
    binding.bind(&Data::textColor, textColor, [this](const QColor& color) { textColor.set(color); });
    binding.bind(
        [this](Data& data) {
            if (picturePainter && !picturePainter->showsDefaultPicLogo())
                data.picturePath = picturePainter->picPath();
        },
        [this](const Data& data) { pushPicture(data); });
}

void LogoSettingBox::Impl::bindPlacement()
{
    using Data = LogoChartData;
    binding.bind(&Data::displayPosition, position);
    binding.bind(&Data::offsetX, moveX, [this] {
        tellBoth(&PaintPicLogoWidget::setMoveX, &PaintTextLogoWidget::setMoveX, wholeValue(moveX));
    });
    binding.bind(&Data::offsetY, moveY, [this] {
        tellBoth(&PaintPicLogoWidget::setMoveY, &PaintTextLogoWidget::setMoveY, wholeValue(moveY));
    });
    binding.bind({}, [this](const Data& data) { opacity.slider->setValue(data.opacity); });
    binding.bind(&Data::opacity, opacity.entry, [this] {
        tellBoth(&PaintPicLogoWidget::setOpacity, &PaintTextLogoWidget::setOpacity, opacity.slider->value());
    });
}

/// The entry tells the text painter only of changes.
void LogoSettingBox::Impl::pushPicture(const LogoChartData& data)
{
    if (textPainter)
        textPainter->setText(text->text());
    if (picturePainter && data.picturePath.empty())
        picturePainter->setDefaultPicLogo();
    else if (picturePainter)
        picturePainter->setPicPath(data.picturePath);
}

void LogoSettingBox::Impl::connectControls()
{
    connect(showButton, &QPushButton::toggled, this, &Impl::slotTextColor);
    connect(showButton, &QPushButton::toggled, this, &Impl::slotLogoVisible);
    connect(pictureRadio, &QRadioButton::clicked, this, &Impl::slotChangeLogo);
    connect(textRadio, &QRadioButton::clicked, this, &Impl::slotChangeText);
    connect(position, QOverload<int>::of(&ComboBox::currentIndexChanged), this,
            &Impl::slotUpdateLabelLocation);
    connect(uploadButton, &QPushButton::clicked, this, &Impl::slotUploadLogo);
    connectValues();
    connect(scaleReset, &QPushButton::clicked, this, &Impl::slotUpScaleSpinBoxSlider);
    connect(opacityReset, &QPushButton::clicked, this, &Impl::slotUpOpacitySpinBoxSlider);
    connect(text, &QLineEdit::textChanged, this, &Impl::soltChangeTextInputLogo);
    connect(new TextEntryWatcher(text), &TextEntryWatcher::editFinished, this,
            &Impl::slotTextLogoEditFinished);
    connect(textSize, &SpinEditBox::valueChanged, this, &Impl::slotScaleLogo);
    connect(textColor.button(), &QPushButton::clicked, this, &Impl::slotLogoColor);
}

void LogoSettingBox::Impl::connectValues()
{
    connect(moveX, &SpinEditBox::valueChanged, this, &Impl::slotXMoveLineedit);
    connect(moveY, &SpinEditBox::valueChanged, this, &Impl::slotYMoveLineedit);
    connect(pages, &QStackedWidget::currentChanged, this, &Impl::slotChangeXY);
    connect(scale.slider, &QSlider::sliderReleased, this, &Impl::slotScaleLogo);
    connect(scale.entry, &SpinEditBox::valueChanged, this, &Impl::slotChangeScaleSlider);
    connect(scale.slider, &QSlider::valueChanged, this, &Impl::slotChangeScaleSpinbox);
    connect(opacity.slider, &QSlider::sliderReleased, this, &Impl::slotChangeLogoOpacity);
    connect(opacity.slider, &QSlider::valueChanged, this, &Impl::slotOpacityChangeSpinbox);
    connect(opacity.entry, &SpinEditBox::valueChanged, this, &Impl::slotChangeOpacitySlider);
    connect(pages, &QStackedWidget::currentChanged, this, &Impl::slotChangeLogoOpacity);
}

void LogoSettingBox::Impl::showPage(LogoPage page)
{
    pages->setCurrentIndex(page);
    if (logoStack)
        logoStack->setCurrentIndex(page);
    showCurrentPainter();
}

/// The painter of the current page is visible while the logo is on, the other one never.
void LogoSettingBox::Impl::showCurrentPainter()
{
    if (picturePainter)
        picturePainter->setVisible(isOn() && onPicturePage());
    if (textPainter)
        textPainter->setVisible(isOn() && !onPicturePage());
}

template <typename Value>
void LogoSettingBox::Impl::tellCurrent(void (PaintPicLogoWidget::*ofPicture)(Value),
                                       void (PaintTextLogoWidget::*ofText)(Value), Value value)
{
    if (onPicturePage() && picturePainter)
        (picturePainter->*ofPicture)(value);
    else if (!onPicturePage() && textPainter)
        (textPainter->*ofText)(value);
}

template <typename Value>
void LogoSettingBox::Impl::tellBoth(void (PaintPicLogoWidget::*ofPicture)(Value),
                                    void (PaintTextLogoWidget::*ofText)(Value), Value value)
{
    if (picturePainter)
        (picturePainter->*ofPicture)(value);
    if (textPainter)
        (textPainter->*ofText)(value);
}

void LogoSettingBox::Impl::slotLogoVisible(bool on)
{
    owner->controls().update();
    showCurrentPainter();
    textColor.show(on);
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotChangeLogo()
{
    showPage(PicturePage);
    if (picturePainter)
        picturePainter->render();
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotChangeText()
{
    showPage(TextPage);
    if (textPainter)
        textPainter->render();
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotUpdateLabelLocation(int)
{
    moveX->setValue(0); // a new anchor starts without a shift
    moveY->setValue(0);
    const QVariant data = position->currentData();
    if (data.isValid() && data.toInt() >= 0 && data.toInt() <= 4)
        tellBoth(&PaintPicLogoWidget::setPosition, &PaintTextLogoWidget::setPosition, data.toInt());
    positionChanged = true;
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotUploadLogo()
{
    if (picturePainter)
        picturePainter->uploadPicLogo();
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::soltChangeTextInputLogo()
{
    if (textPainter)
        textPainter->setText(text->text());
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotScaleLogo()
{
    if (picturePainter)
        picturePainter->setScale(scale.slider->value());
    if (textPainter)
        textPainter->setTextSize(wholeValue(textSize));
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotChangeScaleSlider()
{
    if (scale.sliderFollows())
        slotScaleLogo();
}

void LogoSettingBox::Impl::slotChangeOpacitySlider()
{
    if (opacity.sliderFollows())
        slotChangeLogoOpacity();
}

void LogoSettingBox::Impl::slotChangeLogoOpacity()
{
    opacity.entryFollows();
    tellCurrent(&PaintPicLogoWidget::setOpacity, &PaintTextLogoWidget::setOpacity, opacity.slider->value());
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotXMoveLineedit()
{
    tellCurrent(&PaintPicLogoWidget::setMoveX, &PaintTextLogoWidget::setMoveX, wholeValue(moveX));
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotYMoveLineedit()
{
    tellCurrent(&PaintPicLogoWidget::setMoveY, &PaintTextLogoWidget::setMoveY, wholeValue(moveY));
    Q_EMIT owner->logoSignal();
}

void LogoSettingBox::Impl::slotChangeXY()
{
    slotXMoveLineedit();
    slotYMoveLineedit();
}

void LogoSettingBox::Impl::slotUpScaleSpinBoxSlider()
{
    if (onPicturePage()) {
        scale.entry->setValue(100);
        scale.slider->setValue(100);
    } else {
        textSize->setValue(storedTextSize);
    }
    slotScaleLogo();
}

void LogoSettingBox::Impl::slotUpOpacitySpinBoxSlider()
{
    opacity.entry->setValue(100);
    opacity.slider->setValue(100);
    slotChangeLogoOpacity();
}

void LogoSettingBox::Impl::slotTextLogoEditFinished(QString strOldName)
{
    if (text->text().isEmpty())
        text->setText(strOldName);
}

void LogoSettingBox::Impl::slotLogoColor()
{
    textColor.beginPicking();
    Q_EMIT owner->logoColorSingal(textColor.button());
}

LogoSettingBox::LogoSettingBox(QWidget* parent)
    : SettingPanel(logoHeight, parent)
    , d(new Impl(this))
{
    setObjectName(QStringLiteral("logosettingbox"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("QWidget#logosettingbox{border-left : 1px solid #535465; border-right : 1px solid "
                       "#535465;}"));
    setFixedWidth(410);
    connect(this, &LogoSettingBox::logoSignal, this, &SettingPanel::changed);
    connect(this, &LogoSettingBox::logoColorSingal, this, &SettingPanel::colorRequested);
    d->build(controls());
    d->bindControls();
    d->connectControls();
    SettingPanel::retranslate();
}

LogoSettingBox::~LogoSettingBox() = default;

void LogoSettingBox::setPicLogoWidget(PaintPicLogoWidget* painter)
{
    if (!painter)
        return;
    d->picturePainter = painter;
    painter->setDefaultPicLogo();
}

void LogoSettingBox::setTextLogoWidget(PaintTextLogoWidget* painter)
{
    if (!painter)
        return;
    d->textPainter = painter;
    painter->render();
}

void LogoSettingBox::setLogoStack(QStackedWidget* stack)
{
    if (stack)
        d->logoStack = stack;
}

LogoChartData LogoSettingBox::getData() const
{
    LogoChartData data;
    d->binding.collect(data);
    return data;
}

void LogoSettingBox::setData(const LogoChartData& data)
{
    d->binding.push(data);
    // The radio buttons tell of clicks only.
    d->showPage(d->textRadio->isChecked() ? TextPage : PicturePage);
    Q_EMIT logoSignal();
}

void LogoSettingBox::setTextLogoColor(const QColor& color)
{
    d->textColor.set(color);
    Q_EMIT logoSignal();
}

void LogoSettingBox::restoreTextLogoColor()
{
    if (d->textColor.beforePicking().isValid())
        setTextLogoColor(d->textColor.beforePicking());
}

void LogoSettingBox::retranslate()
{
    SettingPanel::retranslate();
    if (d->picturePainter)
        d->picturePainter->translateTitle();
}

void LogoSettingBox::collectInto(TestChartToolsData& record) const
{
    record.logoData = getData();
}

void LogoSettingBox::pushFrom(const TestChartToolsData& record)
{
    setData(record.logoData);
}

void LogoSettingBox::setRoleColor(const QString& role, const QColor& color)
{
    if (role == QLatin1String("logo"))
        setTextLogoColor(color);
}

/// The wheel scrolls the column rather than changing the anchor, which would undo the shift, unless the box
/// has the focus.
bool LogoSettingBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->position && event->type() == QEvent::Wheel && !d->position->hasFocus()) {
        event->ignore();
        return true;
    }
    return SettingPanel::eventFilter(watched, event);
}

void LogoSettingBox::focusAfterLock(bool locked)
{
    if (locked)
        SettingPanel::focusAfterLock(locked);
}

} // namespace vardeno::testcharttools

#include "logosettingbox.moc"
