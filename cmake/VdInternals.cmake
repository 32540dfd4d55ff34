# The libraries' objects, for tests and benchmarks of what is not exported.
add_library(internals INTERFACE)
target_sources(internals INTERFACE $<TARGET_OBJECTS:vdchartcore> $<TARGET_OBJECTS:vdpatterndesign>)
target_include_directories(internals INTERFACE
  $<TARGET_PROPERTY:vdchartcore,INTERFACE_INCLUDE_DIRECTORIES>
  $<TARGET_PROPERTY:vdpatterndesign,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(internals INTERFACE
  $<TARGET_PROPERTY:vdchartcore,INTERFACE_COMPILE_DEFINITIONS>
  $<TARGET_PROPERTY:vdpatterndesign,INTERFACE_COMPILE_DEFINITIONS>)
target_link_libraries(internals INTERFACE $<TARGET_PROPERTY:vdchartcore,LINK_LIBRARIES> vardeno::vdtranslate vardeno::vdwidget Qt${VD_QT_MAJOR}::Widgets)
