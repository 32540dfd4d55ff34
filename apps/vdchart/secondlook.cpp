#include "secondlook.h"

#include "readingjson.h"

SecondLook secondLook(const QImage& expected, const QImage& picture, const ChartComparison::CabinetGrid& grid)
{
    const WallReading::Reading reading = WallReading::read(picture, {expected, grid});
    return {reading.isLocated, reading.sentences(), readingJson(reading)};
}
