#include "controls/entrystate.h"
#include "testcase.h"

#include <limits>

using namespace vardeno::testcharttools;

namespace {

EntryState settled(const QString& text, double value)
{
    return {text, text, value, int(text.size()), false};
}

EntryRules positive()
{
    EntryRules rules;
    rules.minimum = 0;
    return rules;
}

} // namespace

class TestEntryState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void validValues_data()
    {
        QTest::addColumn<bool>("zero");
        QTest::addColumn<double>("minimum"); // none below -1000
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("valid");
        const double none = -2000;
        QTest::newRow("any") << true << none << -7.5 << true;
        QTest::newRow("zero") << true << none << 0.0 << true;
        QTest::newRow("no zero") << false << none << 0.0 << false;
        QTest::newRow("next to zero") << false << none << 1e-13 << false;
        QTest::newRow("beside zero") << false << none << 1e-11 << true;
        QTest::newRow("the minimum") << true << 2.0 << 2.0 << false;
        QTest::newRow("above the minimum") << true << 2.0 << 2.1 << true;
        QTest::newRow("infinite") << true << none << std::numeric_limits<double>::infinity() << false;
        QTest::newRow("none") << true << none << std::numeric_limits<double>::quiet_NaN() << false;
    }
    void validValues()
    {
        QFETCH(bool, zero);
        QFETCH(double, minimum);
        QFETCH(double, value);
        EntryRules rules;
        rules.allowZero = zero;
        if (minimum > -1000)
            rules.minimum = minimum;
        QTEST(isValidValue(rules, value), "valid");
    }

    void typing_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("refused");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("lastText");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isValue");
        const auto row = [](const char* name, const char* before, const char* typed, const char* text,
                            const char* lastText, double value, bool isValue) {
            QTest::newRow(name) << QString(before) << QString(typed) << false << QString(text)
                                << QString(lastText) << value << isValue;
        };
        row("a digit", "1", "12", "12", "12", 12, true);
        row("the same value", "1", "1.0", "1.0", "1.0", 1, true);
        row("a result", "2*", "2*3", "6", "6", 6, true);
        row("an operation that may go on", "10-", "10-0", "10-0", "10-0", 10, true);
        row("no value yet", "2", "2*", "2*", "9", 9, false);
        row("nothing", "2", "", "", "9", 9, false);
        row("not valid here", "-", "-3", "-3", "9", 9, false);
        QTest::newRow("never a value") << "1."
                                       << "1.." << true << QString() << QString() << 0.0 << false;
    }
    void typing()
    {
        QFETCH(QString, before);
        QFETCH(QString, typed);
        QFETCH(bool, refused);
        const EntryState state{before, QStringLiteral("9"), 9, int(before.size()), false};
        const auto change = afterTyping(positive(), state, typed, int(typed.size()));
        QCOMPARE(!change, refused);
        if (!change)
            return;
        QTEST(change->after.text, "text");
        QTEST(change->after.lastText, "lastText");
        QTEST(change->after.value, "value");
        QTEST(change->isValue, "isValue");
        QVERIFY(change->after.typed);
        QCOMPARE(change->after.cursor, int(change->after.text.size()));
    }

    void aCursorInTheMiddleStaysUnlessTheTextIsAResult()
    {
        const auto number = afterTyping({}, settled("12", 12), QStringLiteral("132"), 2);
        QCOMPARE(number->after.cursor, 2);
        const auto result = afterTyping({}, settled("12", 12), QStringLiteral("1*2"), 2);
        QCOMPARE(result->after.text, QStringLiteral("2"));
        QCOMPARE(result->after.cursor, 1);
    }

    void typingWithoutEvaluation()
    {
        EntryRules locked;
        locked.inputLocked = true;
        const auto change = afterTyping(locked, settled("2", 2), QStringLiteral("2**"), 3);
        QCOMPARE(change->after.text, QStringLiteral("2**"));
        QCOMPARE(change->after.lastText, QStringLiteral("2"));
        QVERIFY(!change->isValue);
    }

    void typingText()
    {
        EntryRules rules;
        rules.numberMode = false;
        const auto text = afterTyping(rules, settled("ab", 3), QStringLiteral("abc"), 3);
        QCOMPARE(text->after.lastText, QStringLiteral("abc"));
        QCOMPARE(text->after.value, 3.0);
        QVERIFY(!text->isValue);
        const auto empty = afterTyping(rules, text->after, QString(), 0);
        QCOMPARE(empty->after.lastText, QStringLiteral("abc"));
    }

    void editsEnd_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("lastText");
        QTest::addColumn<bool>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        const auto row = [](const char* name, const char* text, const char* last, bool typed,
                            const char* shown, double value) {
            QTest::newRow(name) << QString(text) << QString(last) << typed << QString(shown) << value;
        };
        row("nothing open", "7", "7", false, "7", 7);
        row("typed with what is redundant", "07.0", "07.0", true, "7", 7);
        row("not typed", "07.0", "07.0", false, "07.0", 7);
        row("no value", "2*", "7", true, "7", 7);
        row("nothing", "", "7", true, "7", 7);
        row("a value that was not judged", "2*4", "7", false, "8", 8);
        row("a value that is not valid", "0-4", "7", true, "7", 7);
    }
    void editsEnd()
    {
        QFETCH(QString, text);
        QFETCH(QString, lastText);
        QFETCH(bool, typed);
        const EntryChange change = afterEdit(positive(), {text, lastText, 7, 0, typed});
        QTEST(change.after.text, "shown");
        QTEST(change.after.value, "value");
        QCOMPARE(change.after.lastText, change.after.text);
        QCOMPARE(change.isValue, change.after.value != 7);
        QVERIFY(!change.after.typed);
    }

    void aLockedEditStaysAsItIs()
    {
        EntryRules locked;
        locked.inputLocked = true;
        const EntryChange change = afterEdit(locked, {QStringLiteral("2*"), QStringLiteral("7"), 7, 1, true});
        QCOMPARE(change.after.text, QStringLiteral("2*"));
        QCOMPARE(change.after.lastText, QStringLiteral("7"));
        QVERIFY(change.after.typed && !change.isValue);
    }

    void steps()
    {
        const auto up = afterStep({}, settled("1", 1), 0.1);
        QCOMPARE(up->after.text, QStringLiteral("1.1"));
        QCOMPARE(up->after.lastText, QStringLiteral("1.1"));
        QVERIFY(up->isValue && !up->after.typed);
        QCOMPARE(afterStep({}, settled("0.3", 0.1 + 0.2), -0.3)->after.value, 0.0); // not almost
        QVERIFY(!afterStep(positive(), settled("1", 1), -1));
    }

    void clearing()
    {
        const EntryState cleared = afterClearing(settled("12", 12));
        QCOMPARE(cleared.text, QString());
        QCOMPARE(cleared.lastText, QStringLiteral("12"));
        QCOMPARE(cleared.value, 12.0);
        QCOMPARE(cleared.cursor, 0);
    }

    void setting_data()
    {
        QTest::addColumn<bool>("number");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("taken");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        QTest::newRow("a number") << true << "5" << true << "5" << 5.0;
        QTest::newRow("with a unit") << true << "5 px" << true << "5" << 5.0;
        QTest::newRow("an operation") << true << "2*3" << true << "2*3" << 6.0;
        QTest::newRow("blank") << true << "  " << false << QString() << 0.0;
        QTest::newRow("no value") << true << "px" << false << QString() << 0.0;
        QTest::newRow("not valid") << true << "-5" << false << QString() << 0.0;
        QTest::newRow("a text") << false << "5 px" << true << "5 px" << 1.0;
        QTest::newRow("a blank text") << false << " " << false << QString() << 0.0;
    }
    void setting()
    {
        QFETCH(bool, number);
        QFETCH(QString, text);
        QFETCH(bool, taken);
        EntryRules rules = positive();
        rules.numberMode = number;
        const auto state = afterSetting(rules, settled("1", 1), text);
        QCOMPARE(state.has_value(), taken);
        if (!state)
            return;
        QTEST(state->text, "shown");
        QTEST(state->lastText, "shown");
        QTEST(state->value, "value");
    }

    void modes()
    {
        EntryRules rules = positive();
        QCOMPARE(afterModeChange(rules, settled("2+2", 1)).value, 4.0);
        QCOMPARE(afterModeChange(rules, settled("2+2", 1)).text, QStringLiteral("2+2"));
        QCOMPARE(afterModeChange(rules, settled("abc", 1.5)).text, QStringLiteral("1.5"));
        QCOMPARE(afterModeChange(rules, settled("abc", 1.5)).lastText, QStringLiteral("1.5"));
        rules.numberMode = false;
        QCOMPARE(afterModeChange(rules, settled("2*", 1)).text, QStringLiteral("2*"));
    }
};

VD_TEST_MAIN(TestEntryState)
#include "tst_entrystate.moc"
