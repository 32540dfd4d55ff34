// Every control of the library in one window of the host's own, which takes the look of the current theme.

#include <chartlanguages.h>
#include <combobox.h>
#include <customcolordialog.h>
#include <customdialog.h>
#include <floatdockwidget.h>
#include <imagewidget.h>
#include <lineedit.h>
#include <propertybox.h>
#include <searchedit.h>
#include <spineditbox.h>
#include <theming.h>
#include <translatemanager1.h>
#include <vlineedit.h>

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

using namespace vardeno::testcharttools;

namespace {

/// The editor's style sheet addresses its sections by their names; a section of that name looks like one.
PropertyBox* section(const QString& title)
{
    auto* box = new PropertyBox;
    box->setObjectName(QStringLiteral("basePropertyBox"));
    box->setTitleItem(title);
    return box;
}

void addRow(PropertyBox* section, const QString& caption, std::initializer_list<QWidget*> controls,
            int height = 30)
{
    auto* label = new QLabel(caption);
    label->setFixedWidth(110);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(10, 0, 10, 0);
    row->addWidget(label);
    for (QWidget* control : controls)
        row->addWidget(control);
    row->addStretch();
    section->addItem(caption, row, height);
}

template <typename Widget>
Widget* disabled(Widget* widget)
{
    widget->setEnabled(false);
    return widget;
}

template <typename Widget>
Widget* named(const char* objectName, Widget* widget)
{
    widget->setObjectName(QLatin1String(objectName));
    return widget;
}

template <typename Widget>
Widget* sized(int width, int height, Widget* widget)
{
    widget->setFixedSize(width, height);
    return widget;
}

SpinEditBox* number(double value)
{
    auto* box = sized(110, 24, new SpinEditBox);
    box->setRange(0, 100);
    box->setSuffix(QStringLiteral("px"));
    box->setValue(value);
    return box;
}

ComboBox* choice()
{
    auto* box = sized(110, 24, new ComboBox);
    for (const char* corner : {"Center", "Top left", "Top right", "Bottom left", "Bottom right"})
        box->addItem(QLatin1String(corner));
    return box;
}

LineEdit* text()
{
    auto* entry = sized(190, 24, new LineEdit);
    entry->setText(QStringLiteral("www.example.com"));
    return entry;
}

VLineEdit* calculation(const QString& caption, const QString& unit)
{
    auto* entry = new VLineEdit;
    entry->setFixedWidth(190);
    entry->setCaption(caption);
    entry->setUnit(unit);
    entry->setText(QStringLiteral("2.5"));
    return entry;
}

VLineEdit* above(double minimum, VLineEdit* entry)
{
    entry->setMinimum(minimum);
    return entry;
}

SearchEdit* search(const QString& hint)
{
    auto* entry = new SearchEdit;
    entry->setFixedWidth(190);
    entry->lineEdit()->setPlaceholderText(hint);
    return entry;
}

QCheckBox* boxSwitch(bool on)
{
    auto* box = sized(28, 14, new QCheckBox);
    box->setProperty("switchStyle", "general");
    box->setChecked(on);
    return box;
}

QPushButton* buttonSwitch(bool on)
{
    auto* button = sized(28, 14, new QPushButton);
    button->setProperty("switchStyle", "general");
    button->setIconSize(button->size());
    button->setFlat(true);
    button->setCheckable(true);
    button->setChecked(on);
    return button;
}

QRadioButton* radio(const QString& caption, bool on = false)
{
    auto* button = new QRadioButton(caption);
    button->setChecked(on);
    return button;
}

QSlider* slider(int percent)
{
    auto* slider = sized(110, 24, new QSlider(Qt::Horizontal));
    slider->setRange(0, 100);
    slider->setValue(percent);
    return slider;
}

QPushButton* button(const QString& caption)
{
    return sized(76, 24, new QPushButton(caption));
}

/// Any text as "btnProperty" makes a flat button a swatch.
QPushButton* swatch(const QColor& color)
{
    auto* button = sized(16, 16, new QPushButton);
    button->setProperty("btnProperty", "example");
    button->setFlat(true);
    QPixmap picture(14, 14);
    picture.fill(color);
    button->setIcon(picture);
    button->setIconSize(picture.size());
    return button;
}

ImageWidget* picture()
{
    QPixmap pixmap(4, 2);
    pixmap.fill(QColor(85, 170, 255));
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 1, 1, QColor(255, 170, 255));
    painter.fillRect(2, 0, 1, 1, QColor(255, 170, 255));
    painter.fillRect(1, 1, 1, 1, QColor(255, 170, 255));
    painter.fillRect(3, 1, 1, 1, QColor(255, 170, 255));
    painter.end();
    auto* widget = sized(80, 40, new ImageWidget);
    widget->setPixmap(pixmap);
    return widget;
}

PropertyBox* entries()
{
    PropertyBox* box = section(QStringLiteral("Entries"));
    addRow(box, QStringLiteral("Number"), {number(2), disabled(number(2))});
    addRow(box, QStringLiteral("At its limits"), {number(0), number(100)});
    addRow(box, QStringLiteral("Choice"), {choice(), disabled(choice())});
    addRow(box, QStringLiteral("Text"), {text(), disabled(text())});
    addRow(box, QStringLiteral("Calculation"),
           {calculation(QString(), QStringLiteral("m")),
            calculation(QStringLiteral("Width"), QStringLiteral("m"))});
    addRow(box, QStringLiteral("Above zero"),
           {above(0, calculation(QString(), QStringLiteral("px"))),
            disabled(above(0, calculation(QStringLiteral("Pitch"), QStringLiteral("cm"))))});
    addRow(box, QStringLiteral("Search"),
           {search(QStringLiteral("Cabinet")), disabled(search(QStringLiteral("Cabinet")))});
    return box;
}

PropertyBox* choices()
{
    PropertyBox* box = section(QStringLiteral("Choices"));
    addRow(box, QStringLiteral("Check boxes"),
           {boxSwitch(true), boxSwitch(false), disabled(boxSwitch(true)), disabled(boxSwitch(false))});
    addRow(box, QStringLiteral("Buttons"),
           {buttonSwitch(true), buttonSwitch(false), disabled(buttonSwitch(true)),
            disabled(buttonSwitch(false))});
    addRow(box, QStringLiteral("One of some"),
           {radio(QStringLiteral("Letters"), true), radio(QStringLiteral("Numbers")),
            disabled(radio(QStringLiteral("Both")))});
    addRow(box, QStringLiteral("Sliders"), {slider(60), disabled(slider(60))});
    addRow(box, QStringLiteral("Colors"),
           {swatch(QColor(255, 170, 255)), swatch(QColor(85, 170, 255)), swatch(Qt::white), swatch(Qt::black),
            disabled(swatch(Qt::green))});
    addRow(box, QStringLiteral("Picture"), {picture()}, 56);
    return box;
}

/// The buttons that end an edit have names of their own.
PropertyBox* buttons()
{
    PropertyBox* box = section(QStringLiteral("Buttons"));
    addRow(box, QStringLiteral("Plain"),
           {button(QStringLiteral("Button")), named("focused", button(QStringLiteral("Focused"))),
            disabled(button(QStringLiteral("Disabled")))});
    addRow(box, QStringLiteral("What confirms"),
           {named("saveButton", button(QStringLiteral("Apply"))),
            disabled(named("saveButton", button(QStringLiteral("Disabled"))))});
    QPushButton* reset = named("RESETBUTTON", sized(20, 20, new QPushButton));
    QPushButton* previous = named("_colorStripeLeftPushButton", sized(20, 20, new QPushButton));
    QPushButton* next = disabled(named("_colorStripeRightPushButton", sized(20, 20, new QPushButton)));
    for (QPushButton* flat : {reset, previous, next})
        flat->setFlat(true);
    addRow(box, QStringLiteral("Pictures"), {reset, previous, next});
    return box;
}

PropertyBox* windows(FloatDockWidget* floating, CustomColorDialog* picker)
{
    PropertyBox* box = section(QStringLiteral("Windows"));
    QPushButton* openFloating = button(QStringLiteral("Open"));
    QPushButton* openPicker = button(QStringLiteral("Open"));
    QPushButton* ask = button(QStringLiteral("Ask"));
    QObject::connect(openFloating, &QPushButton::clicked, floating, &FloatDockWidget::slotShowInCursoPos);
    QObject::connect(openPicker, &QPushButton::clicked, picker, &FloatDockWidget::slotShowInCursoPos);
    QObject::connect(ask, &QPushButton::clicked, ask, [ask] {
        auto* question = new CustomDialog;
        question->setDialogStyleSheet(ask->window()->styleSheet());
        question->move(ask->mapToGlobal(QPoint(0, ask->height())));
        question->show();
    });
    addRow(box, QStringLiteral("Floating window"), {openFloating});
    addRow(box, QStringLiteral("Color picker"), {openPicker});
    addRow(box, QStringLiteral("Confirmation"), {ask});
    return box;
}

/// The first window of the library reads the theme. Its style sheet is the library's, filled in.
FloatDockWidget* floatingWindow(QWidget* host)
{
    auto* floating = new FloatDockWidget(QStringLiteral("gallery"), host);
    floating->setTitle(QStringLiteral("Floating window"));
    auto* content = sized(260, 80, new QLabel(QStringLiteral("Drag me by my title.")));
    content->setAlignment(Qt::AlignCenter);
    floating->setWidget(content);
    floating->setFloating(true);
    floating->setHideOnClose(true);
    floating->hide();
    return floating;
}

CustomColorDialog* colorPicker(QWidget* host)
{
    auto* picker = new CustomColorDialog(host);
    picker->setTitle(QStringLiteral("Choose a color"));
    picker->setCurrentColor(QColor(85, 170, 255));
    picker->setFloating(true);
    picker->hide();
    return picker;
}

QColor themeColor(const char* key)
{
    return Theming::themeValues().value(QLatin1String(key)).value<QColor>();
}

/// For what the style sheet leaves to the palette: the window behind the columns and the hints in entries.
QPalette themePalette()
{
    QPalette palette(themeColor("Surface01"), themeColor("GlobalWidgetBackgroundColor"));
    palette.setColor(QPalette::PlaceholderText, themeColor("Text03"));
    return palette;
}

/// The name of the editor's panels gives it their background.
QWidget* column(std::initializer_list<PropertyBox*> sections)
{
    auto* column = named("scrollWidget", new QWidget);
    column->setAttribute(Qt::WA_StyledBackground);
    column->setMinimumWidth(530);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 12);
    layout->setSpacing(0);
    for (PropertyBox* section : sections)
        layout->addWidget(section);
    layout->addStretch();
    return column;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    ChartLanguages::load();
    TranslateManager1::instance().switchLanguage(QStringLiteral("en"));

    QWidget window;
    window.setObjectName(QStringLiteral("globalwidget"));
    window.setWindowTitle(QStringLiteral("Gallery of the controls"));
    FloatDockWidget* floating = floatingWindow(&window);
    QApplication::setPalette(themePalette());
    CustomColorDialog* picker = colorPicker(&window);
    window.setStyleSheet(floating->styleSheet());

    auto* columns = new QHBoxLayout(&window);
    columns->addWidget(column({entries(), buttons()}));
    columns->addWidget(column({choices(), windows(floating, picker)}));
    window.show();
    window.findChild<QPushButton*>(QStringLiteral("focused"))->setFocus(Qt::TabFocusReason);
    return QApplication::exec();
}
