# Adds resources to the Windows programs, and writes the read-me of their zip file.

enable_language(RC)
set(GOLF_PACKAGING ${CMAKE_CURRENT_LIST_DIR})

# A program that runs on the build machine draws the icon.
golf_host_tool(${GOLF_PACKAGING}/make_icon.cpp make_icon -lz)
set(GOLF_ICON ${PROJECT_BINARY_DIR}/golf-transfer.ico)
add_custom_command(
  OUTPUT ${GOLF_ICON}
  COMMAND ${make_icon} ${GOLF_ICON}
  DEPENDS ${make_icon})
add_custom_target(golf_icon DEPENDS ${GOLF_ICON})

configure_file(${GOLF_PACKAGING}/read-me.txt ${PROJECT_BINARY_DIR}/read-me.txt @ONLY
               NEWLINE_STYLE CRLF)

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
