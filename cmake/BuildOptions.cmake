# Compiler settings of every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

set(BREVANTA_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize")

option(BREVANTA_COVERAGE "Count the lines that the tests reach" OFF)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion
  -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wduplicated-cond -Wlogical-op
  -Wcast-align -Wimplicit-fallthrough -Wformat=2 -Wundef
  -ffp-contract=off)  # the same rounding everywhere
if(BREVANTA_SANITIZE)
  add_compile_options(-fsanitize=${BREVANTA_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${BREVANTA_SANITIZE})
  # At a fixed address: the sanitizers' tables have millions of pointers that each start would have to relocate.
  string(APPEND CMAKE_EXE_LINKER_FLAGS " -no-pie")
endif()
if(BREVANTA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# Objects that were compiled before, in this folder or another, come from the cache; it knows them by the contents of
# all that they are made of.
find_program(CCACHE ccache NO_CMAKE_FIND_ROOT_PATH)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

# brevanta_precompile(<target> <header>...)
# Headers that take longer to compile than the sources that use them.
function(brevanta_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  # So that the cache can tell what a source is made of.
  target_compile_options(${target} PRIVATE -fpch-preprocess)
endfunction()
