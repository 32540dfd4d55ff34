#include "chartrecordfile.h"
#include "require.h"

#include <QtGlobal>

#include <cstdint>

using namespace vardeno::testcharttools;

namespace {

/// A document that reads well stays itself when it is written and read again.
void checkDocument(const QByteArray& json)
{
    const auto reading = ChartRecordFile::fromJson(json);
    if (!reading.problems.isEmpty())
        return;
    const QByteArray written = ChartRecordFile::toJson(reading.record, reading.document);
    const auto again = ChartRecordFile::fromJson(written);
    require(again.problems.isEmpty(), "what is written reads well");
    require(again.record == reading.record, "the record is the same");
    require(ChartRecordFile::toJson(again.record, again.document) == written, "the document is the same");
    require(ChartRecordFile::fromJson(json, QStringLiteral("/folder")).problems.isEmpty(),
            "a folder makes no problems");
}

/// A field that cannot be set changes nothing, and one that can leaves a record that reads well.
void checkAssignment(const QString& assignment)
{
    TestChartToolsData record;
    const QString problem = ChartRecordFile::setField(record, assignment);
    if (!problem.isEmpty())
        require(record == TestChartToolsData(), "the record is as it was");
    else
        require(ChartRecordFile::fromJson(ChartRecordFile::toJson(record)).record == record,
                "the record reads well");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    checkDocument(bytes);
    checkAssignment(QString::fromUtf8(bytes));
    return 0;
}
