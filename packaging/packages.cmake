# cpack -G DEB, which scripts/package.sh runs, makes three packages: the libraries, what hosts are built with, and the programs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "test chart designer for large LED screens")
set(CPACK_PACKAGE_CONTACT "Chart Desk developers <chartdesk@vardeno.org>")
set(CPACK_PACKAGE_VENDOR "Chart Desk developers")
set(CPACK_COMPONENTS_ALL Runtime Development Programs)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(soversion "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
set(libraries "libvdpatterndesign${soversion}")
set(exactly "${libraries} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${libraries}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "The editor of test charts as a Qt widget that a host embeds, and the library
without widgets that draws them.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_SOURCE_DIR}/triggers")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvdpatterndesign-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${exactly}, qtbase5-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config file for hosts that embed the editor of
test charts, and the plugin of Qt Designer that offers it for forms.")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME chartdesk)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "${exactly}, fonts-dejavu-core")
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION "Designs the still pictures that a technician puts on a wall of LED cabinets,
shows them pixel for pixel, walks the wall, and draws the same charts by
command.")

# Each package says whose it is, and what has changed.
find_program(VD_GZIP gzip REQUIRED)
mark_as_advanced(VD_GZIP)
configure_file(changelog.in changelog @ONLY)
execute_process(COMMAND "${VD_GZIP}" -9nc changelog
  WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" OUTPUT_FILE "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(documents "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
  vd_install(${component} FILES copyright "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz" DESTINATION ${documents})
endforeach()

set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/compress_manuals.cmake")
include(CPack)
