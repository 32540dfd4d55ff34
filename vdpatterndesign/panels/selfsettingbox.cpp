#include "selfsettingbox.h"

#include "controls/textentry.h"
#include "paintselfwidget.h"
#include "panels/fieldrange.h"
#include "panels/recordbinding.h"
#include "support/translation.h"
#include "testcharttoolsdata.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace vardeno::testcharttools {

namespace {

constexpr int selfHeight = 160;
constexpr QSize inputSize(266, 24);

} // namespace

class SelfSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(SelfSettingBox* box)
        : owner(box)
    {
    }

    void buildRows(PanelControls& controls);
    void connectControls();
    void bindControls();
    void initColor(ColorRole& role, QPushButton* button);
    ColorRole* roleOf(const QPushButton* button);
    QColor colorOf(const QPushButton* button);
    void setColor(const QColor& color, QPushButton* button);
    void tellColor(const QColor& color, const QPushButton* button);
    void tellTextSize();
    void tellResolutionSize();
    void switchGroup(ColorRole& role, bool on);

    QCheckBox* textSwitch = nullptr;
    QLineEdit* text = nullptr;
    SpinEditBox* textSize = nullptr;
    ColorRole textColor;
    QCheckBox* resolutionSwitch = nullptr;
    SpinEditBox* resolutionSize = nullptr;
    ColorRole resolutionColor;
    QPointer<PaintSelfWidget> painter;
    SelfSettingBox* owner;
    int rows = 9;
    int columns = 16;
    QSize resolution = QSize(1920, 1080);
    RecordBinding<SelfChartData> binding;

public Q_SLOTS:
    void slotResolutionVisible(bool bChecked);
    void slotChangeResolutionColor();
    void slotChangeResolutionSize();
    void slotUserDefineVisible(bool bChecked);
    void soltChangeSelfText();
    void soltChangeSelfTextSize(int value);
    void slotChangeSelfTextColor();
    void slotTextInputEditFinished(QString strOldName);
    void slotTextSizeEditFinished(QString strOldName) { textSize->setValue(strOldName.toInt()); }
    void slotResolutionEditFinished(QString strOldName) { resolutionSize->setValue(strOldName.toInt()); }
    void slotText(bool bChecked) { textColor.keep(bChecked); }
    void slotResolution(bool bChecked) { resolutionColor.keep(bChecked); }
    void slotBoxNum() {}
};

void SelfSettingBox::Impl::buildRows(PanelControls& controls)
{
    auto* inner = new QWidget(owner);
    inner->setObjectName(QStringLiteral("selfsettingbox"));
    inner->setStyleSheet(
        QStringLiteral("QWidget#selfsettingbox{border-left : 1px solid #535465; border-right : 1px "
                       "solid #535465;border-bottom : 1px solid #535465;}"));
    inner->setFixedWidth(410);
    controls.addWide(inner);
    auto* column = new QVBoxLayout(inner);
    column->setContentsMargins(10, 7, 10, 7);
    column->setSpacing(5);

    const auto whenTextOn = [this] { return textSwitch->isChecked(); };
    const auto whenResolutionOn = [this] { return resolutionSwitch->isChecked(); };
    const auto sizes = [](int SelfChartData::*size) {
        return rangeOf(size).value(50).suffix(QStringLiteral("px"));
    };
    QPushButton* textButton = nullptr;
    QPushButton* resolutionButton = nullptr;
    SettingRows rowsOf(inner, controls, column, captionSize);
    rowsOf.row(QStringLiteral("Display custom text"))
        .toggle(textSwitch, true)
        .named(QStringLiteral("Show the custom text"));
    rowsOf.row(QStringLiteral("Text Input"))
        .text(text, QString::fromStdString(SelfChartData().selfText), inputSize, whenTextOn)
        .named(QStringLiteral("Custom text"));
    text->setObjectName(QStringLiteral("selfInputLineEdit"));
    text->setMaxLength(recordfields::selfTextLength.most);
    rowsOf.row(QStringLiteral("Text Size"))
        .spin(textSize, entrySize, sizes(&SelfChartData::selfTextSize), whenTextOn)
        .named(QStringLiteral("Size of the custom text"))
        .caption(QStringLiteral("Color"), captionSize)
        .swatch(textButton, QStringLiteral("selfTextColorButton"), QStringLiteral("selfText"), whenTextOn)
        .named(QStringLiteral("Color of the custom text"));
    rowsOf.row(QStringLiteral("Show Resolution"))
        .toggle(resolutionSwitch, true)
        .named(QStringLiteral("Show the information line"));
    rowsOf.row(QStringLiteral("Show Size"))
        .spin(resolutionSize, entrySize, sizes(&SelfChartData::resolutionTextSize), whenResolutionOn)
        .named(QStringLiteral("Size of the information line"))
        .caption(QStringLiteral("Color"), captionSize)
        .swatch(resolutionButton, QStringLiteral("resolutionColorButton"), QStringLiteral("resolution"),
                whenResolutionOn)
        .named(QStringLiteral("Color of the information line"));
    initColor(textColor, textButton);
    initColor(resolutionColor, resolutionButton);

    auto* outer = new QVBoxLayout(owner);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(inner);
}

void SelfSettingBox::Impl::connectControls()
{
    connect(textSwitch, &QCheckBox::toggled, this, &Impl::slotText);
    connect(textSwitch, &QCheckBox::toggled, this, &Impl::slotUserDefineVisible);
    connect(text, &QLineEdit::textChanged, this, &Impl::soltChangeSelfText);
    connect(new TextEntryWatcher(text), &TextEntryWatcher::editFinished, this,
            &Impl::slotTextInputEditFinished);
    connect(textSize, &SpinEditBox::valueChanged, this, &Impl::soltChangeSelfTextSize);
    connect(textColor.button(), &QPushButton::clicked, this, &Impl::slotChangeSelfTextColor);
    connect(resolutionSwitch, &QCheckBox::toggled, this, &Impl::slotResolution);
    connect(resolutionSwitch, &QCheckBox::toggled, this, &Impl::slotResolutionVisible);
    connect(resolutionSize, &SpinEditBox::valueChanged, this, &Impl::slotChangeResolutionSize);
    connect(resolutionColor.button(), &QPushButton::clicked, this, &Impl::slotChangeResolutionColor);
}

void SelfSettingBox::Impl::bindControls()
{
    using Data = SelfChartData;
    const auto bindColor = [this](RgbaColor Data::*member, ColorRole& role) {
        binding.bind(member, role, [this, &role](const QColor& color) { setColor(color, role.button()); });
    };
    binding.bind(&Data::showSelfText, textSwitch);
    binding.bind(&Data::selfText, text);
    binding.bind(&Data::selfTextSize, textSize, [this] { tellTextSize(); });
    bindColor(&Data::selfTextColor, textColor);
    binding.bind(&Data::showResolution, resolutionSwitch);
    binding.bind(&Data::resolutionTextSize, resolutionSize, [this] { tellResolutionSize(); });
    bindColor(&Data::resolutionTextColor, resolutionColor);
}

void SelfSettingBox::Impl::initColor(ColorRole& role, QPushButton* button)
{
    role.init(button, Qt::black, [this, button](const QColor& color) { tellColor(color, button); });
}

/// Null for a button that is none of the panel's own.
ColorRole* SelfSettingBox::Impl::roleOf(const QPushButton* button)
{
    if (button == textColor.button())
        return &textColor;
    return button == resolutionColor.button() ? &resolutionColor : nullptr;
}

QColor SelfSettingBox::Impl::colorOf(const QPushButton* button)
{
    const ColorRole* role = roleOf(button);
    return role ? role->color() : swatchColor(button);
}

/// Tells the painter in any case, and the shell of a change.
void SelfSettingBox::Impl::setColor(const QColor& color, QPushButton* button)
{
    const bool differs = color != colorOf(button);
    if (ColorRole* role = roleOf(button)) {
        role->set(color);
    } else {
        paintSwatch(button, color);
        tellColor(color, button);
    }
    if (differs)
        Q_EMIT owner->selfSignal();
}

void SelfSettingBox::Impl::tellColor(const QColor& color, const QPushButton* button)
{
    const QString role = button->property("btnProperty").toString();
    if (!painter)
        return;
    if (role == QLatin1String("selfText"))
        painter->setSelfTextColor(color);
    else if (role == QLatin1String("resolution"))
        painter->setResolutionColor(color);
    else if (role == QLatin1String("boxnum"))
        painter->setBoxNumColor(color);
}

/// What a group's switch does besides its line's visibility.
void SelfSettingBox::Impl::switchGroup(ColorRole& role, bool on)
{
    owner->controls().update();
    role.show(on);
    Q_EMIT owner->selfSignal();
}

void SelfSettingBox::Impl::slotResolutionVisible(bool bChecked)
{
    if (painter)
        painter->setResolutionVisible(bChecked);
    switchGroup(resolutionColor, bChecked);
}

void SelfSettingBox::Impl::slotChangeResolutionColor()
{
    resolutionColor.beginPicking();
    Q_EMIT owner->resolutionSignal(resolutionColor.button());
}

void SelfSettingBox::Impl::tellTextSize()
{
    if (painter)
        painter->setSelfTextSize(ushort(wholeValue(textSize)));
}

void SelfSettingBox::Impl::tellResolutionSize()
{
    if (painter)
        painter->setResolutionSize(ushort(wholeValue(resolutionSize)));
}

void SelfSettingBox::Impl::slotChangeResolutionSize()
{
    tellResolutionSize();
    Q_EMIT owner->selfSignal();
}

void SelfSettingBox::Impl::slotUserDefineVisible(bool bChecked)
{
    if (painter)
        painter->setSelfTextVisible(bChecked);
    switchGroup(textColor, bChecked);
}

void SelfSettingBox::Impl::soltChangeSelfText()
{
    if (wholeValue(textSize) <= 0)
        return;
    if (painter)
        painter->setSelfText(text->text());
    Q_EMIT owner->selfSignal();
}

void SelfSettingBox::Impl::soltChangeSelfTextSize(int)
{
    tellTextSize();
    Q_EMIT owner->selfSignal();
}

void SelfSettingBox::Impl::slotChangeSelfTextColor()
{
    textColor.beginPicking();
    Q_EMIT owner->selfTextSignal(textColor.button());
}

void SelfSettingBox::Impl::slotTextInputEditFinished(QString strOldName)
{
    if (text->text().isEmpty())
        text->setText(strOldName);
}

SelfSettingBox::SelfSettingBox(QWidget* parent)
    : SettingPanel(selfHeight, parent)
    , d(new Impl(this))
{
    setFixedWidth(410);
    connect(this, &SelfSettingBox::selfSignal, this, &SettingPanel::changed);
    connect(this, &SelfSettingBox::selfTextSignal, this, &SettingPanel::colorRequested);
    connect(this, &SelfSettingBox::resolutionSignal, this, &SettingPanel::colorRequested);
    connect(this, &SelfSettingBox::boxNumSignal, this, [this] { Q_EMIT colorRequested(nullptr); });
    d->buildRows(controls());
    d->bindControls();
    d->connectControls();
    SettingPanel::retranslate();
}

SelfSettingBox::~SelfSettingBox() = default;

void SelfSettingBox::setPaintSelfWidget(PaintSelfWidget* painter)
{
    if (!painter)
        return;
    d->painter = painter;
    if (isTranslated())
        painter->retranslate();
}

SelfChartData SelfSettingBox::getData() const
{
    SelfChartData data;
    d->binding.collect(data);
    return data;
}

void SelfSettingBox::setData(const SelfChartData& data)
{
    d->binding.push(data);
}

void SelfSettingBox::setButtonColor(const QColor& color, QPushButton* button)
{
    if (button && color.isValid() && color != d->colorOf(button))
        d->setColor(color, button);
}

void SelfSettingBox::restoreButtonColor(const QString& key)
{
    if (key == QLatin1String("selfText"))
        setButtonColor(d->textColor.beforePicking(), d->textColor.button());
    else if (key == QLatin1String("resolution"))
        setButtonColor(d->resolutionColor.beforePicking(), d->resolutionColor.button());
}

void SelfSettingBox::setResolution(int width, int height)
{
    d->resolution = QSize(width, height);
}

void SelfSettingBox::setRows(int rows)
{
    d->rows = rows;
}

void SelfSettingBox::setColumns(int columns)
{
    d->columns = columns;
}

void SelfSettingBox::retranslate()
{
    SettingPanel::retranslate();
    if (d->painter)
        d->painter->retranslate();
}

void SelfSettingBox::collectInto(TestChartToolsData& record) const
{
    record.selfData = getData();
}

void SelfSettingBox::pushFrom(const TestChartToolsData& record)
{
    setData(record.selfData);
}

void SelfSettingBox::setRoleColor(const QString& role, const QColor& color)
{
    if (role == QLatin1String("selfText"))
        setButtonColor(color, d->textColor.button());
    else if (role == QLatin1String("resolution"))
        setButtonColor(color, d->resolutionColor.button());
}

void SelfSettingBox::focusAfterLock(bool locked)
{
    for (QWidget* entry : std::initializer_list<QWidget*>{d->text, d->textSize, d->resolutionSize})
        entry->clearFocus();
    if (locked)
        SettingPanel::focusAfterLock(locked);
}

} // namespace vardeno::testcharttools

#include "selfsettingbox.moc"
