# Header-only libraries of the system as targets of their own. Each sees a folder of the build tree with one link
# to the wanted headers, so that a Windows build reaches these headers without the rest of the native ones.
function(brevanta_header_only target folder)
  cmake_path(GET folder FILENAME name)
  if(NOT IS_DIRECTORY ${folder})
    message(FATAL_ERROR "${folder} is missing: install the development package of ${name}")
  endif()
  set(include ${CMAKE_BINARY_DIR}/header_only/${target})
  file(MAKE_DIRECTORY ${include})
  file(CREATE_LINK ${folder} ${include}/${name} SYMBOLIC)
  add_library(${target} INTERFACE)
  target_include_directories(${target} SYSTEM INTERFACE ${include})
endfunction()

brevanta_header_only(header_fmt /usr/include/fmt)
target_compile_definitions(header_fmt INTERFACE FMT_HEADER_ONLY)
brevanta_header_only(header_cli11 /usr/include/CLI)
brevanta_header_only(header_json /usr/include/nlohmann)
