#include "titlewidget.h"

#include "support/translation.h"
#include "theme/resources.h"

#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace vardeno::testcharttools {

namespace {

constexpr char lockProperty[] = "isLock";

} // namespace

TitleWidget::TitleWidget(QWidget* parent)
    : QWidget(parent)
{
    ensureResources();
    setObjectName(QStringLiteral("titleWidget"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("#titleWidget { background-color: FF16161B;}"));
    m_minimise = createButton("btnMinSize", QStringLiteral("small"), QStringLiteral("icon_pop_min_nor"));
    m_lock = createButton("btnShow", QStringLiteral("fixed"), QStringLiteral("icon_pop_pin_nor"));
    m_lock->setProperty(lockProperty, false);
    m_title = new QLabel(QStringLiteral("color select"), this);
    m_title->setObjectName(QStringLiteral("LabelTitle"));
    m_title->setFixedHeight(32);
    m_title->setAlignment(Qt::AlignCenter);
    m_close = createButton("btnClose", QStringLiteral("close"), QStringLiteral("icon_pop_close_nor"));

    auto* row = new QHBoxLayout;
    row->setContentsMargins(5, 0, 5, 0);
    row->setSpacing(8);
    row->addWidget(m_minimise);
    row->addWidget(m_lock);
    row->addStretch();
    row->addWidget(m_title, 0, Qt::AlignCenter);
    row->addStretch();
    row->addWidget(m_close);
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFixedHeight(1); // leaves the row the height of the title, so that all in it is centred alike
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(line);

    connect(m_close, &QPushButton::clicked, this, &TitleWidget::slotSendCloseWidget);
    connect(m_lock, &QPushButton::clicked, this, &TitleWidget::slotSendLockWidget);
    connect(m_minimise, &QPushButton::clicked, this, [this] { window()->showMinimized(); });
}

QPushButton* TitleWidget::createButton(const char* objectName, const QString& hint, const QString& picture)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setFixedSize(20, 20);
    button->setFlat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIcon(QIcon(QStringLiteral(":/resources/images/%1.png").arg(picture)));
    return button;
}

void TitleWidget::retranslate()
{
    const auto name = [](QPushButton* button, const QString& text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_minimise, translated(QStringLiteral("small")));
    name(m_lock, translated(QStringLiteral("fixed")));
    name(m_close, translated(QStringLiteral("close")));
}

void TitleWidget::setTitle(const QString& text)
{
    m_title->setText(text);
}

bool TitleWidget::isLocked() const
{
    return m_locked;
}

void TitleWidget::reset()
{
    m_dragging = false;
}

void TitleWidget::slotSendCloseWidget()
{
    Q_EMIT sigColseWidget();
}

void TitleWidget::setLocked(bool locked)
{
    m_locked = locked;
    m_lock->setProperty(lockProperty, m_locked);
    m_lock->setIcon(QIcon(
        QStringLiteral(":/resources/images/%1.png")
            .arg(m_locked ? QStringLiteral("icon_pop_pin_enable_nor") : QStringLiteral("icon_pop_pin_nor"))));
    m_lock->style()->unpolish(m_lock);
    m_lock->style()->polish(m_lock);
}

void TitleWidget::slotSendLockWidget()
{
    setLocked(!m_locked);
    Q_EMIT sigLockWidget(m_locked);
}

void TitleWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_lastPosition = event->globalPos();
        m_dragging = true;
    }
    Q_EMIT sigTitleClicked();
}

void TitleWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_dragging)
        return;
    Q_EMIT sigTitleMoved(event->globalPos() - m_lastPosition);
    m_lastPosition = event->globalPos();
}

void TitleWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
}

} // namespace vardeno::testcharttools
