# Installs the kernel below the build folder, builds the example against it, and compares what it prints.
set(folder ${BUILD}/kernel_package)
file(REMOVE_RECURSE ${folder})

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --component kernel --prefix ${folder}/prefix)
set(settings -D CMAKE_BUILD_TYPE=Release -D CMAKE_CXX_FLAGS=${FLAGS})
if(TOOLCHAIN)
  # A cross compiler looks for packages below its own root alone unless it is told where.
  list(APPEND settings -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -D BrevantaKernel_DIR=${folder}/prefix/lib/cmake/BrevantaKernel)
else()
  list(APPEND settings -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_PREFIX_PATH=${folder}/prefix)
endif()
run(${CMAKE_COMMAND} -G Ninja -S ${EXAMPLE} -B ${folder}/example ${settings})
run(${CMAKE_COMMAND} --build ${folder}/example)

file(GLOB program ${folder}/example/roof_report ${folder}/example/roof_report.exe)
execute_process(COMMAND ${EMULATOR} ${program} ${EXAMPLE}/alphabet.tbl
  OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r\n" "\n" printed "${printed}")
file(READ ${EXAMPLE}/expected.txt expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "The example printed:\n${printed}\nexpected:\n${expected}")
endif()
