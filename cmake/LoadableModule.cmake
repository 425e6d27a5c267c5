# brevanta_loadable_module(<target> <file name> EXPORTS <name>...)
# Gives a module target its file name and limits what it shows to the named exports.
function(brevanta_loadable_module target file_name)
  cmake_parse_arguments(ARG "" "" "EXPORTS" ${ARGN})
  cmake_path(GET file_name STEM LAST_ONLY stem)
  cmake_path(GET file_name EXTENSION LAST_ONLY extension)
  set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${stem} SUFFIX ${extension}
    LIBRARY_OUTPUT_DIRECTORY ${BREVANTA_OUTPUT_DIR} RUNTIME_OUTPUT_DIRECTORY ${BREVANTA_OUTPUT_DIR})
  if(WIN32)
    # The exports are those that PLATFORM_EXPORT marks; mingw must not add the rest.
    target_link_options(${target} PRIVATE -Wl,--exclude-all-symbols)
  else()
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    list(JOIN ARG_EXPORTS "; " names)
    file(CONFIGURE OUTPUT ${script} CONTENT "{ global: ${names}; local: *; };\n")
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
  endif()
endfunction()
