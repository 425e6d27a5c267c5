# The target `coverage` runs the tests of the geometry kernel and the support libraries and reports the lines of
# Library/ and Library16/ that none of them reached; it fails unless there are none. Lines that nothing can reach
# carry a mark with the reason: GCOVR_EXCL_LINE.
find_program(GCOVR gcovr REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/coverage)

# The tests that reach the libraries' lines, those of them that this build has.
set(coverage_tests)
foreach(test geometry_test lttools_test resrel_test supp_test lttools_low_memory_test xsort_test)
  if(TARGET ${test})
    list(APPEND coverage_tests ${test})
  endif()
endforeach()
list(JOIN coverage_tests "|" pattern)

add_custom_target(coverage
  # Counts of an earlier build do not fit this one.
  COMMAND find ${CMAKE_BINARY_DIR} -name "*.gcda" -delete
  COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure -R "^(${pattern})$"
  COMMAND ${GCOVR} --root ${PROJECT_SOURCE_DIR} --object-directory ${CMAKE_BINARY_DIR}
    --filter ${PROJECT_SOURCE_DIR}/Library/ --filter ${PROJECT_SOURCE_DIR}/Library16/
    --html-details ${CMAKE_BINARY_DIR}/coverage/index.html --txt --fail-under-line 100
  WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
  USES_TERMINAL
  VERBATIM)
add_dependencies(coverage ${coverage_tests})
