#pragma once

#include <chartpicture.h>
#include <testcharttoolsdata.h>

#include <QString>

/// What one can do with the files of a chart. Functions without state, for any thread.
namespace ChartShelf {

/// What came of it: `image` where the chart stands now, or else what went wrong.
struct Outcome
{
    QString image;
    QString problem;
    const char* note =
        nullptr; ///< to be told before the name: the English text of the host; null for nothing
};

/// A copy of the chart, with all that belongs to it, under the next free number: "wall 2".
Outcome duplicate(const QString& folder, const QString& imagePath);

/// Gives the chart's files another name, without ending. Nothing is written over.
Outcome rename(const QString& imagePath, const QString& name);

/// Takes a file in: a picture as a chart without a record, a record as the chart that it describes, a wall or
/// a show with what it refers to.
Outcome take(const QString& folder, const QString& file,
             const vardeno::testcharttools::ChartCaptions& captions);

/// Writes the chart as what the ending of `target` says: PNG, JPEG, BMP, or its record as JSON. Empty, or the
/// problem.
QString exportTo(const QString& imagePath, const QString& target);

} // namespace ChartShelf

/// A chart that was deleted a moment ago. It is gone for good when this is.
class DeletedChart
{
public:
    /// Moves the chart's folder out of sight, or only its own files where others are in it.
    explicit DeletedChart(const QString& imagePath);
    ~DeletedChart();
    DeletedChart(const DeletedChart&) = delete;
    DeletedChart& operator=(const DeletedChart&) = delete;

    bool isDeleted() const { return !m_hidden.isEmpty(); }
    /// Where the chart stands again; empty where its place was taken meanwhile.
    QString restore();

private:
    bool moveFiles(const QString& from, const QString& to) const;
    void forget();

    QString m_image;
    QString m_hidden; ///< the folder that holds it meanwhile
};

/// Gives the chart to the desktop's trash; false where there is none.
bool moveToTrash(const QString& imagePath);
