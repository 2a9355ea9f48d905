# Google Benchmark is built from the source folder that scripts/bench.sh names. Benchmarks are not part of the
# default build: `qv_benchmarks` builds them all.
#
# Its own build file probes the machine it is configured on, which is not the one it runs on; the sources alone are
# enough.
file(GLOB benchmark_sources ${QV_BENCHMARK_SOURCE}/src/*.cc)
add_library(qv_benchmark STATIC EXCLUDE_FROM_ALL ${benchmark_sources})
target_include_directories(qv_benchmark SYSTEM PUBLIC ${QV_BENCHMARK_SOURCE}/include)
target_compile_features(qv_benchmark PUBLIC cxx_std_20)
target_compile_definitions(qv_benchmark PUBLIC BENCHMARK_STATIC_DEFINE PRIVATE HAVE_STD_REGEX HAVE_STEADY_CLOCK)
target_link_libraries(qv_benchmark PUBLIC shlwapi)
add_custom_target(qv_benchmarks)

# qv_add_benchmark([WINDOWS] [LIBS library...])
# All .cpp files of the calling folder make one program, named after the folder as tests are (cmake/QVTesting.cmake),
# with Google Benchmark's main; WINDOWS: with one that prepares the thread for windows of the shell and of the common
# controls.
#
# Names join the figures of one topic to one row of the table (scripts/bench_table.py):
#   BM("topic/ours")->UseRealTime()            our time
#   BM("topic/peer:NAME")->UseRealTime()       what it is held against, in the same run
# (registerInTurn of tests/bench/support registers both and measures them in turn, which whatever takes long should do)
# with the goal as a counter of ours: state.counters["goal_ratio"] = 1.5 (ours at most 1.5 times the peer) or
# state.counters["goal_ns"] = 50 (absolute, no peer needed). A figure that is no time of a loop (bytes, memory, a
# whole process) is printed by the program as a line
#   bench|topic|ours|unit|peer name|peer|goal ratio            (peer fields may be empty)
function(qv_add_benchmark)
  cmake_parse_arguments(ARG "WINDOWS" "" "LIBS" ${ARGN})
  qv_program_of_folder()
  set(qv_program ${qv_program} PARENT_SCOPE)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(${qv_program} EXCLUDE_FROM_ALL ${sources})
  set_target_properties(${qv_program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  if(ARG_WINDOWS)
    target_link_libraries(${qv_program} PRIVATE qv_bench_windows)
  endif()
  target_link_libraries(${qv_program} PRIVATE qv_options ${ARG_LIBS} qv_bench_support qv_benchmark user32 gdi32)
  add_dependencies(qv_benchmarks ${qv_program})
endfunction()
