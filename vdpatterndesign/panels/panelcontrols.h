#pragma once

#include "controls/caption.h"

#include <QObject>
#include <QSize>

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

    /// Where the panel fits its content: `widget`, of the size `usual`, becomes as large as its text needs. A
    /// height below 0 is the widget's own.
    void addSized(QWidget* widget, const QSize& usual);
    /// The same for what the column of first captions consists of, which all are equally wide.
    void addFirstCaption(QWidget* widget, const QSize& usual);
    /// A part of the panel that is as wide as the panel.
    void addWide(QWidget* part);

    /// How much wider than usual the first captions need to be.
    int neededCaptionGrowth() const;
    /// Gives everything the size that it needs, the first captions so much more than the usual one. The parts
    /// are as wide as they like.
    void fit(int captionGrowth);
    /// Gives everything its usual size.
    void unfit();
    bool fits() const { return m_fits; }
    void setWidth(int width) const;

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
    struct Sized
    {
        QWidget* widget;
        QSize usual;
        bool isFirstCaption;
    };

    std::vector<Control> m_controls;
    const QWidget* m_spared = nullptr;
    std::vector<Sized> m_sized;
    std::vector<QWidget*> m_wide;
    bool m_fits = false;
    bool m_locked = false;
    bool m_wheelScrolls = false;
};

} // namespace vardeno::testcharttools
