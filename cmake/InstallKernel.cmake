# Installs the geometry kernel and the support libraries as a CMake package of their own, BrevantaKernel:
#   cmake --install <build folder> --component kernel --prefix <where to>
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/brevanta-kernel)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/BrevantaKernel)

# The libraries given, and all libraries of this project that they link.
function(brevanta_link_closure result)
  set(found)
  set(waiting ${ARGN})
  while(waiting)
    list(POP_FRONT waiting target)
    if(target IN_LIST found)
      continue()
    endif()
    list(APPEND found ${target})
    get_target_property(links ${target} LINK_LIBRARIES)
    foreach(link IN LISTS links)
      if(TARGET ${link})
        list(APPEND waiting ${link})
      endif()
    endforeach()
  endwhile()
  set(${result} ${found} PARENT_SCOPE)
endfunction()

brevanta_link_closure(libraries geometry lttools xsort)
foreach(library IN LISTS libraries)
  target_include_directories(${library} PUBLIC $<INSTALL_INTERFACE:${headers}>)
  target_compile_features(${library} PUBLIC cxx_std_17)
endforeach()

install(TARGETS ${libraries} EXPORT BrevantaKernelTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}/brevanta-kernel COMPONENT kernel)
install(DIRECTORY Library/src/geometry Library/src/lttools DESTINATION ${headers} COMPONENT kernel
  FILES_MATCHING PATTERN "*.h")
install(FILES Library16/Inc/xsort.h DESTINATION ${headers} COMPONENT kernel)
install(FILES programs/common/brevanta/inc/HostStatus.h programs/common/brevanta/inc/ValueList.h
  programs/common/brevanta/inc/ValueNode.h
  DESTINATION ${headers}/inc COMPONENT kernel)
install(FILES platform/Heap.h DESTINATION ${headers}/platform COMPONENT kernel)

install(EXPORT BrevantaKernelTargets FILE BrevantaKernelConfig.cmake NAMESPACE BrevantaKernel::
  DESTINATION ${package} COMPONENT kernel)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/BrevantaKernelConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/BrevantaKernelConfigVersion.cmake DESTINATION ${package}
  COMPONENT kernel)
