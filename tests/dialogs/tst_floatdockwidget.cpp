#include "floatdockwidget.h"
#include "testcase.h"
#include "titlewidget.h"

#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>

using namespace vardeno::testcharttools;

namespace {

/// Remembers the events that arrive at a widget.
class Recorder : public QWidget
{
public:
    QList<QEvent::Type> events;
    QList<QPair<int, int>> keys; ///< key and modifiers of each press

    int count(QEvent::Type type) const { return events.count(type); }

protected:
    bool event(QEvent* event) override
    {
        events.append(event->type());
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            keys.append({key->key(), int(key->modifiers())});
        }
        return QWidget::event(event);
    }
};

TitleWidget* titleOf(const FloatDockWidget& dock)
{
    return dock.findChild<TitleWidget*>();
}

QPushButton* buttonOf(const FloatDockWidget& dock, const char* name)
{
    return dock.findChild<QPushButton*>(QLatin1String(name));
}

void mouse(QWidget* target, QEvent::Type type, const QPoint& global)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, target->mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

/// Takes the window by its title and moves it by `distance` in `steps`.
void drag(FloatDockWidget& dock, const QPoint& distance, int steps = 1)
{
    TitleWidget* title = titleOf(dock);
    const QPoint start = title->mapToGlobal(QPoint(60, 16));
    mouse(title, QEvent::MouseButtonPress, start);
    for (int i = 1; i <= steps; ++i)
        mouse(title, QEvent::MouseMove, start + distance * i / steps);
    mouse(title, QEvent::MouseButtonRelease, start + distance);
}

} // namespace

/// The floating tool window: moved, kept in the host's window, locked, closed; its shortcuts.
class TestFloatDockWidget : public TestCase
{
    Q_OBJECT

private:
    /// A window of 300 x 200 that floats at (400, 300) over a host.
    struct Shown
    {
        Recorder host;
        FloatDockWidget dock{QStringLiteral("picker"), &host};

        Shown()
        {
            host.setGeometry(100, 80, 1000, 800);
            host.show();
            dock.setFloating(true);
            dock.resize(300, 200);
            dock.move(400, 300);
            dock.show();
            const bool ready = QTest::qWaitForWindowExposed(&host) && QTest::qWaitForWindowExposed(&dock);
            Q_ASSERT(ready);
            Q_UNUSED(ready)
            QCoreApplication::processEvents();
        }
    };

    static QStringList ownMethods(QMetaMethod::MethodType type)
    {
        QStringList signatures;
        const QMetaObject& meta = FloatDockWidget::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == type)
                signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        return signatures;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support raise")); // the offscreen platform's
    }

    void signalsAndSlotsStandInOrder()
    {
        QCOMPARE(ownMethods(QMetaMethod::Signal),
                 QStringList({QStringLiteral("sigSendCloseMsg(bool)"), QStringLiteral("sigSendLockMsg(bool)"),
                              QStringLiteral("sigSendShortcut(Qt::Key)"), QStringLiteral("sigMove(QPoint)"),
                              QStringLiteral("sigTitleClicked()")}));
        QCOMPARE(ownMethods(QMetaMethod::Slot),
                 QStringList({QStringLiteral("slotCloseWidget()"), QStringLiteral("slotLockWidget(bool)"),
                              QStringLiteral("slotWindowMoveDistance(QPoint)"),
                              QStringLiteral("slotShowInCursoPos()")}));
    }

    void windowIsBuiltOfTitleAndScrolledBody()
    {
        FloatDockWidget dock(QStringLiteral("picker"));
        QCOMPARE(dock.id(), QStringLiteral("picker"));
        QCOMPARE(dock.objectName(), QStringLiteral("floatdockwidget"));
        QCOMPARE(dock.features(), QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                                      QDockWidget::DockWidgetFloatable);
        QCOMPARE(dock.allowedAreas(), Qt::DockWidgetAreas(Qt::NoDockWidgetArea));

        const auto* title = qobject_cast<TitleWidget*>(dock.titleBarWidget());
        QVERIFY(title);
        QCOMPARE(title->objectName(), QStringLiteral("titleWidget"));
        QCOMPARE(title->minimumHeight(), 32);
        QCOMPARE(title->maximumHeight(), 32);

        const auto* body = qobject_cast<QScrollArea*>(dock.widget());
        QVERIFY(body);
        QCOMPARE(body->objectName(), QStringLiteral("ScrollArea"));
        QVERIFY(body->widgetResizable());
        QCOMPARE(body->contentsMargins(), QMargins());
    }

    void titleIsShownAndTold()
    {
        Shown shown;
        shown.dock.setTitle(QStringLiteral("Farbe"));
        QCOMPARE(shown.dock.findChild<QLabel*>(QStringLiteral("LabelTitle"))->text(),
                 QStringLiteral("Farbe"));
        QCOMPARE(shown.dock.windowTitle(), QStringLiteral("Farbe"));
    }

    void dragMovesTheWindow_data()
    {
        QTest::addColumn<bool>("clamped");
        QTest::addColumn<QRect>("range");
        QTest::addColumn<QPoint>("distance");
        QTest::addColumn<QPoint>("place");

        // The window is 300 x 200 at (400, 300).
        const QRect range(100, 80, 1000, 800);
        QTest::newRow("inside the range") << true << range << QPoint(50, 60) << QPoint(450, 360);
        QTest::newRow("to the bottom right corner") << true << range << QPoint(399, 379) << QPoint(799, 679);
        QTest::newRow("past the bottom right corner")
            << true << range << QPoint(700, 500) << QPoint(799, 679);
        QTest::newRow("past the right") << true << range << QPoint(400, 0) << QPoint(799, 300);
        QTest::newRow("past the bottom") << true << range << QPoint(0, 380) << QPoint(400, 679);
        QTest::newRow("past the top left corner") << true << range << QPoint(-390, -290) << QPoint(10, 10);
        QTest::newRow("past the left") << true << range << QPoint(-350, 0) << QPoint(50, 300);
        QTest::newRow("past the top") << true << range << QPoint(0, -270) << QPoint(400, 30);
        QTest::newRow("null range, clamped") << true << QRect() << QPoint(700, 500) << QPoint(1100, 800);
        QTest::newRow("not clamped") << false << range << QPoint(700, 500) << QPoint(1100, 800);
    }

    void dragMovesTheWindow()
    {
        QFETCH(bool, clamped);
        QFETCH(QRect, range);
        QFETCH(QPoint, distance);
        Shown shown;
        QCOMPARE(shown.dock.frameGeometry(), QRect(400, 300, 300, 200));
        shown.dock.setMoveClamped(clamped);
        shown.dock.setMoveRange(range);
        drag(shown.dock, distance, 5);
        QTEST(shown.dock.pos(), "place");
        if (clamped && !range.isNull()) {
            QVERIFY(shown.dock.frameGeometry().right() <= range.right());
            QVERIFY(shown.dock.frameGeometry().bottom() <= range.bottom());
        }
    }

    void clampIsOffAtFirstAndMayBeTakenBack()
    {
        Shown shown;
        shown.dock.setMoveRange(shown.host.geometry());
        shown.dock.slotWindowMoveDistance(QPoint(700, 500));
        QCOMPARE(shown.dock.pos(), QPoint(1100, 800));
        shown.dock.setMoveClamped(true);
        shown.dock.slotWindowMoveDistance(QPoint(0, 0));
        QCOMPARE(shown.dock.pos(), QPoint(799, 679));
        shown.dock.setMoveClamped(false);
        shown.dock.slotWindowMoveDistance(QPoint(1, 1));
        QCOMPARE(shown.dock.pos(), QPoint(800, 680));
    }

    void everyMoveIsTold()
    {
        Shown shown;
        shown.dock.setMoveClamped(true);
        shown.dock.setMoveRange(shown.host.geometry());
        QSignalSpy moved(&shown.dock, &FloatDockWidget::sigMove);
        QPoint atSignal;
        connect(&shown.dock, &FloatDockWidget::sigMove, this, [&] { atSignal = shown.dock.pos(); });

        shown.dock.slotWindowMoveDistance(QPoint(10, -20));
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toPoint(), QPoint(10, -20));
        QCOMPARE(atSignal, QPoint(410, 280)); // it has moved already

        shown.dock.slotWindowMoveDistance(QPoint(900, 0)); // held back: the distance that was asked for
        QCOMPARE(moved.count(), 2);
        QCOMPARE(moved.at(1).at(0).toPoint(), QPoint(900, 0));
        QCOMPARE(atSignal, QPoint(799, 280));
    }

    void dragTellsInOrder()
    {
        Shown shown;
        QStringList told;
        connect(&shown.dock, &FloatDockWidget::sigTitleClicked, this,
                [&] { told.append(QStringLiteral("clicked")); });
        connect(&shown.dock, &FloatDockWidget::sigMove, this, [&](const QPoint& distance) {
            told.append(QStringLiteral("moved %1 %2").arg(distance.x()).arg(distance.y()));
        });
        drag(shown.dock, QPoint(20, 10), 2);
        QCOMPARE(told, QStringList({QStringLiteral("clicked"), QStringLiteral("moved 10 5"),
                                    QStringLiteral("moved 10 5")}));
    }

    void hostsMoveTakesTheWindowAlong_data()
    {
        QTest::addColumn<QRect>("host");
        QTest::addColumn<QPoint>("distance");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("along") << QRect(130, 120, 1000, 800) << QPoint(30, 40) << QPoint(430, 340);
        QTest::newRow("held back by the new range")
            << QRect(-300, -100, 800, 500) << QPoint(-10, -20) << QPoint(199, 199);
        QTest::newRow("null range") << QRect() << QPoint(700, 500) << QPoint(1100, 800);
    }

    void hostsMoveTakesTheWindowAlong()
    {
        QFETCH(QRect, host);
        QFETCH(QPoint, distance);
        Shown shown;
        shown.dock.setMoveClamped(true);
        shown.dock.setMoveRange(QRect(100, 80, 1000, 800));
        QSignalSpy moved(&shown.dock, &FloatDockWidget::sigMove);
        shown.dock.slotMainWindowMove(host, distance);
        QTEST(shown.dock.pos(), "place");
        QCOMPARE(moved.count(), 1);
    }

    void showsAtTheCursor_data()
    {
        QTest::addColumn<bool>("clamped");
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("inside") << true << QPoint(500, 400) << QPoint(500, 400);
        QTest::newRow("near the bottom right corner") << true << QPoint(1090, 870) << QPoint(799, 679);
        QTest::newRow("past the top left") << true << QPoint(20, 10) << QPoint(20, 10);
        QTest::newRow("not clamped") << false << QPoint(1090, 870) << QPoint(1090, 870);
    }

    void showsAtTheCursor()
    {
        QFETCH(bool, clamped);
        QFETCH(QPoint, cursor);
        Shown shown;
        shown.dock.setMoveClamped(clamped);
        shown.dock.setMoveRange(QRect(100, 80, 1000, 800));
        shown.dock.hide();
        QCursor::setPos(cursor);
        QTRY_COMPARE(QCursor::pos(), cursor);
        shown.dock.slotShowInCursoPos();
        QVERIFY(shown.dock.isVisible());
        QTEST(shown.dock.pos(), "place");
    }

    /// Before it is first shown a window does not have the size that it will have.
    void firstShowAtTheCursorIsClampedAsWell()
    {
        Recorder host;
        host.setGeometry(100, 80, 1000, 800);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        FloatDockWidget dock(QStringLiteral("picker"), &host);
        auto* content = new QWidget;
        content->setFixedSize(500, 400);
        dock.setWidget(content);
        dock.setFloating(true);
        dock.setMoveClamped(true);
        dock.setMoveRange(host.geometry());
        QCursor::setPos(1000, 800);
        QTRY_COMPARE(QCursor::pos(), QPoint(1000, 800));
        dock.slotShowInCursoPos();
        QVERIFY(QTest::qWaitForWindowExposed(&dock));
        QVERIFY(dock.width() >= 500);
        QCOMPARE(dock.x() + dock.frameGeometry().width(), host.geometry().right());
        QCOMPARE(dock.y() + dock.frameGeometry().height(), host.geometry().bottom());
    }

    void geometryChangeIsNoted_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<bool>("changed");
        QTest::newRow("nothing") << "" << false;
        QTest::newRow("shown") << "show" << true;
        QTest::newRow("resized") << "resize" << true;
        QTest::newRow("moved") << "move" << true;
        QTest::newRow("dragged") << "drag" << true;
        QTest::newRow("locked") << "lock" << false;
    }

    void geometryChangeIsNoted()
    {
        QFETCH(QString, what);
        FloatDockWidget dock(QStringLiteral("picker"));
        QShowEvent show;
        QResizeEvent resize(QSize(10, 10), QSize(20, 20));
        QMoveEvent move(QPoint(10, 10), QPoint(20, 20));
        if (what == QLatin1String("show"))
            QApplication::sendEvent(&dock, &show);
        else if (what == QLatin1String("resize"))
            QApplication::sendEvent(&dock, &resize);
        else if (what == QLatin1String("move"))
            QApplication::sendEvent(&dock, &move);
        else if (what == QLatin1String("drag"))
            dock.slotWindowMoveDistance(QPoint());
        else if (what == QLatin1String("lock"))
            dock.slotLockWidget(true);
        QTEST(dock.isGeometryChanged(), "changed");
    }

    void lockIsStoredAndTold()
    {
        Shown shown;
        QSignalSpy told(&shown.dock, &FloatDockWidget::sigSendLockMsg);
        bool atSignal = false;
        connect(&shown.dock, &FloatDockWidget::sigSendLockMsg, this,
                [&] { atSignal = shown.dock.isLocked(); });
        QVERIFY(!shown.dock.isLocked());
        QTest::mouseClick(buttonOf(shown.dock, "btnShow"), Qt::LeftButton);
        QVERIFY(shown.dock.isLocked());
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toBool(), true);
        QCOMPARE(atSignal, true);
        QTest::mouseClick(buttonOf(shown.dock, "btnShow"), Qt::LeftButton);
        QVERIFY(!shown.dock.isLocked());
        QCOMPARE(told.count(), 2);
        QCOMPARE(told.at(1).at(0).toBool(), false);
        QCOMPARE(atSignal, false);
    }

    void lockByCodeIsShown()
    {
        Shown shown;
        QPushButton* const lock = buttonOf(shown.dock, "btnShow");
        shown.dock.slotLockWidget(true);
        QCOMPARE(lock->property("isLock").toBool(), true);
        QTest::mouseClick(lock, Qt::LeftButton);
        QVERIFY(!shown.dock.isLocked());
        QCOMPARE(lock->property("isLock").toBool(), false);
    }

    void lockedWindowStillMoves()
    {
        Shown shown;
        shown.dock.slotLockWidget(true);
        drag(shown.dock, QPoint(15, 25));
        QCOMPARE(shown.dock.pos(), QPoint(415, 325));
    }

    void lockedWindowDoesNotClose_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("close button") << "button";
        QTest::newRow("slot") << "slot";
        QTest::newRow("window system") << "system";
    }

    void lockedWindowDoesNotClose()
    {
        QFETCH(QString, by);
        Shown shown;
        shown.dock.setHideOnClose(true);
        QTest::mouseClick(buttonOf(shown.dock, "btnShow"), Qt::LeftButton);
        QSignalSpy closed(&shown.dock, &FloatDockWidget::sigSendCloseMsg);
        QCoreApplication::processEvents();
        shown.host.events.clear();
        const auto close = [&] {
            if (by == QLatin1String("button"))
                QTest::mouseClick(buttonOf(shown.dock, "btnClose"), Qt::LeftButton);
            else if (by == QLatin1String("slot"))
                shown.dock.slotCloseWidget();
            else
                shown.dock.close();
        };
        close();
        QCoreApplication::processEvents();
        QVERIFY(shown.dock.isVisible());
        QCOMPARE(closed.count(), 0);
        QCOMPARE(shown.host.count(QEvent::Leave), 0);

        QTest::mouseClick(buttonOf(shown.dock, "btnShow"), Qt::LeftButton);
        close();
        QVERIFY(!shown.dock.isVisible());
    }

    void closeHidesOnlyWhenItIsToHide_data()
    {
        QTest::addColumn<bool>("hide");
        QTest::newRow("hide on close") << true;
        QTest::newRow("stay, as at first") << false;
    }

    void closeHidesOnlyWhenItIsToHide()
    {
        QFETCH(bool, hide);
        Shown shown;
        if (hide)
            shown.dock.setHideOnClose(true);
        QSignalSpy closed(&shown.dock, &FloatDockWidget::sigSendCloseMsg);
        bool visibleAtSignal = !hide;
        connect(&shown.dock, &FloatDockWidget::sigSendCloseMsg, this,
                [&] { visibleAtSignal = shown.dock.isVisible(); });
        QTest::mouseClick(buttonOf(shown.dock, "btnClose"), Qt::LeftButton);
        QCOMPARE(shown.dock.isVisible(), !hide);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(visibleAtSignal, !hide); // hidden first, then told
    }

    void closePostsALeaveEventToTheOpener()
    {
        Shown shown;
        QCoreApplication::processEvents();
        shown.host.events.clear();
        int leavesAtSignal = -1;
        connect(&shown.dock, &FloatDockWidget::sigSendCloseMsg, this,
                [&] { leavesAtSignal = shown.host.count(QEvent::Leave); });
        shown.dock.slotCloseWidget();
        QCOMPARE(leavesAtSignal, 0); // posted, not sent
        QCoreApplication::sendPostedEvents(&shown.host);
        QCOMPARE(shown.host.count(QEvent::Leave), 1);
    }

    void windowWithoutAnOpenerCloses()
    {
        FloatDockWidget dock(QStringLiteral("picker"));
        dock.setHideOnClose(true);
        dock.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dock));
        QSignalSpy closed(&dock, &FloatDockWidget::sigSendCloseMsg);
        dock.slotCloseWidget();
        QVERIFY(!dock.isVisible());
        QCOMPARE(closed.count(), 1);
    }

    void closeEndsADrag()
    {
        Shown shown;
        TitleWidget* title = titleOf(shown.dock);
        const QPoint start = title->mapToGlobal(QPoint(60, 16));
        mouse(title, QEvent::MouseButtonPress, start);
        shown.dock.slotCloseWidget();
        mouse(title, QEvent::MouseMove, start + QPoint(40, 40));
        QCOMPARE(shown.dock.pos(), QPoint(400, 300));
    }

    void shortcutsAreForwarded_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("code"); // 0: none
        QTest::newRow("Ctrl+Z") << int(Qt::Key_Z) << int(Qt::ControlModifier) << 0x01000123;
        QTest::newRow("Ctrl+Y") << int(Qt::Key_Y) << int(Qt::ControlModifier) << 0x01000124;
        QTest::newRow("Z") << int(Qt::Key_Z) << int(Qt::NoModifier) << 0;
        QTest::newRow("Y") << int(Qt::Key_Y) << int(Qt::NoModifier) << 0;
        QTest::newRow("Ctrl+Shift+Z") << int(Qt::Key_Z) << int(Qt::ControlModifier | Qt::ShiftModifier) << 0;
        QTest::newRow("Ctrl+Alt+Y") << int(Qt::Key_Y) << int(Qt::ControlModifier | Qt::AltModifier) << 0;
        QTest::newRow("Shift+Z") << int(Qt::Key_Z) << int(Qt::ShiftModifier) << 0;
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << int(Qt::AltModifier) << 0;
        QTest::newRow("Ctrl+X") << int(Qt::Key_X) << int(Qt::ControlModifier) << 0;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << int(Qt::NoModifier) << 0;
    }

    /// Whatever the key, it travels on to the parent of a window that does not float.
    void shortcutsAreForwarded()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(int, code);
        Recorder host;
        FloatDockWidget dock(QStringLiteral("picker"), &host);
        host.resize(400, 300);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        QVERIFY(dock.isVisible() && !dock.isWindow());
        QList<int> codes;
        connect(&dock, &FloatDockWidget::sigSendShortcut, this,
                [&](Qt::Key shortcut) { codes.append(int(shortcut)); });
        QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
        QApplication::sendEvent(&dock, &event);
        QCOMPARE(codes, code == 0 ? QList<int>() : QList<int>({code}));
        QCOMPARE(host.keys.count(), 1);
        QCOMPARE(host.keys.first().first, key);
        QCOMPARE(host.keys.first().second, modifiers);
    }

    void shortcutOfAFloatingWindowIsNotUsedUp()
    {
        Shown shown;
        QSignalSpy told(&shown.dock, &FloatDockWidget::sigSendShortcut);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
        QApplication::sendEvent(&shown.dock, &event);
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.first().first().value<Qt::Key>(), Qt::Key(0x01000123));
        QVERIFY(!event.isAccepted());
    }

    void outlineIsPainted()
    {
        Recorder host;
        FloatDockWidget dock(QStringLiteral("picker"), &host);
        dock.resize(220, 190);
        host.resize(400, 300);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        QCOMPARE(dock.size(), QSize(220, 190));
        QImage actual(dock.size(), QImage::Format_ARGB32_Premultiplied);
        actual.fill(Qt::white);
        dock.render(&actual, QPoint(), QRegion(), QWidget::RenderFlags());

        QImage expected(dock.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(36, 36, 38, 255));
        painter.drawRect(0, 0, 220, 190);
        painter.end();
        QVERIFY(expected.pixelColor(0, 45) != QColor(Qt::white));
        VD_COMPARE_IMAGES(actual, expected);
    }
};

VD_TEST_MAIN(TestFloatDockWidget)
#include "tst_floatdockwidget.moc"
