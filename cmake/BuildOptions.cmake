# Compiler settings of every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_COMPILE_WARNING_AS_ERROR ON)

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
endif()
if(BREVANTA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
