#pragma once

#include <QObject>
#include <QTimer>

#include <vector>

class QWidget;

namespace vardeno::testcharttools {

/// Keeps controls that are disabled for a moment from looking so: they go on showing what they showed before.
/// Only what stays disabled for longer is seen.
class CalmLook : public QObject
{
public:
    CalmLook();

    /// `widgets` are what holds the controls; `mask` covers them, and is not seen at first either.
    void setWidgets(const std::vector<QWidget*>& widgets, QWidget* mask);

    bool isOn() const { return m_on; }
    void setOn(bool on);

    /// The controls are about to be disabled.
    void freeze();
    /// They work again: they are seen as they are once what has been posted is done.
    void thaw();

private:
    void show();
    void hideMask(bool hidden);

    std::vector<QWidget*> m_widgets;
    QWidget* m_mask = nullptr;
    QTimer m_patience;
    bool m_on = false;
    bool m_frozen = false;
};

} // namespace vardeno::testcharttools
