# The generator writes what follows from the operator table, the export list and the table of named functions.
# Its output is committed; `cmake --build <dir> --target generate` rewrites it and the test `generated_current`
# holds it.
file(GLOB generator_sources CONFIGURE_DEPENDS tools/generate/*.cpp)
add_executable(torvane_generate EXCLUDE_FROM_ALL ${generator_sources})
target_include_directories(torvane_generate PRIVATE include src)
target_link_libraries(torvane_generate PRIVATE torvane_flags)
# GCC 12 sees an overlap in "text" + string that is not there (its bug 105651).
target_compile_options(torvane_generate PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
add_custom_target(generate COMMAND torvane_generate --write ${PROJECT_SOURCE_DIR} VERBATIM)
# What it writes does not depend on how it is built: of the lanes of ./check the first alone asks.
if(TORVANE_TESTS AND TORVANE_LANE STREQUAL "")
  set_target_properties(torvane_generate PROPERTIES EXCLUDE_FROM_ALL OFF)
  add_test(NAME ${TORVANE_LANE}generated_current COMMAND torvane_generate --check ${PROJECT_SOURCE_DIR})
endif()
