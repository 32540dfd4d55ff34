# Installs the build in BUILD_DIR, builds the consumer against what was installed, and runs it.
#   cmake -DBUILD_DIR=… -DSOURCE_DIR=… -DGENERATOR=… -DFLAGS=… -P check.cmake
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\nfailed (${result}):\n${output}")
  endif()
endfunction()

set(work "${BUILD_DIR}/consumer")
file(REMOVE_RECURSE "${work}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${work}/installed")
run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" -B "${work}/build" -G "${GENERATOR}" "-DCMAKE_CXX_FLAGS=${FLAGS}"
  "-DCMAKE_PREFIX_PATH=${work}/installed")
run(${CMAKE_COMMAND} --build "${work}/build")
run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen "${work}/build/consumer")
