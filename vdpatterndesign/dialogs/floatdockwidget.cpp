#include "floatdockwidget.h"

#include "geometry/moverange.h"
#include "theme/themefile.h"
#include "titlewidget.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>

namespace vardeno::testcharttools {

namespace {

constexpr auto undoShortcut = static_cast<Qt::Key>(0x01000123);
constexpr auto redoShortcut = static_cast<Qt::Key>(0x01000124);

} // namespace

class FloatDockWidget::Impl : public QObject
{
public:
    TitleWidget* title = nullptr;
    QString id;
    bool locked = false;
    QRect moveRange;
    bool clamped = false;
    bool hideOnClose = false;
    bool geometryChanged = false;
};

FloatDockWidget::FloatDockWidget(const QString& id, QWidget* parent)
    : QDockWidget(parent)
    , d(new Impl)
{
    qRegisterMetaType<Qt::Key>("Qt::Key"); // by its name, as moc has it in sigSendShortcut
    setObjectName(QStringLiteral("floatdockwidget"));
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint); // its title bar is its own
    d->id = id;
    d->title = new TitleWidget(this);
    d->title->setFixedHeight(32);
    setTitleBarWidget(d->title);
    setFeatures(DockWidgetClosable | DockWidgetMovable | DockWidgetFloatable);
    setAllowedAreas(Qt::NoDockWidgetArea);
    connect(d->title, &TitleWidget::sigColseWidget, this, &FloatDockWidget::slotCloseWidget);
    connect(d->title, &TitleWidget::sigLockWidget, this, &FloatDockWidget::slotLockWidget);
    connect(d->title, &TitleWidget::sigTitleMoved, this, &FloatDockWidget::slotWindowMoveDistance);
    connect(d->title, &TitleWidget::sigTitleClicked, this, &FloatDockWidget::sigTitleClicked);
    auto* body = new QScrollArea(this);
    body->setObjectName(QStringLiteral("ScrollArea"));
    body->setWidgetResizable(true);
    body->setFrameShape(QFrame::NoFrame);
    body->setContentsMargins(0, 0, 0, 0);
    setWidget(body);
    applyTheme();
}

FloatDockWidget::~FloatDockWidget() = default;

void FloatDockWidget::applyTheme()
{
    const QString themeFile = installedThemeFile();
    loadTheme(themeFile);
    const QString sheet = findStyleSheet(themeFile);
    setStyleSheet(sheet);
    d->title->setStyleSheet(sheet);
}

QString FloatDockWidget::id() const
{
    return d->id;
}

void FloatDockWidget::setTitle(const QString& text)
{
    d->title->setTitle(text);
    setWindowTitle(text);
}

void FloatDockWidget::setMoveClamped(bool clamped)
{
    d->clamped = clamped;
}

void FloatDockWidget::setMoveRange(const QRect& range)
{
    d->moveRange = range;
}

void FloatDockWidget::slotMainWindowMove(const QRect& globalRect, const QPoint& movePos)
{
    d->moveRange = globalRect;
    slotWindowMoveDistance(movePos);
}

void FloatDockWidget::setHideOnClose(bool hide)
{
    d->hideOnClose = hide;
}

bool FloatDockWidget::isLocked() const
{
    return d->locked;
}

bool FloatDockWidget::isGeometryChanged() const
{
    return d->geometryChanged;
}

TitleWidget* FloatDockWidget::titleBar() const
{
    return d->title;
}

void FloatDockWidget::slotCloseWidget()
{
    if (d->locked)
        return;
    if (d->hideOnClose)
        hide();
    if (parentWidget())
        QCoreApplication::postEvent(parentWidget(), new QEvent(QEvent::Leave));
    Q_EMIT sigSendCloseMsg(true);
    d->title->reset();
}

void FloatDockWidget::slotLockWidget(bool bLock)
{
    d->locked = bLock;
    if (d->title->isLocked() != bLock)
        d->title->setLocked(bLock);
    Q_EMIT sigSendLockMsg(bLock);
}

void FloatDockWidget::slotWindowMoveDistance(QPoint distance)
{
    moveClamped(pos() + distance);
    d->geometryChanged = true;
    Q_EMIT sigMove(distance);
}

void FloatDockWidget::slotShowInCursoPos()
{
    const QPoint target = QCursor::pos();
    moveClamped(target);
    show();
    moveClamped(target); // only now its size is known
    raise();
}

void FloatDockWidget::moveClamped(const QPoint& target)
{
    move(d->clamped ? keptInRange(target, frameGeometry().size(), d->moveRange) : target);
}

void FloatDockWidget::showEvent(QShowEvent* event)
{
    d->geometryChanged = true;
    QDockWidget::showEvent(event);
}

void FloatDockWidget::resizeEvent(QResizeEvent* event)
{
    d->geometryChanged = true;
    QDockWidget::resizeEvent(event);
}

void FloatDockWidget::moveEvent(QMoveEvent* event)
{
    d->geometryChanged = true;
    QDockWidget::moveEvent(event);
}

/// The window system may ask as well.
void FloatDockWidget::closeEvent(QCloseEvent* event)
{
    if (d->locked)
        event->ignore();
    else
        QDockWidget::closeEvent(event);
}

void FloatDockWidget::keyPressEvent(QKeyEvent* event)
{
    const bool undo = event->key() == Qt::Key_Z;
    const bool redo = event->key() == Qt::Key_Y;
    if (event->modifiers() != Qt::ControlModifier || (!undo && !redo)) {
        QDockWidget::keyPressEvent(event);
        return;
    }
    Q_EMIT sigSendShortcut(undo ? undoShortcut : redoShortcut);
    event->ignore();
}

void FloatDockWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(36, 36, 38));
    painter.drawRect(rect());
    painter.end();
    QDockWidget::paintEvent(event);
}

} // namespace vardeno::testcharttools
