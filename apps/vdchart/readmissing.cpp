#include "commands.h"

/// Where the program was built without OpenCV.
ExitCode runRead(const Arguments&)
{
    throw Failure{
        ExitCode::Unreadable,
        QStringLiteral("read: this program was built without OpenCV. Install libopencv-core-dev, "
                       "libopencv-imgproc-dev, libopencv-features2d-dev and libopencv-calib3d-dev, and "
                       "build it with -DVD_BUILD_READING=ON")};
}
