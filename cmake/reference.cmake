# The reference of the exported interface and the pages of docs, as HTML under build/<preset>/reference.
find_program(TORVANE_DOXYGEN doxygen)
if(TORVANE_DOXYGEN)
  set(torvane_reference ${CMAKE_CURRENT_SOURCE_DIR}/docs/reference.sh)
  add_custom_target(reference COMMAND ${torvane_reference} ${TORVANE_DOXYGEN} ${PROJECT_BINARY_DIR}/reference VERBATIM)
endif()
