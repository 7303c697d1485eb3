# Defines the compiler options of all targets, and a function that creates the library of a room. A
# room is a folder of the source; see docs/architecture.md.

add_library(golf_options INTERFACE)
target_compile_options(golf_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(GOLF_WARNINGS_ARE_ERRORS)
  target_compile_options(golf_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This release gives false warnings where texts are joined or copied (GCC bug 105651 and related
  # ones): about overlaps, and at -O3 also about writes past the end of a buffer.
  target_compile_options(golf_options INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
target_include_directories(golf_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(GOLF_SANITIZE)
  target_compile_options(golf_options INTERFACE -fsanitize=address,undefined
                                                -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(golf_options INTERFACE -fsanitize=address,undefined)
endif()

# GOLF_SYSTEM selects the source files that exist once for each system: core/platform_*,
# cli/console_* and some files of the tests.
set(GOLF_SYSTEM posix)
if(WIN32)
  set(GOLF_SYSTEM windows)
  # With optimization, this compiler gives false warnings about the value of an empty optional (GCC
  # bug 80635).
  target_compile_options(golf_options INTERFACE -Wno-maybe-uninitialized)
  # The programs do not depend on the folder of the checkout.
  target_compile_options(golf_options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()

# golf_room(NAME SOURCES... USES targets... HEADERS headers...) creates the static library
# golf_NAME. The standard headers are precompiled once for all rooms. A room with HEADERS
# precompiles these and the standard headers for itself.
set(standard_headers <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string>
                     <string_view> <utility> <vector>)
function(golf_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES;HEADERS" ${ARGN})
  add_library(golf_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(golf_${name} PUBLIC golf_options ${ROOM_USES})
  if(name STREQUAL "core" OR ROOM_HEADERS)
    target_precompile_headers(golf_${name} PRIVATE ${standard_headers} ${ROOM_HEADERS})
  else()
    target_precompile_headers(golf_${name} REUSE_FROM golf_core)
  endif()
endfunction()
