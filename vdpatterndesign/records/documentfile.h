#pragma once

#include "vdchartcore_export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace vardeno::testcharttools {

/// The head of documents of one kind, and the most bytes that one of them may have.
struct DocumentKind
{
    const char* format;
    const char* schemaName;
    int version;
};
constexpr int largestDocument = 1 << 20; // bytes

/// The members that every document has besides its groups: "$schema", "format", "version".
VDCHARTCORE_EXPORT QStringList documentHead();

struct ParsedDocument
{
    QJsonObject document; ///< empty where it was no JSON object
    QStringList problems; ///< where there are some, its members are not to be looked at
};

/// A document of that kind: JSON to the letter, of at most 1 MiB, whose members stand once, with the kind's
/// format and a version that is known. Each problem names what is wrong: "version: 2 is newer than 1, the
/// newest that is known".
VDCHARTCORE_EXPORT ParsedDocument parsedDocument(const QByteArray& json, const DocumentKind& kind);

/// What is wrong with a document's "$schema"; nothing where it is a text, or missing.
VDCHARTCORE_EXPORT QStringList schemaProblems(const QJsonObject& document);

/// `document` with the head of its kind; a "$schema" of its own stays.
VDCHARTCORE_EXPORT QJsonObject withHead(QJsonObject document, const DocumentKind& kind);

QString tooLarge(qint64 bytes);

struct DocumentBytes
{
    QByteArray bytes;
    QString problem; ///< "wall.json: not a regular file", empty where the file was read
};

/// The file `path`, of at most 1 MiB. One that is not a regular file could be endless.
VDCHARTCORE_EXPORT DocumentBytes readDocument(const QString& path);

/// Writes the file `path`, whole or not at all. Returns the reason where it is not written.
VDCHARTCORE_EXPORT QString saveDocument(const QString& path, const QByteArray& json);

/// The same with a document in which its own reader finds `problems`: one that could not be read again is not
/// written. Returns "wall.json: " and why it is not.
VDCHARTCORE_EXPORT QString saveReadable(const QString& path, const QByteArray& json,
                                        const QStringList& problems);

} // namespace vardeno::testcharttools
