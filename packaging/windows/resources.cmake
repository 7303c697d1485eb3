# Adds resources to the Windows programs.

enable_language(RC)
set(GOLF_PACKAGING ${CMAKE_CURRENT_LIST_DIR})

# A program that runs on the build machine draws the icon.
find_program(GOLF_HOST_CXX NAMES g++ c++ REQUIRED)
set(GOLF_ICON ${PROJECT_BINARY_DIR}/golf-transfer.ico)
add_custom_command(
  OUTPUT ${GOLF_ICON}
  COMMAND ${GOLF_HOST_CXX} -std=c++20 -O2 -o make_icon ${GOLF_PACKAGING}/make_icon.cpp
  COMMAND ./make_icon ${GOLF_ICON}
  DEPENDS ${GOLF_PACKAGING}/make_icon.cpp
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
add_custom_target(golf_icon DEPENDS ${GOLF_ICON})

# golf_resources(PROGRAM DESCRIPTION) adds the resources of an executable.
function(golf_resources program description)
  set(icon ${GOLF_ICON})
  set(manifest ${GOLF_PACKAGING}/program.manifest)
  set(resources ${PROJECT_BINARY_DIR}/${program}.rc)
  configure_file(${GOLF_PACKAGING}/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
  target_sources(${program} PRIVATE ${resources})
  add_dependencies(${program} golf_icon)
endfunction()
