#include "controls/expressionvalidator.h"

namespace vardeno::testcharttools {

ExpressionValidator::ExpressionValidator(const QString& shown, QObject* parent)
    : QRegularExpressionValidator(QRegularExpression(QStringLiteral(R"(^[\+\-\*\/\d\.]+$)")), parent)
    , m_shown(shown)
{
}

QValidator::State ExpressionValidator::validate(QString& input, int& position) const
{
    const QLatin1Char mark('e');
    if (input.count(mark) > m_shown.count(mark))
        return Invalid;
    QString plain = input;
    plain.remove(mark);
    return QRegularExpressionValidator::validate(plain, position);
}

} // namespace vardeno::testcharttools
