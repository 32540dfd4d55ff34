# What every target of the project has in common.

option(VD_PRECOMPILED_HEADERS "Precompile the toolkit's headers" ${PROJECT_IS_TOP_LEVEL})
option(VD_SYMBOLS "Debug builds have all symbols for debuggers, not only names and lines" ON)
if(PROJECT_IS_TOP_LEVEL)
  find_program(VD_MOLD mold) # links many times as fast, where it is there
endif()

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
  target_compile_definitions(${target} PRIVATE QT_NO_FOREACH QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS
    # What Qt 6 deprecates has its successor there only.
    $<$<EQUAL:${VD_QT_MAJOR},6>:QT_DEPRECATED_WARNINGS_SINCE=0x050F00>)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow> -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wold-style-cast
    # In a unity build every source is an included file.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${CMAKE_UNITY_BUILD}>>:-Wno-subobject-linkage>
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments> # as the toolkit's logging macros are
    $<$<BOOL:${VD_WARNINGS_AS_ERRORS}>:-Werror>)
  if(CMAKE_CXX_COMPILER_LAUNCHER STREQUAL ccache) # what it needs to keep objects made with precompiled headers
    set_target_properties(${target} PROPERTIES
      CXX_COMPILER_LAUNCHER "env;CCACHE_SLOPPINESS=pch_defines,time_macros;ccache")
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
  if(VD_MOLD AND CMAKE_BUILD_TYPE STREQUAL Debug)
    target_link_options(${target} PRIVATE -fuse-ld=mold)
  endif()
  if(CMAKE_BUILD_TYPE STREQUAL Debug AND NOT VD_SYMBOLS)
    target_compile_options(${target} PRIVATE -g1) # built in three quarters of the time
  endif()
  if(VD_SANITIZERS)
    target_compile_options(${target} PUBLIC -fsanitize=${VD_SANITIZERS} -fno-omit-frame-pointer
      -fno-sanitize-recover=all)
    # GCC takes the checks that the sanitizers add for writes of the program's own.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>)
    target_link_options(${target} PUBLIC -fsanitize=${VD_SANITIZERS})
  endif()
endfunction()

# vd_fast_in_debug(<source …> | TARGET <target>): what goes over every pixel is optimised in a debug build as well; the
# tests wait for it. Sources are built for themselves then, a target goes on in a unity build.
function(vd_fast_in_debug)
  cmake_parse_arguments(arg "" "TARGET" "" ${ARGN})
  if(NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    return()
  endif()
  if(arg_TARGET)
    target_compile_options(${arg_TARGET} PRIVATE -O1)
  else()
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O2 SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()

# vd_precompile(<target> [ALSO_IN_UNITY] <header …> | REUSE_FROM <target>): the headers that its sources mostly wait for. A
# library in a unity build reads them so seldom that precompiling them costs more.
function(vd_precompile target)
  cmake_parse_arguments(arg "ALSO_IN_UNITY" "REUSE_FROM" "" ${ARGN})
  if(NOT VD_PRECOMPILED_HEADERS OR (CMAKE_UNITY_BUILD AND NOT arg_ALSO_IN_UNITY))
    return()
  endif()
  if(arg_REUSE_FROM)
    target_precompile_headers(${target} REUSE_FROM ${arg_REUSE_FROM})
  else()
    target_precompile_headers(${target} PRIVATE ${arg_UNPARSED_ARGUMENTS})
  endif()
endfunction()

# vd_library(<name> [ROOMS …] SOURCES … PUBLIC_HEADERS … LINK …): a library with export header, alias and install rules.
#   ROOMS  the folders of its sources; a header is found by its name alone, and installed so
function(vd_library name)
  cmake_parse_arguments(arg "" "" "ROOMS;SOURCES;PUBLIC_HEADERS;LINK" ${ARGN})

  add_library(${name} ${arg_SOURCES} ${arg_PUBLIC_HEADERS})
  add_library(vardeno::${name} ALIAS ${name})
  vd_defaults(${name})
  target_link_libraries(${name} PUBLIC ${arg_LINK})
  list(TRANSFORM arg_ROOMS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/" OUTPUT_VARIABLE rooms)
  target_include_directories(${name} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR};${CMAKE_CURRENT_BINARY_DIR};${rooms}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vardeno/${name}>")
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} # until 1.0 each minor version has its own
    INSTALL_RPATH "$ORIGIN")
  if(BUILD_SHARED_LIBS AND NOT VD_SANITIZERS)
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()

  string(TOUPPER ${name} upper)
  generate_export_header(${name} BASE_NAME ${name})
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${name} PUBLIC ${upper}_STATIC_DEFINE)
  endif()

  if(NOT VD_INSTALL)
    return()
  endif()
  install(TARGETS ${name} EXPORT vdpatterndesign-targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
  install(FILES ${arg_PUBLIC_HEADERS} "${CMAKE_CURRENT_BINARY_DIR}/${name}_export.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vardeno/${name} COMPONENT Development)
endfunction()

# vd_install(<COMPONENT> <arguments of install() …>): installs it where installing is asked for.
function(vd_install component)
  if(VD_INSTALL)
    install(${ARGN} COMPONENT ${component})
  endif()
endfunction()
