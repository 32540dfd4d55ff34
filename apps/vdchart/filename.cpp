#include "filename.h"

#include <QRegularExpression>

namespace {

/// Devices of their own on Windows, with any ending.
bool isDevice(const QString& name)
{
    static const QRegularExpression devices(
        QStringLiteral(R"(^(CON|PRN|AUX|NUL|CONIN\$|CONOUT\$|(COM|LPT)[0-9\x{b9}\x{b2}\x{b3}])\s*(\.|$))"),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

bool hasForbiddenCharacter(const QString& name)
{
    static const QRegularExpression forbidden(QStringLiteral(R"([\x{0}-\x{1f}\x{7f}/\\:*?"<>|])"));
    return forbidden.match(name).hasMatch();
}

} // namespace

QString fileNameProblem(const QString& name)
{
    const QString quoted = QStringLiteral("the name \"%1\" ").arg(name);
    if (hasForbiddenCharacter(name))
        return quoted + QLatin1String("has characters that no file name has");
    if (name.startsWith(QLatin1Char('.')))
        return quoted + QLatin1String("begins with a dot");
    return isDevice(name) ? quoted + QLatin1String("is a device on some systems") : QString();
}

QString sameFileName(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C)
        .toCaseFolded()
        .normalized(QString::NormalizationForm_C);
}
