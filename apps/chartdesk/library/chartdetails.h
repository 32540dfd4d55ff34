#pragma once

#include <QMetaType>
#include <QSize>
#include <QString>

/// What is told of a chart beside its name. A plain value.
struct ChartDetails
{
    QSize size; ///< in pixels; empty for a file that is no picture
    QSize grid; ///< columns and rows of cabinets; empty without a record

    /// For any thread; reads no more than the head of the picture.
    static ChartDetails read(const QString& imagePath);

    /// "1920 x 1080, 16 x 9"
    QString text() const;
};

Q_DECLARE_METATYPE(ChartDetails)
