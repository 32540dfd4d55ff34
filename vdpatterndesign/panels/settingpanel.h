#pragma once

#include "vdpatterndesign_export.h"

#include <QPushButton> // whole, so that moc makes the signals' buttons known to spies and queued connections
#include <QWidget>

#include <memory>

namespace vardeno::testcharttools {

class PanelControls;
struct TestChartToolsData;

/// A settings panel of the editor: the controls of one group of the chart record.
///
/// This base owns what the panels share: captions that follow the language and are elided to their widgets,
/// the lock that makes every control inert while the chart is painted, and the way to the shell. GUI thread
/// only.
class VDPATTERNDESIGN_EXPORT SettingPanel : public QWidget
{
    Q_OBJECT

public:
    /// `usualHeight`: of the section that shows the panel in the editor.
    explicit SettingPanel(int usualHeight, QWidget* parent = nullptr);
    ~SettingPanel() override;

    /// The height of the section that shows the panel: the usual one, or more where its rows need it.
    int sectionHeight() const;

    /// True makes every input control of the panel inert. False restores what the panel's switches allow.
    /// Either way the focus then goes where the panel's `focusAfterLock` says.
    void setControlsDisabled(bool disabled);

    /// Whether the wheel scrolls what the panel lies in rather than changing a control that has not the
    /// focus. At first false.
    void setWheelScrolls(bool scrolls);
    bool wheelScrolls() const;
    /// Whether a lock and an unlock move the focus; at first they do.
    void setLockTakesFocus(bool takes);
    /// A control that locks leave as it is; null, at first, for none.
    void spareFromLocks(const QWidget* control);

    /// Whether no caption and no value is cut, whatever language and font the panel has. At first false:
    /// every control has its one size. Several panels in a column are fitted together: each gets what the
    /// neediest of them needs for its first captions, in pixels beyond the usual, and then for all of its
    /// width.
    bool fitsContent() const;
    void setFitsContent(bool fits);
    int neededCaptionGrowth() const;
    int neededWidth(int captionGrowth);
    void fitToWidth(int width);

    /// Shows every caption in the current language, in the panel and in the painters that it drives.
    virtual void retranslate();

    /// Stores what the controls show in the panel's group of `record`.
    virtual void collectInto(TestChartToolsData& record) const = 0;
    /// Shows the panel's group of `record` in the controls, and with them in the painters.
    virtual void pushFrom(const TestChartToolsData& record) = 0;

    /// Gives the panel's colour of the role `role` a new value; the roles of other panels do nothing.
    virtual void setRoleColor(const QString& role, const QColor& color);

Q_SIGNALS:
    /// The panel's layers have changed: the change signal of every panel arrives here as well.
    void changed();
    /// The user wants to pick the colour of `button`: the colour signals of every panel arrive here as well.
    void colorRequested(QPushButton* button);

protected:
    void changeEvent(QEvent* event) override;

    /// The panel takes the focus after each lock and unlock, unless it says otherwise.
    virtual void focusAfterLock(bool locked);

    PanelControls& controls();

private:
    std::unique_ptr<PanelControls> m_controls;
    int m_usualHeight;
    int m_usualWidth = 0; ///< while the panel fits its content
    bool m_lockTakesFocus = true;
};

} // namespace vardeno::testcharttools
