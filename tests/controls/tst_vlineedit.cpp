#include "testcase.h"

#include <lineedit.h>
#include <vlineedit.h>

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStyleFactory>
#include <QUndoStack>
#include <QWheelEvent>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>

using namespace vardeno::testcharttools;

using Values = QList<double>;

namespace {

/// Counts how often a widget is polished.
class PolishCounter : public QProxyStyle
{
public:
    explicit PolishCounter(QWidget* counted)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
        , m_counted(counted)
    {
    }
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override
    {
        QProxyStyle::polish(widget);
        polished += widget == m_counted;
    }
    void unpolish(QWidget* widget) override
    {
        QProxyStyle::unpolish(widget);
        unpolished += widget == m_counted;
    }

    int polished = 0;
    int unpolished = 0;

private:
    QWidget* m_counted;
};

} // namespace

/// A control with the focus, in a shown window with another entry below it.
class TestVLineEdit : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    VLineEdit* m_control = nullptr;
    QLineEdit* m_editor = nullptr;
    QLineEdit* m_other = nullptr;
    QStringList m_heard; ///< signals with their arguments
    Values m_values;     ///< of `valueChange`

    template <typename Widget>
    Widget* named(const char* objectName) const
    {
        return m_control->findChild<Widget*>(QLatin1String(objectName));
    }

    QPushButton* clearButton() const { return named<QPushButton>("btnclear"); }

    void listen()
    {
        const auto hear = [this](const char* signal, const QString& argument) {
            m_heard.append(QStringLiteral("%1(%2)").arg(QLatin1String(signal), argument));
        };
        connect(m_control, &VLineEdit::editingFinished, this, [hear] { hear("editingFinished", QString()); });
        connect(m_control, &VLineEdit::sigEditFinished, this,
                [hear](const QString& text) { hear("sigEditFinished", text); });
        connect(m_control, &VLineEdit::textChanged, this,
                [hear](const QString& text) { hear("textChanged", text); });
        connect(m_control, &VLineEdit::valueChange, this, [this, hear](double value) {
            hear("valueChange", QString::number(value));
            m_values.append(value);
        });
    }

    void forget()
    {
        m_heard.clear();
        m_values.clear();
    }

    void type(const QString& keys) { QTest::keyClicks(m_editor, keys); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_editor, key, modifiers);
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { press(Qt::Key_Y, Qt::ControlModifier); }

    void paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        press(Qt::Key_V, Qt::ControlModifier);
    }

    void takeUp(const QString& text, int cursor)
    {
        m_control->setText(text);
        m_editor->setCursorPosition(cursor);
        forget();
    }

    /// Whether the control has taken the turn for itself.
    bool turnWheel(int y, Qt::KeyboardModifiers modifiers = {}, int x = 0)
    {
        const QPointF position(m_editor->rect().center());
        QWheelEvent event(position, m_editor->mapToGlobal(position.toPoint()), QPoint(), QPoint(x, y),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        event.setAccepted(false);
        QApplication::sendEvent(m_editor, &event);
        return event.isAccepted();
    }

    void leave() { QTest::mouseClick(m_other, Qt::LeftButton); }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(m_window.get());
        m_control = new VLineEdit(m_window.get());
        m_other = new QLineEdit(m_window.get());
        column->addWidget(m_control);
        column->addWidget(m_other);
        m_editor = named<QLineEdit>("VLineEdit");
        m_window->resize(300, 100);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_control->setFocus();
        QTRY_VERIFY(m_editor->hasFocus());
        forget();
        listen();
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void parts()
    {
        QCOMPARE(m_control->objectName(), QStringLiteral("VLineEditWidget"));
        QCOMPARE(m_control->minimumHeight(), 20);
        QCOMPARE(m_control->maximumHeight(), 20);
        QCOMPARE(m_control->height(), 20);
        QVERIFY(named<QWidget>("VEditWidget"));

        auto* const caption = named<QLabel>("VPropertyLabel");
        QCOMPARE(caption->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(caption->minimumSize(), QSize(16, 16));

        QVERIFY(qobject_cast<LineEdit*>(m_editor));
        QCOMPARE(m_editor->alignment(), Qt::AlignLeft);
        QCOMPARE(m_editor->height(), 19);
        QCOMPARE(m_editor->minimumHeight(), m_editor->maximumHeight());
        QCOMPARE(m_editor->textMargins(), QMargins());
        QCOMPARE(m_editor->contextMenuPolicy(), Qt::NoContextMenu);

        QCOMPARE(clearButton()->size(), QSize(16, 16));
        QCOMPARE(clearButton()->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(named<QWidget>("VUnderLine")->maximumHeight(), 1);
        QCOMPARE(named<QWidget>("VUnderLine")->height(), 1);
        QCOMPARE(named<QLabel>("VUnitLabel")->size(), QSize(24, 16));
    }

    void arrangement()
    {
        m_control->setCaption(QStringLiteral("W"));
        QTRY_VERIFY(named<QLabel>("VPropertyLabel")->width() >= 16);
        m_window->layout()->activate();
        QWidget* const row = named<QWidget>("VEditWidget");
        for (const QLayout* layout : {row->layout(), m_control->layout()})
            QCOMPARE(layout->spacing(), 0);
        QCOMPARE(row->layout()->contentsMargins(), QMargins(0, 0, 5, 0));
        QCOMPARE(m_control->layout()->contentsMargins(), QMargins());

        const QRect caption = named<QLabel>("VPropertyLabel")->geometry();
        const QRect unit = named<QLabel>("VUnitLabel")->geometry();
        QCOMPARE(caption.left(), 0);
        QCOMPARE(m_editor->x(), caption.right() + 1);
        QCOMPARE(clearButton()->x(), m_editor->geometry().right() + 1);
        QCOMPARE(unit.left(), clearButton()->geometry().right() + 1);
        QCOMPARE(unit.right(), row->rect().right() - 5);
        const QRect line = named<QWidget>("VUnderLine")->geometry();
        QCOMPARE(line, QRect(0, row->geometry().bottom() + 1, m_control->width(), 1));
        QCOMPARE(line.bottom(), m_control->rect().bottom());
    }

    void theCaptionIsOptional()
    {
        QVERIFY(named<QLabel>("VPropertyLabel")->isHidden());
        QCOMPARE(m_editor->x(), 0);
        m_control->setCaption(QStringLiteral("Width"));
        QVERIFY(named<QLabel>("VPropertyLabel")->isVisible());
        QCOMPARE(named<QLabel>("VPropertyLabel")->text(), QStringLiteral("Width"));
        QCOMPARE(m_control->caption(), QStringLiteral("Width"));
        QCOMPARE(m_editor->accessibleName(), QStringLiteral("Width"));
        QTRY_VERIFY(m_editor->x() >= 16);
        m_control->setCaption(QString());
        QVERIFY(named<QLabel>("VPropertyLabel")->isHidden());
    }

    void theCaptionIsShownInFull()
    {
        m_control->setCaption(QStringLiteral("Width"));
        m_window->resize(205, 100);
        auto* const caption = named<QLabel>("VPropertyLabel");
        QTRY_VERIFY(m_control->width() < 190);
        m_window->layout()->activate();
        QVERIFY(caption->width() >= caption->sizeHint().width());
        QVERIFY(m_editor->width() >= m_editor->fontMetrics().horizontalAdvance(QStringLiteral("-1234.56")));
    }

    void theUnit()
    {
        QCOMPARE(m_control->unit(), QString());
        m_control->setUnit(QStringLiteral("px"));
        QCOMPARE(named<QLabel>("VUnitLabel")->text(), QStringLiteral("px"));
        QCOMPARE(m_control->unit(), QStringLiteral("px"));
    }

    void theLineIsDrawnWithoutAStyleSheet()
    {
        m_other->setFocus();
        const QImage picture = m_control->grab().toImage();
        const QRgb line = picture.pixel(picture.width() / 2, picture.height() - 1);
        QVERIFY(line != m_control->palette().color(QPalette::Window).rgb());
        QCOMPARE(picture.pixel(2, picture.height() - 1), line);
    }

    void aStyleSheetFindsItsParts()
    {
        m_control->setStyleSheet(QStringLiteral("#VLineEditWidget { background: #102030; }"
                                                "#VUnderLine { background: #405060; border: none; }"
                                                "#VEditWidget { background: #708090; }"));
        const QImage picture = m_control->grab().toImage();
        QCOMPARE(QColor(picture.pixel(picture.width() - 2, 10)), QColor(0x70, 0x80, 0x90));
        QCOMPARE(QColor(picture.pixel(picture.width() / 2, picture.height() - 1)), QColor(0x40, 0x50, 0x60));
        named<QWidget>("VEditWidget")->hide();
        const QImage bare = m_window->grab().toImage();
        const QPoint middle = m_control->geometry().center();
        QCOMPARE(QColor(bare.pixel(middle)), QColor(0x10, 0x20, 0x30));
    }

    void startsEmpty()
    {
        QCOMPARE(m_control->value(), 0.0);
        QCOMPARE(m_control->text(), QString());
        QVERIFY(m_control->numberMode());
        QVERIFY(!m_control->isReadOnly());
        QVERIFY(!m_control->isInputLocked());
        QCOMPARE(m_control->step(), 0.1);
        QVERIFY(m_control->allowZero());
        QVERIFY(!m_control->hasMinimum());
        QCOMPARE(m_control->minimum(), 0.0);
        QVERIFY(!m_control->undoStack()->canUndo());
        const auto* validator = qobject_cast<const QRegularExpressionValidator*>(m_editor->validator());
        QVERIFY(validator);
        QCOMPARE(validator->regularExpression().pattern(), QStringLiteral("^[\\+\\-\\*\\/\\d\\.]+$"));
        leave();
        QCOMPARE(m_control->text(), QString());
    }

    void accessors()
    {
        m_control->setStep(2.5);
        QCOMPARE(m_control->step(), 2.5);
        m_control->setAllowZero(false);
        QVERIFY(!m_control->allowZero());
        m_control->setMinimum(-3);
        QVERIFY(m_control->hasMinimum());
        QCOMPARE(m_control->minimum(), -3.0);
        m_control->clearMinimum();
        QVERIFY(!m_control->hasMinimum());
        QCOMPARE(m_control->minimum(), 0.0);
        QCOMPARE(m_heard, QStringList());
    }

    void typing_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Values>("values");
        const auto row = [](const char* keys, const char* text, const Values& values) {
            QTest::newRow(keys) << keys << text << values;
        };
        row("2*3", "6", {2, 6});
        row("1..", "1.", {1});
        row("*", "", {});
        row("/", "", {});
        row(".", "", {});
        row("-", "-", {});
        row("+", "+", {});
        row("5+--", "5+-", {5});
        row("5+-", "5+-", {5});
        row("5*-", "5*-", {5});
        row("5*-2", "-10", {5, -10});
        row("5--2", "7", {5, 7});
        row("5**2", "10", {5, 10});
        row("2*", "2*", {2});
        row("2*3*4", "24", {2, 6, 24});
        row("12", "12", {1, 12});
        row("-5", "-5", {-5});
        row("--5", "--5", {5});
        row("0", "0", {0});
        row("1.", "1.", {1});
        row("1.5", "1.5", {1, 1.5});
        row("1.505", "1.505", {1, 1.5, 1.5, 1.505});
        row("0.05", "0.05", {0, 0, 0.05});
        row("-0.5", "-0.5", {0, -0.5});
        row("1.5.2", "1.52", {1, 1.5, 1.52});
        row("1.5+.", "1.5+", {1, 1.5});
        row("007", "007", {0, 0, 7});
        row("10-0.5", "9.5", {1, 10, 10, 9.5});
        row("2*0.25", "0.45", {2, 0, 0.4, 0.45}); // 2*0.2 has a value
        row("5/0", "5/0", {5});
        row("5/0*", "5/0", {5});
        row("5/0.5", "10", {5, 10});
        row("10/3", "3.33333", {1, 10, 10.0 / 3});
        row("1234567", "1234567", {1, 12, 123, 1234, 12345, 123456, 1234567});
        row("1e5", "15", {1, 15});
        row("3 px", "3", {3});
        row("1,5", "15", {1, 15});
        row("inf", "", {});
    }

    void typing()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(Values, values);
        type(keys);
        QCOMPARE(m_control->text(), text);
        QCOMPARE(m_editor->text(), text);
        QCOMPARE(m_editor->cursorPosition(), text.size());
        QCOMPARE(m_values, values);
        QCOMPARE(m_control->value(), values.isEmpty() ? 0.0 : values.last());
    }

    void signalsOfAnEdit()
    {
        type(QStringLiteral("2*3"));
        const QStringList heard{"textChanged(2)", "valueChange(2)", "textChanged(2*)", "textChanged(6)",
                                "valueChange(6)"};
        QCOMPARE(m_heard, heard);
    }

    void aRefusedTextIsNotAnnounced()
    {
        type(QStringLiteral("1."));
        forget();
        type(QStringLiteral(".*+"));
        QCOMPARE(m_heard, QStringList());
        QCOMPARE(m_control->text(), QStringLiteral("1."));
    }

    void aReceiverFindsEverythingInPlace()
    {
        QStringList seen;
        connect(m_control, &VLineEdit::valueChange, this, [&](double value) {
            seen.append(QStringLiteral("%1 %2 %3").arg(value).arg(m_control->value()).arg(m_control->text()));
        });
        type(QStringLiteral("2*3"));
        const QStringList expected{"2 2 2", "6 6 6"};
        QCOMPARE(seen, expected);
    }

    void editsInPlace_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cursorAfter");
        QTest::addColumn<double>("value");
        QTest::newRow("digit in front") << "15" << 0 << "2"
                                        << "215" << 1 << 215.0;
        QTest::newRow("digit between") << "15" << 1 << "2"
                                       << "125" << 2 << 125.0;
        QTest::newRow("point between") << "15" << 1 << "."
                                       << "1.5" << 2 << 1.5;
        QTest::newRow("sign in front") << "15" << 0 << "-"
                                       << "-15" << 1 << -15.0;
        QTest::newRow("operator between") << "15" << 1 << "*"
                                          << "5" << 1 << 5.0;
        QTest::newRow("* in front") << "15" << 0 << "*"
                                    << "15" << 0 << 15.0;
        QTest::newRow("second point in front of one") << "1.5" << 1 << "."
                                                      << "1.5" << 1 << 1.5;
        QTest::newRow("second point") << "1.52" << 3 << "."
                                      << "1.52" << 3 << 1.52;
    }

    void editsInPlace()
    {
        QFETCH(QString, start);
        QFETCH(int, cursor);
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(int, cursorAfter);
        QFETCH(double, value);
        takeUp(start, cursor);
        type(keys);
        QCOMPARE(m_control->text(), text);
        QCOMPARE(m_editor->cursorPosition(), cursorAfter);
        QCOMPARE(m_control->value(), value);
    }

    void takingAway()
    {
        takeUp(QStringLiteral("1.5"), 3);
        press(Qt::Key_Backspace);
        QCOMPARE(m_control->text(), QStringLiteral("1."));
        QCOMPARE(m_control->value(), 1.5);
        press(Qt::Key_Backspace);
        QCOMPARE(m_control->text(), QStringLiteral("1"));
        QCOMPARE(m_control->value(), 1.0);
        press(Qt::Key_Backspace);
        QCOMPARE(m_control->text(), QString());
        QCOMPARE(m_control->value(), 1.0);
        type(QStringLiteral("7"));
        QCOMPARE(m_control->value(), 7.0);
        QCOMPARE(m_values, (Values{1, 7}));
    }

    void takingAwayInFront()
    {
        takeUp(QStringLiteral("12.5"), 0);
        press(Qt::Key_Delete);
        press(Qt::Key_Delete);
        QCOMPARE(m_control->text(), QStringLiteral(".5"));
        QCOMPARE(m_values, (Values{2.5, 0.5}));
    }

    void pasting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        QTest::newRow("expression") << "2*3+4"
                                    << "10" << 10.0;
        QTest::newRow("number") << "12.50"
                                << "12.50" << 12.5;
        QTest::newRow("to go on with") << "2*3+"
                                       << "2*3+" << 1.0;
        QTest::newRow("malformed") << "2**3"
                                   << "1" << 1.0;
        QTest::newRow("division by zero, finished") << "2/0+1"
                                                    << "1" << 1.0;
        QTest::newRow("letters") << "12a"
                                 << "1" << 1.0;
        QTest::newRow("exponent") << "1e+06"
                                  << "1" << 1.0;
    }

    void pasting()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(double, value);
        takeUp(QStringLiteral("1"), 0);
        m_editor->selectAll();
        paste(text);
        QCOMPARE(m_control->text(), shown);
        QCOMPARE(m_control->value(), value);
    }

    void tooLargeANumberIsRefused()
    {
        const QString large = QStringLiteral("1") + QString(308, QLatin1Char('0'));
        takeUp(large, large.size());
        QCOMPARE(m_control->value(), 1e308);
        type(QStringLiteral("0"));
        QCOMPARE(m_control->text(), large);
        type(QStringLiteral("*9"));
        QCOMPARE(m_control->text(), large + QLatin1Char('*')); // 9e308 is no number
        QCOMPARE(m_control->value(), 1e308);
        QCOMPARE(m_values, Values());
    }

    void anExponentCanBeEdited()
    {
        type(QStringLiteral("500000*2"));
        QCOMPARE(m_control->text(), QStringLiteral("1e+06"));
        QCOMPARE(m_control->value(), 1e6);
        type(QStringLiteral("e x*3"));
        QCOMPARE(m_control->text(), QStringLiteral("3e+06"));
        QCOMPARE(m_control->value(), 3e6);
        forget();
        for (const char* text : {"3e+0", "3e+", "3e"}) {
            press(Qt::Key_Backspace);
            QCOMPARE(m_control->text(), QLatin1String(text));
            QCOMPARE(m_control->value(), 3e6);
        }
        QCOMPARE(m_values, Values());
        press(Qt::Key_Backspace);
        QCOMPARE(m_control->text(), QStringLiteral("3"));
        QCOMPARE(m_values, Values{3});
    }

    void anExponentEndsItsEdit()
    {
        type(QStringLiteral("500000*2"));
        forget();
        leave();
        QCOMPARE(m_heard, (QStringList{"sigEditFinished(1e+06)", "editingFinished()"}));
    }

    void smallResultsKeepTheirValue()
    {
        paste(QStringLiteral("1/100000"));
        QCOMPARE(m_control->text(), QStringLiteral("1e-05"));
        type(QStringLiteral("*2"));
        QCOMPARE(m_control->text(), QStringLiteral("2e-05"));
        QCOMPARE(m_control->value(), 2e-5);
    }

    void leaving_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* keys, const char* text, double value) {
            QTest::newRow(*keys ? keys : "nothing") << keys << text << value;
        };
        row("", "4", 4);
        row("2*3", "6", 6);
        row("2*", "2", 2);
        row("1.", "1", 1);
        row("1.50", "1.5", 1.5);
        row("0.0", "0", 0);
        row("007", "7", 7);
        row("+7", "7", 7);
        row("5*-", "5", 5);
        row("5/0", "5", 5);
        row("10-0", "10", 10);
        row("1234567", "1234567", 1234567);
        row("-", "4", 4);
    }

    void leaving()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(double, value);
        takeUp(QStringLiteral("4"), 1);
        m_editor->selectAll();
        type(keys);
        leave();
        QVERIFY(!m_editor->hasFocus());
        QCOMPARE(m_control->text(), text);
        QCOMPARE(m_control->value(), value);
        const QStringList end{QStringLiteral("sigEditFinished(%1)").arg(text), "editingFinished()"};
        QCOMPARE(m_heard.mid(m_heard.size() - 2), end);
        QCOMPARE(m_heard.count(end.first()), 1);
        QCOMPARE(m_heard.count(end.last()), 1);
    }

    void aClearedTextComesBack()
    {
        takeUp(QStringLiteral("4"), 1);
        press(Qt::Key_Backspace);
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("4"));
        QCOMPARE(m_heard,
                 (QStringList{"textChanged()", "textChanged(4)", "sigEditFinished(4)", "editingFinished()"}));
    }

    void endingKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }

    void endingKeys()
    {
        QFETCH(int, key);
        type(QStringLiteral("2*3+"));
        forget();
        press(Qt::Key(key));
        QVERIFY(!m_editor->hasFocus());
        const QStringList heard{"textChanged(6)", "sigEditFinished(6)", "editingFinished()"};
        QCOMPARE(m_heard, heard);
    }

    void returnStaysInTheControl()
    {
        QDialog dialog;
        auto* column = new QVBoxLayout(&dialog);
        auto* control = new VLineEdit;
        auto* button = new QPushButton(QStringLiteral("OK"));
        column->addWidget(control);
        column->addWidget(button);
        connect(button, &QPushButton::clicked, &dialog, &QDialog::accept);
        control->setText(QStringLiteral("5"));
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        control->setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        QCOMPARE(control->text(), QStringLiteral("5"));
    }

    /// The clear button is not one that Enter in another entry of a dialog presses.
    void enterElsewhereDoesNotClear()
    {
        QDialog dialog;
        auto* column = new QVBoxLayout(&dialog);
        auto* control = new VLineEdit;
        auto* other = new QLineEdit;
        auto* button = new QPushButton(QStringLiteral("OK"));
        column->addWidget(control);
        column->addWidget(other);
        column->addWidget(button);
        connect(button, &QPushButton::clicked, &dialog, &QDialog::accept);
        control->setText(QStringLiteral("5"));
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        other->setFocus();
        QTest::keyClick(other, Qt::Key_Return);
        QCOMPARE(control->text(), QStringLiteral("5"));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void anEditGoesOnAfterALookElsewhere_data()
    {
        QTest::addColumn<int>("reason");
        QTest::newRow("another window") << int(Qt::ActiveWindowFocusReason);
        QTest::newRow("a pop-up") << int(Qt::PopupFocusReason);
    }

    void anEditGoesOnAfterALookElsewhere()
    {
        QFETCH(int, reason);
        type(QStringLiteral("2*"));
        forget();
        QFocusEvent out(QEvent::FocusOut, Qt::FocusReason(reason));
        QApplication::sendEvent(m_editor, &out);
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        QCOMPARE(m_heard.value(0), QStringLiteral("sigEditFinished(2)"));
        type(QStringLiteral("3"));
        QCOMPARE(m_control->text(), QStringLiteral("6"));
    }

    void anEditGoesOnAfterALock()
    {
        type(QStringLiteral("2*"));
        m_control->setEnabled(false);
        QVERIFY(!m_editor->hasFocus());
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        m_control->setEnabled(true);
        m_control->setFocus();
        press(Qt::Key_End);
        type(QStringLiteral("3"));
        QCOMPARE(m_control->text(), QStringLiteral("6"));
    }

    void theFocusPolishesTheControl()
    {
        leave();
        auto* style = new PolishCounter(m_control);
        style->setParent(m_control);
        m_control->setStyle(style);
        const int polished = style->polished;
        const int unpolished = style->unpolished;
        QTest::mouseClick(m_editor, Qt::LeftButton);
        QVERIFY(m_editor->hasFocus());
        QCOMPARE(style->polished, polished + 1);
        QCOMPARE(style->unpolished, unpolished + 1);
    }

    void settingATextInNumberMode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        QTest::newRow("number") << "5"
                                << "5" << 5.0;
        QTest::newRow("the same") << "4"
                                  << "4" << 4.0;
        QTest::newRow("expression") << "2*3"
                                    << "2*3" << 6.0;
        QTest::newRow("trailing zero") << "1.50"
                                       << "1.50" << 1.5;
        QTest::newRow("exponent") << "1e+06"
                                  << "1e+06" << 1e6;
        QTest::newRow("with what is skipped") << " 2 x 3px"
                                              << "23" << 23.0;
        QTest::newRow("nothing") << ""
                                 << "4" << 4.0;
        QTest::newRow("blanks") << " \t\n "
                                << "4" << 4.0;
        QTest::newRow("letters") << "abc"
                                 << "4" << 4.0;
        QTest::newRow("malformed") << "2**3"
                                   << "4" << 4.0;
        QTest::newRow("unfinished") << "2*"
                                    << "4" << 4.0;
        QTest::newRow("division by zero") << "1/0"
                                          << "4" << 4.0;
        QTest::newRow("too large") << QString(400, QLatin1Char('9')) << "4" << 4.0;
    }

    void settingATextInNumberMode()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(double, value);
        takeUp(QStringLiteral("4"), 1);
        m_control->setText(text);
        QCOMPARE(m_control->text(), shown);
        QCOMPARE(m_control->value(), value);
        const QStringList heard{QStringLiteral("textChanged(%1)").arg(shown)};
        QCOMPARE(m_heard, shown == QLatin1String("4") ? QStringList() : heard);
        forget();
        leave();
        QCOMPARE(m_heard,
                 (QStringList{QStringLiteral("sigEditFinished(%1)").arg(shown), "editingFinished()"}));
    }

    void aSetTextEndsTheHistory()
    {
        type(QStringLiteral("12"));
        m_control->setText(QStringLiteral("12"));
        QCOMPARE(m_control->undoStack()->count(), 2);
        m_control->setText(QStringLiteral("5"));
        QCOMPARE(m_control->undoStack()->count(), 0);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5"));
        type(QStringLiteral("7"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5"));
        QCOMPARE(m_control->value(), 5.0);
    }

    void validity_data()
    {
        QTest::addColumn<bool>("allowZero");
        QTest::addColumn<double>("minimum"); // nan: none
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        const double none = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("zero allowed") << true << none << "0" << true;
        QTest::newRow("zero not allowed") << false << none << "0" << false;
        QTest::newRow("zero by subtraction") << false << none << "5-5" << false;
        QTest::newRow("zero, nearly") << false << none << "0.000000000001" << false;
        QTest::newRow("negative zero, nearly") << false << none << "-0.000000000001" << false;
        QTest::newRow("just not zero") << false << none << "0.0000000000011" << true;
        QTest::newRow("negative") << false << none << "-5" << true;
        QTest::newRow("above the minimum") << true << 3.0 << "3.1" << true;
        QTest::newRow("at the minimum") << true << 3.0 << "3" << false;
        QTest::newRow("below the minimum") << true << 3.0 << "2" << false;
        QTest::newRow("zero above the minimum") << true << -1.0 << "0" << true;
        QTest::newRow("zero above the minimum, not allowed") << false << -1.0 << "0" << false;
        QTest::newRow("at a negative minimum") << true << -1.0 << "-1" << false;
        QTest::newRow("at a minimum of zero") << true << 0.0 << "0" << false;
    }

    void validity()
    {
        QFETCH(bool, allowZero);
        QFETCH(double, minimum);
        QFETCH(QString, text);
        QFETCH(bool, valid);
        m_control->setText(QStringLiteral("40"));
        m_control->setAllowZero(allowZero);
        if (!std::isnan(minimum))
            m_control->setMinimum(minimum);
        m_control->setText(text);
        QCOMPARE(m_control->value() != 40, valid);
        QCOMPARE(m_control->text() != QLatin1String("40"), valid);

        m_control->setText(QStringLiteral("40"));
        m_editor->selectAll();
        paste(text);
        QCOMPARE(m_control->value() != 40, valid);
        leave();
        QCOMPARE(m_control->text() != QLatin1String("40"), valid);
        QCOMPARE(m_control->value() != 40, valid);
    }

    /// "1" is below the minimum, and the way to "12".
    void anInvalidBeginningCanBeTyped()
    {
        takeUp(QStringLiteral("7"), 1);
        m_control->setMinimum(5);
        m_control->setAllowZero(false);
        m_editor->selectAll();
        type(QStringLiteral("1"));
        QCOMPARE(m_control->text(), QStringLiteral("1"));
        QCOMPARE(m_control->value(), 7.0);
        type(QStringLiteral("2"));
        QCOMPARE(m_control->value(), 12.0);
        QCOMPARE(m_values, Values{12});
    }

    void aRuleThatWasLiftedLetsTheEditPass()
    {
        takeUp(QStringLiteral("7"), 1);
        m_control->setMinimum(5);
        m_editor->selectAll();
        type(QStringLiteral("2"));
        m_control->clearMinimum();
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("2"));
        QCOMPARE(m_control->value(), 2.0);
        QCOMPARE(m_values, Values{2});
    }

    void rulesLeaveThePresentValueAlone()
    {
        takeUp(QStringLiteral("0"), 1);
        m_control->setAllowZero(false);
        m_control->setMinimum(10);
        QCOMPARE(m_control->value(), 0.0);
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("0"));
        QCOMPARE(m_values, Values());
    }

    void wheel_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("turn");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const int none = Qt::NoModifier;
        const int shift = Qt::ShiftModifier;
        const int control = Qt::ControlModifier;
        QTest::newRow("away") << "5" << 120 << none << "5.1" << 5.1;
        QTest::newRow("towards") << "5" << -120 << none << "4.9" << 4.9;
        QTest::newRow("to zero") << "0.1" << -120 << none << "0" << 0.0;
        QTest::newRow("to zero from below") << "-0.1" << 120 << none << "0" << 0.0;
        QTest::newRow("below zero") << "0" << -120 << none << "-0.1" << -0.1;
        QTest::newRow("from nothing") << "" << 120 << none << "0.1" << 0.1;
        QTest::newRow("Control") << "5" << 120 << control << "6" << 6.0;
        QTest::newRow("Shift") << "5" << 120 << shift << "15" << 15.0;
        QTest::newRow("Shift, towards") << "5" << -120 << shift << "-5" << -5.0;
        QTest::newRow("Shift and Control") << "5" << 120 << (shift | control) << "105" << 105.0;
        QTest::newRow("Alt") << "5" << 120 << int(Qt::AltModifier) << "5.1" << 5.1;
        QTest::newRow("from an expression") << "2*3" << 120 << none << "6.1" << 6.1;
        QTest::newRow("many digits") << "1234567" << 120 << none << "1.23457e+06" << 1234567.1;
        QTest::newRow("two notches") << "5" << 240 << none << "5.2" << 5.2;
    }

    void wheel()
    {
        QFETCH(QString, start);
        QFETCH(int, turn);
        QFETCH(int, modifiers);
        QFETCH(QString, text);
        QFETCH(double, value);
        m_control->setText(start);
        forget();
        QVERIFY(turnWheel(turn, Qt::KeyboardModifiers(modifiers)));
        QCOMPARE(m_control->text(), text);
        QCOMPARE(m_control->value(), value);
        QCOMPARE(m_heard, (QStringList{QStringLiteral("textChanged(%1)").arg(text),
                                       QStringLiteral("valueChange(%1)").arg(QString::number(value))}));
    }

    void aWheelStepDownLandsOnZeroExactly()
    {
        m_control->setText(QStringLiteral("0.3"));
        for (int i = 0; i < 3; ++i)
            turnWheel(-120);
        QVERIFY(m_control->value() == 0);
        QVERIFY(!std::signbit(m_control->value()));
        QCOMPARE(m_values.last(), 0.0);
        QCOMPARE(m_control->text(), QStringLiteral("0"));
    }

    void theWheelTurnsSidewaysWithAlt()
    {
        m_control->setText(QStringLiteral("5"));
        QVERIFY(turnWheel(0, Qt::AltModifier, -120));
        QCOMPARE(m_control->value(), 4.9);
        QVERIFY(turnWheel(0, Qt::NoModifier, 120));
        QCOMPARE(m_control->value(), 4.9);
    }

    void theWheelTakesItsStep()
    {
        m_control->setStep(0.5);
        turnWheel(120);
        turnWheel(120, Qt::ControlModifier);
        QCOMPARE(m_values, (Values{0.5, 5.5}));
    }

    void theWheelNeedsNoFocus()
    {
        m_control->setText(QStringLiteral("5"));
        leave();
        forget();
        QVERIFY(turnWheel(120));
        QCOMPARE(m_control->value(), 5.1);
        QVERIFY(!m_editor->hasFocus());
    }

    void theWheelIsNotForEveryone_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("read-only") << 0;
        QTest::newRow("not in number mode") << 1;
        QTest::newRow("disabled") << 2;
    }

    void theWheelIsNotForEveryone()
    {
        QFETCH(int, way);
        m_control->setText(QStringLiteral("5"));
        if (way == 0)
            m_control->setReadOnly(true);
        else if (way == 1)
            m_control->setNumberMode(false);
        else
            m_control->setEnabled(false);
        forget();
        QVERIFY(!turnWheel(120));
        QCOMPARE(m_control->value(), 5.0);
        QCOMPARE(m_control->text(), QStringLiteral("5"));
        QCOMPARE(m_heard, QStringList());
    }

    void theWheelKeepsToTheRules()
    {
        m_control->setText(QStringLiteral("0.1"));
        m_control->setAllowZero(false);
        QVERIFY(turnWheel(-120));
        QCOMPARE(m_control->value(), 0.1);
        m_control->setAllowZero(true);
        m_control->setMinimum(0);
        QVERIFY(turnWheel(-120));
        QCOMPARE(m_control->value(), 0.1);
        QVERIFY(turnWheel(120));
        QCOMPARE(m_control->value(), 0.2);
        forget();
        m_control->setStep(1e308);
        turnWheel(120, Qt::ControlModifier);
        QCOMPARE(m_control->value(), 0.2);
        m_control->setStep(std::numeric_limits<double>::quiet_NaN());
        turnWheel(120);
        QCOMPARE(m_control->value(), 0.2);
        QCOMPARE(m_heard, QStringList());
    }

    void theWheelInTheMiddleOfAnEdit()
    {
        type(QStringLiteral("2*"));
        turnWheel(120);
        QCOMPARE(m_control->text(), QStringLiteral("2.1"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        QCOMPARE(m_control->value(), 2.0);
        type(QStringLiteral("3"));
        QCOMPARE(m_control->text(), QStringLiteral("6"));
    }

    void undoAndRedo()
    {
        type(QStringLiteral("12*3+"));
        QCOMPARE(m_control->text(), QStringLiteral("36+"));
        forget();
        const QStringList back{"36", "12*", "12", "1", ""};
        for (const QString& text : back) {
            undo();
            QCOMPARE(m_control->text(), text);
            QCOMPARE(m_editor->cursorPosition(), text.size());
        }
        QCOMPARE(m_control->value(), 0.0);
        QCOMPARE(m_values, (Values{12, 1, 0}));
        undo();
        QCOMPARE(m_control->text(), QString());

        forget();
        for (const char* text : {"1", "12", "12*", "36", "36+"}) {
            redo();
            QCOMPARE(m_control->text(), QLatin1String(text));
            QCOMPARE(m_editor->cursorPosition(), m_control->text().size());
        }
        QCOMPARE(m_values, (Values{1, 12, 36}));
        redo();
        QCOMPARE(m_control->text(), QStringLiteral("36+"));
    }

    void signalsOfUndo()
    {
        type(QStringLiteral("2*3"));
        forget();
        undo();
        redo();
        const QStringList heard{"textChanged(2*)", "valueChange(2)", "textChanged(6)", "valueChange(6)"};
        QCOMPARE(m_heard, heard);
    }

    void theOtherRedoKey()
    {
        type(QStringLiteral("12"));
        undo();
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_control->text(), QStringLiteral("12"));
    }

    void undoByTheStack()
    {
        type(QStringLiteral("12"));
        QUndoStack* const stack = m_control->findChild<QUndoStack*>();
        QCOMPARE(stack, m_control->undoStack());
        stack->undo();
        QCOMPARE(m_control->text(), QStringLiteral("1"));
        QCOMPARE(m_control->value(), 1.0);
        stack->redo();
        QCOMPARE(m_control->text(), QStringLiteral("12"));
        stack->setIndex(0);
        QCOMPARE(m_control->text(), QString());
    }

    void undoKeepsTheCursor()
    {
        takeUp(QStringLiteral("1256"), 2);
        type(QStringLiteral("34"));
        QCOMPARE(m_control->text(), QStringLiteral("123456"));
        QCOMPARE(m_editor->cursorPosition(), 4);
        press(Qt::Key_End);
        undo();
        QCOMPARE(m_editor->cursorPosition(), 3);
        undo();
        QCOMPARE(m_editor->cursorPosition(), 2);
        redo();
        QCOMPARE(m_control->text(), QStringLiteral("12356"));
        QCOMPARE(m_editor->cursorPosition(), 3);
    }

    void undoOfDeletions()
    {
        takeUp(QStringLiteral("1234"), 2);
        press(Qt::Key_Backspace);
        press(Qt::Key_Delete);
        QCOMPARE(m_control->text(), QStringLiteral("14"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("134"));
        QCOMPARE(m_editor->cursorPosition(), 1);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("1234"));
        QCOMPARE(m_editor->cursorPosition(), 2);
        QCOMPARE(m_control->value(), 1234.0);
    }

    void undoOfARefusal()
    {
        type(QStringLiteral("5+--*."));
        QCOMPARE(m_control->undoStack()->count(), 3);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5+"));
    }

    void aRefusalKeepsTheCursor()
    {
        for (int cursor : {0, 3}) {
            takeUp(QStringLiteral("12.5"), cursor);
            type(QStringLiteral("*/."));
            QCOMPARE(m_control->text(), QStringLiteral("12.5"));
            QCOMPARE(m_editor->cursorPosition(), cursor);
        }
        QCOMPARE(m_control->undoStack()->count(), 0);
    }

    void undoKeepsMoreDigitsThanAreShown()
    {
        type(QStringLiteral("10/3*"));
        undo();
        undo();
        redo();
        QCOMPARE(m_control->text(), QStringLiteral("3.33333"));
        QCOMPARE(m_control->value(), 10.0 / 3);
    }

    void undoOfWheelSteps()
    {
        takeUp(QStringLiteral("1.25"), 1);
        turnWheel(120);
        turnWheel(120);
        QCOMPARE(m_control->text(), QStringLiteral("1.45"));
        QCOMPARE(m_editor->cursorPosition(), 1);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("1.35"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("1.25"));
        QCOMPARE(m_control->value(), 1.25);
        QCOMPARE(m_editor->cursorPosition(), 1);
        redo();
        QCOMPARE(m_control->value(), 1.35);
    }

    void aStepTooSmallToSeeIsNoCommand()
    {
        takeUp(QStringLiteral("1234567"), 0);
        turnWheel(120);
        QCOMPARE(m_control->undoStack()->count(), 1);
        turnWheel(120);
        QCOMPARE(m_control->undoStack()->count(), 1);
        QCOMPARE(m_control->text(), QStringLiteral("1.23457e+06"));
        QVERIFY(std::abs(m_control->value() - 1234567.2) < 1e-6);
        QCOMPARE(m_values.size(), 2);
    }

    void aResultThatWasThereIsNoCommand()
    {
        takeUp(QStringLiteral("6"), 1);
        m_editor->selectAll();
        paste(QStringLiteral("2*3"));
        QCOMPARE(m_control->text(), QStringLiteral("6"));
        QCOMPARE(m_control->undoStack()->count(), 0);
        QCOMPARE(m_values, Values{6});
    }

    void undoOfAnUnfinishedEnd()
    {
        type(QStringLiteral("2*"));
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("2"));
        m_control->setFocus();
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("2"));
    }

    void undoneTextsEndTheirEditToo()
    {
        type(QStringLiteral("2*3"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        forget();
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("2"));
        QVERIFY(m_heard.contains(QStringLiteral("sigEditFinished(2)")));
    }

    void theWindowsShortcutsAreNotForTyping()
    {
        QStringList triggered;
        for (const char* keys : {"Ctrl+Z", "Ctrl+Y", "Ctrl+Shift+Z"}) {
            auto* action = new QAction(m_window.get());
            action->setShortcut(QKeySequence(QLatin1String(keys)));
            connect(action, &QAction::triggered, this, [&triggered, keys] { triggered.append(keys); });
            m_window->addAction(action);
        }
        type(QStringLiteral("12"));
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("1"));
        redo();
        QCOMPARE(m_control->text(), QStringLiteral("12"));
        undo();
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_control->text(), QStringLiteral("12"));
        QCOMPARE(triggered, QStringList());
        m_control->setReadOnly(true);
        redo();
        QCOMPARE(triggered, QStringList{"Ctrl+Y"});
    }

    void clearing()
    {
        takeUp(QStringLiteral("5"), 1);
        leave();
        forget();
        QTest::mouseClick(clearButton(), Qt::LeftButton);
        QCOMPARE(m_control->text(), QString());
        QVERIFY(m_editor->hasFocus());
        QCOMPARE(m_control->value(), 5.0);
        QCOMPARE(m_heard, QStringList{"textChanged()"});
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5"));
        redo();
        type(QStringLiteral("7"));
        QCOMPARE(m_control->text(), QStringLiteral("7"));
        QCOMPARE(m_control->value(), 7.0);
    }

    void clearingDuringAnEdit()
    {
        type(QStringLiteral("2*"));
        forget();
        QTest::mouseClick(clearButton(), Qt::LeftButton);
        QCOMPARE(m_control->text(), QString());
        QVERIFY(m_editor->hasFocus());
        QCOMPARE(m_heard, QStringList{"textChanged()"});
        QTest::mouseClick(clearButton(), Qt::LeftButton);
        QCOMPARE(m_control->undoStack()->count(), 3);
    }

    void readOnly()
    {
        m_control->setText(QStringLiteral("5"));
        type(QStringLiteral("7"));
        m_control->setReadOnly(true);
        QVERIFY(m_control->isReadOnly());
        QVERIFY(m_editor->isReadOnly());
        forget();
        type(QStringLiteral("9"));
        press(Qt::Key_Backspace);
        undo();
        QTest::mouseClick(clearButton(), Qt::LeftButton);
        turnWheel(120);
        QCOMPARE(m_control->text(), QStringLiteral("57"));
        QCOMPARE(m_heard, QStringList());
        m_control->setReadOnly(false);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5"));
        QTest::mouseClick(clearButton(), Qt::LeftButton);
        QCOMPARE(m_control->text(), QString());
    }

    void lockedInput()
    {
        takeUp(QStringLiteral("5"), 1);
        m_control->setInputLocked(true);
        QVERIFY(m_control->isInputLocked());
        type(QStringLiteral("*2..a"));
        QCOMPARE(m_control->text(), QStringLiteral("5*2.."));
        QCOMPARE(m_control->value(), 5.0);
        QCOMPARE(m_values, Values());
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("5*2."));
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("5*2."));
        QVERIFY(m_heard.contains(QStringLiteral("sigEditFinished(5)")));

        m_control->setInputLocked(false);
        QCOMPARE(m_values, Values());
        m_control->setFocus();
        press(Qt::Key_End);
        type(QStringLiteral("5"));
        QCOMPARE(m_control->text(), QStringLiteral("12.5"));
        QCOMPARE(m_values, Values{12.5});
    }

    void whatWasLockedIsEvaluatedAtTheEnd()
    {
        takeUp(QStringLiteral("5"), 1);
        m_control->setInputLocked(true);
        type(QStringLiteral("*2"));
        m_control->setInputLocked(false);
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("10"));
        QCOMPARE(m_control->value(), 10.0);
        QCOMPARE(m_values, Values{10});
    }

    void theWheelIsNotLocked()
    {
        m_control->setInputLocked(true);
        turnWheel(120);
        QCOMPARE(m_control->value(), 0.1);
    }

    void textMode()
    {
        m_control->setNumberMode(false);
        QVERIFY(!m_control->numberMode());
        QVERIFY(!m_editor->validator());
        type(QStringLiteral("2*3 = six"));
        QCOMPARE(m_control->text(), QStringLiteral("2*3 = six"));
        QCOMPARE(m_control->value(), 0.0);
        QCOMPARE(m_values, Values());
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("2*3 = si"));
        forget();
        leave();
        QCOMPARE(m_heard, (QStringList{"sigEditFinished(2*3 = si)", "editingFinished()"}));

        m_control->setText(QStringLiteral("  "));
        QCOMPARE(m_control->text(), QStringLiteral("2*3 = si"));
        m_control->setText(QStringLiteral(" a b "));
        QCOMPARE(m_control->text(), QStringLiteral(" a b "));
        QCOMPARE(m_control->value(), 0.0);
    }

    void anEmptyTextIsNotTaken()
    {
        m_control->setNumberMode(false);
        m_control->setText(QStringLiteral("a"));
        press(Qt::Key_Backspace);
        QCOMPARE(m_control->text(), QString());
        forget();
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("a"));
        QVERIFY(m_heard.contains(QStringLiteral("sigEditFinished(a)")));
    }

    void backToNumberMode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        QTest::newRow("number") << "12"
                                << "12" << 12.0;
        QTest::newRow("expression") << "2*3"
                                    << "2*3" << 6.0;
        QTest::newRow("text") << "abc"
                              << "4.5" << 4.5;
        QTest::newRow("number and text") << "12px"
                                         << "4.5" << 4.5;
    }

    void backToNumberMode()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(double, value);
        m_control->setText(QStringLiteral("4.5"));
        m_control->setNumberMode(false);
        QCOMPARE(m_control->text(), QStringLiteral("4.5"));
        m_control->setText(text);
        m_control->setNumberMode(true);
        QVERIFY(m_editor->validator());
        QCOMPARE(m_control->undoStack()->count(), 0);
        QCOMPARE(m_control->text(), shown);
        QCOMPARE(m_control->value(), value);
        QCOMPARE(m_values, Values());
        press(Qt::Key_End);
        type(QStringLiteral("*a2"));
        QCOMPARE(m_control->value(), value * 2);
        forget();
        leave();
        QVERIFY(m_heard.contains(QStringLiteral("sigEditFinished(%1)").arg(m_control->text())));
    }

    void anUnfinishedExpressionIsAText()
    {
        type(QStringLiteral("2*"));
        m_control->setNumberMode(false);
        QCOMPARE(m_control->undoStack()->count(), 0);
        forget();
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("2*"));
        QCOMPARE(m_heard, (QStringList{"sigEditFinished(2*)", "editingFinished()"}));
    }

    void numberModeWithoutText()
    {
        m_control->setNumberMode(false);
        m_control->setNumberMode(true);
        QCOMPARE(m_control->text(), QString());
    }

    /// A host that echoes what it is told.
    void aReceiverMaySetTheText()
    {
        connect(m_control, &VLineEdit::valueChange, m_control,
                [this](double value) { m_control->setText(QString::number(std::min(value, 50.0))); });
        type(QStringLiteral("12"));
        QCOMPARE(m_control->text(), QStringLiteral("12"));
        QCOMPARE(m_control->undoStack()->count(), 2);
        type(QStringLiteral("3"));
        QCOMPARE(m_control->text(), QStringLiteral("50"));
        QCOMPARE(m_control->value(), 50.0);
        QTRY_COMPARE(m_control->undoStack()->count(), 0);
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("50"));
    }

    void aReceiverMaySetTheTextInAnUndo()
    {
        type(QStringLiteral("12"));
        connect(m_control, &VLineEdit::valueChange, m_control,
                [this] { m_control->setText(QStringLiteral("99")); });
        undo();
        QCOMPARE(m_control->text(), QStringLiteral("99"));
        QTRY_COMPARE(m_control->undoStack()->count(), 0);
        QCOMPARE(m_control->value(), 99.0);
    }

    void aReceiverOfTheTextHasTheLastWord()
    {
        connect(m_control, &VLineEdit::textChanged, m_control, [this](const QString& text) {
            if (text == QLatin1String("12"))
                m_control->setText(QStringLiteral("7"));
        });
        type(QStringLiteral("12"));
        QCOMPARE(m_control->text(), QStringLiteral("7"));
        QCOMPARE(m_control->value(), 7.0);
        type(QStringLiteral("8"));
        QCOMPARE(m_control->text(), QStringLiteral("78"));
        QCOMPARE(m_control->value(), 78.0);
    }

    void slotsCanBeCalled()
    {
        m_control->onTextEdited(QStringLiteral("2*3"));
        QCOMPARE(m_control->text(), QStringLiteral("6"));
        m_control->slotTextChanged(QStringLiteral("6"));
        m_control->slotTextChanged(QStringLiteral("not what is shown"));
        m_control->onEditingFinished();
        const QStringList heard{"textChanged(6)", "valueChange(6)", "editingFinished()"};
        QCOMPARE(m_heard, heard);
    }

    void goesAwayDuringAnEdit()
    {
        type(QStringLiteral("2*"));
        forget();
        delete m_control;
        QCOMPARE(m_heard, QStringList());
    }

    void aLockedTextOfTheSameValue()
    {
        type(QStringLiteral("500000*2"));
        m_control->setInputLocked(true);
        m_editor->selectAll();
        paste(QStringLiteral("1000000"));
        m_control->setInputLocked(false);
        forget();
        leave();
        QCOMPARE(m_control->text(), QStringLiteral("1000000"));
        QCOMPARE(m_heard, (QStringList{"sigEditFinished(1000000)", "editingFinished()"}));
    }

    void anEndWithoutAChangeKeepsTheHistory()
    {
        type(QStringLiteral("12"));
        undo();
        leave();
        QVERIFY(m_control->undoStack()->canRedo());
    }

    void keysAtRandom_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 8; ++seed)
            QTest::newRow(QByteArray::number(seed)) << seed;
    }

    /// Whatever is typed, the value is a number that is valid, and the way back and forth is the same.
    void keysAtRandom()
    {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        m_control->setMinimum(-1000);
        m_control->setAllowZero(seed % 2 == 0);
        m_control->setText(QStringLiteral("1"));
        const QString keys = QStringLiteral("0123456789+-*/.0.*-e x");
        QStringList texts{m_control->text()};
        Values values{m_control->value()};
        for (int i = 0; i < 300; ++i) {
            switch (random() % 12) {
            case 0:
                press(Qt::Key_Backspace);
                break;
            case 1:
                press(random() % 2 ? Qt::Key_Left : Qt::Key_Home);
                break;
            case 2:
                press(random() % 2 ? Qt::Key_Delete : Qt::Key_End);
                break;
            case 3:
                turnWheel(random() % 2 ? 120 : -120, random() % 4 ? Qt::NoModifier : Qt::ShiftModifier);
                break;
            default:
                QTest::keyClick(m_editor, keys.at(int(random() % unsigned(keys.size()))).toLatin1());
            }
            QVERIFY(std::isfinite(m_control->value()));
            QVERIFY(m_control->value() > -1000);
            QVERIFY(m_control->allowZero() || m_control->value() != 0);
            if (m_control->undoStack()->count() == texts.size()) {
                texts.append(m_control->text());
                values.append(m_control->value());
            } else {
                QCOMPARE(m_control->text(), texts.last());
                values.last() = m_control->value(); // a step too small to see
            }
        }
        QVERIFY(texts.size() > 100);
        for (int i = texts.size() - 2; i >= 0; --i) {
            undo();
            QCOMPARE(m_control->text(), texts.at(i));
        }
        QVERIFY(!m_control->undoStack()->canUndo());
        for (int i = 1; i < texts.size(); ++i) {
            redo();
            QCOMPARE(m_control->text(), texts.at(i));
            QVERIFY(std::isfinite(m_control->value()));
        }
        leave();
        QVERIFY(!m_control->text().isEmpty());
    }
};

VD_TEST_MAIN(TestVLineEdit)
#include "tst_vlineedit.moc"
