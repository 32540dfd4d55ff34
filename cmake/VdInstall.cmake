# The package that find_package(vdpatterndesign) finds.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vdpatterndesign")

configure_package_config_file(cmake/vdpatterndesign-config.cmake.in
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config.cmake" INSTALL_DESTINATION ${package_dir})
# Before 1.0 a minor version may change the binary interface: a host is built for one.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vdpatterndesign-config-version.cmake"
  COMPATIBILITY SameMinorVersion)

install(EXPORT vdpatterndesign-targets NAMESPACE vardeno:: DESTINATION ${package_dir} COMPONENT Development)
install(FILES
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config.cmake"
  "${PROJECT_BINARY_DIR}/vdpatterndesign-config-version.cmake"
  DESTINATION ${package_dir} COMPONENT Development)
