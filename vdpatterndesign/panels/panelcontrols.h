#pragma once

#include "controls/caption.h"

#include <functional>
#include <vector>

class QWidget;

namespace vardeno::testcharttools {

/// What a settings panel has registered: its captions, and the input controls that its lock makes inert.
class PanelControls
{
public:
    /// Answers whether a control may be used while the panel is not locked.
    using Allowed = std::function<bool()>;

    /// Puts `control` under the lock; without `allowed` it may be used whenever the panel is not locked.
    void add(QWidget* control, Allowed allowed = {});

    void setLocked(bool locked);
    /// Asks for every control whether it may be used; for after a switch was operated.
    void update() const;

    CaptionSet captions;

private:
    struct Control
    {
        QWidget* widget;
        Allowed allowed;
    };
    std::vector<Control> m_controls;
    bool m_locked = false;
};

} // namespace vardeno::testcharttools
