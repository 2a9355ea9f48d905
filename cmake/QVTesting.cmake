# GoogleTest is built from Debian's source package with the same toolchain as the tree.
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# qv_add_test_program(NAME KIND rules|window [LIBS target...] [EXTRA_SOURCES file...] [CRASHES_ON_PURPOSE])
# All .cpp and .rc files of the calling folder make one program. Table tests (rules) are one ctest entry a
# program; window tests are one ctest entry a case, each in a process of its own, which has one of two displays for
# itself: ctest -j 2 is safe. What Wine says of a crash or a broken heap fails a test whatever its exit code is, unless
# its children crash on purpose.
function(qv_add_test_program name)
  cmake_parse_arguments(ARG "CRASHES_ON_PURPOSE" "KIND" "LIBS;EXTRA_SOURCES" ${ARGN})
  set(crash "wine: Unhandled|err:heap:")
  if(ARG_CRASHES_ON_PURPOSE)
    set(crash "^$.")
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_executable(${name} ${sources} ${ARG_EXTRA_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE qv_options ${ARG_LIBS} gtest)
  if(TARGET qv_test_support)
    target_link_libraries(${name} PRIVATE qv_test_support)
  else()
    target_link_libraries(${name} PRIVATE gtest_main)
  endif()
  if(ARG_KIND STREQUAL "window")
    include(GoogleTest)
    gtest_discover_tests(${name} TEST_PREFIX "${name}/" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
      NO_PRETTY_VALUES
      PROPERTIES TIMEOUT 300 LABELS window ENVIRONMENT "QV_TEST_RUN=window:${QV_STAGE}"
      FAIL_REGULAR_EXPRESSION "${crash}")
  else()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 LABELS rules
      ENVIRONMENT "QV_TEST_RUN=rules:${QV_STAGE}"
      FAIL_REGULAR_EXPRESSION "${crash}")
  endif()
endfunction()
