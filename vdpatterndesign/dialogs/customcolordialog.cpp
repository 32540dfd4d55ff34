#include "customcolordialog.h"

#include "dialogs/userscolors.h"
#include "support/translation.h"
#include "titlewidget.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace vardeno::testcharttools {

namespace {

constexpr char nameProperty[] = "name";

struct Relabelling
{
    const char* name;
    const char* source;
};

constexpr Relabelling labels[] = {
    {"Basic", "Basiccolors"}, {"Hue", "Hue"},     {"Sat", "Sat"},   {"Val", "Val"},
    {"Red", "Red"},           {"Green", "Green"}, {"Blue", "Blue"}, {"Custom", "Customcolors"}};
constexpr Relabelling buttons[] = {
    {"Pick", "PickScreenColor"}, {"Add", "AddtoCustomColors"}, {"OK", "OK"}, {"Cancel", "Cannel"}};

/// The first word of a standard text, without mnemonics and colons.
QString nameFrom(QString text)
{
    text.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts).value(0);
}

template <typename Widget>
void tag(const QWidget* dialog)
{
    const auto widgets = dialog->findChildren<Widget*>();
    for (Widget* widget : widgets)
        widget->setProperty(nameProperty, nameFrom(widget->text()));
}

template <typename Widget, std::size_t count>
void relabel(const QWidget* dialog, const Relabelling (&texts)[count])
{
    const auto widgets = dialog->findChildren<Widget*>();
    for (Widget* widget : widgets) {
        for (const Relabelling& text : texts) {
            if (widget->property(nameProperty) == QLatin1String(text.name))
                widget->setText(translated(QLatin1String(text.source)));
        }
    }
}

} // namespace

CustomColorDialog::CustomColorDialog(QWidget* parent)
    : FloatDockWidget(QStringLiteral("colorDialog"), parent)
    , m_dialog(new QColorDialog(parent))
{
    setObjectName(QStringLiteral("includeDialog"));
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    setHideOnClose(true);
    UsersColors::replaceBy(QColor(43, 43, 46, 255));
    m_dialog->setObjectName(QStringLiteral("CustomDialog"));
    m_dialog->setModal(false);
    m_dialog->setOption(QColorDialog::DontUseNativeDialog);
    delete widget();
    setWidget(m_dialog);
    tagChildren();
    retranslate();
    connect(m_dialog, &QColorDialog::colorSelected, this, &CustomColorDialog::slotColorSelected);
    connect(m_dialog, &QColorDialog::currentColorChanged, this,
            &CustomColorDialog::slotColorExternallyChanged);
    connect(m_dialog, &QColorDialog::rejected, this, &CustomColorDialog::slotColorDialogRejected);
    connect(m_dialog, &QColorDialog::accepted, this, &CustomColorDialog::slotDialogAccepted);
}

CustomColorDialog::~CustomColorDialog() = default;

void CustomColorDialog::setCurrentColor(const QColor& color)
{
    const QSignalBlocker quiet(m_dialog);
    m_dialog->setCurrentColor(color);
}

QColor CustomColorDialog::currentColor() const
{
    return m_dialog->currentColor();
}

void CustomColorDialog::retranslate()
{
    relabel<QLabel>(m_dialog, labels);
    relabel<QPushButton>(m_dialog, buttons);
    titleBar()->retranslate();
}

void CustomColorDialog::setVisible(bool visible)
{
    FloatDockWidget::setVisible(visible);
    if (!visible)
        return;
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    m_dialog->setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents();
}

bool CustomColorDialog::event(QEvent* event)
{
    const bool handled = FloatDockWidget::event(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate(); // after the inner dialog, which gets the event from this one
    return handled;
}

void CustomColorDialog::slotColorSelected(QColor color)
{
    Q_EMIT sigColorSelected(color);
    slotCloseWidget();
}

void CustomColorDialog::slotColorExternallyChanged(QColor color)
{
    Q_EMIT sigColorExternallyChanged(color);
}

void CustomColorDialog::slotColorDialogRejected()
{
    Q_EMIT sigColorDialogRejected();
    endChoice();
}

void CustomColorDialog::slotDialogAccepted()
{
    Q_EMIT sigColorAccept(currentColor());
    endChoice();
}

/// The inner dialog has hidden itself: a window that is locked open is not to stay empty.
void CustomColorDialog::endChoice()
{
    slotCloseWidget();
    m_dialog->show();
}

/// Names the dialog's parts, by which they are styled and relabelled later.
void CustomColorDialog::tagChildren()
{
    tag<QLabel>(m_dialog);
    tag<QPushButton>(m_dialog);
    const auto all = m_dialog->findChildren<QPushButton*>();
    for (QPushButton* button : all)
        button->setIcon(QIcon()); // the platform's pictures do not go with the library's
    const auto spinBoxes = m_dialog->findChildren<QSpinBox*>();
    for (QSpinBox* spinBox : spinBoxes)
        spinBox->setObjectName(QStringLiteral("spinBox"));
    const auto lineEdits = m_dialog->findChildren<QLineEdit*>();
    for (QLineEdit* lineEdit : lineEdits) {
        lineEdit->setObjectName(QStringLiteral("HTMLLineEdit"));
        lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); // as wide as the numbers above
    }
}

} // namespace vardeno::testcharttools
