# Defines functions that use programs of this project during the build. These programs run on the
# build machine, also when the project is built for another system.

if(CMAKE_CROSSCOMPILING)
  find_program(GOLF_HOST_CXX NAMES g++ c++ REQUIRED)
else()
  set(GOLF_HOST_CXX ${CMAKE_CXX_COMPILER})
endif()

# golf_host_tool(SOURCE TOOL LIBRARIES...) sets the variable TOOL to the program that is built from
# the source.
function(golf_host_tool source tool)
  cmake_path(GET source STEM name)
  set(program ${PROJECT_BINARY_DIR}/host_tools/${name})
  add_custom_command(
    OUTPUT ${program}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/host_tools
    COMMAND ${GOLF_HOST_CXX} -std=c++20 -O2 -o ${program} ${source} ${ARGN}
    DEPENDS ${source})
  add_custom_target(golf_${name}_tool DEPENDS ${program})
  set(${tool} ${program} PARENT_SCOPE)
endfunction()

golf_host_tool(${CMAKE_CURRENT_LIST_DIR}/embed_text.cpp GOLF_EMBED_TEXT)

# golf_embed_text(TARGET NAME TEXT FOLDER) adds a constant with the text of a file to the target.
# FOLDER contains the pictures of the text.
function(golf_embed_text target name text folder)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(GLOB pictures CONFIGURE_DEPENDS ${folder}/pictures/*.png)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${GOLF_EMBED_TEXT} ${text} ${folder} ${name} ${source}
    DEPENDS ${GOLF_EMBED_TEXT} ${text} ${pictures})
  target_sources(${target} PRIVATE ${source})
  set_source_files_properties(${source} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()
