# Builds a host with the library's sources in its tree in four ways, runs it, and looks at what it installs.
#   cmake -DLIBRARY=… -DSOURCE_DIR=… -DBUILD_DIR=… -DGENERATOR=… -DLAUNCHER=… -DQT_MAJOR=… -P check.cmake
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\nfailed (${result}):\n${output}")
  endif()
endfunction()

# One folder for all, one after the other: the compiler's cache knows what it has built before.
function(check shared taken_by as_needed)
  message(STATUS "shared libraries: ${shared}, ${taken_by} ${as_needed}")
  set(work "${BUILD_DIR}/hosts")
  file(REMOVE_RECURSE "${work}")
  run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" -B "${work}/build" -G "${GENERATOR}" "-DLIBRARY=${LIBRARY}"
    -DBUILD_SHARED_LIBS=${shared} -DTAKEN_BY=${taken_by} "-DAS_NEEDED=${as_needed}" -DVD_QT_MAJOR=${QT_MAJOR}
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=20 "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}")
  run(${CMAKE_COMMAND} --build "${work}/build")
  run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen "${work}/build/host")
  run(${CMAKE_COMMAND} --install "${work}/build" --prefix "${work}/installed")
  file(GLOB_RECURSE installed RELATIVE "${work}/installed" "${work}/installed/*")
  if(NOT installed STREQUAL "bin/host")
    message(FATAL_ERROR "The host installs ${installed}")
  endif()
endfunction()

check(ON add_subdirectory "")
check(ON FetchContent EXCLUDE_FROM_ALL)
check(OFF add_subdirectory EXCLUDE_FROM_ALL)
check(OFF FetchContent "")
