#include "editor/heldarrow.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QMouseEvent>
#include <QStyle>

#include <algorithm>

namespace vardeno::testcharttools {

HeldArrow::HeldArrow(QWidget* tool)
    : m_tool(tool)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] { step(); });
    qApp->installEventFilter(this);
}

void HeldArrow::resume()
{
    if (!m_entry)
        return;
    const int threshold =
        m_entry->style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, m_entry);
    m_pause.start(int(std::max<qint64>(0, threshold - m_held.elapsed())));
}

/// An inert entry handles no event, but its events come by here.
bool HeldArrow::eventFilter(QObject* watched, QEvent* event)
{
    const bool press =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if (!watched->isWidgetType() || (!press && !release && event->type() != QEvent::MouseMove))
        return false;
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    if (release) {
        m_entry = nullptr;
    } else if (press && !m_stepping) {
        auto* const entry = qobject_cast<QAbstractSpinBox*>(watched); // its text is a widget of its own
        const bool held = entry && entry->isEnabled() && mouse->button() == Qt::LeftButton;
        m_entry = held && m_tool->isAncestorOf(entry) ? entry : nullptr;
        m_held.start();
    }
    if (m_entry)
        m_place = m_entry->mapFromGlobal(mouse->globalPos());
    return false;
}

/// Not where the mouse was let go while a dialog kept every event from the window.
void HeldArrow::step()
{
    if (!(QGuiApplication::mouseButtons() & Qt::LeftButton))
        m_entry = nullptr;
    if (!m_entry || !m_entry->isEnabled())
        return;
    QMouseEvent press(QEvent::MouseButtonPress, m_place, m_entry->mapToGlobal(m_place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    m_stepping = true;
    QCoreApplication::sendEvent(m_entry, &press);
    m_stepping = false;
}

} // namespace vardeno::testcharttools
