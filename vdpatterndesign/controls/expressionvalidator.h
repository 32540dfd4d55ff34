#pragma once

#include <QRegularExpressionValidator>

namespace vardeno::testcharttools {

/// Keeps all but digits, points and the operators + - * / out of an entry. The "e" of an exponent cannot be
/// put in, but where the entry has shown one itself ("1e+06"), the text can be edited. `shown` is the text
/// that the entry has shown last; it outlives the validator.
class ExpressionValidator : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    ExpressionValidator(const QString& shown, QObject* parent);

    State validate(QString& input, int& position) const override;

private:
    const QString& m_shown;
};

} // namespace vardeno::testcharttools
