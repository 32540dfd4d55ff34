#include "support/safesettings.h"

#include "support/qtversion.h"

#include <QDebug>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>

namespace vardeno::testcharttools {

namespace {

constexpr char comment = ';';

/// `QSettings` adds the digits of an escape up without regard to their number and keeps the lowest 16 bits.
bool standsForAt(const QString& digits, int bitsPerDigit)
{
    uint code = 0;
    for (const QChar digit : digits)
        code = (code << bitsPerDigit) + uint(QString(digit).toInt(nullptr, 16));
    return (code & 0xffffU) == '@';
}

bool holdsAt(const QString& line)
{
    if (line.contains(QLatin1Char('@')))
        return true;
    static const QRegularExpression escape(QStringLiteral(R"(\\(?:x([0-9A-Fa-f]+)|([0-7]+)))"));
    for (auto matches = escape.globalMatch(line); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (standsForAt(match.captured(1), 4) || standsForAt(match.captured(2), 3))
            return true;
    }
    return false;
}

int endOfLine(const QByteArray& text, int from)
{
    int end = from;
    while (end < text.size() && text[end] != '\n' && text[end] != '\r')
        ++end;
    return end;
}

} // namespace

QByteArray withoutObjects(const QByteArray& ini, QVector<int>* refused)
{
    QByteArray result;
    int number = 0;
    // The line ends stay as they are: what a continued value goes on with cannot change that way.
    for (int begin = 0; begin < ini.size();) {
        const int end = endOfLine(ini, begin);
        const QByteArray line = ini.mid(begin, end - begin);
        ++number;
        if (!holdsAt(QString::fromLatin1(line)))
            result += line;
        else if (refused && !line.startsWith(comment))
            refused->append(number);
        const bool windowsEnd = ini.mid(end, 2) == "\r\n";
        result += ini.mid(end, windowsEnd ? 2 : 1);
        begin = end + (windowsEnd ? 2 : 1);
    }
    return result;
}

SafeSettings::SafeSettings(QSettings& settings)
    : m_settings(&settings)
{
    useUtf8(settings);
    QFile file(settings.fileName());
    if (!file.open(QIODevice::ReadOnly))
        return;
    QVector<int> refused;
    const QByteArray safe = withoutObjects(file.readAll(), &refused);
    if (refused.isEmpty())
        return;
    for (const int line : qAsConst(refused))
        qWarning().noquote()
            << QStringLiteral("%1:%2: a value with '@' is not read").arg(file.fileName()).arg(line);
    m_file = std::make_unique<QTemporaryFile>();
    const bool copied = m_file->open() && m_file->write(safe) == safe.size() && m_file->flush();
    if (!copied)
        qWarning() << file.fileName()
                   << "is not read, for lack of a copy without these values:" << m_file->errorString();
    const QString source = copied ? m_file->fileName() : QStringLiteral(":/none");
    m_ownSettings = std::make_unique<QSettings>(source, QSettings::IniFormat);
    useUtf8(*m_ownSettings);
    m_settings = m_ownSettings.get();
}

SafeSettings::~SafeSettings() = default;

QSettings& SafeSettings::settings()
{
    return *m_settings;
}

} // namespace vardeno::testcharttools
