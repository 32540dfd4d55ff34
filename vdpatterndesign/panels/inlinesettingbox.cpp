#include "inlinesettingbox.h"

#include "paintinlinewidget.h"
#include "panels/fieldrange.h"
#include "panels/recordbinding.h"
#include "testcharttoolsdata.h"

#include <combobox.h>

#include <QFrame>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vardeno::testcharttools {

namespace {

constexpr int inLineHeight = 330;
constexpr QSize modeSize(95, 24);
constexpr QSize comboSize(200, 24);
constexpr int inLineMargin = 2;
constexpr int smallestRadius = 16;

} // namespace

class InLineSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(InLineSettingBox* box)
        : owner(box)
    {
    }

    void build(PanelControls& controls);
    void buildCircleRows(SettingRows& rows);
    void buildDiagonalRows(SettingRows& rows);
    void buildSerialRows(SettingRows& rows);
    void connectControls();

    ColorRole* role(const QString& which);
    void bindControls();
    void initColor(ColorRole& role, QPushButton* button, const QColor& color,
                   void (PaintInLineWidget::*apply)(const QColor&));
    void setColor(ColorRole& role, const QColor& color);
    void switchGroup(ColorRole& role, bool on);
    void checkLettersAtFirst(bool on);
    template <typename Argument, typename Value>
    void tell(void (PaintInLineWidget::*setter)(Argument), Value value);
    void askForColor(ColorRole& role, void (InLineSettingBox::*signal)(QPushButton*));

    QPushButton* circleSwitch = nullptr;
    SpinEditBox* circleRadius = nullptr;
    SpinEditBox* circleWidth = nullptr;
    ColorRole circle;
    QPushButton* diagonalSwitch = nullptr;
    SpinEditBox* diagonalWidth = nullptr;
    ColorRole diagonal;
    QPushButton* serialSwitch = nullptr;
    SpinEditBox* serialSize = nullptr;
    ColorRole serial;
    QRadioButton* letterMode = nullptr;
    QRadioButton* numMode = nullptr;
    QRadioButton* combinationMode = nullptr;
    ComboBox* position = nullptr;
    ComboBox* sort = nullptr;
    QPointer<PaintInLineWidget> painter;
    InLineSettingBox* owner;
    RecordBinding<InLineChartData> binding;
    int rowCount = 9;
    int columnCount = 16;
    bool firstTime = true; ///< until the labels have been switched on

public Q_SLOTS:
    void slotUpdateDiagonalLineWidth();
    void slotUpdateCircleLineWidth();
    void slotUpdateCircleRadius();
    void slotUpdateCircleColor() { askForColor(circle, &InLineSettingBox::inlineCircleSignal); }
    void slotUpdateDiagonalColor() { askForColor(diagonal, &InLineSettingBox::inlineDialongSignal); }
    void slotUpdateCircleVisible(bool bChecked);
    void slotUpdateDiagonalVisible(bool bChecked);
    void slotSequeSize();
    void slotSequeEnabel(bool bChecked);
    void slotSequeColor() { askForColor(serial, &InLineSettingBox::inlineSequeSignal); }
    void soltShowLetterModel() { tell(&PaintInLineWidget::setSerialMode, 0); }
    void soltShowNumberModel() { tell(&PaintInLineWidget::setSerialMode, 1); }
    void soltShowCombinationModel() { tell(&PaintInLineWidget::setSerialMode, 2); }
    void slotSecletPosition(int index);
    void slotSecletSort();
    void slotSequeVisible();
    void slotColorBtnSelected(QColor color, QPushButton* button);
    void slotRadiusEditFinished(QString) {}
    void slotCircleLineWidthEditFinished(QString) {}
    void slotDialogLineWidthEditFinished(QString) {}
    void slotSequeSizeEditFinished(QString) {}
    void slotCircleColor(bool bChecked) { circle.keep(bChecked); }
    void slotDialongColor(bool bChecked) { diagonal.keep(bChecked); }
    void slotSequeShowColor(bool bChecked) { serial.keep(bChecked); }
    void slotRadiusResetEditFinished();
};

void InLineSettingBox::Impl::build(PanelControls& controls)
{
    auto* column = new QVBoxLayout(owner);
    column->setContentsMargins(10, 7, 10, 7);
    column->setSpacing(6);
    SettingRows rows(owner, controls, column, captionSize, inLineMargin);
    buildCircleRows(rows);
    buildDiagonalRows(rows);
    buildSerialRows(rows);
    column->addStretch();
    column->addWidget(createRule(owner, "inlineLine", 360, QFrame::HLine | QFrame::Plain), 0,
                      Qt::AlignHCenter);
}

/// Each only where it differs: the painter follows through the controls' own signals.
void InLineSettingBox::Impl::bindControls()
{
    using Data = InLineChartData;
    const auto bindColor = [this](RgbaColor Data::*member, ColorRole& role) {
        binding.bind(member, role, [this, &role](const QColor& color) {
            if (color != role.color())
                setColor(role, color);
        });
    };
    binding.bind(&Data::showCircle, circleSwitch);
    binding.bind(&Data::circleSize, circleRadius);
    binding.bind(&Data::circleWidth, circleWidth);
    bindColor(&Data::circleColor, circle);
    binding.bind(&Data::showDiagonal, diagonalSwitch);
    binding.bind(&Data::diagonalWidth, diagonalWidth);
    bindColor(&Data::diagonalColor, diagonal);
    binding.bind(&Data::showSerialNumber, serialSwitch);
    binding.bind(&Data::serialSize, serialSize);
    bindColor(&Data::serialColor, serial);
    binding.bind(&Data::letterMode, letterMode);
    binding.bind(&Data::numMode, numMode);
    binding.bind(&Data::combinationMode, combinationMode);
    binding.bind(&Data::serialPosition, position);
    binding.bind(&Data::serialSort, sort);
}

void InLineSettingBox::Impl::initColor(ColorRole& role, QPushButton* button, const QColor& color,
                                       void (PaintInLineWidget::*apply)(const QColor&))
{
    role.init(button, color, [this, apply](const QColor& told) {
        if (painter)
            (painter->*apply)(told);
    });
    role.setBeforePicking(color);
}

void InLineSettingBox::Impl::buildCircleRows(SettingRows& rows)
{
    const auto whenOn = [this] { return circleSwitch->isChecked(); };
    QPushButton* colorButton = nullptr;
    rows.row(QStringLiteral("Show Circle"))
        .toggle(circleSwitch, true)
        .named(QStringLiteral("Show the circles"));
    rows.row(QStringLiteral("Circle"))
        .spin(circleRadius, entrySize,
              rangeOf(&InLineChartData::circleSize).value(540).suffix(QStringLiteral("px")), whenOn)
        .named(QStringLiteral("Radius of the circles"));
    // This button carries no "btnProperty": its role follows from its name.
    rows.row(QStringLiteral("BorderWidth"))
        .spin(circleWidth, entrySize,
              rangeOf(&InLineChartData::circleWidth).value(2).suffix(QStringLiteral("px")), whenOn)
        .named(QStringLiteral("Line width of the circles"))
        .caption(QStringLiteral("Color"), captionSize, inLineMargin)
        .swatch(colorButton, QStringLiteral("circleColorButton"), QString(), whenOn)
        .named(QStringLiteral("Color of the circles"));
    initColor(circle, colorButton, QColor(0x00, 0xff, 0x00), &PaintInLineWidget::setCircleColor);
}

void InLineSettingBox::Impl::buildDiagonalRows(SettingRows& rows)
{
    const auto whenOn = [this] { return diagonalSwitch->isChecked(); };
    QPushButton* colorButton = nullptr;
    rows.row(QStringLiteral("Show Diagonal"))
        .toggle(diagonalSwitch, true)
        .named(QStringLiteral("Show the diagonals"));
    rows.row(QStringLiteral("BorderWidth"))
        .spin(diagonalWidth, entrySize,
              rangeOf(&InLineChartData::diagonalWidth).value(10).suffix(QStringLiteral("px")), whenOn)
        .named(QStringLiteral("Line width of the diagonals"))
        .caption(QStringLiteral("Color"), captionSize, inLineMargin)
        .swatch(colorButton, QStringLiteral("diagonalColorButton"), QStringLiteral("diagonal"), whenOn)
        .named(QStringLiteral("Color of the diagonals"));
    initColor(diagonal, colorButton, QColor(0x00, 0xff, 0x00), &PaintInLineWidget::setDiagonalColor);
}

void InLineSettingBox::Impl::buildSerialRows(SettingRows& rows)
{
    const auto whenOn = [this] { return serialSwitch->isChecked(); };
    QPushButton* colorButton = nullptr;
    rows.row(QStringLiteral("Show Serial Number"))
        .toggle(serialSwitch, true)
        .named(QStringLiteral("Show the labels"));
    rows.row(QStringLiteral("Serial Size"))
        .spin(serialSize, entrySize,
              rangeOf(&InLineChartData::serialSize).value(15).suffix(QStringLiteral("px")), whenOn)
        .named(QStringLiteral("Size of the labels"))
        .caption(QStringLiteral("Color"), captionSize, inLineMargin)
        .swatch(colorButton, QStringLiteral("sequeColorBtn"), QStringLiteral("seque"), whenOn)
        .named(QStringLiteral("Color of the labels"));
    initColor(serial, colorButton, Qt::black, &PaintInLineWidget::setSerialColor);
    rows.row(QStringLiteral("Show Model"))
        .radio(letterMode, QStringLiteral("Letter Mode"), modeSize)
        .radio(numMode, QStringLiteral("Num Mode"), modeSize)
        .radio(combinationMode, QStringLiteral("Combination Mode"), modeSize);
    letterMode->setChecked(true);
    rows.row(QStringLiteral("Show Position"))
        .combo(position,
               {QStringLiteral("Center"), QStringLiteral("Left Up Right Down"),
                QStringLiteral("Left Down Right Up")},
               comboSize)
        .named(QStringLiteral("Position of the labels"));
    rows.row(QStringLiteral("Sort by"))
        .combo(sort,
               {QStringLiteral("From up to down increase Frome left to right increase"),
                QStringLiteral("from up to down increase frome left to right decrease"),
                QStringLiteral("from down to up increase frome left to right increase"),
                QStringLiteral("from down to up increase frome left to right decrease")},
               comboSize)
        .named(QStringLiteral("Order of the labels"));
}

void InLineSettingBox::Impl::connectControls()
{
    connect(circleSwitch, &QPushButton::toggled, this, &Impl::slotCircleColor);
    connect(circleSwitch, &QPushButton::toggled, this, &Impl::slotUpdateCircleVisible);
    connect(diagonalSwitch, &QPushButton::toggled, this, &Impl::slotDialongColor);
    connect(diagonalSwitch, &QPushButton::toggled, this, &Impl::slotUpdateDiagonalVisible);
    connect(serialSwitch, &QPushButton::toggled, this, &Impl::slotSequeShowColor);
    connect(serialSwitch, &QPushButton::toggled, this, &Impl::slotSequeEnabel);
    connect(circleRadius, &SpinEditBox::valueChanged, this, &Impl::slotUpdateCircleRadius);
    connect(circleRadius, &SpinEditBox::editFinished, this, &Impl::slotRadiusResetEditFinished);
    connect(circleWidth, &SpinEditBox::valueChanged, this, &Impl::slotUpdateCircleLineWidth);
    connect(diagonalWidth, &SpinEditBox::valueChanged, this, &Impl::slotUpdateDiagonalLineWidth);
    connect(serialSize, &SpinEditBox::valueChanged, this, &Impl::slotSequeSize);
    connect(circle.button(), &QPushButton::clicked, this, &Impl::slotUpdateCircleColor);
    connect(diagonal.button(), &QPushButton::clicked, this, &Impl::slotUpdateDiagonalColor);
    connect(serial.button(), &QPushButton::clicked, this, &Impl::slotSequeColor);
    connect(letterMode, &QRadioButton::toggled, this, &Impl::soltShowLetterModel);
    connect(numMode, &QRadioButton::toggled, this, &Impl::soltShowNumberModel);
    connect(combinationMode, &QRadioButton::toggled, this, &Impl::soltShowCombinationModel);
    connect(position, QOverload<int>::of(&ComboBox::currentIndexChanged), this, &Impl::slotSecletPosition);
    connect(sort, QOverload<int>::of(&ComboBox::currentIndexChanged), this, &Impl::slotSecletSort);
}

ColorRole* InLineSettingBox::Impl::role(const QString& which)
{
    if (which == QLatin1String("circle"))
        return &circle;
    if (which == QLatin1String("diagonal"))
        return &diagonal;
    return which == QLatin1String("seque") ? &serial : nullptr;
}

void InLineSettingBox::Impl::setColor(ColorRole& role, const QColor& color)
{
    role.set(color);
    Q_EMIT owner->inlineSignal();
}

/// What a group's switch does besides its layer's visibility.
void InLineSettingBox::Impl::switchGroup(ColorRole& role, bool on)
{
    owner->controls().update();
    role.show(on);
    if (on && role.button()->property("btnProperty").isValid())
        role.tell();
    Q_EMIT owner->inlineSignal();
}

void InLineSettingBox::Impl::checkLettersAtFirst(bool on)
{
    if (!on)
        return;
    if (firstTime)
        letterMode->setChecked(true);
    firstTime = false;
}

/// Hands the painter a value and tells of the change.
template <typename Argument, typename Value>
void InLineSettingBox::Impl::tell(void (PaintInLineWidget::*setter)(Argument), Value value)
{
    if (painter)
        (painter->*setter)(static_cast<std::decay_t<Argument>>(value));
    Q_EMIT owner->inlineSignal();
}

void InLineSettingBox::Impl::askForColor(ColorRole& role, void (InLineSettingBox::*signal)(QPushButton*))
{
    role.beginPicking();
    Q_EMIT(owner->*signal)(role.button());
}

void InLineSettingBox::Impl::slotUpdateDiagonalLineWidth()
{
    tell(&PaintInLineWidget::setDiagonalLineWidth, wholeValue(diagonalWidth));
}

void InLineSettingBox::Impl::slotUpdateCircleLineWidth()
{
    tell(&PaintInLineWidget::setCircleLineWidth, wholeValue(circleWidth));
}

void InLineSettingBox::Impl::slotUpdateCircleRadius()
{
    tell(&PaintInLineWidget::setCircleRadius, wholeValue(circleRadius));
}

void InLineSettingBox::Impl::slotUpdateCircleVisible(bool bChecked)
{
    if (painter)
        painter->setCircleVisible(bChecked);
    switchGroup(circle, bChecked);
}

void InLineSettingBox::Impl::slotUpdateDiagonalVisible(bool bChecked)
{
    if (painter)
        painter->setDiagonalVisible(bChecked);
    switchGroup(diagonal, bChecked);
}

void InLineSettingBox::Impl::slotSequeSize()
{
    tell(&PaintInLineWidget::setSerialSize, wholeValue(serialSize));
}

void InLineSettingBox::Impl::slotSequeEnabel(bool bChecked)
{
    if (painter)
        painter->setSerialVisible(bChecked);
    checkLettersAtFirst(bChecked);
    switchGroup(serial, bChecked);
}

void InLineSettingBox::Impl::slotSecletPosition(int)
{
    const QVariant data = position->currentData();
    if (painter && (data == 0 || data == 1 || data == 2))
        painter->setSerialPosition(data.toUInt());
    Q_EMIT owner->inlineSignal();
}

void InLineSettingBox::Impl::slotSecletSort()
{
    const QVariant data = sort->currentData();
    if (painter && (data == 0 || data == 2 || data == 3 || data == 1))
        painter->setSerialSort(data.toUInt());
    Q_EMIT owner->inlineSignal();
}

void InLineSettingBox::Impl::slotSequeVisible()
{
    checkLettersAtFirst(serialSwitch->isChecked());
    tell(&PaintInLineWidget::setSerialVisible, serialSwitch->isChecked());
}

void InLineSettingBox::Impl::slotColorBtnSelected(QColor color, QPushButton* button)
{
    paintFullSwatch(button, color);
}

void InLineSettingBox::Impl::slotRadiusResetEditFinished()
{
    if (circleRadius->value() < smallestRadius)
        circleRadius->setValue(smallestRadius);
}

InLineSettingBox::InLineSettingBox(QWidget* parent)
    : SettingPanel(inLineHeight, parent)
    , d(new Impl(this))
{
    setObjectName(QStringLiteral("inlinesettingbox"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("QWidget#inlinesettingbox{border-left : 1px solid #535465; border-right : 1px solid "
                       "#535465;}"));
    setFixedWidth(410);
    connect(this, &InLineSettingBox::inlineSignal, this, &SettingPanel::changed);
    connect(this, &InLineSettingBox::inlineCircleSignal, this, &SettingPanel::colorRequested);
    connect(this, &InLineSettingBox::inlineDialongSignal, this, &SettingPanel::colorRequested);
    connect(this, &InLineSettingBox::inlineSequeSignal, this, &SettingPanel::colorRequested);
    d->build(controls());
    d->bindControls();
    d->connectControls();
    controls().captions.add(QStringLiteral("Widget"), [this](const QString& text) { setWindowTitle(text); });
    retranslate();
}

InLineSettingBox::~InLineSettingBox() = default;

void InLineSettingBox::setPaintWidget(PaintInLineWidget* painter)
{
    if (painter)
        d->painter = painter;
}

void InLineSettingBox::initPaintWidget()
{
    if (!d->painter)
        return;
    d->soltShowLetterModel();
    d->slotSequeVisible();
}

void InLineSettingBox::setColor(const QColor& color, const QString& which)
{
    if (ColorRole* role = d->role(which))
        d->setColor(*role, color);
}

void InLineSettingBox::restoreColor(const QString& which)
{
    ColorRole* role = d->role(which);
    if (role && role->beforePicking().isValid())
        d->setColor(*role, role->beforePicking());
}

void InLineSettingBox::setRows(int rows)
{
    d->rowCount = rows;
}

void InLineSettingBox::setColumns(int columns)
{
    d->columnCount = columns;
}

void InLineSettingBox::getData(InLineChartData& data) const
{
    d->binding.collect(data);
}

void InLineSettingBox::setData(const InLineChartData& data)
{
    d->binding.push(data);
}

void InLineSettingBox::collectInto(TestChartToolsData& record) const
{
    getData(record.inLineData);
}

void InLineSettingBox::pushFrom(const TestChartToolsData& record)
{
    setData(record.inLineData);
}

void InLineSettingBox::setRoleColor(const QString& role, const QColor& color)
{
    setColor(color, role);
}

} // namespace vardeno::testcharttools

#include "inlinesettingbox.moc"
