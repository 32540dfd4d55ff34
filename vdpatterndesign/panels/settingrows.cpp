#include "panels/settingrows.h"

#include "controls/fieldhint.h"
#include "panels/contentsize.h"

#include <combobox.h>
#include <spineditbox.h>

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize sliderSize(146, 24);
constexpr QSize iconButtonSize(20, 20);
constexpr QSize swatchSize(16, 16);
constexpr QSize switchSize(28, 14);
constexpr int rowSpacing = 8;
constexpr int ruleLength = 353;

QIcon switchIcon()
{
    QIcon icon;
    icon.addFile(QStringLiteral(":/resources/images/Switch_on.png"), QSize(), QIcon::Normal, QIcon::On);
    icon.addFile(QStringLiteral(":/resources/images/Switch_off.png"), QSize(), QIcon::Normal, QIcon::Off);
    return icon;
}

/// What a button's caption leaves free: an upload button has a picture beside it.
int marginOf(const QPushButton* button)
{
    return button->property("btnProperty") == QLatin1String("uplogo") ? 68 : 2;
}

/// A switch whose picture has smooth edges where the screen's scale lies between its two sizes.
template <typename Button, QStyle::ControlElement element>
class Switch : public Button
{
public:
    using Button::Button;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        painter.drawControl(element, option);
    }
};

/// A frame's own line is drawn without width, and vanishes at some places of a scaled screen.
class Rule : public QFrame
{
public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect((width() - ruleLength) / 2, 0, ruleLength, height(),
                                palette().color(foregroundRole()));
    }
};

/// A current item too wide for its box, which the box shows elided, is told whole.
void tellWideItem(ComboBox* box)
{
    const QString text = box->currentText();
    const bool fits =
        box->fontMetrics().boundingRect(text).width() <= box->width() - SettingRow::indicatorMargin;
    box->setToolTip(fits ? QString() : text);
}

} // namespace

SettingRow::SettingRow(QWidget* panel, PanelControls& controls, QHBoxLayout* layout)
    : m_panel(panel)
    , m_controls(&controls)
    , m_layout(layout)
{
}

SettingRow& SettingRow::caption(const QString& source, const QSize& size, int margin)
{
    addCaption(source, size, margin);
    m_controls->addSized(m_caption, size);
    return *this;
}

SettingRow& SettingRow::firstCaption(const QString& source, const QSize& size, int margin)
{
    addCaption(source, size, margin);
    m_controls->addFirstCaption(m_caption, size);
    return *this;
}

SettingRow& SettingRow::shortCaption(const QString& source, const QSize& longest)
{
    addCaption(QString(), longest, 0);
    m_controls->captions.add(source, [label = m_caption, controls = m_controls,
                                      longest](const QString& text) {
        // An advance is rounded to the nearest pixel, which may be the one below.
        const QSize needed = textSize(label, text, controls->fits() ? 1 : 0);
        const int height = controls->fits() ? std::max(needed.height(), longest.height()) : longest.height();
        label->setFixedSize(controls->fits() ? needed.width() : std::min(needed.width(), longest.width()),
                            height);
        showElided(label, text);
    });
    return *this;
}

SettingRow& SettingRow::spin(SpinEditBox*& box, const QSize& size, const SpinRange& range, Allowed allowed)
{
    box = new SpinEditBox(m_panel);
    box->setWholeNumbers(true);
    box->setRange(range.minimum, range.maximum);
    box->setSuffix(range.unit);
    box->setValue(range.initial);
    appendLocked(box, size, std::move(allowed));
    QObject::connect(box, &SpinEditBox::entryRefused, box, [entry = box] { showHint(entry); });
    return *this;
}

SettingRow& SettingRow::slider(QSlider*& slider, int maximum, Allowed allowed)
{
    slider = new QSlider(Qt::Horizontal, m_panel);
    slider->setRange(0, maximum);
    slider->setValue(100);
    appendLocked(slider, sliderSize, std::move(allowed));
    return *this;
}

SettingRow& SettingRow::text(QLineEdit*& entry, const QString& initial, const QSize& size, Allowed allowed)
{
    entry = new QLineEdit(initial, m_panel);
    appendLocked(entry, size, std::move(allowed));
    return *this;
}

SettingRow& SettingRow::iconButton(QPushButton*& button, const QString& picture, const QString& hint,
                                   const QString& objectName, Allowed allowed)
{
    button = new QPushButton(m_panel);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setIcon(QIcon(picture));
    appendLocked(button, iconButtonSize, std::move(allowed));
    QPushButton* const shown = button;
    m_controls->captions.add(hint, [shown](const QString& text) {
        shown->setToolTip(text);
        shown->setAccessibleName(text);
    });
    return *this;
}

SettingRow& SettingRow::swatch(QPushButton*& button, const QString& objectName, const QString& role,
                               Allowed allowed)
{
    button = new QPushButton(m_panel);
    button->setObjectName(objectName);
    if (!role.isEmpty())
        button->setProperty("btnProperty", role);
    button->setFlat(true);
    appendLocked(button, swatchSize, std::move(allowed));
    return *this;
}

SettingRow& SettingRow::radio(QRadioButton*& radio, const QString& source, const QSize& size, Allowed allowed,
                              int margin)
{
    radio = new QRadioButton(m_panel);
    appendLocked(radio, size, std::move(allowed));
    m_controls->captions.add(radio, source, margin);
    return *this;
}

SettingRow& SettingRow::combo(ComboBox*& box, const QStringList& sources, const QSize& size, Allowed allowed)
{
    box = new ComboBox(m_panel);
    appendLocked(box, size, std::move(allowed));
    ComboBox* const shown = box;
    for (int row = 0; row < sources.size(); ++row) {
        box->addItem(sources.at(row), row);
        m_controls->captions.add(sources.at(row), [shown, row](const QString& text) {
            shown->setItemText(row, text);
            tellWideItem(shown);
        });
    }
    QObject::connect(box, QOverload<int>::of(&ComboBox::currentIndexChanged), box,
                     [shown] { tellWideItem(shown); });
    return *this;
}

SettingRow& SettingRow::button(QPushButton*& button, const QString& source, const QSize& size,
                               const QString& objectName, Allowed allowed)
{
    button = new QPushButton(m_panel);
    button->setObjectName(objectName);
    appendLocked(button, size, std::move(allowed));
    QPushButton* const shown = button;
    m_controls->captions.add(source,
                             [shown](const QString& text) { showElided(shown, text, marginOf(shown)); });
    return *this;
}

SettingRow& SettingRow::toggle(QCheckBox*& box, bool checked)
{
    box = new Switch<QCheckBox, QStyle::CE_CheckBox>(m_panel);
    box->setProperty("switchStyle", QStringLiteral("general"));
    box->setChecked(checked);
    appendLocked(box, switchSize, {});
    return *this;
}

SettingRow& SettingRow::toggle(QPushButton*& button, bool checked, Allowed allowed)
{
    button = new Switch<QPushButton, QStyle::CE_PushButton>(m_panel);
    button->setProperty("switchStyle", QStringLiteral("general"));
    button->setCheckable(true);
    button->setChecked(checked);
    button->setFlat(true);
    button->setIcon(switchIcon());
    button->setIconSize(switchSize);
    appendLocked(button, switchSize, std::move(allowed));
    return *this;
}

SettingRow& SettingRow::widget(QWidget* widget)
{
    m_layout->insertWidget(m_layout->count() - 1, widget);
    return *this;
}

SettingRow& SettingRow::named(const QString& source)
{
    m_controls->hints.add(source, [control = m_last](const QString& name) { setHint(control, name); });
    return *this;
}

SettingRow& SettingRow::gap(int pixels)
{
    m_layout->insertSpacing(m_layout->count() - 1, pixels);
    return *this;
}

SettingRow& SettingRow::spacing(int pixels)
{
    m_layout->setSpacing(pixels);
    return *this;
}

void SettingRow::addCaption(const QString& source, const QSize& size, int margin)
{
    m_caption = new QLabel(m_panel);
    m_caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_caption->setFixedSize(size);
    widget(m_caption);
    if (!source.isEmpty())
        m_controls->captions.add(m_caption, source, margin);
}

void SettingRow::append(QWidget* control, const QSize& size)
{
    control->setFixedSize(size);
    m_controls->addSized(control, size);
    widget(control);
}

void SettingRow::appendLocked(QWidget* control, const QSize& size, Allowed allowed)
{
    append(control, size);
    m_controls->add(control, std::move(allowed));
    m_last = control;
    if (m_caption)
        m_caption->setBuddy(control);
    m_caption = nullptr;
}

QFrame* createRule(QWidget* panel, const char* objectName, int width, int frameStyle)
{
    auto* rule = new Rule(panel);
    rule->setObjectName(QLatin1String(objectName));
    rule->setFrameStyle(frameStyle);
    rule->setFixedSize(width, 1);
    rule->setForegroundRole(QPalette::Midlight);
    return rule;
}

SettingRows::SettingRows(QWidget* panel, PanelControls& controls, QBoxLayout* column,
                         const QSize& captionRoom, int captionMargin)
    : m_panel(panel)
    , m_controls(&controls)
    , m_column(column)
    , m_captionSize(captionRoom)
    , m_captionMargin(captionMargin)
{
}

SettingRow SettingRows::row(const QString& captionSource)
{
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(rowSpacing);
    layout->addStretch();
    m_column->addLayout(layout);
    SettingRow row(m_panel, *m_controls, layout);
    row.firstCaption(captionSource, m_captionSize, m_captionMargin);
    return row;
}

} // namespace vardeno::testcharttools
