#include "basicsettingbox.h"

#include "controls/colorlist.h"
#include "customdialog.h"
#include "geometry/moverange.h"
#include "imagewidget.h"
#include "paintbasicwidget.h"
#include "panels/recordbinding.h"
#include "panels/settingrows.h"
#include "testcharttoolsdata.h"

#include <QColorDialog>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStackedWidget>

namespace vardeno::testcharttools {

namespace {

enum PatternPage
{
    ChessPage,
    GradientPage,
    ColorBarPage
};
enum Mode
{
    ChessMode,
    GradientMode,
    StripeMode
};

constexpr int basicHeight = 140;
constexpr QSize previewSize(80, 45);
constexpr QSize modeCaption(80, 20);
constexpr QSize pageCaption(70, 20);
constexpr QSize chessCaption(70, 20);
constexpr QSize stepButton(20, 20);
constexpr QSize editButton(55, 20);
constexpr QSize listSize(112, 20);

QPixmap picture(const char* name)
{
    return QPixmap(QStringLiteral(":/resources/images/") + QLatin1String(name));
}

ImageWidget* preview(QWidget* parent, const char* pictureName)
{
    auto* widget = new ImageWidget(parent);
    widget->setFixedSize(previewSize);
    widget->setPixmap(picture(pictureName));
    return widget;
}

/// A row of colours that is moved through with buttons, never with scroll bars.
QListWidget* colorList(QWidget* parent, const char* objectName)
{
    auto* list = new QListWidget(parent);
    list->setObjectName(QLatin1String(objectName));
    list->setViewMode(QListView::IconMode);
    list->setFlow(QListView::LeftToRight);
    list->setWrapping(false);
    list->setDragEnabled(false);
    list->setMovement(QListView::Static);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

/// Takes every item's own colour again and gives the current one the frame of `style`.
void frameCurrentItem(QListWidget* list, const QString& style)
{
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setBackground(list->item(row)->background());
    if (const QListWidgetItem* current = list->currentItem())
        list->setStyleSheet(style.arg(current->background().color().name()));
}

/// Where a window of `size` opens beside `button`: on its right, and no farther than the screen goes, to its
/// last pixel.
QPoint placeBeside(const QWidget* button, const QSize& size)
{
    const QScreen* screen = QGuiApplication::screenAt(button->mapToGlobal(button->rect().center()));
    const QRect room = (screen ? screen : button->screen())->availableGeometry();
    return keptInRange(button->mapToGlobal(QPoint(button->width(), 0)), size, room.adjusted(0, 0, 1, 1));
}

} // namespace

class BasicSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(BasicSettingBox* box)
        : owner(box)
    {
        changeButton.setObjectName(QStringLiteral("stripeColorButton"));
        changeButton.setFixedSize(16, 16);
    }

    void build(PanelControls& controls);
    void buildModeRow(QVBoxLayout* column, PanelControls& controls);
    QWidget* buildChessPage(PanelControls& controls);
    QWidget* buildGradientPage(PanelControls& controls);
    QWidget* buildColorBarPage(PanelControls& controls);
    void connectControls();

    void bindControls();
    void initColor(ColorRole& role, QPushButton* button, const RgbaColor& color,
                   void (PaintBasicWidget::*apply)(const QColor&));
    ColorRole* chessColor(const QString& which);
    void setColor(ColorRole& role, const QColor& color);
    void pushLists(const BasicChartData& data);
    void showColorBar(Mode mode);
    void setMode(Mode mode);
    void showBarPreview(bool asGradient);
    void changeColor(QListWidgetItem* item);
    void setChangedColor(const QColor& color);
    void moveColor(int step);
    bool handleListKey(const QKeyEvent& event);
    void listChanged();
    void gradientListChanged();

    ImageWidget* chessPreview = nullptr;
    ImageWidget* gradientPreview = nullptr;
    ImageWidget* barPreview = nullptr;
    QStackedWidget* pages = nullptr;
    QListWidget* gradientList = nullptr;
    QListWidget* stripeList = nullptr;
    QRadioButton* chessRadio = nullptr;
    QRadioButton* barRadio = nullptr;
    ColorRole odd;
    ColorRole even;
    QPushButton* gradientLeft = nullptr;
    QPushButton* gradientRight = nullptr;
    QPushButton* gradientAdd = nullptr;
    QPushButton* gradientRemove = nullptr;
    QPushButton* stripeLeft = nullptr;
    QPushButton* stripeRight = nullptr;
    QPushButton* addButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton changeButton; ///< never shown: carries the colour that is being changed
    QPersistentModelIndex changedColor;
    int changes = 0; ///< makes each a role of its own, so that a rejected one is undone where it belongs
    BasicSettingBox* owner;
    QPointer<PaintBasicWidget> painter;
    bool firstTime = true; ///< until a colour bar mode has been shown
    QPushButton* gradientSwitch = nullptr;
    bool quietWhenEmpty = false;
    QString dialogStyleSheet = QStringLiteral(" ");
    RecordBinding<BasicChartData> binding;
    std::vector<std::unique_ptr<QListWidgetItem>> leftovers; ///< the last items taken out of a list

public Q_SLOTS:
    void slotShowchessModel(bool bChecked);
    void slotShowGradientModel(bool bChecked);
    void slotShowColorStripeModel(bool bChecked);
    void gradientAddDefaultColors();
    void colorStripeAddDefaultColors(bool isFirst = false);
    void slotGradientAddColor();
    void slotGradientRemoveColor();
    void slotColorStripeAddColor();
    void slotColorStripeRemoveColor();
    void slotScrollGradientLeft() { stepListLeft(gradientList); }
    void slotScrollGradientRight() { stepListRight(gradientList); }
    void slotScrollColorStripeLeft() { stepListLeft(stripeList); }
    void slotScrollColorStripeRight() { stepListRight(stripeList); }
    void slotSelectOddColor();
    void slotSelectEvenColor();
    void slotGradientItemChanged();
    void slotColorStripeItemChanged();
    void slotColorStripeItemEntered(QListWidgetItem* item);
    void showConfigDialog();
};

void BasicSettingBox::Impl::build(PanelControls& controls)
{
    auto* column = new QVBoxLayout(owner);
    column->setContentsMargins(10, 7, 10, 7);
    column->setSpacing(5);
    buildModeRow(column, controls);

    pages = new QStackedWidget(owner);
    pages->setFixedWidth(410);
    controls.addWide(pages);
    pages->addWidget(buildChessPage(controls));
    pages->addWidget(buildGradientPage(controls));
    pages->addWidget(buildColorBarPage(controls));
    column->addWidget(pages);

    column->addWidget(createRule(owner, "basicLine", 353, QFrame::HLine | QFrame::Plain), 0,
                      Qt::AlignHCenter);
}

void BasicSettingBox::Impl::buildModeRow(QVBoxLayout* column, PanelControls& controls)
{
    auto* caption = new QLabel(owner);
    caption->setFixedSize(modeCaption);
    controls.addFirstCaption(caption, modeCaption);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const QString captionEnd = QStringLiteral("  ");
    controls.captions.add(QStringLiteral("Mode selection"), [captionEnd, caption](const QString& text) {
        showElided(caption, text + captionEnd);
        // Its letters end where those of the other captions do.
        caption->setContentsMargins(0, 0, -caption->fontMetrics().horizontalAdvance(captionEnd), 0);
    });

    chessRadio = new QRadioButton(owner);
    chessRadio->setObjectName(QStringLiteral("chessRadioButton"));
    chessRadio->setChecked(true);
    barRadio = new QRadioButton(owner);
    barRadio->setObjectName(QStringLiteral("colorStripeRadioButton"));
    const auto textOf = [](QRadioButton* radio) {
        return [radio](const QString& text) { radio->setText(text); };
    };
    controls.captions.add(QStringLiteral("Chess"), textOf(chessRadio));
    controls.captions.add(QStringLiteral("Color bar"), textOf(barRadio));

    chessPreview = preview(owner, "chess.png");
    gradientPreview = preview(owner, "gradient.png");
    gradientPreview->setObjectName(QStringLiteral("_gradientLayout"));
    gradientPreview->hide(); // the colour bar's preview shows its picture instead
    barPreview = preview(owner, "colorstripe.png");
    barPreview->setObjectName(QStringLiteral("_colorStripeLayout"));

    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(3);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(chessRadio, 0, 1);
    grid->addWidget(barRadio, 0, 2);
    grid->addWidget(chessPreview, 1, 1);
    grid->addWidget(barPreview, 1, 2);
    grid->setColumnMinimumWidth(1, 110);
    grid->setColumnStretch(3, 1);
    column->addLayout(grid);
}

QWidget* BasicSettingBox::Impl::buildChessPage(PanelControls& controls)
{
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("checkerboardWidget"));
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(10, 0, 0, 0);
    column->addStretch(); // the page is as high as that of the color bar, which has two rows
    QPushButton* oddButton = nullptr;
    QPushButton* evenButton = nullptr;
    SettingRows(page, controls, column, pageCaption)
        .row(QString())
        .shortCaption(QStringLiteral("Odd"), chessCaption)
        .swatch(oddButton, QStringLiteral("oddColorPushButton"), QStringLiteral("odd"))
        .named(QStringLiteral("Color of the odd cabinets"))
        .gap(12)
        .shortCaption(QStringLiteral("Even"), chessCaption)
        .swatch(evenButton, QStringLiteral("evenColorPushButton"), QStringLiteral("even"))
        .named(QStringLiteral("Color of the even cabinets"));
    initColor(odd, oddButton, BasicChartData().oddColor, &PaintBasicWidget::setOddColor);
    initColor(even, evenButton, BasicChartData().evenColor, &PaintBasicWidget::setEvenColor);
    odd.setBeforePicking(QColor(255, 170, 255, 255));
    column->addStretch();
    return page;
}

QWidget* BasicSettingBox::Impl::buildGradientPage(PanelControls& controls)
{
    auto* page = new QWidget;
    gradientList = colorList(page, "_gradientListWidget");
    gradientList->setMaximumWidth(200);
    gradientList->setFixedHeight(listSize.height());
    const auto add = [&](const QString& text, const char* objectName, const QSize& size) {
        auto* button = new QPushButton(text, page);
        button->setObjectName(QLatin1String(objectName));
        button->setFixedSize(size);
        controls.add(button);
        return button;
    };
    gradientLeft = add(QStringLiteral("<"), "_gradientLeftPushButton", stepButton);
    gradientRight = add(QStringLiteral(">"), "_gradientRightPushButton", stepButton);
    gradientAdd = add(QStringLiteral("增加"), "_gradientAddPushButton", QSize(44, 20));
    gradientRemove = add(QStringLiteral("删除"), "_gradientRemovePushButton", QSize(44, 20));

    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(QStringLiteral("渐变"), page));
    for (QWidget* widget : {static_cast<QWidget*>(gradientLeft), static_cast<QWidget*>(gradientList),
                            static_cast<QWidget*>(gradientRight), static_cast<QWidget*>(gradientAdd),
                            static_cast<QWidget*>(gradientRemove)})
        row->addWidget(widget);
    return page;
}

QWidget* BasicSettingBox::Impl::buildColorBarPage(PanelControls& controls)
{
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("colorStripeWidget"));
    stripeList = colorList(page, "_colorStripeListWidget");
    stripeList->setFixedSize(listSize);
    stripeList->setMouseTracking(true);
    stripeList->installEventFilter(owner);
    stripeList->viewport()->installEventFilter(owner);

    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(10, 0, 0, 0);
    column->setSpacing(4);
    SettingRows rows(page, controls, column, pageCaption);
    rows.row(QStringLiteral("Gradient"))
        .toggle(gradientSwitch, false)
        .named(QStringLiteral("Gradient between the colors"));
    rows.row(QStringLiteral("Color bar"))
        .iconButton(stripeLeft, QStringLiteral(":/resources/images/icon_zuo_nor.png"),
                    QStringLiteral("Previous color"), QStringLiteral("_colorStripeLeftPushButton"))
        .widget(stripeList)
        .iconButton(stripeRight, QStringLiteral(":/resources/images/icon_you_nor.png"),
                    QStringLiteral("Next color"), QStringLiteral("_colorStripeRightPushButton"))
        .button(addButton, QStringLiteral("Add"), editButton, QStringLiteral("ADDButton"))
        .button(removeButton, QStringLiteral("Delete"), editButton, QStringLiteral("CancleButton"));
    addButton->setProperty("btnProperty", QStringLiteral("add"));
    controls.hints.add(QStringLiteral("Colors of the color bar"),
                       [list = stripeList](const QString& text) { list->setAccessibleName(text); });
    controls.hints.add(QStringLiteral("Double click or Enter changes a color, Alt+Up and Alt+Down move it"),
                       [list = stripeList](const QString& text) { list->setToolTip(text); });
    column->addStretch();
    return page;
}

void BasicSettingBox::Impl::connectControls()
{
    connect(chessRadio, &QRadioButton::toggled, this, &Impl::slotShowchessModel);
    connect(barRadio, &QRadioButton::toggled, this, &Impl::slotShowColorStripeModel);
    connect(gradientSwitch, &QPushButton::toggled, this, &Impl::slotShowGradientModel);
    connect(odd.button(), &QPushButton::clicked, this, &Impl::slotSelectOddColor);
    connect(even.button(), &QPushButton::clicked, this, &Impl::slotSelectEvenColor);
    connect(addButton, &QPushButton::clicked, this, &Impl::slotColorStripeAddColor);
    connect(removeButton, &QPushButton::clicked, this, &Impl::showConfigDialog);
    connect(gradientLeft, &QPushButton::clicked, this, &Impl::slotScrollGradientLeft);
    connect(gradientRight, &QPushButton::clicked, this, &Impl::slotScrollGradientRight);
    connect(stripeLeft, &QPushButton::clicked, this, &Impl::slotScrollColorStripeLeft);
    connect(stripeRight, &QPushButton::clicked, this, &Impl::slotScrollColorStripeRight);
    connect(gradientAdd, &QPushButton::clicked, this, &Impl::slotGradientAddColor);
    connect(gradientRemove, &QPushButton::clicked, this, &Impl::slotGradientRemoveColor);
    connect(gradientList, &QListWidget::currentItemChanged, this, &Impl::slotGradientItemChanged);
    connect(stripeList, &QListWidget::currentItemChanged, this, &Impl::slotColorStripeItemChanged);
    connect(stripeList, &QListWidget::itemEntered, this, &Impl::slotColorStripeItemEntered);
    connect(stripeList, &QListWidget::itemDoubleClicked, this, &Impl::changeColor);
}

/// The lists are collected first and pushed last.
void BasicSettingBox::Impl::bindControls()
{
    using Data = BasicChartData;
    const auto bindColor = [this](RgbaColor Data::*member, ColorRole& role) {
        binding.bind(member, role, [this, &role](const QColor& color) {
            if (color != role.color())
                setColor(role, color);
        });
    };
    binding.bind(&Data::chessChecked, chessRadio);
    binding.bind(&Data::colorBarChecked, barRadio);
    binding.bind(&Data::gradientChecked, gradientSwitch);
    binding.bind({}, [this](const Data& data) { showBarPreview(data.gradientChecked); });
    bindColor(&Data::oddColor, odd);
    bindColor(&Data::evenColor, even);
    binding.bind(
        [this](Data& data) {
            data.colorStripeColors = listColors(stripeList);
            data.gradientColors = listColors(gradientList);
        },
        [this](const Data& data) { pushLists(data); });
}

void BasicSettingBox::Impl::pushLists(const BasicChartData& data)
{
    const bool barDiffers = listColors(stripeList) != data.colorStripeColors;
    setListColors(stripeList, data.colorStripeColors);
    setListColors(gradientList, data.gradientColors);
    if (painter) {
        painter->setGradientList(gradientList);
        painter->setColorStripeList(stripeList);
    }
    if (barDiffers)
        Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::initColor(ColorRole& role, QPushButton* button, const RgbaColor& color,
                                      void (PaintBasicWidget::*apply)(const QColor&))
{
    role.init(button, toQColor(color), [this, apply](const QColor& told) {
        if (painter)
            (painter->*apply)(told);
    });
}

ColorRole* BasicSettingBox::Impl::chessColor(const QString& which)
{
    if (which == QLatin1String("odd"))
        return &odd;
    return which == QLatin1String("even") ? &even : nullptr;
}

void BasicSettingBox::Impl::setColor(ColorRole& role, const QColor& color)
{
    role.set(color);
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::showColorBar(Mode mode)
{
    pages->setCurrentIndex(ColorBarPage);
    if (firstTime && stripeList->count() == 0)
        colorStripeAddDefaultColors();
    firstTime = false;
    setMode(mode);
}

void BasicSettingBox::Impl::setMode(Mode mode)
{
    if (painter)
        painter->setMode(mode);
}

void BasicSettingBox::Impl::showBarPreview(bool asGradient)
{
    barPreview->setPixmap(picture(asGradient ? "gradient.png" : "colorstripe.png"));
}

void BasicSettingBox::Impl::changeColor(QListWidgetItem* item)
{
    if (!item)
        return;
    const QModelIndex index = stripeList->model()->index(stripeList->row(item), 0);
    if (changedColor != index) {
        changedColor = index;
        changeButton.setProperty("btnProperty", QStringLiteral("stripe%1").arg(++changes));
    }
    paintSwatch(&changeButton, item->background().color());
    Q_EMIT owner->changeSignal(&changeButton);
}

void BasicSettingBox::Impl::setChangedColor(const QColor& color)
{
    if (!changedColor.isValid() || !color.isValid() ||
        stripeList->item(changedColor.row())->background().color() == color)
        return;
    setListColor(stripeList, changedColor.row(), color);
    slotColorStripeItemChanged(); // the current one's frame carries its colour
    listChanged();
}

void BasicSettingBox::Impl::moveColor(int step)
{
    if (moveCurrentColor(stripeList, step))
        listChanged();
}

bool BasicSettingBox::Impl::handleListKey(const QKeyEvent& event)
{
    const bool alt = event.modifiers() == Qt::AltModifier;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        changeColor(stripeList->currentItem());
    else if (alt && (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down))
        moveColor(event.key() == Qt::Key_Up ? -1 : 1);
    else
        return false;
    return true;
}

void BasicSettingBox::Impl::listChanged()
{
    if (painter)
        painter->setColorStripeList(stripeList);
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::gradientListChanged()
{
    if (painter)
        painter->setGradientList(gradientList);
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::slotShowchessModel(bool bChecked)
{
    if (!bChecked)
        return;
    pages->setCurrentIndex(ChessPage);
    setMode(ChessMode);
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::slotShowGradientModel(bool bChecked)
{
    if (barRadio->isChecked()) {
        showColorBar(bChecked ? GradientMode : StripeMode);
        showBarPreview(bChecked);
    }
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::slotShowColorStripeModel(bool bChecked)
{
    if (!bChecked)
        return;
    if (gradientSwitch->isChecked() && barRadio->isChecked()) {
        slotShowGradientModel(true);
        return;
    }
    showColorBar(StripeMode);
    Q_EMIT owner->basicSignal();
}

void BasicSettingBox::Impl::gradientAddDefaultColors()
{
    for (const Qt::GlobalColor color : {Qt::magenta, Qt::cyan, Qt::yellow, Qt::green, Qt::red})
        appendListColor(gradientList, color);
    gradientListChanged();
}

void BasicSettingBox::Impl::colorStripeAddDefaultColors(bool isFirst)
{
    if (isFirst)
        stripeList->clear();
    for (const Qt::GlobalColor color : {Qt::yellow, Qt::green, Qt::cyan, Qt::magenta, Qt::red})
        appendListColor(stripeList, color);
    listChanged();
}

void BasicSettingBox::Impl::slotGradientAddColor()
{
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    const QColor color = QColorDialog::getColor(Qt::white, nullptr, QStringLiteral("select color"));
    if (color.isValid())
        appendListColor(gradientList, color);
    gradientListChanged();
}

void BasicSettingBox::Impl::slotGradientRemoveColor()
{
    removeCurrentColor(gradientList, leftovers);
    gradientListChanged();
}

void BasicSettingBox::Impl::slotColorStripeAddColor()
{
    Q_EMIT owner->addSignal(addButton);
}

void BasicSettingBox::Impl::slotColorStripeRemoveColor()
{
    removeCurrentColor(stripeList, leftovers);
    listChanged();
}

void BasicSettingBox::Impl::slotSelectOddColor()
{
    odd.beginPicking();
    Q_EMIT owner->oddSignal(odd.button());
}

void BasicSettingBox::Impl::slotSelectEvenColor()
{
    even.beginPicking();
    Q_EMIT owner->evenSignal(even.button());
}

void BasicSettingBox::Impl::slotGradientItemChanged()
{
    frameCurrentItem(gradientList, QStringLiteral("QListWidget::item:selected {border: 1px solid "
                                                  "#489BC5;background-color: %1;}"));
}

void BasicSettingBox::Impl::slotColorStripeItemChanged()
{
    frameCurrentItem(stripeList,
                     QStringLiteral("QListWidget::item::selected {border: 1px solid #3ABCF0;outline: "
                                    "0px;background-color: %1;}"));
}

void BasicSettingBox::Impl::slotColorStripeItemEntered(QListWidgetItem* item)
{
    if (item)
        stripeList->setStyleSheet(
            QStringLiteral("QListWidget::item:hover {background-color: %1;border: 1px solid "
                           "#75CFF9;}")
                .arg(item->background().color().name()));
}

void BasicSettingBox::Impl::showConfigDialog()
{
    const auto* button = qobject_cast<QPushButton*>(sender());
    if (!button || (quietWhenEmpty && stripeList->count() == 0))
        return;
    auto* dialog = new CustomDialog;
    dialog->setDialogStyleSheet(dialogStyleSheet);
    connect(dialog, &CustomDialog::configDelete, this, &Impl::slotColorStripeRemoveColor);
    dialog->move(placeBeside(removeButton, dialog->size()));
    dialog->show();
    dialog->raise();
}

BasicSettingBox::BasicSettingBox(QWidget* parent)
    : SettingPanel(basicHeight, parent)
    , d(new Impl(this))
{
    setObjectName(QStringLiteral("basicWidget"));
    setStyleSheet(
        QStringLiteral("QWidget#basicWidget{background: transparent; border-left : 1px solid #535465; "
                       "border-right : 1px solid #535465;}"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedWidth(410);
    connect(this, &BasicSettingBox::basicSignal, this, &SettingPanel::changed);
    connect(this, &BasicSettingBox::oddSignal, this, &SettingPanel::colorRequested);
    connect(this, &BasicSettingBox::evenSignal, this, &SettingPanel::colorRequested);
    connect(this, &BasicSettingBox::addSignal, this, &SettingPanel::colorRequested);
    connect(this, &BasicSettingBox::changeSignal, this, &SettingPanel::colorRequested);
    d->build(controls());
    d->bindControls();
    d->connectControls();
    controls().captions.add(QStringLiteral("Widget"), [this](const QString& text) { setWindowTitle(text); });
    retranslate();
}

BasicSettingBox::~BasicSettingBox() = default;

void BasicSettingBox::setDialogStyleSheet(const QString& sheet)
{
    d->dialogStyleSheet = sheet;
}

void BasicSettingBox::setQuietWhenEmpty(bool quiet)
{
    d->quietWhenEmpty = quiet;
}

bool BasicSettingBox::isQuietWhenEmpty() const
{
    return d->quietWhenEmpty;
}

void BasicSettingBox::setPaintWidget(PaintBasicWidget* painter)
{
    if (painter)
        d->painter = painter;
}

void BasicSettingBox::setColor(const QColor& color, const QString& which)
{
    if (ColorRole* role = d->chessColor(which))
        d->setColor(*role, color);
}

void BasicSettingBox::restoreColor(const QString& which)
{
    ColorRole* role = d->chessColor(which);
    if (role && role->beforePicking().isValid())
        d->setColor(*role, role->beforePicking());
}

void BasicSettingBox::addColor(const QColor& color, const QString& which)
{
    if (which != QLatin1String("add") || !color.isValid())
        return;
    appendListColor(d->stripeList, color);
    d->listChanged();
}

void BasicSettingBox::colorStripeAddDefaultColors(bool isFirst)
{
    d->colorStripeAddDefaultColors(isFirst);
}

void BasicSettingBox::forgetColorBar()
{
    d->firstTime = true;
}

void BasicSettingBox::getData(BasicChartData& data) const
{
    d->binding.collect(data);
}

void BasicSettingBox::setData(const BasicChartData& data)
{
    d->binding.push(data);
}

void BasicSettingBox::collectInto(TestChartToolsData& record) const
{
    getData(record.basicData);
}

void BasicSettingBox::pushFrom(const TestChartToolsData& record)
{
    setData(record.basicData);
}

void BasicSettingBox::setRoleColor(const QString& role, const QColor& color)
{
    if (role == d->changeButton.property("btnProperty").toString())
        d->setChangedColor(color);
    else
        setColor(color, role);
}

bool BasicSettingBox::eventFilter(QObject* watched, QEvent* event)
{
    const bool ofStripeList = watched == d->stripeList || watched == d->stripeList->viewport();
    const bool dragsIn = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                         event->type() == QEvent::Drop;
    const auto* key = event->type() == QEvent::KeyPress ? dynamic_cast<const QKeyEvent*>(event) : nullptr;
    if (watched == d->stripeList && key && d->handleListKey(*key))
        return true;
    return (ofStripeList && dragsIn) || SettingPanel::eventFilter(watched, event);
}

} // namespace vardeno::testcharttools

#include "basicsettingbox.moc"
