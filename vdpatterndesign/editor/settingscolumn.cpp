#include "editor/settingscolumn.h"

#include <propertybox.h>

#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize columnSize(410, 802);

} // namespace

SettingsColumn::SettingsColumn(QWidget* parent)
    : QScrollArea(parent)
{
    setFixedSize(columnSize);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int maximum) {
        const int width = verticalScrollBar()->sizeHint().width();
        setViewportMargins(0, 0, maximum > 0 ? -width : 0, 0);
        verticalScrollBar()->parentWidget()->raise();
    });
    setObjectName(QStringLiteral("ScrollArea"));
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("scrollWidget"));
    content->setAttribute(Qt::WA_StyledBackground);
    setWidget(content);
    m_sections = new QVBoxLayout(content);
    m_sections->setContentsMargins(0, 0, 0, 0);
    m_sections->setSpacing(0);
}

PropertyBox* SettingsColumn::addSection(const char* objectName, const QString& title)
{
    auto* section = new PropertyBox(widget());
    section->setObjectName(QLatin1String(objectName));
    section->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    section->setTitleItem(title);
    m_sections->addWidget(section);
    return section;
}

void SettingsColumn::finish()
{
    m_sections->addStretch();
    m_mask = new QWidget(widget());
    m_mask->setObjectName(QStringLiteral("maskWidget"));
    m_mask->setFixedSize(columnSize);
    m_mask->setAttribute(Qt::WA_StyledBackground);
    m_mask->hide();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, m_mask, [this](int y) { m_mask->move(0, y); });
}

void SettingsColumn::setFollowsRoom(bool follows)
{
    m_followsRoom = follows;
    setHorizontalScrollBarPolicy(follows ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setMinimumSize(follows ? QSize(columnSize.width(), 0) : columnSize);
    setMaximumSize(follows ? QSize(columnSize.width(), QWIDGETSIZE_MAX) : columnSize);
    if (!follows)
        m_mask->setFixedSize(columnSize);
}

void SettingsColumn::setWidths(int content, int room)
{
    if (m_followsRoom)
        setFixedWidth(std::min(content, room));
}

void SettingsColumn::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (m_followsRoom)
        m_mask->setFixedSize(std::max(widget()->width(), width()), height());
}

} // namespace vardeno::testcharttools
