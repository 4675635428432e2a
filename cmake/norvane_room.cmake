# A room is a folder of sources with one library. Its headers are reached by `#include "room/..."`
# only from the rooms that it is linked to: each room has an include folder of its own that holds
# nothing but a link to its sources, so a wrong include fails to build.
function(norvane_room room)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  set(include_folder ${CMAKE_BINARY_DIR}/rooms/${room})
  file(MAKE_DIRECTORY ${include_folder})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_folder}/${room} SYMBOLIC)
  if(ROOM_SOURCES)
    add_library(${room} STATIC ${ROOM_SOURCES})
    target_include_directories(${room} PUBLIC ${include_folder})
    target_link_libraries(${room} PUBLIC ${ROOM_USES} PRIVATE norvane_options)
  else()
    add_library(${room} INTERFACE)
    target_include_directories(${room} INTERFACE ${include_folder})
    target_link_libraries(${room} INTERFACE ${ROOM_USES})
  endif()
endfunction()
