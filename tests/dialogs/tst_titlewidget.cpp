#include "testcase.h"
#include "titlewidget.h"

#include <QFrame>
#include <QLabel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

Q_DECLARE_METATYPE(Qt::MouseButton)

using namespace vardeno::testcharttools;

/// The title bar of a floating window: its parts, dragging, locking and closing.
class TestTitleWidget : public TestCase
{
    Q_OBJECT

private:
    /// A title bar on top of a shown window.
    struct Shown
    {
        QWidget window;
        TitleWidget* title = new TitleWidget;

        Shown()
        {
            auto* column = new QVBoxLayout(&window);
            column->setContentsMargins(0, 0, 0, 0);
            column->addWidget(title);
            column->addStretch();
            title->setFixedHeight(32);
            window.resize(400, 200);
            window.move(100, 100);
            window.show();
            const bool ready = QTest::qWaitForWindowExposed(&window);
            Q_ASSERT(ready);
            Q_UNUSED(ready)
        }

        QPushButton* button(const char* name) { return title->findChild<QPushButton*>(QLatin1String(name)); }

        /// As the platform does it: to the widget that lies on top at `global`, pressed or not.
        void mouse(QEvent::Type type, const QPoint& global, Qt::MouseButton button,
                   Qt::MouseButtons buttons = Qt::NoButton)
        {
            QWidget* target = type == QEvent::MouseButtonPress
                                  ? window.childAt(window.mapFromGlobal(global))
                                  : static_cast<QWidget*>(title); // it has grabbed the mouse
            QMouseEvent event(type, target->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
            QApplication::sendEvent(target, &event);
        }
        void press(const QPoint& global, Qt::MouseButton button = Qt::LeftButton)
        {
            mouse(QEvent::MouseButtonPress, global, button, button);
        }
        void moveTo(const QPoint& global, Qt::MouseButtons buttons = Qt::LeftButton)
        {
            mouse(QEvent::MouseMove, global, Qt::NoButton, buttons);
        }
        void release(const QPoint& global, Qt::MouseButton button = Qt::LeftButton)
        {
            mouse(QEvent::MouseButtonRelease, global, button);
        }

        QPoint onCaption()
        {
            const auto* caption = title->findChild<QLabel*>(QStringLiteral("LabelTitle"));
            return caption->mapToGlobal(caption->rect().center());
        }
        QPoint besideCaption()
        {
            const QPushButton* close = button("btnClose");
            return close->mapToGlobal(QPoint(-5, close->height() / 2));
        }
    };

    static QStringList ownMethods(QMetaMethod::MethodType type)
    {
        QStringList signatures;
        const QMetaObject& meta = TitleWidget::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == type)
                signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        return signatures;
    }

private Q_SLOTS:
    void signalsAndSlotsStandInOrder()
    {
        QCOMPARE(ownMethods(QMetaMethod::Signal),
                 QStringList({QStringLiteral("sigColseWidget()"), QStringLiteral("sigLockWidget(bool)"),
                              QStringLiteral("sigTitleMoved(QPoint)"), QStringLiteral("sigTitleClicked()")}));
        QCOMPARE(ownMethods(QMetaMethod::Slot), QStringList({QStringLiteral("slotSendCloseWidget()"),
                                                             QStringLiteral("slotSendLockWidget()")}));
    }

    void buttonsAreNamedAndExplained_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("hint");
        QTest::newRow("minimise") << "btnMinSize"
                                  << "small";
        QTest::newRow("lock") << "btnShow"
                              << "fixed";
        QTest::newRow("close") << "btnClose"
                               << "close";
    }

    void buttonsAreNamedAndExplained()
    {
        QFETCH(QString, name);
        Shown shown;
        const auto* button = shown.title->findChild<QPushButton*>(name);
        QVERIFY(button);
        QTEST(button->toolTip(), "hint");
        QVERIFY(!button->icon().isNull());
        QVERIFY(!button->icon().pixmap(16).isNull());
    }

    void titleIsNamedAndStyled()
    {
        Shown shown;
        QCOMPARE(shown.title->objectName(), QStringLiteral("titleWidget"));
        QCOMPARE(shown.title->styleSheet(), QStringLiteral("#titleWidget { background-color: FF16161B;}"));
        const auto* caption = shown.title->findChild<QLabel*>(QStringLiteral("LabelTitle"));
        QVERIFY(caption);
        QCOMPARE(caption->text(), QStringLiteral("color select"));
        QCOMPARE(caption->minimumHeight(), 32);
        QCOMPARE(caption->maximumHeight(), 32);
        QCOMPARE(shown.button("btnShow")->property("isLock"), QVariant(false));
        QVERIFY(!shown.title->isLocked());
    }

    void partsStandFromLeftToRight()
    {
        Shown shown;
        const QWidget* minimise = shown.button("btnMinSize");
        const QWidget* lock = shown.button("btnShow");
        const QWidget* caption = shown.title->findChild<QLabel*>(QStringLiteral("LabelTitle"));
        const QWidget* close = shown.button("btnClose");
        QCOMPARE(minimise->x(), 5);
        QCOMPARE(lock->x(), minimise->geometry().right() + 1 + 8);
        QVERIFY(caption->x() > lock->geometry().right() + 8);
        QVERIFY(close->x() > caption->geometry().right() + 8);
        QCOMPARE(close->geometry().right(), shown.title->width() - 1 - 5);
        // The stretches on both sides of the caption are equal.
        const int left = caption->x() - lock->geometry().right();
        const int right = close->x() - caption->geometry().right();
        QVERIFY2(qAbs(left - right) <= 1, qPrintable(QStringLiteral("%1 and %2").arg(left).arg(right)));
    }

    void lineRunsAlongTheBottom()
    {
        Shown shown;
        const QFrame* line = nullptr;
        const auto frames = shown.title->findChildren<QFrame*>();
        for (const QFrame* frame : frames) {
            if (frame->frameShape() == QFrame::HLine)
                line = frame;
        }
        QVERIFY(line);
        QCOMPARE(line->x(), 0);
        QCOMPARE(line->width(), shown.title->width());
        QVERIFY(line->y() >= shown.button("btnClose")->geometry().bottom());
    }

    void dragTellsTheDistanceSinceTheLastMove()
    {
        Shown shown;
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        const QPoint start = shown.besideCaption();
        shown.press(start);
        QCOMPARE(moved.count(), 0);
        shown.moveTo(start + QPoint(7, 3));
        shown.moveTo(start + QPoint(10, -5));
        shown.moveTo(start + QPoint(-20, -5));
        QCOMPARE(moved.count(), 3);
        QCOMPARE(moved.at(0).at(0).toPoint(), QPoint(7, 3));
        QCOMPARE(moved.at(1).at(0).toPoint(), QPoint(3, -8));
        QCOMPARE(moved.at(2).at(0).toPoint(), QPoint(-30, 0));
    }

    void dragsByItsCaptionToo()
    {
        Shown shown;
        QSignalSpy clicked(shown.title, &TitleWidget::sigTitleClicked);
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        const QPoint start = shown.onCaption();
        shown.press(start);
        shown.moveTo(start + QPoint(4, 4));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toPoint(), QPoint(4, 4));
    }

    /// Global positions: the window that is dragged moves along under the mouse.
    void dragIsMeasuredOnTheScreen()
    {
        Shown shown;
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        connect(shown.title, &TitleWidget::sigTitleMoved, &shown.window,
                [&shown](const QPoint& distance) { shown.window.move(shown.window.pos() + distance); });
        const QPoint from = shown.window.pos();
        const QPoint start = shown.besideCaption();
        shown.press(start);
        shown.moveTo(start + QPoint(30, 10));
        shown.moveTo(start + QPoint(60, 20));
        QCOMPARE(moved.at(1).at(0).toPoint(), QPoint(30, 10));
        QCOMPARE(shown.window.pos(), from + QPoint(60, 20));
    }

    void dragNeedsTheLeftButton_data()
    {
        QTest::addColumn<Qt::MouseButton>("pressed");
        QTest::addColumn<Qt::MouseButton>("released");
        QTest::addColumn<int>("moves");
        QTest::newRow("left, held") << Qt::LeftButton << Qt::NoButton << 1;
        QTest::newRow("left, released") << Qt::LeftButton << Qt::LeftButton << 0;
        QTest::newRow("left, another one released") << Qt::LeftButton << Qt::RightButton << 1;
        QTest::newRow("right") << Qt::RightButton << Qt::NoButton << 0;
        QTest::newRow("middle") << Qt::MiddleButton << Qt::NoButton << 0;
        QTest::newRow("none") << Qt::NoButton << Qt::NoButton << 0;
    }

    void dragNeedsTheLeftButton()
    {
        QFETCH(Qt::MouseButton, pressed);
        QFETCH(Qt::MouseButton, released);
        Shown shown;
        QSignalSpy clicked(shown.title, &TitleWidget::sigTitleClicked);
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        const QPoint start = shown.besideCaption();
        if (pressed != Qt::NoButton)
            shown.press(start, pressed);
        if (released != Qt::NoButton)
            shown.release(start, released);
        shown.moveTo(start + QPoint(5, 5));
        QTEST(int(moved.count()), "moves");
        QCOMPARE(clicked.count(), pressed == Qt::NoButton ? 0 : 1); // every press, whatever the button
    }

    void secondPressGoesOnFromWhereItIs()
    {
        Shown shown;
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        const QPoint start = shown.besideCaption();
        shown.press(start);
        shown.moveTo(start + QPoint(5, 5));
        shown.release(start + QPoint(5, 5));
        shown.press(start + QPoint(-40, 0));
        shown.moveTo(start + QPoint(-42, 1));
        QCOMPARE(moved.count(), 2);
        QCOMPARE(moved.at(1).at(0).toPoint(), QPoint(-2, 1));
    }

    void resetEndsADrag()
    {
        Shown shown;
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        const QPoint start = shown.besideCaption();
        shown.press(start);
        shown.title->reset();
        shown.moveTo(start + QPoint(5, 5));
        QCOMPARE(moved.count(), 0);
    }

    void lockButtonTogglesTheLock()
    {
        Shown shown;
        QSignalSpy locked(shown.title, &TitleWidget::sigLockWidget);
        QPushButton* button = shown.button("btnShow");
        const QImage open = button->icon().pixmap(16).toImage();
        QVariant propertyAtSignal;
        connect(shown.title, &TitleWidget::sigLockWidget, button,
                [&] { propertyAtSignal = button->property("isLock"); });

        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(locked.count(), 1);
        QCOMPARE(locked.at(0).at(0).toBool(), true);
        QVERIFY(shown.title->isLocked());
        QCOMPARE(propertyAtSignal, QVariant(true));
        QVERIFY(button->icon().pixmap(16).toImage() != open);

        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(locked.count(), 2);
        QCOMPARE(locked.at(1).at(0).toBool(), false);
        QVERIFY(!shown.title->isLocked());
        QCOMPARE(propertyAtSignal, QVariant(false));
        VD_COMPARE_IMAGES(button->icon().pixmap(16).toImage(), open);
    }

    void lockStateIsStyled()
    {
        Shown shown;
        shown.window.setStyleSheet(QStringLiteral("#btnShow { border: none; background: #00ff00; }"
                                                  "#btnShow[isLock=\"true\"] { background: #ff0000; }"));
        QPushButton* button = shown.button("btnShow");
        const auto corner = [button] { return button->grab().toImage().pixelColor(0, 0); };
        QCOMPARE(corner(), QColor(Qt::green));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(corner(), QColor(Qt::red));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(corner(), QColor(Qt::green));
    }

    void closeButtonAsksForTheClose()
    {
        Shown shown;
        QSignalSpy closed(shown.title, &TitleWidget::sigColseWidget);
        QSignalSpy locked(shown.title, &TitleWidget::sigLockWidget);
        QTest::mouseClick(shown.button("btnClose"), Qt::LeftButton);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(locked.count(), 0);
        QVERIFY(shown.window.isVisible()); // its owner decides
    }

    void minimiseButtonMinimisesTheWindow()
    {
        Shown shown;
        QVERIFY(!shown.window.isMinimized());
        QTest::mouseClick(shown.button("btnMinSize"), Qt::LeftButton);
        QVERIFY(shown.window.isMinimized());
    }

    void buttonsDoNotDrag()
    {
        Shown shown;
        QSignalSpy clicked(shown.title, &TitleWidget::sigTitleClicked);
        QSignalSpy moved(shown.title, &TitleWidget::sigTitleMoved);
        for (const char* name : {"btnMinSize", "btnShow", "btnClose"}) {
            QPushButton* button = shown.button(name);
            const QPoint start = button->mapToGlobal(button->rect().center());
            shown.press(start);
            shown.moveTo(start + QPoint(3, 3));
        }
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(moved.count(), 0);
    }

    void titleMayBeChanged()
    {
        Shown shown;
        shown.title->setTitle(QStringLiteral("Farbe"));
        QCOMPARE(shown.title->findChild<QLabel*>(QStringLiteral("LabelTitle"))->text(),
                 QStringLiteral("Farbe"));
    }
};

VD_TEST_MAIN(TestTitleWidget)
#include "tst_titlewidget.moc"
