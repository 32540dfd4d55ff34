#pragma once

#include <testcharttoolsdata.h>

#include <QJsonObject>
#include <QString>

/// One folder of charts, which other desks and people use as well. The editor saves into a folder of this
/// desk's own; from there a chart joins the others whole, under a name that nobody has.
class ChartStore
{
public:
    /// What came of an attempt: `image` where it stands now, or else what went wrong.
    struct Published
    {
        QString image;
        QString problem;
    };

    explicit ChartStore(const QString& folder);
    /// Takes back what has not joined the others.
    ~ChartStore();
    ChartStore(ChartStore&& other) noexcept;
    ChartStore& operator=(ChartStore&& other) noexcept;

    QString folder() const { return m_folder; }

    /// A folder for one save and no other, not made yet.
    QString nextSaveRoot();
    /// Whether `path` lies in one of them.
    bool isStaged(const QString& path) const;
    /// Where the chart that the editor has saved, or has tried to, would stand: for messages.
    QString finalPath(const QString& stagedImage) const;

    /// Lets the chart of `stagedImage` join the others, with its record and with its picture, which takes the
    /// place `picture` in the chart's folder. Unknown members of `document` are kept.
    Published publish(const QString& stagedImage, vardeno::testcharttools::TestChartToolsData record,
                      QJsonObject document, const QString& picture) const;

    /// Lets it join the others as it is, without a record of its own.
    Published join(const QString& stagedImage) const;

private:
    QString m_folder;
    QString m_staging;
    int m_saves = 0;
};

/// The digest by which a changed record file is told; empty for one that cannot be read.
QByteArray recordDigest(const QString& imagePath);

/// Removes what belongs to the chart `imagePath` alone: the image, its record and its picture, and each
/// folder that is empty then. What another chart of the folder uses, and whatever else lies there, stays.
void removeChartFiles(const QString& imagePath);

/// Where `picture` lies within `folder`, empty for one that lies elsewhere.
QString pathWithin(const QString& folder, const QString& picture);
