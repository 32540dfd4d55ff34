#include "editor/colorpicking.h"

#include "controls/swatch.h"
#include "customcolordialog.h"
#include "settingpanel.h"
#include "support/translation.h"

#include <QPointer>
#include <QPushButton>
#include <QVariant>

namespace vardeno::testcharttools {

namespace {

constexpr char roleProperty[] = "customColorDialog"; ///< of the picker: what its colour is for

} // namespace

ColorPicking::ColorPicking(QWidget* tool, const std::vector<SettingPanel*>& panels)
    : m_tool(tool)
    , m_panels(panels)
{
}

void ColorPicking::createDialog()
{
    if (!m_tool->parentWidget() || !m_tool->parentWidget()->parentWidget())
        return;
    m_dialog = new CustomColorDialog(m_tool);
    m_dialog->setFloating(false);
    m_dialog->setMoveClamped(true);
    m_dialog->hide();
}

QString ColorPicking::servedRole() const
{
    return m_dialog ? m_dialog->property(roleProperty).toString() : QString();
}

void ColorPicking::open(QPushButton* button)
{
    if (!m_dialog || !button)
        return;
    const QString role = colorRole(button);
    const QColor start = role == QLatin1String("add") ? QColor() : startColor(button);
    // Another click on the button of an open picker does not change the colour to go back to.
    if (!m_dialog->isVisible() || role != servedRole())
        m_before = start;
    m_dialog->setProperty(roleProperty, role);
    m_dialog->setCurrentColor(start);
    if (!m_dialog->isVisible()) {
        m_dialog->setWindowFlags(m_dialog->windowFlags() | Qt::Window | Qt::WindowStaysOnTopHint);
        centre();
    }
    m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
    const QPointer<CustomColorDialog> dialog = m_dialog;
    dialog->show(); // handles events, one of which may be the end of this tool
    if (!dialog)
        return;
    dialog->raise();
    dialog->activateWindow();
}

/// On the anchor first, then on the host, from which the tool may have been taken since it was built.
void ColorPicking::centre()
{
    const QWidget* page = m_tool->parentWidget();
    const QWidget* host = page ? page->parentWidget() : nullptr;
    m_dialog->adjustSize(); // before it is first shown it has no size of its own
    QRect frame = m_dialog->frameGeometry();
    frame.moveCenter(m_anchor);
    if (host)
        frame.moveCenter(host->mapToGlobal(host->rect().center()));
    m_dialog->move(frame.topLeft());
}

void ColorPicking::hide()
{
    if (m_dialog)
        m_dialog->hide();
}

void ColorPicking::select(const QColor& color)
{
    for (SettingPanel* panel : m_panels)
        panel->setRoleColor(servedRole(), color);
}

void ColorPicking::reject()
{
    if (!m_before.isValid())
        return;
    select(m_before);
    m_dialog->setCurrentColor(m_before); // for the next choice, while it is locked open
}

void ColorPicking::accept(const QColor& color)
{
    if (m_before.isValid())
        m_before = color; // while the picker is locked open
}

void ColorPicking::setMoveRange(const QRect& range)
{
    m_anchor = range.center();
    if (m_dialog)
        m_dialog->setMoveRange(range);
}

void ColorPicking::moveWithHost(const QRect& globalRect, const QPoint& movePos)
{
    m_anchor = globalRect.center();
    if (m_dialog)
        m_dialog->slotMainWindowMove(globalRect, movePos);
}

void ColorPicking::setStyleSheet(const QString& sheet)
{
    if (m_dialog)
        m_dialog->setStyleSheet(sheet);
}

void ColorPicking::retranslate()
{
    if (!m_dialog)
        return;
    m_dialog->setTitle(translated(QStringLiteral("SelectColor")));
    m_dialog->retranslate();
}

} // namespace vardeno::testcharttools
