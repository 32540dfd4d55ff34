#include "common/jsontext.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QVariant>
#include <QVector>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int longestLine = 100;
constexpr int deepestBroken = 8;
constexpr int mostRepeated = 10;

class JsonText
{
public:
    explicit JsonText(const QStringList& order)
    {
        for (const QString& name : order)
            m_places.insert(name, m_places.size());
    }

    void append(const QJsonValue& value, int depth);
    void appendLine(const QJsonValue& value);

    QByteArray text;

private:
    QStringList sortedKeys(const QJsonObject& object) const;
    void appendObject(const QJsonObject& object, int depth);
    void appendArray(const QJsonArray& array, int depth);
    void appendScalar(const QJsonValue& value);
    void breakLine(int depth) { text.append('\n').append(QByteArray(2 * depth, ' ')); }

    QHash<QString, int> m_places;
};

QStringList JsonText::sortedKeys(const QJsonObject& object) const
{
    QStringList keys = object.keys();
    std::stable_sort(keys.begin(), keys.end(), [this](const QString& a, const QString& b) {
        return m_places.value(a, m_places.size()) < m_places.value(b, m_places.size());
    });
    return keys;
}

void JsonText::append(const QJsonValue& value, int depth)
{
    if (value.isObject() && depth < deepestBroken)
        appendObject(value.toObject(), depth);
    else if (value.isArray() && depth < deepestBroken)
        appendArray(value.toArray(), depth);
    else
        appendLine(value);
}

void JsonText::appendObject(const QJsonObject& object, int depth)
{
    const QStringList keys = sortedKeys(object);
    text.append('{');
    for (const QString& key : keys) {
        breakLine(depth + 1);
        appendScalar(key);
        text.append(": ");
        append(object.value(key), depth + 1);
        text.append(',');
    }
    if (!keys.isEmpty()) {
        text.chop(1);
        breakLine(depth);
    }
    text.append('}');
}

void JsonText::appendArray(const QJsonArray& array, int depth)
{
    const int before = text.size();
    appendLine(array);
    if (array.isEmpty() || text.size() - text.lastIndexOf('\n') - 1 <= longestLine)
        return;
    text.truncate(before);
    text.append('[');
    for (const QJsonValue& value : array) {
        breakLine(depth + 1);
        append(value, depth + 1);
        text.append(',');
    }
    text.chop(1);
    breakLine(depth);
    text.append(']');
}

void JsonText::appendLine(const QJsonValue& value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        text.append('{');
        for (const QString& key : sortedKeys(object)) {
            appendScalar(key);
            text.append(": ");
            appendLine(object.value(key));
            text.append(", ");
        }
        text.chop(object.isEmpty() ? 0 : 2);
        text.append('}');
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        text.append('[');
        for (const QJsonValue& item : array) {
            appendLine(item);
            text.append(", ");
        }
        text.chop(array.isEmpty() ? 0 : 2);
        text.append(']');
    } else {
        appendScalar(value);
    }
}

void JsonText::appendScalar(const QJsonValue& value)
{
    const QVariant variant = value.isDouble() ? value.toVariant() : QVariant();
    if (variant.type() == QVariant::LongLong) { // of which Qt writes 53 bits
        text.append(QByteArray::number(variant.toLongLong()));
        return;
    }
    const QByteArray inArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    text.append(inArray.constData() + 1, inArray.size() - 2);
}

/// The members on the way through a well-formed document.
class MemberScan
{
public:
    explicit MemberScan(const QByteArray& json)
        : m_json(json)
    {
    }

    QStringList repeated();

private:
    struct Level
    {
        bool isObject = false;
        QString member;
        QSet<QString> members;
    };

    QString takeString();
    void enterMember(const QString& name);
    QString path() const;

    const QByteArray& m_json;
    int m_at = 0;
    QVector<Level> m_levels;
    QStringList m_repeated;
};

QStringList MemberScan::repeated()
{
    bool nameExpected = false;
    for (; m_at < m_json.size() && m_repeated.size() < mostRepeated; ++m_at) {
        const char character = m_json.at(m_at);
        if (character == '{' || character == '[') {
            m_levels.append({character == '{', {}, {}});
            nameExpected = character == '{';
        } else if (character == '}' || character == ']') {
            m_levels.removeLast();
        } else if (character == ',') {
            nameExpected = m_levels.last().isObject;
        } else if (character == '"') {
            const QString text = takeString();
            if (nameExpected)
                enterMember(text);
            nameExpected = false;
        }
    }
    return m_repeated;
}

/// From the quotation mark at which it stands up to the one that ends the string.
QString MemberScan::takeString()
{
    const int begin = m_at++;
    bool escaped = false;
    for (; m_json.at(m_at) != '"'; ++m_at) {
        if (m_json.at(m_at) == '\\') {
            escaped = true;
            ++m_at;
        }
    }
    const QByteArray quoted = m_json.mid(begin, m_at - begin + 1);
    return escaped ? QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString()
                   : QString::fromUtf8(quoted.mid(1, quoted.size() - 2));
}

void MemberScan::enterMember(const QString& name)
{
    Level& level = m_levels.last();
    level.member = name;
    const int before = level.members.size();
    level.members.insert(name);
    if (level.members.size() == before && !m_repeated.contains(path()))
        m_repeated.append(path());
}

/// Of a few levels and a few letters each: a document can nest a thousand objects with names of any length.
QString MemberScan::path() const
{
    QStringList names;
    for (const Level& level : m_levels) {
        if (level.isObject)
            names.append(level.member.size() > 40 ? level.member.left(40) + QChar(0x2026) : level.member);
    }
    if (names.size() > 4)
        names = QStringList{names.at(0), names.at(1), QString(QChar(0x2026)), names.last()};
    return names.join(QLatin1Char('.'));
}

} // namespace

QByteArray jsonText(const QJsonObject& document, const QStringList& order)
{
    JsonText json(order);
    json.append(document, 0);
    return json.text + '\n';
}

QByteArray jsonLine(const QJsonValue& value)
{
    JsonText json({});
    json.appendLine(value);
    return json.text;
}

QStringList repeatedMembers(const QByteArray& json)
{
    return MemberScan(json).repeated();
}

} // namespace vardeno::testcharttools
