# A room is a folder of sources with one library, or several folders whose sources call one another.
# Its headers are reached by `#include "folder/..."` only from the rooms that it is linked to: each
# room has an include folder of its own that holds nothing but links to its sources, so a wrong
# include fails to build, and a wrong call fails to link.
#   norvane_room(NAME [FOLDERS folder...] [SOURCES file...] [USES library...])
# Without FOLDERS a room is the folder that it is declared in. Each of several FOLDERS adds its own
# sources. A room without sources is headers only.
function(norvane_room room)
  cmake_parse_arguments(ROOM "" "" "FOLDERS;SOURCES;USES" ${ARGN})
  if(ROOM_SOURCES OR ROOM_FOLDERS)
    add_library(${room} STATIC ${ROOM_SOURCES})
    target_link_libraries(${room} PRIVATE norvane_options)
    set(scope PUBLIC)
  else()
    add_library(${room} INTERFACE)
    set(scope INTERFACE)
  endif()
  if(NOT ROOM_FOLDERS)
    file(RELATIVE_PATH ROOM_FOLDERS ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  endif()
  set(include_folder ${CMAKE_BINARY_DIR}/rooms/${room})
  foreach(folder ${ROOM_FOLDERS})
    cmake_path(GET folder PARENT_PATH above)
    file(MAKE_DIRECTORY ${include_folder}/${above})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${include_folder}/${folder} SYMBOLIC)
  endforeach()
  target_include_directories(${room} ${scope} ${include_folder})
  target_link_libraries(${room} ${scope} ${ROOM_USES})
endfunction()
