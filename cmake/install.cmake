# What is installed, in two components: runtime (the shared library in all its builds) and development (header, link,
# archive, man pages, files for CMake and pkg-config).
include(CMakePackageConfigHelpers)

# The OpenMP runtime that this build's objects call, by the name that the linker knows: gomp or omp.
list(GET OpenMP_CXX_LIB_NAMES 0 ZELM_OPENMP_RUNTIME)

# Programs that link the archive need the runtime, but not the compiler's OpenMP flags.
set_target_properties(zelm_static PROPERTIES INTERFACE_LINK_LIBRARIES
  "$<BUILD_INTERFACE:OpenMP::OpenMP_CXX>;$<INSTALL_INTERFACE:${ZELM_OPENMP_RUNTIME}>;m")

# zelm_install(export): the rules, into the folders that CMAKE_INSTALL_LIBDIR and its like name where it is called: once
# for an installation of this build, once for the packages.
function(zelm_install export)
  install(TARGETS zelm EXPORT ${export}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
  # The same file name and SONAME in the directory that the dynamic loader searches first on processors that have it.
  foreach(width ${ZELM_WIDTHS})
    install(TARGETS zelm_${width}
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-${width} COMPONENT runtime NAMELINK_SKIP)
  endforeach()
  install(TARGETS zelm_static EXPORT ${export}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
  install(FILES ${PROJECT_SOURCE_DIR}/zelm/include/zelm.h
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

  # CMake package. A SONAME holds for one minor version, and so does what a program may ask for.
  set(directory ${CMAKE_INSTALL_LIBDIR}/cmake/zelm)
  set(work ${CMAKE_CURRENT_BINARY_DIR}/${export})
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zelm-config.cmake.in ${work}/zelm-config.cmake
                                INSTALL_DESTINATION ${directory})
  write_basic_package_version_file(${work}/zelm-config-version.cmake COMPATIBILITY SameMinorVersion)
  install(EXPORT ${export} NAMESPACE zelm:: FILE zelm-targets.cmake DESTINATION ${directory} COMPONENT development)
  install(FILES ${work}/zelm-config.cmake ${work}/zelm-config-version.cmake
          DESTINATION ${directory} COMPONENT development)

  # pkg-config: written when the prefix is known, which "cmake --install --prefix" and the packages choose
  foreach(name LIBDIR INCLUDEDIR)
    set(pc_${name} "${CMAKE_INSTALL_${name}}")
    if(NOT IS_ABSOLUTE "${pc_${name}}")
      string(PREPEND pc_${name} "\\\${prefix}/")
    endif()
  endforeach()
  install(CODE "
    set(ZELM_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
    set(ZELM_LIBDIR \"${pc_LIBDIR}\")
    set(ZELM_INCLUDEDIR \"${pc_INCLUDEDIR}\")
    set(ZELM_VERSION \"${PROJECT_VERSION}\")
    set(ZELM_DESCRIPTION \"${PROJECT_DESCRIPTION}\")
    set(ZELM_OPENMP_RUNTIME \"${ZELM_OPENMP_RUNTIME}\")
    configure_file(\"${PROJECT_SOURCE_DIR}/cmake/zelm.pc.in\" \"${work}/zelm.pc\" @ONLY)
  " COMPONENT development)
  install(FILES ${work}/zelm.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

  if(TARGET zelm_man)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/man/man3 DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT development)
  endif()
endfunction()
