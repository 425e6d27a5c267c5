# brevanta_show_only(<target> <name>...)
# Hides everything of a Linux module or program but the named functions.
function(brevanta_show_only target)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  list(JOIN ARGN "; " names)
  file(CONFIGURE OUTPUT ${script} CONTENT "{ global: ${names}; local: *; };\n")
  target_link_options(${target} PRIVATE -Wl,--version-script=${script})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()

# brevanta_loadable_module(<target> <file name> EXPORTS <name>...)
# Gives a module target its file name and limits what it shows to the named exports.
function(brevanta_loadable_module target file_name)
  cmake_parse_arguments(ARG "" "" "EXPORTS" ${ARGN})
  cmake_path(GET file_name STEM LAST_ONLY stem)
  cmake_path(GET file_name EXTENSION LAST_ONLY extension)
  set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${stem} SUFFIX ${extension}
    LIBRARY_OUTPUT_DIRECTORY ${BREVANTA_OUTPUT_DIR} RUNTIME_OUTPUT_DIRECTORY ${BREVANTA_OUTPUT_DIR})
  add_dependencies(programs ${target})
  if(WIN32)
    # The exports are those that PLATFORM_EXPORT marks; mingw must not add the rest.
    target_link_options(${target} PRIVATE -Wl,--exclude-all-symbols)
  else()
    brevanta_show_only(${target} ${ARG_EXPORTS})
  endif()
endfunction()

# brevanta_program_exports(<target> <name>...)
# Lets a program show the named functions to the modules that it loads, and no others.
function(brevanta_program_exports target)
  if(WIN32)
    target_link_options(${target} PRIVATE -Wl,--exclude-all-symbols)
  else()
    foreach(name IN LISTS ARGN)
      target_link_options(${target} PRIVATE -Wl,--export-dynamic-symbol=${name})
    endforeach()
    brevanta_show_only(${target} ${ARGN})  # of the standard library's inline functions, the linker shows some
  endif()
endfunction()
