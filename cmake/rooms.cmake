# The rooms of the house. A room is a folder below src/ (or virtual/) with one target. Its headers are reached as
# "room/header.h", and only through the include views of the rooms that the target names: an include against the
# arrows does not compile.

set(TARNIX_WARNINGS -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wno-sign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)

# g++ 12 takes a text's own insert for an overlap when it is inlined (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  list(APPEND TARNIX_WARNINGS -Wno-restrict)
endif()

# Makes the include view of a room: a folder that holds nothing but the room's name, linked to FOLDER.
function(tarnix_view room folder)
  set(view ${CMAKE_BINARY_DIR}/views/${room})
  get_filename_component(parent ${view}/${room} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${folder} ${view}/${room} SYMBOLIC)
endfunction()

# tarnix_options(target): the language level, the warnings and the sanitizers that all code of the project has.
function(tarnix_options target)
  target_compile_options(${target} PRIVATE ${TARNIX_WARNINGS})
  if(TARNIX_SANITIZE)
    # The instrumented code misleads g++ about what is initialised.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_compile_options(${target} PRIVATE -fsanitize=${TARNIX_SANITIZE} -fno-omit-frame-pointer -g)
    target_link_options(${target} PUBLIC -fsanitize=${TARNIX_SANITIZE})
  endif()
endfunction()

# tarnix_room(name [USES room...] SOURCES file...): a static library tarnix_NAME whose headers others reach as
# "NAME/header.h". USES names the rooms that it may include.
function(tarnix_room name)
  cmake_parse_arguments(ROOM "" "" "USES;SOURCES" ${ARGN})
  add_library(tarnix_${name} STATIC ${ROOM_SOURCES})
  tarnix_options(tarnix_${name})
  tarnix_view(${name} ${CMAKE_CURRENT_SOURCE_DIR})
  target_include_directories(tarnix_${name} PUBLIC ${CMAKE_BINARY_DIR}/views/${name})
  foreach(room IN LISTS ROOM_USES)
    target_link_libraries(tarnix_${name} PUBLIC tarnix_${room})
  endforeach()
endfunction()
