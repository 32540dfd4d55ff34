#include "editor/editbuttons.h"

#include "panels/contentsize.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize barSize(1199, 36);
constexpr QSize saveButtonSize(80, 20);
constexpr QSize editButtonSize(65, 28);
constexpr int buttonMargin = 8;

} // namespace

EditButtons::EditButtons(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("saveWidget"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedSize(barSize);
    m_save = create("saveButton", "Apply", saveButtonSize);
    m_save->hide(); // the host shows it where it offers the preview save; it has no place in the layout
    m_cancel = create("CancleButton", "Cancel", editButtonSize);
    m_addConfirm = create("ADDButton", "Confirm", editButtonSize);
    m_replaceConfirm = create("ADDButton", "Confirm", editButtonSize);
    m_replaceApply = create("ADDButton", "Apply", editButtonSize);
    m_replaceApply->setEnabled(true);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(9, 0, 9, 0);
    row->addStretch();
    for (QPushButton* button : ofEdit())
        row->addWidget(button, 0, Qt::AlignVCenter);
}

QPushButton* EditButtons::create(const char* objectName, const char* text, const QSize& size)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->setFixedSize(size);
    useFixedFont(button);
    m_captions.add(button, QLatin1String(text), buttonMargin);
    return button;
}

std::array<QPushButton*, 4> EditButtons::ofEdit() const
{
    return {m_cancel, m_addConfirm, m_replaceConfirm, m_replaceApply};
}

void EditButtons::retranslate()
{
    m_captions.retranslate();
    fit();
}

void EditButtons::setFollowsRoom(bool follows)
{
    m_followsRoom = follows;
    setMinimumSize(follows ? QSize(0, barSize.height()) : barSize);
    setMaximumSize(follows ? QSize(QWIDGETSIZE_MAX, barSize.height()) : barSize);
    for (QPushButton* button : ofEdit()) {
        button->setFixedSize(editButtonSize);
        if (follows)
            button->setFont(QFont()); // what the tool has
        else
            useFixedFont(button);
    }
    retranslate();
}

void EditButtons::fit()
{
    if (!m_followsRoom)
        return;
    int height = editButtonSize.height();
    for (QPushButton* button : ofEdit()) {
        const QSize size = contentSize(button).expandedTo(editButtonSize);
        button->setFixedSize(size);
        height = std::max(height, size.height());
    }
    m_captions.retranslate();
    if (m_sideBar)
        height = std::max(height, m_sideBar->sizeHint().height());
    setFixedHeight(barSize.height() - editButtonSize.height() + height);
    placeSideBar();
}

void EditButtons::setSideBar(QWidget* bar)
{
    m_sideBar = bar;
    fit();
    placeSideBar();
}

/// Beside the bar, not in it, where hosts find the buttons of the edit.
void EditButtons::placeSideBar()
{
    if (!m_sideBar)
        return;
    layout()->activate();
    int right = width();
    for (const QPushButton* button : ofEdit()) {
        if (!button->isHidden())
            right = std::min(right, button->x());
    }
    const int left = layout()->contentsMargins().left();
    m_sideBar->setGeometry(x() + left, y() + 1, right - 2 * left, height() - 1);
    m_sideBar->raise();
}

void EditButtons::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    placeSideBar();
}

void EditButtons::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeSideBar();
}

void EditButtons::setShowForAdd(bool add)
{
    m_addConfirm->setVisible(add);
    m_replaceConfirm->setVisible(!add);
    m_replaceApply->setVisible(!add);
    placeSideBar();
}

void EditButtons::setFollowsState(bool follows)
{
    m_followsState = follows;
    showState();
}

void EditButtons::setUnsaved(bool unsaved)
{
    m_unsaved = unsaved;
    m_changedSinceWriting = unsaved;
    if (m_followsState) {
        showState();
        return;
    }
    for (QPushButton* button : {m_save, m_addConfirm, m_replaceApply})
        button->setEnabled(unsaved);
    if (unsaved)
        m_replaceConfirm->setEnabled(true); // which a failed save has left disabled
}

void EditButtons::setLocked(bool locked)
{
    m_locked = locked;
    if (m_followsState) {
        showState();
        return;
    }
    for (QPushButton* button : ofEdit())
        button->setEnabled(!locked);
}

void EditButtons::beginWriting()
{
    ++m_writing;
    m_changedSinceWriting = false;
    showState();
}

void EditButtons::endWriting(bool written)
{
    --m_writing;
    if (written)
        setUnsaved(m_followsState && m_changedSinceWriting);
    else
        showState();
}

void EditButtons::showState()
{
    if (!m_followsState)
        return;
    const bool idle = !m_locked && m_writing == 0;
    m_cancel->setEnabled(!m_locked);
    m_save->setEnabled(m_unsaved);
    m_replaceConfirm->setEnabled(idle);
    for (QPushButton* button : {m_addConfirm, m_replaceApply})
        button->setEnabled(idle && m_unsaved);
}

} // namespace vardeno::testcharttools
