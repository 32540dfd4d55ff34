#include "records/jsoncheck.h"

#include "support/utf8.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <cstring>

namespace vardeno::testcharttools {

namespace {

constexpr int deepest = 500;
constexpr int mostRepeated = 10;
constexpr int longestName = 40;
constexpr int longestPath = 4;
constexpr char byteOrderMark[] = "\xef\xbb\xbf";
constexpr char end = '\0'; // no JSON has it outside of texts, and none in them

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isHexDigit(char character)
{
    return isDigit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

/// Goes through a document once. Each step returns whether all is well so far, and stands behind what it
/// took.
class JsonCheck
{
public:
    explicit JsonCheck(const QByteArray& json)
        : m_json(json)
    {
    }

    JsonFindings findings();

private:
    bool takeValue();
    bool takeObject();
    bool takeMember(QSet<QString>& names);
    bool takeArray();
    bool takeString();
    bool takeEscape();
    bool takeNumber();
    bool takeDigits();
    bool takeWord(const char* word);
    bool takeEnd(char closing, bool& closed);

    char next() const { return m_at < m_json.size() ? m_json.at(m_at) : end; }
    char nextAfterSpace();
    bool take(char expected);
    bool refuse(const char* why);
    QString nameFrom(int begin) const;
    void noteRepeated();

    const QByteArray& m_json;
    int m_at = 0;
    int m_depth = 0;
    QStringList m_path;
    JsonFindings m_findings;
};

JsonFindings JsonCheck::findings()
{
    if (m_json.startsWith(byteOrderMark))
        m_at = 3;
    if (!isUtf8(m_json))
        m_findings.error = QStringLiteral("not UTF-8");
    else if (takeValue() && (nextAfterSpace() != end || m_at < m_json.size()))
        refuse("something follows the document");
    return m_findings;
}

bool JsonCheck::takeValue()
{
    switch (nextAfterSpace()) {
    case '{':
        return takeObject();
    case '[':
        return takeArray();
    case '"':
        return takeString();
    case 't':
        return takeWord("true");
    case 'f':
        return takeWord("false");
    case 'n':
        return takeWord("null");
    default:
        return takeNumber();
    }
}

bool JsonCheck::takeObject()
{
    ++m_at;
    if (++m_depth > deepest)
        return refuse("nested too deep");
    QSet<QString> names;
    m_path.append(QString());
    bool closed = nextAfterSpace() == '}' && take('}');
    while (!closed) {
        if (!takeMember(names) || !takeEnd('}', closed))
            return false;
    }
    m_path.removeLast();
    --m_depth;
    return true;
}

bool JsonCheck::takeMember(QSet<QString>& names)
{
    if (nextAfterSpace() != '"')
        return refuse("a name in quotation marks is expected");
    const int begin = m_at;
    if (!takeString())
        return false;
    m_path.last() = nameFrom(begin);
    const int before = names.size();
    names.insert(m_path.last());
    if (names.size() == before)
        noteRepeated();
    if (nextAfterSpace() != ':')
        return refuse("a colon is expected");
    return take(':') && takeValue();
}

bool JsonCheck::takeArray()
{
    ++m_at;
    if (++m_depth > deepest)
        return refuse("nested too deep");
    bool closed = nextAfterSpace() == ']' && take(']');
    while (!closed) {
        if (!takeValue() || !takeEnd(']', closed))
            return false;
    }
    --m_depth;
    return true;
}

/// A comma, or what closes the list.
bool JsonCheck::takeEnd(char closing, bool& closed)
{
    const char character = nextAfterSpace();
    closed = character == closing;
    if (!closed && character != ',')
        return refuse(closing == '}' ? "a comma or } is expected" : "a comma or ] is expected");
    return take(character);
}

bool JsonCheck::takeString()
{
    ++m_at;
    if (m_json.mid(m_at, 3) == byteOrderMark || m_json.mid(m_at, 6).toLower() == "\\ufeff")
        return refuse("a byte order mark begins a text"); // some of Qt's conversions take it away
    while (next() != '"') {
        if (m_at >= m_json.size())
            return refuse("a text has no end");
        if (static_cast<unsigned char>(next()) < 0x20)
            return refuse("a control character in a text");
        if (next() == '\\' && !takeEscape())
            return false;
        ++m_at;
    }
    return take('"');
}

/// Stands on its last character afterwards.
bool JsonCheck::takeEscape()
{
    ++m_at;
    if (next() == end || !std::strchr("\"\\/bfnrtu", next()))
        return refuse("an unknown escape in a text");
    const int digits = next() == 'u' ? 4 : 0;
    for (int i = 0; i < digits; ++i) {
        ++m_at;
        if (!isHexDigit(next()))
            return refuse("an unknown escape in a text");
    }
    return true;
}

bool JsonCheck::takeNumber()
{
    const int begin = m_at;
    take('-');
    if (!isDigit(next()))
        return refuse("a value is expected");
    if (!take('0'))
        takeDigits();
    if (take('.') && !takeDigits())
        return refuse("a digit is expected");
    if (take('e') || take('E')) {
        if (!take('+'))
            take('-');
        if (!takeDigits())
            return refuse("a digit is expected");
    }
    bool isDouble = false;
    m_json.mid(begin, m_at - begin).toDouble(&isDouble);
    return isDouble || refuse("a number is out of range");
}

bool JsonCheck::takeDigits()
{
    const int begin = m_at;
    while (isDigit(next()))
        ++m_at;
    return m_at > begin;
}

bool JsonCheck::takeWord(const char* word)
{
    if (m_json.mid(m_at, int(std::strlen(word))) != word)
        return refuse("a value is expected");
    m_at += int(std::strlen(word));
    return true;
}

char JsonCheck::nextAfterSpace()
{
    while (next() == ' ' || next() == '\n' || next() == '\r' || next() == '\t')
        ++m_at;
    return next();
}

bool JsonCheck::take(char expected)
{
    const bool taken = next() == expected;
    m_at += taken ? 1 : 0;
    return taken;
}

bool JsonCheck::refuse(const char* why)
{
    m_findings.error =
        QStringLiteral("line %1: %2").arg(m_json.left(m_at).count('\n') + 1).arg(QLatin1String(why));
    return false;
}

/// From the quotation mark at `begin` to the last one taken.
QString JsonCheck::nameFrom(int begin) const
{
    const QByteArray quoted = m_json.mid(begin, m_at - begin);
    return quoted.contains('\\') ? QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString()
                                 : QString::fromUtf8(quoted.mid(1, quoted.size() - 2));
}

/// A few names of a few letters each: a document can nest many objects with names of any length.
void JsonCheck::noteRepeated()
{
    QStringList names = m_path;
    if (names.size() > longestPath)
        names = QStringList{names.at(0), names.at(1), QString(QChar(0x2026)), names.last()};
    for (QString& name : names)
        name = name.size() > longestName ? name.left(longestName) + QChar(0x2026) : name;
    const QString path = names.join(QLatin1Char('.'));
    if (m_findings.repeated.size() < mostRepeated && !m_findings.repeated.contains(path))
        m_findings.repeated.append(path);
}

} // namespace

JsonFindings checkedJson(const QByteArray& json)
{
    return JsonCheck(json).findings();
}

} // namespace vardeno::testcharttools
