#include "editorlook.h"

#include <basicsettingbox.h>
#include <customdialog.h>
#include <vtestcharttools.h>

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QStyle>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr int gap = 4; ///< between the question and its button

/// The editor's own order is: to add, to confirm a replacement, to apply one.
void arrangeButtons(const QWidget* bar)
{
    const auto buttons = bar->findChildren<QPushButton*>(QStringLiteral("ADDButton"));
    auto* layout = qobject_cast<QBoxLayout*>(bar->layout());
    QPushButton* apply = buttons.at(2);
    layout->insertWidget(layout->indexOf(buttons.at(0)), apply, 0, Qt::AlignVCenter);
    apply->setObjectName(QStringLiteral("CancleButton")); // which the theme dresses as a second choice
    apply->style()->unpolish(apply);
    apply->style()->polish(apply);
}

/// No field takes the focus when the wheel is turned over it.
template <typename Field>
void keepFocusFromWheel(const QWidget* editor)
{
    const auto fields = editor->findChildren<Field*>();
    for (Field* field : fields) {
        if (field->focusPolicy() == Qt::WheelFocus)
            field->setFocusPolicy(Qt::StrongFocus);
    }
}

bool takesTheWheel(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QSlider*>(widget);
}

/// What is turned over `field` turns the page that it lies in.
void scrollAround(const QWidget* field, QEvent* turn)
{
    for (QWidget* around = field->parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QAbstractScrollArea*>(around)) {
            QCoreApplication::sendEvent(area->verticalScrollBar(), turn);
            return;
        }
    }
}

} // namespace

EditorLook::EditorLook(VTestChartTools* editor)
    : QObject(editor)
    , m_editor(editor)
{
    arrangeButtons(editor->findChild<QWidget*>(QStringLiteral("saveWidget")));
    keepFocusFromWheel<QAbstractSpinBox>(editor);
    keepFocusFromWheel<QComboBox>(editor);
    keepFocusFromWheel<QSlider>(editor);
    QApplication::instance()->installEventFilter(this); // the question has no parent
}

bool EditorLook::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* question = qobject_cast<CustomDialog*>(watched))
            placeQuestion(question);
    }
    if (event->type() == QEvent::Wheel && isFieldWithoutFocus(watched)) {
        scrollAround(static_cast<const QWidget*>(watched), event);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool EditorLook::isFieldWithoutFocus(const QObject* watched) const
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget && takesTheWheel(widget) && !widget->hasFocus() && m_editor->isAncestorOf(widget);
}

/// Below its button, or above it, as far to the right as the window allows.
void EditorLook::placeQuestion(QWidget* question) const
{
    const auto* panel = m_editor->findChild<BasicSettingBox*>();
    const auto* button = panel->findChild<QPushButton*>(QStringLiteral("CancleButton"));
    const QWidget* window = m_editor->window();
    if (!button || !button->isVisible())
        return;
    const QRect room(window->mapToGlobal(QPoint()), window->size());
    const QRect place(button->mapToGlobal(QPoint()), button->size());
    QRect wanted(QPoint(place.left(), place.bottom() + gap), question->size());
    if (wanted.bottom() > room.bottom())
        wanted.moveBottom(place.top() - gap);
    wanted.moveRight(std::min(wanted.right(), room.right() - gap));
    question->move(wanted.topLeft());
}
