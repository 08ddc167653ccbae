# What is installed, and the packages made of it.
#
# Two components: runtime (the shared library in its two builds) and development (header, link, archive, man pages,
# package files). Used by a top-level build only.
if(ZELM_SANITIZE)
  return()
endif()
include(CMakePackageConfigHelpers)
find_package(Python3 COMPONENTS Interpreter)

# The OpenMP runtime that this build's objects call, by the name that the linker knows: gomp or omp.
list(GET OpenMP_CXX_LIB_NAMES 0 ZELM_OPENMP_RUNTIME)

# Programs that link the archive need the runtime, but not the compiler's OpenMP flags.
set_target_properties(zelm_static PROPERTIES INTERFACE_LINK_LIBRARIES
  "$<BUILD_INTERFACE:OpenMP::OpenMP_CXX>;$<INSTALL_INTERFACE:${ZELM_OPENMP_RUNTIME}>;m")

install(TARGETS zelm EXPORT zelm-targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
# The same file name and SONAME in the directory that the dynamic loader searches first on processors that have it.
foreach(width ${ZELM_WIDTHS})
  install(TARGETS zelm_${width}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-${width} COMPONENT runtime NAMELINK_SKIP)
endforeach()
install(TARGETS zelm_static EXPORT zelm-targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/zelm/include/zelm.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# CMake package
set(ZELM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zelm)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/zelm-config.cmake.in ${PROJECT_BINARY_DIR}/zelm-config.cmake
                              INSTALL_DESTINATION ${ZELM_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zelm-config-version.cmake COMPATIBILITY SameMajorVersion)
install(EXPORT zelm-targets NAMESPACE zelm:: DESTINATION ${ZELM_CMAKE_DIR} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/zelm-config.cmake ${PROJECT_BINARY_DIR}/zelm-config-version.cmake
        DESTINATION ${ZELM_CMAKE_DIR} COMPONENT development)

# pkg-config: written when the prefix is known, which "cmake --install --prefix" and the packages choose
foreach(directory LIBDIR INCLUDEDIR)
  set(ZELM_PC_${directory} "${CMAKE_INSTALL_${directory}}")
  if(NOT IS_ABSOLUTE "${ZELM_PC_${directory}}")
    string(PREPEND ZELM_PC_${directory} "\\\${prefix}/")
  endif()
endforeach()
install(CODE "
  set(ZELM_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
  set(ZELM_LIBDIR \"${ZELM_PC_LIBDIR}\")
  set(ZELM_INCLUDEDIR \"${ZELM_PC_INCLUDEDIR}\")
  set(ZELM_VERSION \"${PROJECT_VERSION}\")
  set(ZELM_DESCRIPTION \"${PROJECT_DESCRIPTION}\")
  set(ZELM_OPENMP_RUNTIME \"${ZELM_OPENMP_RUNTIME}\")
  configure_file(\"${CMAKE_CURRENT_LIST_DIR}/zelm.pc.in\" \"${PROJECT_BINARY_DIR}/zelm.pc\" @ONLY)
" COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/zelm.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

# man pages
if(Python3_FOUND)
  set(ZELM_MAN ${PROJECT_BINARY_DIR}/man)
  set(ZELM_INTERFACE ${PROJECT_SOURCE_DIR}/tools/interface.py)
  add_custom_command(
    OUTPUT ${ZELM_MAN}/made
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${ZELM_MAN}
    COMMAND ${CMAKE_COMMAND} -E env PYTHONDONTWRITEBYTECODE=1 ${Python3_EXECUTABLE} ${ZELM_INTERFACE} --man ${ZELM_MAN}
    COMMAND ${CMAKE_COMMAND} -E touch ${ZELM_MAN}/made
    DEPENDS ${ZELM_INTERFACE} ${PROJECT_SOURCE_DIR}/tools/interface_text.py
    COMMENT "Writing man pages" VERBATIM)
  add_custom_target(zelm_man ALL DEPENDS ${ZELM_MAN}/made)
  install(DIRECTORY ${ZELM_MAN}/man3 DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT development)
else()
  message(STATUS "No man pages: they need Python 3")
endif()

# Debian packages
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelm)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "zelm")
set(CPACK_PACKAGE_CONTACT "zelm developers <zelm@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(ZELM_DEB_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${PROJECT_DESCRIPTION}\n Shared library, for x86-64 processors and, wider, for x86-64-v3 and v4.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzelmn8)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# The symbols that are used give the least versions, where the tool that knows them is installed.
find_program(ZELM_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(ZELM_SHLIBDEPS)
if(ZELM_SHLIBDEPS)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
elseif(ZELM_OPENMP_RUNTIME STREQUAL gomp)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6 (>= 2.33), libgomp1")
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6 (>= 2.33), libomp5-14")
endif()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/triggers)

set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "${PROJECT_DESCRIPTION}\n Header, static archive, man pages, and files for CMake and pkg-config.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzelmn8-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libzelmn8 (= ${ZELM_DEB_VERSION})")
include(CPack)
