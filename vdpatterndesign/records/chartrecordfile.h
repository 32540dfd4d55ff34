#pragma once

#include "markerdata.h"
#include "testcharttoolsdata.h"
#include "vdchartcore_export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace vardeno::testcharttools {

/// Chart records as UTF-8 JSON documents, one object for each group, every field under its own name, colours
/// as [red, green, blue, alpha], colour lists as arrays of colours; `docs/records.md` describes them.
/// Functions without state, for any thread, that throw nothing.
namespace ChartRecordFile {

struct Reading
{
    TestChartToolsData record;
    /// What is wrong with the document, each with its field: "publicData.boxRow: 5000 is not in 1..1000".
    /// Where there are problems the record is not to be used.
    QStringList problems;
    /// The document as it was read, with what is unknown here: for `write`, and for `markersOf`. Empty where
    /// it was no JSON object.
    QJsonObject document;
    /// What of the document is unknown here, each with the name that may have been meant:
    /// "publicData.boxrow: unknown member, did you mean publicData.boxRow?". It is no problem, and is kept.
    QStringList unknown;
};

/// What `original` has besides the record's fields, in the document and in its groups, is kept: its markers,
/// what is unknown here, and its "$schema".
VDCHARTCORE_EXPORT QByteArray toJson(const TestChartToolsData& record, const QJsonObject& original = {});

/// `document` with these markers; one that says nothing of them stays as it is where there are none.
VDCHARTCORE_EXPORT QJsonObject withMarkers(QJsonObject document, const MarkerData& markers);

/// What `document` says of markers; that there are none where it says nothing, or nothing sensible.
VDCHARTCORE_EXPORT MarkerData markersOf(const QJsonObject& document);

/// A missing field takes its default; a value of the wrong type or outside its range, a member that stands
/// twice and a document of more than 1 MiB are problems, never converted or cut in silence. A relative
/// picture path becomes an absolute one, from `folder`; without a folder it stays as it is.
VDCHARTCORE_EXPORT Reading fromJson(const QByteArray& json, const QString& folder = {});

/// Reads the file `path`, relative picture paths from its folder. A file that cannot be opened is a problem,
/// too, and so is one that is not a regular file.
VDCHARTCORE_EXPORT Reading read(const QString& path);

/// Writes the file `path`, whole or not at all: the file that stood there stays until the new one is on the
/// disk. Keeps what `toJson` keeps of `original`, and its relative picture path where that still leads to the
/// record's picture. A record that `read` would refuse is not written. Returns an empty text, or the path and
/// the reason.
VDCHARTCORE_EXPORT QString write(const QString& path, const TestChartToolsData& record,
                                 const QJsonObject& original = {});

/// Sets one field as an assignment like "publicData.boxRow=12" says. The value is JSON; a text may stand
/// without quotation marks, a colour as "#ff0000", and a list of colours as "#ff0000 #00ff00". A picture path
/// stays as it is. Returns an empty text, or what is wrong in the words of the reader; then the record is as
/// it was.
VDCHARTCORE_EXPORT QString setField(TestChartToolsData& record, const QString& assignment);

/// The same, also of what documents hold beside the record: "markerData.showMarkers=true".
VDCHARTCORE_EXPORT QString setField(TestChartToolsData& record, MarkerData& markers,
                                    const QString& assignment);

/// The JSON Schema of the documents: what stands in `docs/chart-record.schema.json`.
VDCHARTCORE_EXPORT QByteArray schema();

} // namespace ChartRecordFile

} // namespace vardeno::testcharttools
