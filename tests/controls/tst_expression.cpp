#include "controls/expression.h"
#include "testcase.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

using namespace vardeno::testcharttools;

using Value = std::optional<double>;
Q_DECLARE_METATYPE(Value)

namespace {

/// Arithmetic a second time, by recursive descent: an expression is terms, a term is factors, a factor is a
/// number with signs. Nothing where there is no value.
class Reference
{
public:
    explicit Reference(std::string text)
        : m_text(std::move(text))
    {
    }

    Value value()
    {
        const double result = expression();
        return m_good && m_next == m_text.size() && std::isfinite(result) ? Value(result) : std::nullopt;
    }

private:
    bool take(char character)
    {
        if (m_next >= m_text.size() || m_text[m_next] != character)
            return false;
        ++m_next;
        return true;
    }

    double expression()
    {
        double sum = term();
        while (m_good) {
            if (take('+'))
                sum += term();
            else if (take('-'))
                sum -= term();
            else
                break;
        }
        return sum;
    }

    double term()
    {
        double product = factor();
        while (m_good) {
            if (take('*')) {
                product *= factor();
            } else if (take('/')) {
                const double divisor = factor();
                m_good = m_good && divisor != 0;
                product /= m_good ? divisor : 1;
            } else {
                break;
            }
        }
        return product;
    }

    double factor()
    {
        if (take('-'))
            return -factor();
        if (take('+'))
            return factor();
        return number();
    }

    double number()
    {
        const std::size_t first = m_next;
        while (isDigit() || (m_next < m_text.size() && m_text[m_next] == '.'))
            ++m_next;
        const std::string digits = m_text.substr(first, m_next - first);
        m_good = m_good && !digits.empty() && digits.back() != '.' && digits.find('.') == digits.rfind('.');
        return m_good ? std::strtod(digits.c_str(), nullptr) : 0;
    }

    bool isDigit() const { return m_next < m_text.size() && m_text[m_next] >= '0' && m_text[m_next] <= '9'; }

    std::string m_text;
    std::size_t m_next = 0;
    bool m_good = true;
};

class Generator
{
public:
    int below(int bound) { return int(m_engine() % unsigned(bound)); }

    std::string digits()
    {
        std::string text;
        for (int i = below(3); i >= 0; --i)
            text += char('0' + below(10));
        return text;
    }

    std::string number()
    {
        static const char* const signs[] = {"", "", "", "", "-", "+", "-+", "--"};
        std::string text = signs[below(8)];
        const int form = below(8);
        if (form > 0)
            text += digits();
        if (form < 3)
            text += '.' + digits();
        return text;
    }

    std::string expression()
    {
        std::string text = number();
        for (int i = below(4); i > 0; --i)
            text += "+-*/"[below(4)] + number();
        return text;
    }

    /// Anything that can be typed, sensible or not.
    std::string characters()
    {
        std::string text;
        for (int i = below(13); i > 0; --i)
            text += "0123456789.+-*/"[below(15)];
        return text;
    }

private:
    std::mt19937 m_engine{20240611};
};

QString words(const Value& value)
{
    return value ? QString::number(*value, 'g', 17) : QStringLiteral("nothing");
}

/// Compares the two ways with each other; counts the texts that have a value.
class Comparison
{
public:
    void add(const std::string& text)
    {
        const Value actual = calculated(QString::fromStdString(text));
        const Value expected = Reference(text).value();
        if (actual != expected && difference.isEmpty())
            difference = QStringLiteral("%1 is %2 instead of %3")
                             .arg(QString::fromStdString(text), words(actual), words(expected));
        values += expected.has_value();
    }

    QString difference; ///< the first one
    int values = 0;
};

} // namespace

class TestExpression : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void characters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("fits");
        const auto row = [](const char* name, const char* text, int position, bool fits) {
            QTest::newRow(name) << QString::fromLatin1(text) << position << fits;
        };
        row("digit first", "7", 0, true);
        row("digit after a digit", "17", 1, true);
        row("digit after an operator", "5+7", 2, true);
        row("digit after a point", "1.7", 2, true);
        row("smallest digit", "0", 0, true);
        row("largest digit", "9", 0, true);
        row("anything else is left to the validator", "1a", 1, true);

        for (const char* op : {"*", "/"}) {
            const auto text = [op](const char* before, const char* after = "") {
                return QString::fromLatin1(before) + QLatin1String(op) + QLatin1String(after);
            };
            const auto name = [op](const char* where) { return QByteArray(op) + ' ' + where; };
            QTest::newRow(name("first")) << text("") << 0 << false;
            QTest::newRow(name("first, a number behind")) << text("", "5") << 0 << false;
            QTest::newRow(name("after a digit")) << text("5") << 1 << true;
            QTest::newRow(name("after +")) << text("5+") << 2 << false;
            QTest::newRow(name("after -")) << text("5-") << 2 << false;
            QTest::newRow(name("after *")) << text("5*") << 2 << false;
            QTest::newRow(name("after /")) << text("5/") << 2 << false;
            QTest::newRow(name("after a sign")) << text("-") << 1 << false;
            QTest::newRow(name("after a point")) << text("5.") << 2 << false;
            QTest::newRow(name("in the middle")) << text("5", "3") << 1 << true;
        }
        for (const char* op : {"+", "-"}) {
            const auto text = [op](const char* before, const char* after = "") {
                return QString::fromLatin1(before) + QLatin1String(op) + QLatin1String(after);
            };
            const auto name = [op](const char* where) { return QByteArray(op) + ' ' + where; };
            QTest::newRow(name("first")) << text("") << 0 << true;
            QTest::newRow(name("first, a number behind")) << text("", "5") << 0 << true;
            QTest::newRow(name("second, after a digit")) << text("5") << 1 << true;
            QTest::newRow(name("second, after a sign")) << text("-") << 1 << true;
            QTest::newRow(name("second, after a point")) << text(".") << 1 << false;
            QTest::newRow(name("after a digit")) << text("15") << 2 << true;
            QTest::newRow(name("after a point")) << text("5.") << 2 << false;
            QTest::newRow(name("after one +")) << text("5+") << 2 << true;
            QTest::newRow(name("after one -")) << text("5-") << 2 << true;
            QTest::newRow(name("after one *")) << text("5*") << 2 << true;
            QTest::newRow(name("after one /")) << text("5/") << 2 << true;
            QTest::newRow(name("after two operators")) << text("5*-") << 3 << false;
            QTest::newRow(name("after two signs")) << text("--") << 2 << false;
            QTest::newRow(name("after + and -")) << text("5+-") << 3 << false;
            QTest::newRow(name("after a sign with a number")) << text("5*-2") << 4 << true;
        }

        row("point first", ".", 0, false);
        row("point after a digit", "1.", 1, true);
        row("point after a point", "1..", 2, false);
        row("point after an operator", "5+.", 2, false);
        row("point after a sign", "-.", 1, false);
        row("second point in a number", "1.5.", 3, false);
        row("point in the second number", "1.5+2.", 5, true);
        row("point in the second number, *", "1.5*2.", 5, true);
        row("point in the second number, /", "1.5/2.", 5, true);
        row("point in the second number, -", "1.5-2.", 5, true);
        row("second point in the second number", "1.5+2.5.", 7, false);
        row("a point to the right does not count", "1.2.5", 1, true);
    }

    void characters()
    {
        QFETCH(QString, text);
        QFETCH(int, position);
        QFETCH(bool, fits);
        QCOMPARE(characterFits(text, position), fits);
    }

    void tokens_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tokens");
        QTest::addColumn<QString>("postfix");
        const auto row = [](const char* text, const char* tokens, const char* postfix) {
            QTest::newRow(text) << text << tokens << postfix;
        };
        row("", "", "");
        row("12.5", "12.5", "12.5");
        row("1+2", "1 + 2", "1 2 +");
        row("-5", "-5", "-5");
        row("+5", "+5", "+5");
        row("--5", "--5", "--5");
        row("5*-2", "5 * -2", "5 -2 *");
        row("5/+2", "5 / +2", "5 +2 /");
        row("5--2", "5 - -2", "5 -2 -");
        row("5+-2", "5 + -2", "5 -2 +");
        row("10-2+3", "10 - 2 + 3", "10 2 - 3 +");
        row("8/4*2", "8 / 4 * 2", "8 4 / 2 *");
        row("1+2*3", "1 + 2 * 3", "1 2 3 * +");
        row("1*2+3", "1 * 2 + 3", "1 2 * 3 +");
        row("1+2*3-4", "1 + 2 * 3 - 4", "1 2 3 * + 4 -");
        row("1-2/4*8+16", "1 - 2 / 4 * 8 + 16", "1 2 4 / 8 * - 16 +");
        row(" 5 * - 2 px", "5 * -2", "5 -2 *");
        row("1e+06*2", "1e+06 * 2", "1e+06 2 *");
        row("1e-05-1", "1e-05 - 1", "1e-05 1 -");
        row("2e+3", "2 + 3", "2 3 +");
        row("2e15", "215", "215");
        row("e+15", "+15", "+15");
    }

    void tokens()
    {
        QFETCH(QString, text);
        QFETCH(QString, tokens);
        QFETCH(QString, postfix);
        QCOMPARE(expressionTokens(text).join(QLatin1Char(' ')), tokens);
        QCOMPARE(postfixOrder(expressionTokens(text)).join(QLatin1Char(' ')), postfix);
    }

    void skipped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kept");
        QTest::newRow("all that there is") << "0123456789.+-*/"
                                           << "0123456789.+-*/";
        QTest::newRow("blanks, letters, brackets") << " (12 x 3) = ?"
                                                   << "123";
        QTest::newRow("digits of other scripts") << QStringLiteral(u"1\u0662\uff13") << "1";
        QTest::newRow("exponent") << "1e+06"
                                  << "1e+06";
        QTest::newRow("exponents") << "1.5e-05*2e+100"
                                   << "1.5e-05*2e+100";
        QTest::newRow("exponent of one digit") << "1e+6"
                                               << "1+6";
        QTest::newRow("exponent without sign") << "1e06"
                                               << "106";
        QTest::newRow("exponent without number") << "e+06"
                                                 << "+06";
        QTest::newRow("e at the end") << "1e"
                                      << "1";
        QTest::newRow("large e") << "1E+06"
                                 << "1+06";
    }

    void skipped()
    {
        QFETCH(QString, text);
        QFETCH(QString, kept);
        QCOMPARE(expressionCharacters(text), kept);
    }

    void values_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* text, double value) { QTest::newRow(text) << text << value; };
        row("0", 0);
        row("7", 7);
        row("007", 7);
        row("-7", -7);
        row("+7", 7);
        row("--7", 7);
        row("-+7", -7);
        row("1.5", 1.5);
        row(".5", 0.5);
        row("0.0", 0);
        row("2*3", 6);
        row("1+2", 3);
        row("1-2", -1);
        row("1/4", 0.25);
        row("10-2+3", 11);
        row("8/4*2", 4);
        row("8*4/2", 16);
        row("1+2*3", 7);
        row("2*3+1", 7);
        row("1-2-3", -4);
        row("100/10/5", 2);
        row("5*-2", -10);
        row("5/-2", -2.5);
        row("5+-2", 3);
        row("5--2", 7);
        row("-5*-2", 10);
        row("0/5", 0);
        row("1e+06", 1e6);
        row("1e+06*2", 2e6);
        row("1.5e-05", 1.5e-5);
        row("2 x 3", 23);
    }

    void values()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QVERIFY(calculated(text).has_value());
        QCOMPARE(*calculated(text), value);
    }

    void zeroHasNoSign()
    {
        for (const char* text : {"-0", "0*-5", "0/-5", "-0.0"}) {
            const Value value = calculated(QLatin1String(text));
            QVERIFY2(value && *value == 0 && !std::signbit(*value), text);
        }
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("text");
        const QString nines(400, QLatin1Char('9'));
        const QString large(300, QLatin1Char('9'));
        QTest::newRow("nothing") << QString();
        QTest::newRow("only what is skipped") << "abc";
        QTest::newRow("a number beyond the largest") << nines;
        QTest::newRow("a negative one") << QLatin1Char('-') + nines;
        QTest::newRow("a product beyond the largest") << large + QLatin1Char('*') + large;
        QTest::newRow("inf - inf") << large + QLatin1Char('*') + large + QLatin1Char('-') + large +
                                          QLatin1Char('*') + large;
        QTest::newRow("inf / large") << large + QLatin1Char('*') + large + QLatin1Char('/') + large;
        for (const char* text :
             {"1/0",  "0/0",  "1/-0", "1/0.0", "2*3/0+1", "1/0*0", "+",   "-",   "*",      "/",  ".",
              "1+",   "1-",   "1*",   "1/",    "*1",      "/1",    "**",  "1**", "1**2",   "*/", "1*/2",
              "1+*2", "1-*2", "-*2",  "5*-",   "5*-*2",   "-*2+3", "1.",  "1..", "1..2",   "..", "1.2.3",
              "1.*2", "2*1.", "--",   "5+--",  "1e+999",  "1+2+",  ".+1", "1+.", "1.2.3+1"}) {
            QTest::newRow(text) << text;
        }
    }

    void refusals()
    {
        QFETCH(QString, text);
        QVERIFY(!calculated(text));
    }

    void malformedPostfix_data()
    {
        QTest::addColumn<QStringList>("tokens");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("operator alone") << QStringList{"*"};
        QTest::newRow("operator first") << QStringList{"+", "1", "2"};
        QTest::newRow("one operator too many") << QStringList{"1", "2", "+", "+"};
        QTest::newRow("one number too many") << QStringList{"1", "2", "3", "+"};
        QTest::newRow("no number") << QStringList{"1", "x", "+"};
        QTest::newRow("an empty token") << QStringList{"1", "", "+"};
        QTest::newRow("a written infinity") << QStringList{"inf"};
        QTest::newRow("a written nan") << QStringList{"nan"};
    }

    void malformedPostfix()
    {
        QFETCH(QStringList, tokens);
        QVERIFY(!evaluatedPostfix(tokens));
    }

    void edits_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<bool>("fits");
        const auto row = [](const char* name, const char* before, const char* after, int cursor, bool fits) {
            QTest::newRow(name) << before << after << cursor << fits;
        };
        row("digit", "1", "12", 2, true);
        row("operator to go on with", "2", "2*", 2, true);
        row("sign to go on with", "5*", "5*-", 3, true);
        row("point to go on with", "1", "1.", 2, true);
        row("a sign first", "", "-", 1, true);
        row("two signs first", "-", "--", 2, true);
        row("zero to divide by, so far", "5/", "5/0", 3, true);
        row("zeros to divide by, so far", "5/0.0", "5/0.00", 6, true);
        row("an operator after a division by zero", "5/0", "5/0*", 4, false);
        row("second point", "1.", "1..", 3, false);
        row("* first", "", "*", 1, false);
        row("* before a number", "5", "*5", 1, false);
        row("third sign", "5+-", "5+--", 4, false);
        row("* before *", "5*2", "5**2", 2, false);
        row("the same character before itself", "5*2", "5**2", 3, false);
        row("point that makes two in a number", "1.5", "1..5", 2, false);
        row("a digit between equal ones", "111", "1111", 2, true);
        row("- before a number", "5", "-5", 1, true);
        row("- between", "12", "1-2", 2, true);

        row("pasted expression", "", "1+2*3", 5, true);
        row("pasted expression to go on with", "", "1+2*", 4, true);
        row("pasted nonsense", "", "1+*2", 4, false);
        row("pasted nonsense in the middle", "12", "1*/2", 3, false);
        row("pasted point first", "", ".5", 2, false);
        row("paste over a selection", "12.5", "1*2", 2, true);
        row("* over a selection", "12.5", "*", 1, false);
        row("point over a selection", "125", "1.", 2, true);
        row("second point over a selection", "1.25", "1..", 3, false);

        row("all taken away", "12", "", 0, true);
        row("taken away in front", "1.5", ".5", 0, true);
        row("taken away between", "5.5*2", "5.*2", 2, true);
        row("taken away until it is wrong", "5*2*3", "5**3", 2, true);
        row("taken away to a division by zero", "5/20*3", "5/0*3", 2, true);
        row("no change", "5**3", "5**3", 2, true);
    }

    void edits()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(int, cursor);
        QFETCH(bool, fits);
        QCOMPARE(editFits(before, after, cursor), fits);
    }

    void aNumberBeyondTheLargestDoesNotFit()
    {
        const QString text = QStringLiteral("1") + QString(308, QLatin1Char('0'));
        QVERIFY(editFits(text.chopped(1), text, text.size()));
        QVERIFY(!editFits(text, text + QLatin1Char('0'), text.size() + 1));
    }

    void shownTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("whileTyping");
        QTest::addColumn<QString>("afterTyping");
        const auto row = [](const char* text, const char* whileTyping, const char* afterTyping) {
            QTest::newRow(text) << text << whileTyping << afterTyping;
        };
        row("5", "5", "5");
        row("1.50", "1.50", "1.5");
        row("0.0", "0.0", "0");
        row("-0", "-0", "0");
        row("007", "007", "7");
        row("+5", "+5", "5");
        row("--5", "--5", "5");
        row(".5", ".5", "0.5");
        row("1234567", "1234567", "1234567");
        row("1000000", "1000000", "1000000");
        row("1.2345678", "1.2345678", "1.2345678");
        row("0.00001", "0.00001", "0.00001");
        row("2*3", "6", "6");
        row("10/3", "3.33333", "3.33333");
        row("1000*1000", "1e+06", "1e+06");
        row("-2*3", "-6", "-6");
        row("5-5", "0", "0");
        row("10-0", "10-0", "10");
        row("2*0.0", "2*0.0", "0");
        row("2*-0", "2*-0", "0");
        row("2*0*3", "0", "0");
        row("2*10", "20", "20");
    }

    void shownTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, whileTyping);
        QFETCH(QString, afterTyping);
        const Value value = calculated(text);
        QVERIFY(value.has_value());
        QCOMPARE(textWhileTyping(text, *value), whileTyping);
        QCOMPARE(textAfterTyping(text, *value), afterTyping);
    }

    void shownNumbersAreExpressions()
    {
        for (double value : {0.0, 1.0, -1.0, 0.1, 123456.0, 1e6, -1e6, 1.5e-5, 1e100, 1e-300, 1.7e308}) {
            const QString text = shownNumber(value);
            QCOMPARE(expressionCharacters(text), text);
            QCOMPARE(calculated(text).value_or(-2), value);
        }
    }

    void expressionsAtRandom()
    {
        Generator generator;
        Comparison comparison;
        const int count = rounds(1000000);
        for (int i = 0; i < count; ++i)
            comparison.add(generator.expression());
        QVERIFY2(comparison.difference.isEmpty(), qPrintable(comparison.difference));
        const int divisionsByZero = count - comparison.values;
        QVERIFY2(divisionsByZero > count / 1000 && divisionsByZero < count / 10,
                 QByteArray::number(divisionsByZero));
    }

    void charactersAtRandom()
    {
        Generator generator;
        Comparison comparison;
        const int count = rounds(300000);
        for (int i = 0; i < count; ++i)
            comparison.add(generator.characters());
        QVERIFY2(comparison.difference.isEmpty(), qPrintable(comparison.difference));
        const int values = comparison.values;
        QVERIFY2(values > count / 10 && values < count * 2 / 3, QByteArray::number(values));
    }

    /// Typed character by character, what passes the check can be finished.
    void whatFitsCanGoOn()
    {
        Generator generator;
        for (int i = 0; i < rounds(50000); ++i) {
            QString text;
            for (const char character : generator.characters()) {
                const QString longer = text + QLatin1Char(character);
                const bool fits = characterFits(longer, text.size());
                const bool finishable =
                    Reference(longer.toStdString()).value() || Reference(longer.toStdString() + '1').value();
                QCOMPARE(editFits(text, longer, longer.size()), fits && finishable);
                const bool afterNumber = !text.isEmpty() && text.back().isDigit();
                if (fits && !finishable) // only a division by zero
                    QVERIFY2(afterNumber && text.contains(QLatin1Char('/')), qPrintable(longer));
                if (fits && finishable)
                    text = longer;
            }
        }
    }
};

VD_TEST_MAIN(TestExpression)
#include "tst_expression.moc"
