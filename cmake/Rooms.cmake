# A room is a folder of src/ and a static library. Others include its headers as "room/header.h". Only rooms that link it
# find them, because each room has its own include folder, with nothing but a link to that room.
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  set(include_folder ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${include_folder})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_folder}/${name} SYMBOLIC)
  add_library(penwright_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(penwright_${name} PUBLIC ${include_folder})
  target_link_libraries(penwright_${name} PUBLIC ${ROOM_LINKS})
endfunction()
