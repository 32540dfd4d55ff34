# What every target of the project has in common.

# vd_defaults(<target>): language level, warnings, sanitizers, hidden symbols, Qt's code generators.
function(vd_defaults target)
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON
    AUTORCC ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_compile_definitions(${target} PRIVATE QT_NO_FOREACH QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow> -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wold-style-cast
    $<$<BOOL:${VD_WARNINGS_AS_ERRORS}>:-Werror>)
  if(VD_SANITIZERS)
    target_compile_options(${target} PUBLIC -fsanitize=${VD_SANITIZERS} -fno-omit-frame-pointer
      -fno-sanitize-recover=all)
    # GCC takes the checks that the sanitizers add for writes of the program's own.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>)
    target_link_options(${target} PUBLIC -fsanitize=${VD_SANITIZERS})
  endif()
endfunction()

# vd_library(<name> SOURCES … PUBLIC_HEADERS … LINK …): a library with export header, alias and install rules.
# Its objects are also a target of their own, <name>_objects, for tests of what is not exported.
function(vd_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC_HEADERS;LINK" ${ARGN})

  add_library(${name}_objects OBJECT ${arg_SOURCES} ${arg_PUBLIC_HEADERS})
  vd_defaults(${name}_objects)
  target_include_directories(${name}_objects PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_BINARY_DIR}")
  target_link_libraries(${name}_objects PUBLIC ${arg_LINK})

  add_library(${name})
  add_library(vardeno::${name} ALIAS ${name})
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:${name}_objects> PUBLIC ${arg_LINK})
  target_compile_features(${name} PUBLIC cxx_std_17)
  target_include_directories(${name} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR};${CMAKE_CURRENT_BINARY_DIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vardeno/${name}>")
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH "$ORIGIN"
    LINKER_LANGUAGE CXX)
  if(BUILD_SHARED_LIBS AND NOT VD_SANITIZERS)
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()

  string(TOUPPER ${name} upper)
  generate_export_header(${name} BASE_NAME ${name})
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${name}_objects PUBLIC ${upper}_STATIC_DEFINE)
    target_compile_definitions(${name} PUBLIC ${upper}_STATIC_DEFINE)
  else()
    target_compile_definitions(${name}_objects PRIVATE ${name}_EXPORTS)
  endif()

  install(TARGETS ${name} EXPORT vdpatterndesign-targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  foreach(header IN LISTS arg_PUBLIC_HEADERS)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vardeno/${name}/${folder})
  endforeach()
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}_export.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vardeno/${name})
endfunction()
