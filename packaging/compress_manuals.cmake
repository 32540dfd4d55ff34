# Before a package is made: manual pages are compressed, as Debian has them.
file(GLOB_RECURSE manuals "${CPACK_TEMPORARY_DIRECTORY}/*.1")
list(FILTER manuals INCLUDE REGEX "/man1/")
foreach(manual IN LISTS manuals)
  execute_process(COMMAND gzip -9nf "${manual}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
