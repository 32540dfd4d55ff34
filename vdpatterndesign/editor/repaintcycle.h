#pragma once

#include "editor/calmlook.h"
#include "editor/heldarrow.h"
#include "editor/inputkeeper.h"
#include "editor/paintstatus.h"

#include <functional>
#include <map>

namespace vardeno::testcharttools {

class EditButtons;
class SettingPanel;

/// What follows a change of the chart: the mask covers the panels at once, they are locked a moment later,
/// then the picture is taken, and all is released when the awaited layers have reported. All signals of one
/// change share one such cycle.
class RepaintCycle : public QObject
{
public:
    /// `takeSnapshot` composes the layers into the preview.
    RepaintCycle(QWidget* tool, std::function<void()> takeSnapshot);

    /// What a cycle covers and locks.
    void setMask(QWidget* mask);
    void setButtons(EditButtons* buttons);
    /// Panels are locked, and take the focus, in the order of their ranks.
    void addPanel(SettingPanel* panel, int lockRank);
    /// All is there.
    void finishSetup(QWidget* panels);

    /// The chart has changed. A tool that is not visible takes the picture at once, and nothing else.
    void start();
    /// Held, a change is only noted; one cycle serves all of them when it is let go.
    void setHeld(bool held);
    /// Does `change`, whose picture is taken at once without a lock.
    void showAtOnce(const std::function<void()>& change);
    bool showsAtOnce() const { return m_atOnce; }

    /// Prompt, the picture is taken when control is given back to the event loop.
    void setPrompt(bool prompt) { m_prompt = prompt; }
    bool isPrompt() const { return m_prompt; }

    /// The layers' reports.
    PaintStatus& status() { return m_status; }
    /// All awaited layers have reported.
    void finish();

    InputKeeper& input() { return m_input; }
    CalmLook& look() { return m_look; }

private:
    void begin();
    void setLocked(bool locked);

    QWidget* m_tool;
    std::function<void()> m_takeSnapshot;
    QWidget* m_mask = nullptr;
    EditButtons* m_buttons = nullptr;
    std::map<int, SettingPanel*> m_panels;
    InputKeeper m_input;
    HeldArrow m_heldArrow;
    CalmLook m_look;
    PaintStatus m_status;
    bool m_begun = false; ///< since control was last given back to the event loop
    bool m_prompt = false;
    bool m_held = false;
    bool m_wanted = false; ///< while held
    bool m_atOnce = false;
};

} // namespace vardeno::testcharttools
