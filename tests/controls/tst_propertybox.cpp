#include "testcase.h"

#include <propertybox.h>

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

using namespace vardeno::testcharttools;

using Flags = QList<bool>;
Q_DECLARE_METATYPE(Flags)

/// A section with two items between two entries, in a shown window.
class TestPropertyBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(m_window.get());
        m_before = new QLineEdit;
        m_box = new PropertyBox;
        m_after = new QLineEdit;
        m_box->setTitleItem(QStringLiteral("Layer settings"));
        m_field = new QLineEdit;
        m_first = m_box->addItem(QStringLiteral("basicSetting"), columnOf(m_field), 140);
        m_second =
            m_box->addItem(QStringLiteral("publicSetting"), columnOf(new QLabel(QStringLiteral("text"))), 60);
        column->addWidget(m_before);
        column->addWidget(m_box);
        column->addWidget(m_after);
        column->addStretch();
        m_window->resize(400, 500);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_before->setFocus();
        m_states.clear();
        connect(m_box, &PropertyBox::expandedChanged, this,
                [this](bool expanded) { m_states.append(expanded); });
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void startsUnfolded()
    {
        QVERIFY(m_box->isExpanded());
        QVERIFY(m_first->isVisible());
        QVERIFY(m_second->isVisible());
        QCOMPARE(title()->arrowType(), Qt::DownArrow);
        QCOMPARE(m_box->height(), title()->height() + 140 + 60);
    }

    void itemsKeepNameHeightAndOrder()
    {
        QCOMPARE(m_box->findChild<QWidget*>(QStringLiteral("basicSetting")), m_first);
        QCOMPARE(m_box->findChild<QWidget*>(QStringLiteral("publicSetting")), m_second);
        QCOMPARE(m_first->height(), 140);
        QCOMPARE(m_second->height(), 60);
        QCOMPARE(top(title()), 0);
        QCOMPARE(top(m_first), title()->height());
        QCOMPARE(top(m_second), top(m_first) + 140);
        QCOMPARE(m_first->width(), m_box->width());
        m_window->resize(600, 700);
        QTRY_COMPARE(m_first->width(), m_box->width());
        QCOMPARE(m_first->height(), 140);
        QCOMPARE(m_second->height(), 60);
    }

    void heightOfAnItemIsFixedWhateverItHolds_data()
    {
        QTest::addColumn<int>("height");
        QTest::newRow("higher than its content") << 200;
        QTest::newRow("lower than its content") << 5;
    }

    void heightOfAnItemIsFixedWhateverItHolds()
    {
        QFETCH(int, height);
        auto* layout = new QVBoxLayout;
        layout->addWidget(new QLineEdit);
        layout->addWidget(new QLineEdit);
        const QWidget* item = m_box->addItem(QStringLiteral("more"), layout, height);
        QTRY_VERIFY(item->isVisible());
        QCOMPARE(item->height(), height);
        QTRY_COMPARE(m_box->height(), title()->height() + 140 + 60 + height);
    }

    void itemTakesTheLayoutOver()
    {
        QPointer<QLayout> layout = m_first->layout();
        QVERIFY(layout);
        QCOMPARE(m_field->parentWidget(), m_first);
        m_window.reset();
        QVERIFY(!layout);
    }

    void titleText()
    {
        QCOMPARE(m_box->titleText(), QStringLiteral("Layer settings"));
        QCOMPARE(title()->text(), QStringLiteral("Layer settings"));
        m_box->setTitleText(QStringLiteral("图层设置"));
        QCOMPARE(m_box->titleText(), QStringLiteral("图层设置"));
        QCOMPARE(title()->text(), QStringLiteral("图层设置"));
        QVERIFY(m_box->isExpanded());
    }

    void secondTitleItemReplacesTheText()
    {
        m_box->setExpanded(false);
        m_box->setTitleItem(QStringLiteral("Other"));
        QCOMPARE(m_box->findChildren<QToolButton*>().size(), 1);
        QCOMPARE(title()->text(), QStringLiteral("Other"));
        QVERIFY(!m_box->isExpanded());
        QCOMPARE(title()->arrowType(), Qt::RightArrow);
    }

    void withoutTitleItemThereIsNoTitle()
    {
        PropertyBox box;
        box.setTitleText(QStringLiteral("Early"));
        QCOMPARE(box.titleText(), QString());
        QVERIFY(!box.findChild<QToolButton*>());
        const QWidget* item = box.addItem(QStringLiteral("item"), new QVBoxLayout, 30);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QVERIFY(item->isVisible());
        box.setExpanded(false);
        QVERIFY(!item->isVisible());
        box.setTitleItem(QStringLiteral("Late"));
        QCOMPARE(box.titleText(), QStringLiteral("Late"));
        QCOMPARE(box.findChild<QToolButton*>()->arrowType(), Qt::RightArrow);
    }

    void operated_data()
    {
        QTest::addColumn<QString>("actions");
        QTest::addColumn<Flags>("states");
        QTest::newRow("click") << "click" << Flags{false};
        QTest::newRow("two clicks") << "click click" << Flags{false, true};
        QTest::newRow("Space") << "Space" << Flags{false};
        QTest::newRow("Space twice") << "Space Space" << Flags{false, true};
        QTest::newRow("Return") << "Return" << Flags{false};
        QTest::newRow("Return twice") << "Return Return" << Flags{false, true};
        QTest::newRow("Enter") << "Enter" << Flags{false};
        QTest::newRow("Left") << "Left" << Flags{false};
        QTest::newRow("Left while folded") << "Left Left" << Flags{false};
        QTest::newRow("Right while unfolded") << "Right" << Flags();
        QTest::newRow("Left and Right") << "Left Right" << Flags{false, true};
        QTest::newRow("Right while folded, twice") << "click Right Right" << Flags{false, true};
        QTest::newRow("other keys") << "Up Down A" << Flags();
    }

    void operated()
    {
        QFETCH(QString, actions);
        QFETCH(Flags, states);
        reachTitle();
        const QStringList words = actions.split(QLatin1Char(' '));
        for (const QString& word : words) {
            if (word == QLatin1String("click"))
                QTest::mouseClick(title(), Qt::LeftButton);
            else
                QTest::keyClick(m_window->windowHandle(), Qt::Key(int(QKeySequence(word)[0])));
        }
        QCOMPARE(m_states, states);
        verifyState(states.isEmpty() || states.last());
    }

    void keysBelongToTheFocusedWidget()
    {
        m_field->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Left);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Space);
        QCOMPARE(m_states, Flags());
        QCOMPARE(m_field->text(), QStringLiteral(" "));
    }

    void foldingMovesWhatIsBelow()
    {
        const int before = m_after->y();
        QTest::mouseClick(title(), Qt::LeftButton);
        QTRY_COMPARE(m_after->y(), before - 200);
        QTRY_COMPARE(m_box->height(), title()->height());
        QTest::mouseClick(title(), Qt::LeftButton);
        QTRY_COMPARE(m_after->y(), before);
    }

    void foldedItemsTakeNoFocus()
    {
        reachTitle();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QVERIFY(m_field->hasFocus());
        m_box->setExpanded(false);
        title()->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QVERIFY(m_after->hasFocus());
    }

    void setExpandedIsAnnouncedOnChange()
    {
        m_box->setExpanded(true);
        QCOMPARE(m_states, Flags());
        m_box->setExpanded(false);
        m_box->setExpanded(false);
        QCOMPARE(m_states, Flags{false});
        verifyState(false);
        m_box->setExpanded(true);
        QCOMPARE(m_states, Flags({false, true}));
        verifyState(true);
    }

    void stateOutlivesHiding()
    {
        m_box->setExpanded(false);
        m_window->hide();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        verifyState(false);

        m_window->hide();
        m_box->setExpanded(true);
        QVERIFY(m_box->isExpanded());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        verifyState(true);
        QCOMPARE(m_states, Flags({false, true}));
    }

    void itemAddedWhileFoldedIsHidden()
    {
        m_box->setExpanded(false);
        const QWidget* item = m_box->addItem(QStringLiteral("late"), new QVBoxLayout, 30);
        QVERIFY(!item->isVisible());
        m_box->setExpanded(true);
        QVERIFY(item->isVisible());
        QCOMPARE(item->height(), 30);
    }

private:
    static QLayout* columnOf(QWidget* widget)
    {
        auto* layout = new QVBoxLayout;
        layout->addWidget(widget);
        return layout;
    }

    QToolButton* title() const { return m_box->findChild<QToolButton*>(QStringLiteral("propertyTitle")); }
    int top(const QWidget* widget) const { return widget->mapTo(m_box, QPoint()).y(); }

    /// Gives the title the focus as a user of the keyboard does.
    void reachTitle()
    {
        QTRY_VERIFY(m_before->hasFocus());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QVERIFY(title()->hasFocus());
    }

    void verifyState(bool expanded) const
    {
        QCOMPARE(m_box->isExpanded(), expanded);
        QCOMPARE(m_first->isVisible(), expanded);
        QCOMPARE(m_second->isVisible(), expanded);
        QVERIFY(title()->isVisible());
        QCOMPARE(title()->arrowType(), expanded ? Qt::DownArrow : Qt::RightArrow);
    }

    std::unique_ptr<QWidget> m_window;
    PropertyBox* m_box = nullptr;
    QLineEdit* m_before = nullptr;
    QLineEdit* m_after = nullptr;
    QLineEdit* m_field = nullptr;
    QWidget* m_first = nullptr;
    QWidget* m_second = nullptr;
    Flags m_states;
};

VD_TEST_MAIN(TestPropertyBox)
#include "tst_propertybox.moc"
