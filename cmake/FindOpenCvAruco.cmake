# The module aruco of OpenCV 4, in Debian one of libopencv-contrib-dev.
#   OpenCvAruco_FOUND, and the target opencvaruco
find_path(OPENCV_ARUCO_INCLUDE_DIR opencv2/aruco.hpp PATH_SUFFIXES opencv4)
find_library(OPENCV_aruco_LIBRARY opencv_aruco)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCvAruco REQUIRED_VARS OPENCV_ARUCO_INCLUDE_DIR OPENCV_aruco_LIBRARY)

if(OpenCvAruco_FOUND AND NOT TARGET opencvaruco)
  add_library(opencvaruco INTERFACE IMPORTED GLOBAL)
  target_include_directories(opencvaruco SYSTEM INTERFACE "${OPENCV_ARUCO_INCLUDE_DIR}")
  target_link_libraries(opencvaruco INTERFACE "${OPENCV_aruco_LIBRARY}")
endif()
