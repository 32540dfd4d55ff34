#pragma once

#include <QByteArray>
#include <QStringList>

namespace vardeno::testcharttools {

struct JsonFindings
{
    QString error;        ///< "line 3: a colon is expected", empty for well-formed JSON
    QStringList repeated; ///< at most ten members that an object names twice: "publicData.boxRow"
};

/// Whether `json` is JSON to the letter, in UTF-8, nesting at most 500 levels deep, with numbers that a
/// double can hold. Qt's parser takes broken sequences, unknown escapes and control characters for text,
/// keeps the last of members of the same name, and loses memory over each document that it refuses: it is to
/// get none that has findings.
JsonFindings checkedJson(const QByteArray& json);

} // namespace vardeno::testcharttools
