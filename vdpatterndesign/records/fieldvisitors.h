#pragma once

#include "records/recordvalues.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// What goes through a table of groups and fields, such as that of `recordfields.h`: a document's writer and
/// reader, its schema, and the names. A type of field beyond those of records has `toJson`, `take` and
/// `schema` in its own namespace.
namespace vardeno::testcharttools::fieldvisitors {

class DocumentWriter
{
public:
    explicit DocumentWriter(const QJsonObject& original)
        : document(original)
    {
    }

    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_group = document.value(QLatin1String(name)).toObject();
        fields();
        document.insert(QLatin1String(name), m_group);
    }

    template <typename Value>
    void field(const char* name, const Value& value, const char*)
    {
        using recordvalues::toJson;
        m_group.insert(QLatin1String(name), toJson(value));
    }

    template <typename Value, typename Limit>
    void field(const char* name, const Value& value, Limit, const char* meaning)
    {
        field(name, value, meaning);
    }

    QJsonObject document;

private:
    QJsonObject m_group;
};

/// A missing field keeps its default.
class DocumentReader
{
public:
    DocumentReader(const QJsonObject& document, QStringList& problems)
        : m_document(document)
        , m_problems(problems)
    {
    }

    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_groupName = QLatin1String(name);
        const QJsonValue value = m_document.value(m_groupName);
        if (!value.isUndefined() && !value.isObject())
            m_problems.append(m_groupName + QLatin1String(": ") + recordvalues::shown(value) +
                              QLatin1String(" is not an object"));
        m_group = value.toObject();
        fields();
    }

    template <typename Value>
    void field(const char* name, Value& target, const char*)
    {
        takeMember(name, target);
    }

    template <typename Value, typename Limit>
    void field(const char* name, Value& target, Limit limit, const char*)
    {
        takeMember(name, target, limit);
    }

private:
    template <typename... Target>
    void takeMember(const char* name, Target&&... target)
    {
        using recordvalues::take;
        const QJsonValue value = m_group.value(QLatin1String(name));
        if (value.isUndefined())
            return;
        for (const QString& reason : take(value, target...))
            m_problems.append(m_groupName + QLatin1Char('.') + QLatin1String(name) + QLatin1String(": ") +
                              reason);
    }

    const QJsonObject m_document;
    QStringList& m_problems;
    QString m_groupName;
    QJsonObject m_group;
};

/// The groups of a JSON Schema.
class DocumentSchema
{
public:
    template <typename Fields>
    void group(const char* name, const char* meaning, Fields fields)
    {
        m_fields = QJsonObject();
        fields();
        groups.insert(QLatin1String(name),
                      QJsonObject{{QStringLiteral("description"), QLatin1String(meaning)},
                                  {QStringLiteral("type"), QStringLiteral("object")},
                                  {QStringLiteral("properties"), m_fields}});
    }

    template <typename Value, typename... Limit>
    void insert(const char* name, const char* meaning, const Value& value, Limit... limit)
    {
        using recordvalues::schema;
        using recordvalues::toJson;
        QJsonObject field = schema(value, limit...);
        field.insert(QStringLiteral("description"), QLatin1String(meaning));
        field.insert(QStringLiteral("default"), toJson(value));
        m_fields.insert(QLatin1String(name), field);
    }

    template <typename Value>
    void field(const char* name, const Value& value, const char* meaning)
    {
        insert(name, meaning, value);
    }

    template <typename Value, typename Limit>
    void field(const char* name, const Value& value, Limit limit, const char* meaning)
    {
        insert(name, meaning, value, limit);
    }

    QJsonObject groups;

private:
    QJsonObject m_fields;
};

class FieldNames
{
public:
    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_group = QLatin1String(name);
        order.append(m_group);
        fields();
    }

    template <typename... Description>
    void field(const char* name, Description&&...)
    {
        order.append(QLatin1String(name));
        full.append(m_group + QLatin1Char('.') + QLatin1String(name));
    }

    QStringList order; ///< groups and their fields, as they are written
    QStringList full;  ///< "publicData.boxRow"

private:
    QString m_group;
};

} // namespace vardeno::testcharttools::fieldvisitors
