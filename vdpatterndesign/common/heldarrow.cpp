#include "common/heldarrow.h"

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
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                       event->type() == QEvent::MouseButtonRelease;
    if (!mouse || m_stepping || !watched->isWidgetType())
        return false;
    const auto* const at = static_cast<QMouseEvent*>(event);
    if (event->type() == QEvent::MouseButtonRelease) {
        m_entry = nullptr;
    } else if (event->type() == QEvent::MouseButtonPress) {
        auto* const entry = qobject_cast<QAbstractSpinBox*>(watched); // its text is a widget of its own
        const bool held = entry && entry->isEnabled() && at->button() == Qt::LeftButton;
        m_entry = held && m_tool->isAncestorOf(entry) ? entry : nullptr;
        m_held.start();
    }
    if (m_entry)
        m_place = m_entry->mapFromGlobal(at->globalPos());
    return false;
}

void HeldArrow::step()
{
    if (!m_entry || !m_entry->isEnabled() || !m_entry->rect().contains(m_place))
        return;
    QMouseEvent press(QEvent::MouseButtonPress, m_place, m_entry->mapToGlobal(m_place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    m_stepping = true;
    QCoreApplication::sendEvent(m_entry, &press);
    m_stepping = false;
}

} // namespace vardeno::testcharttools
