#include "testcase.h"

#include <spineditbox.h>

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

using namespace vardeno::testcharttools;

using Values = QList<double>;

/// A box of 1 to 100 px that shows 50, in a shown window with another entry below it.
class TestSpinEditBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(m_window.get());
        m_box = new SpinEditBox(m_window.get());
        m_other = new QLineEdit(m_window.get());
        column->addWidget(m_box);
        column->addWidget(m_other);
        m_box->setRange(1, 100);
        m_box->setSuffix(QStringLiteral("px"));
        m_box->setValue(50);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
        QTRY_VERIFY(m_box->hasFocus());
        m_announced.clear();
        connect(m_box, &SpinEditBox::valueChanged, this, [this](double value) { m_announced.append(value); });
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void commits_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        QTest::addColumn<Values>("announced");
        QTest::addColumn<QString>("text");
        QTest::newRow("typed only") << "70"
                                    << "" << Values() << "70px";
        QTest::newRow("Return") << "70"
                                << "Return" << Values{70} << "70px";
        QTest::newRow("Enter") << "70"
                               << "Enter" << Values{70} << "70px";
        QTest::newRow("Return twice") << "70"
                                      << "Return Return" << Values{70} << "70px";
        QTest::newRow("Return, then focus lost") << "70"
                                                 << "Return Tab" << Values{70} << "70px";
        QTest::newRow("Tab") << "70"
                             << "Tab" << Values{70} << "70px";
        QTest::newRow("click elsewhere") << "70"
                                         << "click" << Values{70} << "70px";
        QTest::newRow("Return without an edit") << ""
                                                << "Return" << Values() << "50px";
        QTest::newRow("focus lost without an edit") << ""
                                                    << "Tab" << Values() << "50px";
        QTest::newRow("value that was there") << "50"
                                              << "Return" << Values() << "50px";
        QTest::newRow("arrow up") << ""
                                  << "Up" << Values{51} << "51px";
        QTest::newRow("arrow down") << ""
                                    << "Down" << Values{49} << "49px";
        QTest::newRow("two arrows") << ""
                                    << "Up Up" << Values{51, 52} << "52px";
        QTest::newRow("page up") << ""
                                 << "PgUp" << Values{60} << "60px";
        QTest::newRow("page down") << ""
                                   << "PgDown" << Values{40} << "40px";
        QTest::newRow("wheel away") << ""
                                    << "wheel+" << Values{51} << "51px";
        QTest::newRow("wheel towards") << ""
                                       << "wheel-" << Values{49} << "49px";
        QTest::newRow("upper button") << ""
                                      << "button+" << Values{51} << "51px";
        QTest::newRow("lower button") << ""
                                      << "button-" << Values{49} << "49px";
        QTest::newRow("step") << ""
                              << "step" << Values{53} << "53px";
        QTest::newRow("largest") << "100"
                                 << "Return" << Values{100} << "100px";
        QTest::newRow("smallest") << "1"
                                  << "Return" << Values{1} << "1px";
        QTest::newRow("fraction") << "2.5"
                                  << "Return" << Values{2.5} << "2.5px";
        QTest::newRow("zeros around it") << "070.50"
                                         << "Return" << Values{70.5} << "70.5px";
    }

    void commits()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        QFETCH(Values, announced);
        QFETCH(QString, text);
        type(typed);
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->value(), 50.0);
        perform(action);
        QCOMPARE(m_announced, announced);
        QCOMPARE(m_box->value(), announced.isEmpty() ? 50.0 : announced.last());
        QCOMPARE(m_box->text(), text);
    }

    void stepsGoOnFromWhatIsTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        QTest::addColumn<double>("value");
        QTest::newRow("arrow up") << "70"
                                  << "Up" << 71.0;
        QTest::newRow("arrow down") << "70"
                                    << "Down" << 69.0;
        QTest::newRow("wheel") << "70"
                               << "wheel+" << 71.0;
        QTest::newRow("button") << "70"
                                << "button+" << 71.0;
        QTest::newRow("arrow at the end of the range") << "100"
                                                       << "Up" << 100.0;
    }

    void stepsGoOnFromWhatIsTyped()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        QFETCH(double, value);
        type(typed);
        perform(action);
        perform(QStringLiteral("Return"));
        QCOMPARE(m_box->value(), value);
        QVERIFY(!m_announced.isEmpty());
        QCOMPARE(m_announced.last(), value);
        QCOMPARE(m_box->text(), m_box->textFromValue(value) + QStringLiteral("px"));
    }

    void stepsEndAnInvalidEntry_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        QTest::newRow("arrow after too large a number") << "500"
                                                        << "Up";
        QTest::newRow("wheel after too large a number") << "500"
                                                        << "wheel+";
        QTest::newRow("button after too large a number") << "500"
                                                         << "button+";
        QTest::newRow("arrow after no number") << "abc"
                                               << "Up";
        QTest::newRow("arrow after nothing") << "Del"
                                             << "Up";
    }

    /// The first one brings the last valid value back, the next one goes on from there.
    void stepsEndAnInvalidEntry()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        type(typed);
        perform(action);
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->text(), QStringLiteral("50px"));
        perform(action);
        QCOMPARE(m_announced, Values{51});
        QCOMPARE(m_box->text(), QStringLiteral("51px"));
    }

    void unitMayBePastedOrLeftOut_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<Values>("announced");
        QTest::newRow("pasted") << "70px" << Values{70};
        QTest::newRow("left out") << "70" << Values{70};
        QTest::newRow("another unit") << "70mm" << Values();
        QTest::newRow("half of it") << "70p" << Values();
    }

    /// The whole text is overwritten, with its unit.
    void unitMayBePastedOrLeftOut()
    {
        QFETCH(QString, pasted);
        QFETCH(Values, announced);
        auto* edit = m_box->findChild<QLineEdit*>();
        edit->selectAll();
        edit->insert(pasted);
        perform(QStringLiteral("Return"));
        QCOMPARE(m_announced, announced);
        QCOMPARE(m_box->text(), announced.isEmpty() ? QStringLiteral("50px") : QStringLiteral("70px"));
    }

    void unitMayBeTypedOrLeftOut_data()
    {
        unitMayBePastedOrLeftOut_data();
        QTest::newRow("with a blank") << "70 px" << Values{70};
    }

    void unitMayBeTypedOrLeftOut()
    {
        QFETCH(QString, pasted);
        QFETCH(Values, announced);
        m_box->findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(m_box, pasted);
        perform(QStringLiteral("Return"));
        QCOMPARE(m_announced, announced);
        QCOMPARE(m_box->text(), announced.isEmpty() ? QStringLiteral("50px") : QStringLiteral("70px"));
    }

    void nothingIsAnnouncedAtTheEnds_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("action");
        QTest::newRow("arrow up at the largest") << 100.0 << "Up";
        QTest::newRow("wheel at the largest") << 100.0 << "wheel+";
        QTest::newRow("button at the largest") << 100.0 << "button+";
        QTest::newRow("arrow down at the smallest") << 1.0 << "Down";
        QTest::newRow("wheel at the smallest") << 1.0 << "wheel-";
    }

    void nothingIsAnnouncedAtTheEnds()
    {
        QFETCH(double, value);
        QFETCH(QString, action);
        m_box->setValue(value);
        m_announced.clear();
        perform(action);
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->value(), value);
    }

    void invalidEntriesGoBack_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        const std::pair<const char*, const char*> entries[] = {{"just too large", "101"},
                                                               {"too large", "500"},
                                                               {"far too large", "99999999999999999999"},
                                                               {"zero", "0"},
                                                               {"negative", "-5"},
                                                               {"just too small", "0.99"},
                                                               {"letters", "abc"},
                                                               {"a number and letters", "70x"},
                                                               {"nothing", "Del"},
                                                               {"only a sign", "-"},
                                                               {"only a point", "."},
                                                               {"two points", "7.0.0"},
                                                               {"three decimals", "70.125"},
                                                               {"only the unit", "px"},
                                                               {"spaces", "  "},
                                                               {"not a number", "nan"},
                                                               {"infinite", "inf"}};
        for (const auto& [name, typed] : entries) {
            for (const char* action : {"Return", "Tab"})
                QTest::newRow(
                    qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(name), QLatin1String(action))))
                    << typed << action;
        }
        QTest::newRow("too large, click elsewhere") << "500"
                                                    << "click";
    }

    void invalidEntriesGoBack()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        type(QStringLiteral("70"));
        perform(QStringLiteral("Return"));
        QCOMPARE(m_announced, Values{70});
        m_announced.clear();
        type(typed);
        perform(action);
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->value(), 70.0);
        QCOMPARE(m_box->text(), QStringLiteral("70px"));
    }

    void anythingMayBeTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("a number on the way out of the range") << "500";
        QTest::newRow("letters") << "abc";
        QTest::newRow("many decimals") << "1.23456";
    }

    void anythingMayBeTyped()
    {
        QFETCH(QString, typed);
        type(typed);
        QCOMPARE(m_box->text(), typed + QStringLiteral("px"));
    }

    void clearedBoxGoesBack_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<QString>("action");
        QTest::newRow("Return") << false << "Return";
        QTest::newRow("focus lost") << false << "Tab";
        QTest::newRow("the X server's key, Return") << true << "Return";
        QTest::newRow("the X server's key, focus lost") << true << "Tab";
    }

    /// Under X11 Ctrl+U clears an entry; elsewhere it does nothing.
    void clearedBoxGoesBack()
    {
        QFETCH(bool, byKey);
        QFETCH(QString, action);
        if (byKey)
            QTest::keyClick(m_box, Qt::Key_U, Qt::ControlModifier);
        else
            m_box->clear();
        perform(action);
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->value(), 50.0);
        QCOMPARE(m_box->text(), QStringLiteral("50px"));
    }

    /// Wherever a program sends the keys.
    void clearedBoxTakesANewValue_data()
    {
        QTest::addColumn<bool>("inner");
        QTest::newRow("box") << false;
        QTest::newRow("its entry") << true;
    }

    void clearedBoxTakesANewValue()
    {
        QFETCH(bool, inner);
        m_box->clear();
        QTest::keyClicks(inner ? m_box->findChild<QLineEdit*>() : static_cast<QWidget*>(m_box),
                         QStringLiteral("7"));
        perform(QStringLiteral("Return"));
        QCOMPARE(m_announced, Values{7});
        QCOMPARE(m_box->text(), QStringLiteral("7px"));
    }

    void setValueAnnounces_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<Values>("announced");
        QTest::newRow("another") << 70.0 << Values{70};
        QTest::newRow("the same") << 50.0 << Values();
        QTest::newRow("fraction") << 0.5 + 1 << Values{1.5};
        QTest::newRow("above the range") << 500.0 << Values{100};
        QTest::newRow("below the range") << -5.0 << Values{1};
    }

    void setValueAnnounces()
    {
        QFETCH(double, value);
        QFETCH(Values, announced);
        m_box->setValue(value);
        QCOMPARE(m_announced, announced);
        QCOMPARE(m_box->value(), announced.isEmpty() ? 50.0 : announced.last());
    }

    void setValueEndsAnEntry()
    {
        type(QStringLiteral("70"));
        m_box->setValue(20);
        QCOMPARE(m_announced, Values{20});
        QCOMPARE(m_box->text(), QStringLiteral("20px"));
        perform(QStringLiteral("Tab"));
        QCOMPARE(m_announced, Values{20});
    }

    void setRangeAnnouncesACutValue()
    {
        m_box->setRange(60, 80);
        QCOMPARE(m_announced, Values{60});
        QCOMPARE(m_box->text(), QStringLiteral("60px"));
    }

    void texts_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << 50.0 << 2 << ""
                               << "50";
        QTest::newRow("zero at the end of a whole number") << 100.0 << 2 << "px"
                                                           << "100px";
        QTest::newRow("zero") << 0.0 << 2 << ""
                              << "0";
        QTest::newRow("one decimal") << 0.5 << 2 << ""
                                     << "0.5";
        QTest::newRow("two decimals") << 0.25 << 2 << "%"
                                      << "0.25%";
        QTest::newRow("zero among the decimals") << 1.05 << 2 << ""
                                                 << "1.05";
        QTest::newRow("negative") << -2.5 << 2 << ""
                                  << "-2.5";
        QTest::newRow("no decimals at all") << 120.0 << 0 << ""
                                            << "120";
        QTest::newRow("suffix with a zero and a point") << 7.0 << 2 << " .0"
                                                        << "7 .0";
    }

    void texts()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(QString, suffix);
        QFETCH(QString, text);
        m_box->setRange(-1000, 1000);
        m_box->setDecimals(decimals);
        m_box->setSuffix(suffix);
        m_box->setValue(value);
        QCOMPARE(m_box->text(), text);
        QCOMPARE(m_box->value(), value);
    }

    void decimalComma()
    {
        QLocale german(QLocale::German);
        german.setNumberOptions(QLocale::OmitGroupSeparator);
        m_box->setLocale(german);
        m_box->setValue(2.5);
        QCOMPARE(m_box->text(), QStringLiteral("2,5px"));
        m_box->setValue(20);
        QCOMPARE(m_box->text(), QStringLiteral("20px"));
        m_announced.clear();
        type(QStringLiteral("7,50"));
        perform(QStringLiteral("Return"));
        QCOMPARE(m_announced, Values{7.5});
        QCOMPARE(m_box->text(), QStringLiteral("7,5px"));
    }

    void wholeNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        QTest::addColumn<Values>("announced");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << "70"
                               << "Return" << Values{70} << "70px";
        QTest::newRow("decimals are cut off") << "70.9"
                                              << "Return" << Values{70.9} << "70px";
        QTest::newRow("also when the focus goes") << "70.9"
                                                  << "Tab" << Values{70.9} << "70px";
        QTest::newRow("to the number that was there") << "50.5"
                                                      << "Return" << Values{50.5} << "50px";
        QTest::newRow("steps go on from what is cut") << "70.9"
                                                      << "Up" << Values{71.9} << "71px";
        QTest::newRow("up to the end") << "99.9"
                                       << "Up Up" << Values{100} << "100px";
        QTest::newRow("outside before it is cut") << "0.9"
                                                  << "Return" << Values() << "50px";
        QTest::newRow("above before it is cut") << "100.5"
                                                << "Return" << Values() << "50px";
    }

    void wholeNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        QFETCH(Values, announced);
        QFETCH(QString, text);
        QVERIFY(!m_box->wholeNumbers());
        m_box->setWholeNumbers(true);
        QVERIFY(m_box->wholeNumbers());
        type(typed);
        perform(action);
        QCOMPARE(m_announced, announced);
        QCOMPARE(m_box->value(), announced.isEmpty() ? 50.0 : announced.last());
        QCOMPARE(m_box->text(), text);
    }

    void wholeNumbersAreSet_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("decimals are cut off") << 10.7 << "10px";
        QTest::newRow("towards zero") << -10.7 << "-10px";
        QTest::newRow("whole") << 70.0 << "70px";
    }

    void wholeNumbersAreSet()
    {
        QFETCH(double, value);
        QFETCH(QString, shown);
        m_box->setWholeNumbers(true);
        m_box->setRange(-100, 100);
        m_box->setValue(value);
        QCOMPARE(m_announced, Values{value});
        QCOMPARE(m_box->text(), shown);
    }

    void refusalsAreTold_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("told");
        for (const char* action : {"Return", "Tab", "click", "Up", "wheel+"})
            QTest::newRow(qPrintable(QStringLiteral("too large, %1").arg(QLatin1String(action))))
                << "500" << action << 1;
        QTest::newRow("nothing") << "Del"
                                 << "Return" << 1;
        QTest::newRow("letters") << "abc"
                                 << "Return" << 1;
        QTest::newRow("once") << "500"
                              << "Return Return Tab" << 1;
        QTest::newRow("not while typing") << "500"
                                          << "" << 0;
        QTest::newRow("accepted") << "70"
                                  << "Return" << 0;
        QTest::newRow("no edit") << ""
                                 << "Return Tab" << 0;
        QTest::newRow("the end of the range") << "100"
                                              << "Up Up" << 0;
    }

    void refusalsAreTold()
    {
        QFETCH(QString, typed);
        QFETCH(QString, action);
        QFETCH(int, told);
        const QSignalSpy refused(m_box, &SpinEditBox::entryRefused);
        type(typed);
        perform(action);
        QCOMPARE(refused.count(), told);
    }

    void stringBasedConnectionsHearOnce()
    {
        QSignalSpy spy(m_box, SIGNAL(valueChanged(double)));
        m_box->setValue(70);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toDouble(), 70.0);
    }

    void disabledBoxTakesNothing()
    {
        m_box->setEnabled(false);
        perform(QStringLiteral("Up"));
        perform(QStringLiteral("wheel+"));
        perform(QStringLiteral("button+"));
        QCOMPARE(m_announced, Values());
        QCOMPARE(m_box->value(), 50.0);
    }

private:
    /// Replaces the number; "Del" deletes it, an empty text leaves it.
    void type(const QString& text)
    {
        if (text.isEmpty())
            return;
        m_box->selectAll();
        if (text == QLatin1String("Del"))
            QTest::keyClick(m_box, Qt::Key_Delete);
        else
            QTest::keyClicks(m_box, text);
    }

    /// The words of `actions` one by one: keys by name, "click" on the other entry, "wheel+", "button-",
    /// "step".
    void perform(const QString& actions)
    {
        const QStringList words = actions.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString& word : words) {
            const bool up = word.endsWith(QLatin1Char('+'));
            if (word.startsWith(QLatin1String("wheel")))
                turnWheel(up ? 120 : -120);
            else if (word.startsWith(QLatin1String("button")))
                clickButton(up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown);
            else if (word == QLatin1String("click"))
                QTest::mouseClick(m_other, Qt::LeftButton);
            else if (word == QLatin1String("step"))
                m_box->stepBy(3);
            else
                QTest::keyClick(m_window->windowHandle(), Qt::Key(int(QKeySequence(word)[0])));
        }
    }

    void turnWheel(int delta)
    {
        const QPointF position = m_box->rect().center();
        QWheelEvent event(position, m_box->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_box, &event);
    }

    void clickButton(QStyle::SubControl button)
    {
        QStyleOptionSpinBox option;
        option.initFrom(m_box);
        option.subControls = QStyle::SC_All;
        const QRect rect = m_box->style()->subControlRect(QStyle::CC_SpinBox, &option, button, m_box);
        QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, rect.center());
    }

    std::unique_ptr<QWidget> m_window;
    SpinEditBox* m_box = nullptr;
    QLineEdit* m_other = nullptr;
    Values m_announced;
};

VD_TEST_MAIN(TestSpinEditBox)
#include "tst_spineditbox.moc"
