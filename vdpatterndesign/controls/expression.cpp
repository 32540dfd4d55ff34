#include "controls/expression.h"

#include <QRegularExpression>
#include <QStack>

#include <algorithm>
#include <cmath>

namespace vardeno::testcharttools {

namespace {

constexpr QLatin1Char point('.');

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isSign(QChar character)
{
    return character == QLatin1Char('+') || character == QLatin1Char('-');
}

bool isOperator(QChar character)
{
    return isSign(character) || character == QLatin1Char('*') || character == QLatin1Char('/');
}

/// A sign without a number looks like an operator and may pass for one: either way the sequence is malformed.
bool isOperator(const QString& token)
{
    return token.size() == 1 && isOperator(token.front());
}

bool isDigitAt(const QString& text, int position)
{
    return position >= 0 && position < text.size() && isDigit(text.at(position));
}

/// The "e" of an exponent as `QString::number` writes it: with a sign and two digits at least.
bool isExponentMark(const QString& text, int position)
{
    return text.at(position) == QLatin1Char('e') && isDigitAt(text, position - 1) &&
           isDigitAt(text, position + 2) && isDigitAt(text, position + 3) && isSign(text.at(position + 1));
}

/// Of a number or of its exponent.
bool isSignAt(const QString& text, int position)
{
    if (!isSign(text.at(position)))
        return false;
    return position == 0 || isOperator(text.at(position - 1)) || text.at(position - 1) == QLatin1Char('e');
}

bool signFits(const QString& text, int position)
{
    if (position == 0)
        return true;
    if (text.at(position - 1) == point)
        return false;
    return position == 1 || !isOperator(text.at(position - 1)) || !isOperator(text.at(position - 2));
}

bool pointFits(const QString& text, int position)
{
    if (!isDigitAt(text, position - 1))
        return false;
    static const QRegularExpression separator(QStringLiteral(R"([\+\-\*\/\.])"));
    const int last = text.left(position).lastIndexOf(separator);
    return last < 0 || text.at(last) != point;
}

std::optional<double> number(const QString& token)
{
    const auto digits = std::find_if_not(token.begin(), token.end(), [](QChar c) { return isSign(c); });
    const QString magnitude = token.mid(int(digits - token.begin()));
    bool ok = false;
    const double value = magnitude.toDouble(&ok);
    if (!ok || !std::isfinite(value) || magnitude.endsWith(point))
        return std::nullopt;
    return std::count(token.begin(), digits, QLatin1Char('-')) % 2 == 0 ? value : -value;
}

std::optional<double> applied(QChar operation, double left, double right)
{
    switch (operation.unicode()) {
    case u'+':
        return left + right;
    case u'-':
        return left - right;
    case u'*':
        return left * right;
    default:
        return right == 0 ? std::nullopt : std::optional(left / right);
    }
}

/// Pops the two uppermost values for the result of `operation` on them.
bool applyToTop(QChar operation, QStack<double>& values)
{
    if (values.size() < 2)
        return false;
    const double right = values.pop();
    const auto result = applied(operation, values.pop(), right);
    if (result)
        values.push(*result);
    return result.has_value();
}

} // namespace

bool characterFits(const QString& text, int position)
{
    const QChar character = text.at(position);
    if (character == point)
        return pointFits(text, position);
    if (isSign(character))
        return signFits(text, position);
    if (!isOperator(character))
        return true;
    return position > 0 && !isOperator(text.at(position - 1)) && text.at(position - 1) != point;
}

QString expressionCharacters(const QString& text)
{
    QString kept = text;
    QChar* end = kept.data();
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (isDigit(character) || isOperator(character) || character == point || isExponentMark(text, i))
            *end++ = character;
    }
    kept.truncate(int(end - kept.constData()));
    return kept;
}

QStringList expressionTokens(const QString& text)
{
    const QString characters = expressionCharacters(text);
    QStringList tokens;
    int first = 0; // of the current number
    for (int i = 0; i < characters.size(); ++i) {
        if (!isOperator(characters.at(i)) || isSignAt(characters, i))
            continue;
        if (i > first)
            tokens.append(characters.mid(first, i - first));
        tokens.append(characters.at(i));
        first = i + 1;
    }
    if (first < characters.size())
        tokens.append(characters.mid(first));
    return tokens;
}

QStringList postfixOrder(const QStringList& tokens)
{
    QStringList output;
    QStack<QString> operators;
    for (const QString& token : tokens) {
        if (!isOperator(token)) {
            output.append(token);
            continue;
        }
        while (!operators.isEmpty() && (isSign(token.front()) || !isSign(operators.top().front())))
            output.append(operators.pop());
        operators.push(token);
    }
    while (!operators.isEmpty())
        output.append(operators.pop());
    return output;
}

std::optional<double> evaluatedPostfix(const QStringList& tokens)
{
    QStack<double> values;
    for (const QString& token : tokens) {
        if (isOperator(token)) {
            if (!applyToTop(token.front(), values))
                return std::nullopt;
        } else if (const auto value = number(token)) {
            values.push(*value);
        } else {
            return std::nullopt;
        }
    }
    if (values.size() != 1 || !std::isfinite(values.top()))
        return std::nullopt;
    return values.top() + 0.0; // -0 becomes 0
}

std::optional<double> calculated(const QString& text)
{
    return evaluatedPostfix(postfixOrder(expressionTokens(text)));
}

bool editFits(const QString& before, const QString& after, int cursor)
{
    const auto difference = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const int grown = std::max(0, int(after.size() - before.size()));
    const int first = std::max(0, std::min(int(difference.second - after.begin()), cursor - grown));
    if (first >= cursor)
        return true;
    for (int i = first; i < cursor; ++i) {
        if (!characterFits(after, i))
            return false;
    }
    return calculated(after) || calculated(after + QLatin1Char('1'));
}

QString shownNumber(double value)
{
    return QString::number(value, 'g', 6);
}

QString textWhileTyping(const QString& text, double value)
{
    const QStringList tokens = expressionTokens(text);
    return tokens.size() == 1 || number(tokens.last()) == 0.0 ? text : shownNumber(value);
}

QString textAfterTyping(const QString& text, double value)
{
    const QString shown = shownNumber(value);
    if (expressionTokens(text).size() > 1)
        return shown;
    return shown.contains(QLatin1Char('e')) || calculated(shown) != value ? text : shown;
}

} // namespace vardeno::testcharttools
