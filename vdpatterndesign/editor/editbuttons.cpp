#include "editor/editbuttons.h"

#include <QHBoxLayout>
#include <QPushButton>

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
    for (QPushButton* button : {m_cancel, m_addConfirm, m_replaceConfirm, m_replaceApply})
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

void EditButtons::setShowForAdd(bool add)
{
    m_addConfirm->setVisible(add);
    m_replaceConfirm->setVisible(!add);
    m_replaceApply->setVisible(!add);
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
    for (QPushButton* button : {m_cancel, m_addConfirm, m_replaceConfirm, m_replaceApply})
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
