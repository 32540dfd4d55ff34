# The package that find_package(vdpatterndesign) finds.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vdpatterndesign")

configure_package_config_file(cmake/vdpatterndesign-config.cmake.in
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config.cmake" INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vdpatterndesign-config-version.cmake"
  COMPATIBILITY SameMajorVersion)

install(EXPORT vdpatterndesign-targets NAMESPACE vardeno:: DESTINATION ${package_dir})
install(FILES
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config.cmake"
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config-version.cmake"
  DESTINATION ${package_dir})
