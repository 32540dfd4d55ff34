#pragma once

#include <chartcomparison.h>

#include <QJsonObject>
#include <QStringList>

/// What `read` says of a picture that cannot be judged pixel for pixel.
struct SecondLook
{
    bool isLocated = false;
    QStringList sentences;
    QJsonObject json; ///< empty where the program was built without the reading
};

/// Whether so much differs, but not in a way that has a name, that the picture is lossy or warped, if it is
/// the chart at all.
bool isLossyOrWarped(const ChartComparison::Result& result, const ChartComparison::CabinetGrid& grid);

SecondLook secondLook(const QImage& expected, const QImage& picture,
                      const ChartComparison::CabinetGrid& grid);
