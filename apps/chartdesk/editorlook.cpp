#include "editorlook.h"

#include "themepalette.h"

#include <basicsettingbox.h>
#include <customdialog.h>
#include <vtestcharttools.h>

#include <QApplication>
#include <QBoxLayout>
#include <QColorDialog>
#include <QEvent>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

const QColor editorsFiller(43, 43, 46);

void replaceColors(const QColor& from, const QColor& to)
{
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        if (QColorDialog::customColor(i) == from)
            QColorDialog::setCustomColor(i, to);
    }
}

constexpr int questionGap = 4; ///< between the question and its button

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

} // namespace

EmptySlots::EmptySlots(const QColor& color)
    : m_color(color)
{
    replaceColors(editorsFiller, m_color);
}

EmptySlots::~EmptySlots()
{
    replaceColors(m_color, editorsFiller);
}

EditorLook::EditorLook(VTestChartTools* editor)
    : QObject(editor)
    , m_editor(editor)
    , m_slots(themePalette().color(QPalette::AlternateBase))
{
    editor->setWheelScrollsPanels(true);
    editor->setLiveSliders(true);
    editor->setPromptPreview(true);
    editor->setCalmLock(true);
    editor->setTypingGoesOn(true);
    editor->setSmallPng(true);
    editor->setUndoKeys(true);
    editor->setFollowsHost(true);
    editor->setZoomablePreview(true);
    editor->findChild<BasicSettingBox*>()->setQuietWhenEmpty(true);
    arrangeButtons(editor->findChild<QWidget*>(QStringLiteral("saveWidget")));
    QApplication::instance()->installEventFilter(this); // the question has no parent
}

bool EditorLook::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* question = qobject_cast<CustomDialog*>(watched))
            placeQuestion(question);
    }
    return QObject::eventFilter(watched, event);
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
    QRect wanted(QPoint(place.left(), place.bottom() + questionGap), question->size());
    if (wanted.bottom() > room.bottom())
        wanted.moveBottom(place.top() - questionGap);
    wanted.moveRight(std::min(wanted.right(), room.right() - questionGap));
    question->move(wanted.topLeft());
}
