#include "panels/panelcontrols.h"

#include "panels/contentsize.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

void setSize(QWidget* widget, const QSize& size)
{
    widget->setFixedWidth(size.width());
    if (size.height() >= 0)
        widget->setFixedHeight(size.height());
}

} // namespace

void PanelControls::add(QWidget* control, Allowed allowed)
{
    m_controls.push_back({control, std::move(allowed), control->focusPolicy()});
    control->installEventFilter(this);
}

void PanelControls::setLocked(bool locked)
{
    m_locked = locked;
    update();
}

void PanelControls::update() const
{
    for (const Control& control : m_controls)
        control.widget->setEnabled((!m_locked || control.widget == m_spared) &&
                                   (!control.allowed || control.allowed()));
}

void PanelControls::setWheelScrolls(bool scrolls)
{
    m_wheelScrolls = scrolls;
    for (const Control& control : m_controls) {
        const bool byWheel = control.ownFocusPolicy == Qt::WheelFocus;
        control.widget->setFocusPolicy(scrolls && byWheel ? Qt::StrongFocus : control.ownFocusPolicy);
    }
}

void PanelControls::addSized(QWidget* widget, const QSize& usual)
{
    m_sized.push_back({widget, usual, false});
}

void PanelControls::addFirstCaption(QWidget* widget, const QSize& usual)
{
    m_sized.push_back({widget, usual, true});
}

void PanelControls::addWide(QWidget* part)
{
    m_wide.push_back(part);
}

int PanelControls::neededCaptionGrowth() const
{
    int growth = 0;
    for (const Sized& sized : m_sized) {
        if (sized.isFirstCaption)
            growth = std::max(growth, contentSize(sized.widget).width() - sized.usual.width());
    }
    return growth;
}

void PanelControls::fit(int captionGrowth)
{
    m_fits = true;
    for (const Sized& sized : m_sized) {
        QSize size = contentSize(sized.widget).expandedTo(sized.usual);
        if (sized.isFirstCaption)
            size.setWidth(sized.usual.width() + captionGrowth);
        if (sized.usual.height() < 0)
            size.setHeight(-1);
        setSize(sized.widget, size);
    }
    for (QWidget* part : m_wide) {
        part->setMinimumWidth(0);
        part->setMaximumWidth(QWIDGETSIZE_MAX);
    }
}

void PanelControls::unfit()
{
    m_fits = false;
    for (const Sized& sized : m_sized)
        setSize(sized.widget, sized.usual);
}

void PanelControls::setWidth(int width) const
{
    for (QWidget* part : m_wide)
        part->setFixedWidth(width);
}

bool PanelControls::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_wheelScrolls || event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return false;
    event->ignore();
    return true;
}

} // namespace vardeno::testcharttools
