# A room is a folder of src/ and a static library. Others name its headers as "room/header.h", and only a room that
# links it can find them: the include folder holds a link to this one room and nothing else.
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  set(door ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${door})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${name} SYMBOLIC)
  add_library(penwright_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(penwright_${name} PUBLIC ${door})
  target_link_libraries(penwright_${name} PUBLIC ${ROOM_LINKS})
endfunction()
