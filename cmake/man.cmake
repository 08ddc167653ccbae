# The man pages: target zelm_man.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_FOUND)
  message(STATUS "No man pages: they need Python 3")
  return()
endif()
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
