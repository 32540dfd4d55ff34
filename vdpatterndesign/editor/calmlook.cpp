#include "editor/calmlook.h"

#include "editor/editordelays.h"

#include <QWidget>

namespace vardeno::testcharttools {

CalmLook::CalmLook()
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        hideMask(false);
        show();
    });
}

void CalmLook::setWidgets(const std::vector<QWidget*>& widgets, QWidget* mask)
{
    m_widgets = widgets;
    m_mask = mask;
}

void CalmLook::setOn(bool on)
{
    m_on = on;
    if (!on) {
        m_patience.stop();
        show();
    }
    hideMask(on);
}

void CalmLook::freeze()
{
    if (!m_on || m_frozen)
        return;
    m_frozen = true;
    m_patience.start(editorDelays().patience);
    for (QWidget* widget : m_widgets)
        widget->setUpdatesEnabled(false);
}

/// Not now: the focus comes back only after this event, and is to be seen with the rest.
void CalmLook::thaw()
{
    m_patience.stop();
    if (!m_on)
        return;
    hideMask(true);
    QMetaObject::invokeMethod(
        this, [this] { show(); }, Qt::QueuedConnection);
}

void CalmLook::show()
{
    if (!m_frozen)
        return;
    m_frozen = false;
    for (QWidget* widget : m_widgets)
        widget->setUpdatesEnabled(true);
}

/// Its own sheet wins over the tool's; it stays in the way of the mouse.
void CalmLook::hideMask(bool hidden)
{
    const QString sheet = hidden ? QStringLiteral("background-color: transparent") : QString();
    if (m_mask && m_mask->styleSheet() != sheet)
        m_mask->setStyleSheet(sheet);
}

} // namespace vardeno::testcharttools
