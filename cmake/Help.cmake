# The help file, from pages that can be read in a browser as well. Its compiler reads and writes only beside the project
# file, so it works on a copy.
set(help ${PROJECT_BINARY_DIR}/help)
file(GLOB help_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/help/* ${PROJECT_SOURCE_DIR}/assets/help/pictures/*)
list(FILTER help_sources EXCLUDE REGEX /pictures$)
find_program(CHMCMD chmcmd REQUIRED)
add_custom_command(OUTPUT ${help}/PWR.chm
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${help}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/assets/help ${help}
  COMMAND ${CMAKE_COMMAND} -E chdir ${help} ${PROJECT_SOURCE_DIR}/cmake/make-help ${CHMCMD} > ${PROJECT_BINARY_DIR}/help.log
  DEPENDS ${help_sources} ${PROJECT_SOURCE_DIR}/cmake/make-help
  COMMENT "Making PWR.chm"
  VERBATIM)
