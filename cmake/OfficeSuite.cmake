# Where the office suite and its development kit are. Its program is the only thing that is looked for by name.
find_program(SOFFICE soffice REQUIRED)
file(REAL_PATH ${SOFFICE} soffice_program)
cmake_path(GET soffice_program PARENT_PATH OFFICE_PROGRAM_FOLDER)
cmake_path(GET OFFICE_PROGRAM_FOLDER PARENT_PATH office_folder)
find_program(CPPUMAKER cppumaker HINTS ${office_folder}/sdk/bin REQUIRED)
find_path(UNO_INCLUDE cppuhelper/bootstrap.hxx HINTS ${office_folder}/sdk/include PATH_SUFFIXES libreoffice REQUIRED)
set(uno_libraries "")
foreach(name cppuhelpergcc3 cppu salhelpergcc3 sal)
  find_library(UNO_${name} uno_${name} HINTS ${office_folder}/sdk/lib ${OFFICE_PROGRAM_FOLDER} REQUIRED)
  list(APPEND uno_libraries ${UNO_${name}})
endforeach()

# The C++ headers of the suite's interface are generated from the types of the installed suite, anew when those change.
set(uno_headers ${PROJECT_BINARY_DIR}/uno)
set(uno_types ${OFFICE_PROGRAM_FOLDER}/types.rdb ${OFFICE_PROGRAM_FOLDER}/types/offapi.rdb)
add_custom_command(OUTPUT ${uno_headers}/made
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${uno_headers}
  COMMAND ${CPPUMAKER} -Gc -O${uno_headers} ${uno_types}
  COMMAND ${CMAKE_COMMAND} -E touch ${uno_headers}/made
  DEPENDS ${uno_types}
  COMMENT "Making the headers of the office suite's interface"
  VERBATIM)
add_custom_target(uno_headers DEPENDS ${uno_headers}/made)

# What code needs that uses the suite's interface.
add_library(penwright_unoBase INTERFACE)
add_dependencies(penwright_unoBase uno_headers)
target_include_directories(penwright_unoBase SYSTEM INTERFACE ${uno_headers} ${UNO_INCLUDE})
target_compile_definitions(penwright_unoBase INTERFACE LINUX UNX SAL_UNX CPPU_ENV=gcc3
                           OFFICE_PROGRAM_FOLDER="${OFFICE_PROGRAM_FOLDER}")
target_link_libraries(penwright_unoBase INTERFACE ${uno_libraries})
target_link_options(penwright_unoBase INTERFACE -Wl,-rpath,${OFFICE_PROGRAM_FOLDER}
                    -Wl,-rpath-link,${OFFICE_PROGRAM_FOLDER})
