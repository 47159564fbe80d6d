# The tables of the random generators: made once and committed. `random_tables` makes them anew, in some minutes;
# the tests recompute the small one whole and samples of the large one.
file(GLOB stream_search CONFIGURE_DEPENDS tools/streams/*.cpp)
list(FILTER stream_search EXCLUDE REGEX main.cpp)
add_library(torvane_stream_search OBJECT EXCLUDE_FROM_ALL ${stream_search})
target_link_libraries(torvane_stream_search PRIVATE torvane_flags)
add_executable(torvane_streams EXCLUDE_FROM_ALL tools/streams/main.cpp $<TARGET_OBJECTS:torvane_stream_search>)
target_link_libraries(torvane_streams PRIVATE torvane_flags)
add_executable(torvane_cells EXCLUDE_FROM_ALL tools/cells/main.cpp)
target_link_libraries(torvane_cells PRIVATE torvane_flags)
add_custom_target(random_tables
  COMMAND torvane_cells > ${PROJECT_SOURCE_DIR}/src/random/cellular_automaton_cells.cpp
  COMMAND torvane_streams > ${PROJECT_SOURCE_DIR}/src/random/stream_table.cpp VERBATIM)

# Feeds test sets of random numbers: tools/quality/dieharder.sh.
add_executable(torvane_raw_stream EXCLUDE_FROM_ALL tools/quality/raw_stream.cpp)
target_link_libraries(torvane_raw_stream PRIVATE TorvaneRTL::TorvaneRTL_Minimal torvane_flags)
