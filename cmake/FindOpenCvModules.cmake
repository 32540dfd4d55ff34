# Some modules of OpenCV 4, each found for itself: Debian's configuration file comes only with all of them.
#   OpenCvModules_FOUND, and the target opencvmodules with what was asked for
find_path(OPENCV_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
set(opencv_libraries)
foreach(module IN LISTS OpenCvModules_FIND_COMPONENTS)
  find_library(OPENCV_${module}_LIBRARY opencv_${module})
  list(APPEND opencv_libraries OPENCV_${module}_LIBRARY)
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCvModules REQUIRED_VARS OPENCV_INCLUDE_DIR ${opencv_libraries})

if(OpenCvModules_FOUND AND NOT TARGET opencvmodules)
  add_library(opencvmodules INTERFACE IMPORTED GLOBAL)
  target_include_directories(opencvmodules SYSTEM INTERFACE "${OPENCV_INCLUDE_DIR}")
  foreach(library IN LISTS opencv_libraries)
    target_link_libraries(opencvmodules INTERFACE "${${library}}")
  endforeach()
endif()
