# Fails if one of FILES needs the toolkit's widgets, or holds code that does.
foreach(file IN LISTS FILES)
  execute_process(COMMAND ${READELF} --dynamic ${file} OUTPUT_VARIABLE needed COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${READELF} --wide --dyn-syms ${file} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  if(needed MATCHES "lib(Qt[0-9]?Widgets|vdpatterndesign)" OR symbols MATCHES "[0-9]QWidget[0-9]|12QApplication")
    message(FATAL_ERROR "${file} needs ${CMAKE_MATCH_0}")
  endif()
endforeach()
