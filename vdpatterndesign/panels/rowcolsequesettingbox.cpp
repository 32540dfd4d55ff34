#include "rowcolsequesettingbox.h"

#include "paintbasicwidget.h"
#include "paintrowcolsequewidget.h"
#include "paintselfwidget.h"

#include <combobox.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace vardeno::testcharttools {

namespace {

constexpr QSize cellEntry(55, 20);
constexpr QSize colorButtonSize(25, 25);

} // namespace

class RowColSequeSettingBox::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(RowColSequeSettingBox* box)
        : owner(box)
    {
    }

    void createControls();
    QSpinBox* createEntry(const char* objectName, int maximum, int value);
    QPushButton* createColorButton(const char* objectName);
    QComboBox* createCombo(const char* objectName, const QStringList& items);
    void arrange();
    void place(QGridLayout* grid, int row, int column, const char* caption, QWidget* control, int span = 1);
    void connectControls();

    void tellGrid(int value, void (PaintRowColSequeWidget::*ofLabels)(ushort),
                  void (PaintBasicWidget::*ofBase)(ushort), void (PaintSelfWidget::*ofText)(ushort));
    void showFittedSize();
    void pickColor(QPushButton* button, void (PaintRowColSequeWidget::*apply)(const QColor&));
    void showModel(int model);

    QCheckBox* rowColCheck = nullptr;
    QCheckBox* sequeCheck = nullptr;
    QSpinBox* rows = nullptr;
    QSpinBox* columns = nullptr;
    QSpinBox* size = nullptr;
    QPushButton* rowColColor = nullptr;
    QPushButton* sequeColor = nullptr;
    QRadioButton* letterModel = nullptr;
    QRadioButton* numModel = nullptr;
    QRadioButton* letterNumModel = nullptr;
    QComboBox* location = nullptr;
    QComboBox* sorting = nullptr;
    QPointer<PaintRowColSequeWidget> painter;
    QPointer<PaintBasicWidget> basicPainter;
    QPointer<PaintSelfWidget> selfPainter;
    RowColSequeSettingBox* owner;
    bool firstShow = true;

public Q_SLOTS:
    void slotRowColVisible();
    void slotSequeVisible();
    void slotSecletSort();
    void slotSecletText();
    void slotSetRow();
    void slotSetCol();
    void slotSetSequeSize();
    void soltEnable();
    void slotUpdateColor() { pickColor(rowColColor, &PaintRowColSequeWidget::setRowColColor); }
    void slotUpdateSequeColor() { pickColor(sequeColor, &PaintRowColSequeWidget::setSequeColor); }
    void soltShowNumberModel() { showModel(1); }
    void soltShowLetterModel() { showModel(0); }
    void soltShowNumberLetterModel() { showModel(2); }
};

void RowColSequeSettingBox::Impl::createControls()
{
    rowColCheck = new QCheckBox(owner);
    rowColCheck->setChecked(true);
    sequeCheck = new QCheckBox(owner);
    sequeCheck->setChecked(true);
    rows = createEntry("_rowSpinBox", 100, 9);
    columns = createEntry("_colSpinBox", 100, 16);
    size = createEntry("_sequeSpinBox", 500, 15);
    rowColColor = createColorButton("_rowColorButton");
    sequeColor = createColorButton("_sequeColorButton");
    letterModel = new QRadioButton(owner);
    letterModel->setChecked(true);
    numModel = new QRadioButton(owner);
    letterNumModel = new QRadioButton(owner);
    location =
        createCombo("_localComboBox", {QStringLiteral("in central"), QStringLiteral("left up right down"),
                                       QStringLiteral("left down right up")});
    sorting = createCombo("_sortComboBox",
                          {QStringLiteral("from up to down increase, frome left to right increase"),
                           QStringLiteral("from up to down increase, frome left to right decrease"),
                           QStringLiteral("from down to up increase, frome left to right increase"),
                           QStringLiteral("from down to up increase, frome left to right decrease")});
}

QSpinBox* RowColSequeSettingBox::Impl::createEntry(const char* objectName, int maximum, int value)
{
    auto* entry = new QSpinBox(owner);
    entry->setObjectName(QLatin1String(objectName));
    entry->setFixedSize(cellEntry);
    entry->setRange(1, maximum);
    entry->setValue(value);
    return entry;
}

QPushButton* RowColSequeSettingBox::Impl::createColorButton(const char* objectName)
{
    auto* button = new QPushButton(owner);
    button->setObjectName(QLatin1String(objectName));
    button->setFixedSize(colorButtonSize);
    button->setStyleSheet(QStringLiteral("background-color: #000000"));
    return button;
}

QComboBox* RowColSequeSettingBox::Impl::createCombo(const char* objectName, const QStringList& items)
{
    auto* combo = new ComboBox(owner);
    combo->setObjectName(QLatin1String(objectName));
    for (int i = 0; i < items.size(); ++i)
        combo->addItem(items.at(i), i);
    return combo;
}

void RowColSequeSettingBox::Impl::arrange()
{
    auto* grid = new QGridLayout(owner);
    grid->setHorizontalSpacing(10);
    place(grid, 0, 0, "rowcol num", rowColCheck);
    place(grid, 0, 1, "row", rows);
    place(grid, 0, 2, "col", columns);
    place(grid, 0, 3, "color", rowColColor);
    place(grid, 1, 0, "serial num", sequeCheck);
    place(grid, 1, 1, "seque size", size);
    place(grid, 1, 3, "seque color", sequeColor);
    place(grid, 2, 0, "letter model", letterModel);
    place(grid, 2, 1, "num model", numModel);
    place(grid, 2, 2, "letter-num model", letterNumModel);
    place(grid, 3, 1, "display location", location, 2);
    place(grid, 4, 1, "serial num sorting method", sorting, 2);
}

/// The caption beside its control in one cell, or, where `span` is given, the caption in the cell and the
/// control across the cells that follow.
void RowColSequeSettingBox::Impl::place(QGridLayout* grid, int row, int column, const char* caption,
                                        QWidget* control, int span)
{
    auto* label = new QLabel(QLatin1String(caption), owner);
    label->setBuddy(control);
    label->setWordWrap(true); // the panel is narrower than its captions
    if (span > 1) {
        grid->addWidget(label, row, column);
        grid->addWidget(control, row, column + 1, 1, span);
        return;
    }
    auto* pair = new QHBoxLayout;
    pair->setSpacing(4);
    pair->addWidget(label);
    pair->addWidget(control);
    grid->addLayout(pair, row, column);
}

void RowColSequeSettingBox::Impl::connectControls()
{
    connect(letterModel, &QRadioButton::clicked, this, &Impl::soltShowLetterModel);
    connect(numModel, &QRadioButton::clicked, this, &Impl::soltShowNumberModel);
    connect(letterNumModel, &QRadioButton::clicked, this, &Impl::soltShowNumberLetterModel);
    connect(rowColCheck, &QCheckBox::clicked, this, &Impl::slotRowColVisible);
    connect(rowColCheck, &QCheckBox::clicked, this, &Impl::soltEnable);
    connect(sequeCheck, &QCheckBox::clicked, this, &Impl::slotSequeVisible);
    connect(sequeCheck, &QCheckBox::clicked, this, &Impl::soltEnable);
    connect(rows, QOverload<int>::of(&QSpinBox::valueChanged), this, &Impl::slotSetRow);
    connect(columns, QOverload<int>::of(&QSpinBox::valueChanged), this, &Impl::slotSetCol);
    connect(size, QOverload<int>::of(&QSpinBox::valueChanged), this, &Impl::slotSetSequeSize);
    connect(rowColColor, &QPushButton::clicked, this, &Impl::slotUpdateColor);
    connect(sequeColor, &QPushButton::clicked, this, &Impl::slotUpdateSequeColor);
    connect(sorting, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &Impl::slotSecletSort);
    connect(location, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &Impl::slotSecletText);
}

void RowColSequeSettingBox::Impl::tellGrid(int value, void (PaintRowColSequeWidget::*ofLabels)(ushort),
                                           void (PaintBasicWidget::*ofBase)(ushort),
                                           void (PaintSelfWidget::*ofText)(ushort))
{
    const auto count = ushort(value);
    if (painter)
        (painter->*ofLabels)(count);
    if (basicPainter)
        (basicPainter->*ofBase)(count);
    if (selfPainter)
        (selfPainter->*ofText)(count);
    showFittedSize();
    Q_EMIT owner->rowColSignal();
}

/// A size that does not fit the cabinet gives way to the largest that does.
void RowColSequeSettingBox::Impl::showFittedSize()
{
    if (painter)
        size->setValue(painter->sequeSize());
}

void RowColSequeSettingBox::Impl::pickColor(QPushButton* button,
                                            void (PaintRowColSequeWidget::*apply)(const QColor&))
{
    const QColor color = QColorDialog::getColor(Qt::white, owner, QStringLiteral("Select Color"));
    if (color.isValid()) {
        button->setStyleSheet(QStringLiteral("QPushButton {background-color: %1;}").arg(color.name()));
        if (painter)
            (painter->*apply)(color);
    }
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::showModel(int model)
{
    if (painter)
        painter->setShowModel(model);
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::slotRowColVisible()
{
    if (painter)
        painter->setRowColVisible(rowColCheck->isChecked());
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::slotSequeVisible()
{
    if (painter)
        painter->setSequeVisible(sequeCheck->isChecked());
    if (sequeCheck->isChecked() && firstShow)
        letterModel->setChecked(true);
    firstShow = false;
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::slotSecletSort()
{
    const QVariant data = sorting->currentData();
    if (painter && (data == 0 || data == 2 || data == 3 || data == 1))
        painter->setSortType(data.toInt());
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::slotSecletText()
{
    const QVariant data = location->currentData();
    if (painter && (data == 0 || data == 1 || data == 2))
        painter->setLocation(data.toInt());
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::slotSetRow()
{
    tellGrid(rows->value(), &PaintRowColSequeWidget::setRows, &PaintBasicWidget::setRows,
             &PaintSelfWidget::setRows);
}

void RowColSequeSettingBox::Impl::slotSetCol()
{
    tellGrid(columns->value(), &PaintRowColSequeWidget::setColumns, &PaintBasicWidget::setColumns,
             &PaintSelfWidget::setColumns);
}

void RowColSequeSettingBox::Impl::slotSetSequeSize()
{
    if (painter)
        painter->setSequeSize(ushort(size->value()));
    showFittedSize();
    Q_EMIT owner->rowColSignal();
}

void RowColSequeSettingBox::Impl::soltEnable()
{
    for (QWidget* control : std::initializer_list<QWidget*>{rows, columns, rowColColor})
        control->setEnabled(rowColCheck->isChecked());
    for (QWidget* control : std::initializer_list<QWidget*>{size, sequeColor, letterModel, numModel,
                                                            letterNumModel, sorting, location})
        control->setEnabled(sequeCheck->isChecked());
}

RowColSequeSettingBox::RowColSequeSettingBox(QWidget* parent)
    : QGroupBox(parent)
    , d(new Impl(this))
{
    setTitle(QStringLiteral("rowcol serial num setting model"));
    setFixedWidth(380);
    d->createControls();
    d->arrange();
    d->connectControls();
}

RowColSequeSettingBox::~RowColSequeSettingBox() = default;

void RowColSequeSettingBox::setPaintRowColSequeWidget(PaintRowColSequeWidget* painter)
{
    d->painter = painter;
}

void RowColSequeSettingBox::setPaintBasicWidget(PaintBasicWidget* painter)
{
    d->basicPainter = painter;
}

void RowColSequeSettingBox::setPaintSelfWidget(PaintSelfWidget* painter)
{
    d->selfPainter = painter;
}

QSize RowColSequeSettingBox::sizeHint() const
{
    return {minimumWidth(), heightForWidth(minimumWidth())};
}

void RowColSequeSettingBox::initShow()
{
    if (!d->painter)
        return;
    d->soltShowLetterModel();
    d->slotRowColVisible();
    d->slotSequeVisible();
}

} // namespace vardeno::testcharttools

#include "rowcolsequesettingbox.moc"
