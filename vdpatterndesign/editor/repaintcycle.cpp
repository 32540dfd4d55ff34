#include "editor/repaintcycle.h"

#include "editor/editbuttons.h"
#include "editor/editordelays.h"
#include "settingpanel.h"
#include "vtestcharttools.h"

#include <QScopedValueRollback>
#include <QTimer>

namespace vardeno::testcharttools {

namespace {

/// Whether a person works in another tool of the window.
bool isFocusInAnotherTool(const QWidget* tool)
{
    const QWidget* place = tool->window()->focusWidget();
    while (place && place != tool && !qobject_cast<const VTestChartTools*>(place))
        place = place->parentWidget();
    return place && place != tool;
}

} // namespace

RepaintCycle::RepaintCycle(QWidget* tool, std::function<void()> takeSnapshot)
    : m_tool(tool)
    , m_takeSnapshot(std::move(takeSnapshot))
    , m_input(tool)
    , m_heldArrow(tool)
{
}

void RepaintCycle::setMask(QWidget* mask)
{
    m_mask = mask;
    m_input.setCover(mask);
}

void RepaintCycle::setButtons(EditButtons* buttons)
{
    m_buttons = buttons;
}

void RepaintCycle::addPanel(SettingPanel* panel, int lockRank)
{
    m_panels[lockRank] = panel;
}

void RepaintCycle::finishSetup(QWidget* panels)
{
    m_look.setWidgets({panels, m_buttons}, m_mask);
}

void RepaintCycle::start()
{
    m_wanted = m_held;
    if (m_held)
        return;
    if (m_atOnce || !m_tool->isVisible()) {
        m_takeSnapshot();
        return;
    }
    m_status.clear();
    m_mask->raise();
    m_mask->show();
    if (!m_begun)
        begin();
}

/// One pair of timers serves all the signals of one change.
void RepaintCycle::begin()
{
    m_begun = true;
    QTimer::singleShot(0, this, [this] { m_begun = false; });
    QTimer::singleShot(m_prompt ? 0 : editorDelays().lock, this, [this] {
        if (m_tool->isVisible())
            setLocked(true);
    });
    QTimer::singleShot(m_prompt ? 0 : editorDelays().snapshot, this, [this] {
        if (m_tool->isVisible())
            m_takeSnapshot();
    });
}

void RepaintCycle::setHeld(bool held)
{
    m_held = held;
    if (!held && m_wanted)
        start();
}

void RepaintCycle::showAtOnce(const std::function<void()>& change)
{
    const QScopedValueRollback<bool> atOnce(m_atOnce, true);
    change();
}

void RepaintCycle::finish()
{
    m_mask->hide();
    setLocked(false);
}

void RepaintCycle::setLocked(bool locked)
{
    if (locked)
        m_look.freeze();
    const bool isFocusOurs = !isFocusInAnotherTool(m_tool);
    if (isFocusOurs)
        m_input.begin(); // unlocking takes the focus as well, and a cycle may end before its lock has come
    for (const auto& [rank, panel] : m_panels) {
        panel->setLockTakesFocus(isFocusOurs && !m_input.spared());
        panel->spareFromLocks(m_input.spared());
        panel->setControlsDisabled(locked);
    }
    m_buttons->setLocked(locked);
    if (locked)
        return;
    m_input.end();
    m_look.thaw();
    m_heldArrow.resume();
}

} // namespace vardeno::testcharttools
