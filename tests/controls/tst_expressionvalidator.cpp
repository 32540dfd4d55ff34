#include "controls/expressionvalidator.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestExpressionValidator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isARegularExpression()
    {
        const QString shown;
        const ExpressionValidator validator(shown, nullptr);
        QCOMPARE(validator.regularExpression().pattern(), QStringLiteral("^[\\+\\-\\*\\/\\d\\.]+$"));
    }

    void inputs_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("input");
        QTest::addColumn<int>("state");
        const auto row = [](const char* name, const char* shown, const char* input, QValidator::State state) {
            QTest::newRow(name) << shown << QString::fromUtf8(input) << int(state);
        };
        row("every character", "", "0123456789.+-*/", QValidator::Acceptable);
        row("out of order", "", "*.*", QValidator::Acceptable);
        row("nothing", "5", "", QValidator::Intermediate);
        row("letter", "5", "5a", QValidator::Invalid);
        row("blank", "5", "5 ", QValidator::Invalid);
        row("comma", "5", "5,", QValidator::Invalid);
        row("bracket", "", "(", QValidator::Invalid);
        row("digit of another script", "", "٣", QValidator::Invalid);
        row("exponent put in", "1", "1e", QValidator::Invalid);
        row("exponent pasted", "", "1e+06", QValidator::Invalid);
        row("exponent that was there", "1e+06", "1e+06*", QValidator::Acceptable);
        row("exponent taken apart", "1e+06", "1e", QValidator::Acceptable);
        row("exponent taken away", "1e+06", "16", QValidator::Acceptable);
        row("second exponent", "1e+06", "1e+06e", QValidator::Invalid);
        row("letter after an exponent", "1e+06", "1e+06x", QValidator::Invalid);
    }

    void inputs()
    {
        QFETCH(QString, shown);
        QFETCH(QString, input);
        QFETCH(int, state);
        const ExpressionValidator validator(shown, nullptr);
        const QString before = input;
        int position = input.size();
        QCOMPARE(int(validator.validate(input, position)), state);
        QCOMPARE(input, before);
    }

    void followsWhatIsShown()
    {
        QString shown = QStringLiteral("5");
        const ExpressionValidator validator(shown, nullptr);
        QString input = QStringLiteral("1e+06");
        int position = 0;
        QCOMPARE(validator.validate(input, position), QValidator::Invalid);
        shown = QStringLiteral("2e+06");
        QCOMPARE(validator.validate(input, position), QValidator::Acceptable);
    }
};

VD_TEST_MAIN(TestExpressionValidator)
#include "tst_expressionvalidator.moc"
