#include "records/jsontext.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QVariant>

#include <algorithm>
#include <climits>

namespace vardeno::testcharttools {

namespace {

constexpr int longestLine = 100;
constexpr int deepestBroken = 8;

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
    int m_stop = INT_MAX; ///< the size of the text at which a line is known to be too long
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
    m_stop = text.lastIndexOf('\n') + 1 + longestLine;
    appendLine(array);
    const bool fits = array.isEmpty() || text.size() <= m_stop;
    m_stop = INT_MAX;
    if (fits)
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
            if (text.size() - 2 > m_stop)
                return;
        }
        text.chop(object.isEmpty() ? 0 : 2);
        text.append('}');
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        text.append('[');
        for (const QJsonValue& item : array) {
            appendLine(item);
            text.append(", ");
            if (text.size() - 2 > m_stop)
                return;
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

} // namespace vardeno::testcharttools
