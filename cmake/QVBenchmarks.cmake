# Google Benchmark is built from the source folder that scripts/bench.sh names. Benchmarks are not part of the
# default build: `qv_benchmarks` builds them all.
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(BENCHMARK_ENABLE_TESTING OFF)
set(BENCHMARK_ENABLE_GTEST_TESTS OFF)
set(BENCHMARK_ENABLE_INSTALL OFF)
set(BENCHMARK_ENABLE_WERROR OFF)
add_subdirectory(${QV_BENCHMARK_SOURCE} ${CMAKE_BINARY_DIR}/benchmark EXCLUDE_FROM_ALL)
add_custom_target(qv_benchmarks)

# qv_add_benchmark(NAME [LIBS target...] [EXTRA_SOURCES file...])
# All .cpp and .rc files of the calling folder make one program with Google Benchmark's main.
#
# Names join the figures of one topic to one row of the table (scripts/bench_table.py):
#   BM("topic/ours")->UseRealTime()            our time
#   BM("topic/peer:NAME")->UseRealTime()       what it is held against, in the same run
# with the goal as a counter of ours: state.counters["goal_ratio"] = 1.5 (ours at most 1.5 times the peer) or
# state.counters["goal_ns"] = 50 (absolute, no peer needed). A figure that is no time of a loop (bytes, memory, a
# whole process) is printed by the program as a line
#   bench|topic|ours|unit|peer name|peer|goal ratio            (peer fields may be empty)
function(qv_add_benchmark name)
  cmake_parse_arguments(ARG "" "" "LIBS;EXTRA_SOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_executable(${name} EXCLUDE_FROM_ALL ${sources} ${ARG_EXTRA_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  target_link_libraries(${name} PRIVATE qv_options ${ARG_LIBS} benchmark::benchmark_main)
  add_dependencies(qv_benchmarks ${name})
endfunction()
