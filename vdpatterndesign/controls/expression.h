#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vardeno::testcharttools {

/// Arithmetic as it is typed into an entry: numbers, points and the operators + - * /, without parentheses.
/// "*" and "/" bind before "+" and "-", operators of one rank are taken from the left, and a sign may stand
/// first or after an operator.

/// Whether the character at `position` may stand there, judged by what is left of it.
bool characterFits(const QString& text, int position);

/// `text` without what the calculator skips: all but digits, points, operators and the exponents that
/// `QString::number` writes ("1e+06").
QString expressionCharacters(const QString& text);

/// The numbers, with their signs, and the operators of `text`, from left to right.
QStringList expressionTokens(const QString& text);

/// Tokens in postfix order.
QStringList postfixOrder(const QStringList& tokens);

/// Nothing for a malformed sequence, a division by zero and a result that is not finite; never -0.
std::optional<double> evaluatedPostfix(const QStringList& tokens);

/// The three steps one after the other.
std::optional<double> calculated(const QString& text);

/// Whether an edit that made `after` of `before` and left the cursor at `cursor` may stand. Taking something
/// away always may. What was put in must fit in each of its characters, and the text must have a value or
/// get one by a further digit at its end ("2*", "1.", "5/0").
bool editFits(const QString& before, const QString& after, int cursor);

/// A value as an entry shows it: at most 6 significant digits, with an exponent from a million on.
QString shownNumber(double value);

/// What an entry shows once `text`, which has the value `value`, was typed: the result of an operation, but a
/// single number as it is, and an operation with a zero at its end too, for both are likely to go on ("1.50",
/// "10-0").
QString textWhileTyping(const QString& text, double value);

/// What an entry shows of `text`, which has the value `value`, when typing has ended: a result, and a single
/// number without what is redundant ("1.5" for "+01.50"), but with all of its digits.
QString textAfterTyping(const QString& text, double value);

} // namespace vardeno::testcharttools
