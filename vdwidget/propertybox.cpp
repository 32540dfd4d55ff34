#include "propertybox.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int titleHeight = 28;

QVBoxLayout* tightColumn(QWidget* parent)
{
    auto* column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

} // namespace

PropertyBox::PropertyBox(QWidget* parent)
    : QWidget(parent)
    , m_layout(tightColumn(this))
    , m_body(new QWidget(this))
{
    tightColumn(m_body);
    m_layout->addWidget(m_body);
}

void PropertyBox::setTitleItem(const QString& text)
{
    if (!m_title) {
        m_title = new QToolButton(this);
        m_title->setObjectName(QStringLiteral("propertyTitle"));
        m_title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_title->setAutoRaise(true);
        m_title->setFocusPolicy(Qt::StrongFocus);
        m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_title->setFixedHeight(titleHeight);
        m_title->installEventFilter(this);
        connect(m_title, &QToolButton::clicked, this, [this] { setExpanded(!m_expanded); });
        m_layout->insertWidget(0, m_title);
    }
    setTitleText(text);
    showState();
}

void PropertyBox::setTitleText(const QString& text)
{
    if (m_title)
        m_title->setText(text);
}

QString PropertyBox::titleText() const
{
    return m_title ? m_title->text() : QString();
}

void PropertyBox::setTitleFits(bool fits)
{
    if (!m_title)
        return;
    m_title->ensurePolished();
    const int needed = m_title->fontMetrics().height() + 8;
    m_title->setFixedHeight(fits ? std::max(needed, titleHeight) : titleHeight);
}

QWidget* PropertyBox::addItem(const QString& name, QLayout* layout, int height)
{
    auto* item = new QWidget(m_body);
    item->setObjectName(name);
    item->setLayout(layout);
    item->setFixedHeight(height);
    item->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // whatever its content would grow to
    m_body->layout()->addWidget(item);
    return item;
}

bool PropertyBox::isExpanded() const
{
    return m_expanded;
}

void PropertyBox::setExpanded(bool expanded)
{
    if (m_expanded == expanded)
        return;
    m_expanded = expanded;
    showState();
    Q_EMIT expandedChanged(expanded);
}

bool PropertyBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_title || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_title->click();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        setExpanded(static_cast<QKeyEvent*>(event)->key() == Qt::Key_Right);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PropertyBox::showState()
{
    m_body->setVisible(m_expanded);
    if (m_title)
        m_title->setArrowType(m_expanded ? Qt::DownArrow : Qt::RightArrow);
}

} // namespace vardeno::testcharttools
