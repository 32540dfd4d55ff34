#include "commands.h"
#include "secondlook.h"

/// Where the program was built without OpenCV.
namespace {

QString howToGetIt()
{
    return QStringLiteral("this program was built without OpenCV. Install libopencv-core-dev, "
                          "libopencv-imgproc-dev, libopencv-features2d-dev and libopencv-calib3d-dev, and "
                          "build it with -DVD_BUILD_READING=ON");
}

} // namespace

ExitCode runRead(const Arguments&)
{
    throw Failure{ExitCode::Unreadable, QStringLiteral("read: ") + howToGetIt()};
}

SecondLook secondLook(const QImage&, const QImage&, const ChartComparison::CabinetGrid&)
{
    return {false, {howToGetIt()}, {}};
}
