#pragma once

#include "controls/caption.h"

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

namespace vardeno::testcharttools {

/// What a settings panel has registered: its captions, and the input controls that its lock makes inert.
class PanelControls : public QObject
{
public:
    /// Answers whether a control may be used while the panel is not locked.
    using Allowed = std::function<bool()>;

    /// Puts `control` under the lock; without `allowed` it may be used whenever the panel is not locked.
    void add(QWidget* control, Allowed allowed = {});

    void setLocked(bool locked);
    /// A control that locks leave as it is; null, at first, for none.
    void spare(const QWidget* control) { m_spared = control; }
    /// Asks for every control whether it may be used; for after a switch was operated.
    void update() const;

    /// Whether a turn of the wheel over a control that has not the focus goes past it, to what scrolls the
    /// panel; the wheel then gives no focus, either. At first false.
    void setWheelScrolls(bool scrolls);
    bool wheelScrolls() const { return m_wheelScrolls; }

    CaptionSet captions;
    CaptionSet hints; ///< what each field is

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Control
    {
        QWidget* widget;
        Allowed allowed;
        Qt::FocusPolicy ownFocusPolicy;
    };
    std::vector<Control> m_controls;
    const QWidget* m_spared = nullptr;
    bool m_locked = false;
    bool m_wheelScrolls = false;
};

} // namespace vardeno::testcharttools
