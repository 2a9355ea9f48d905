# GoogleTest is built from Debian's source package with the same toolchain as the tree.
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# qv_program_of_folder(): sets qv_program, the name of the calling folder's program: tests/windows/commonwnd/folders
# makes windows_commonwnd_folders.
macro(qv_program_of_folder)
  file(RELATIVE_PATH qv_program ${CMAKE_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" qv_program ${qv_program})
endmacro()

# qv_add_test_program([LIBS library...] [NEEDS target...] [DEFINES definition...] [CRASHES_ON_PURPOSE])
# The .cpp and .rc files of the calling folder make one program named after it, those of tests/rules with the folders
# below (one program a DLL). Table tests (rules) are one ctest entry a program; all others (window) are one ctest entry
# a case, each in a process of its own, which has one of two displays for itself: ctest -j 2 is safe. What Wine says of
# a crash or a broken heap fails a test whatever its exit code is, unless its children crash on purpose.
# qv_program is the name made, for the caller too.
function(qv_add_test_program)
  cmake_parse_arguments(ARG "CRASHES_ON_PURPOSE" "" "LIBS;NEEDS;DEFINES" ${ARGN})
  qv_program_of_folder()
  set(qv_program ${qv_program} PARENT_SCOPE)
  set(crash "wine: Unhandled|err:heap:")
  if(ARG_CRASHES_ON_PURPOSE)
    set(crash "^$.")
  endif()
  set(glob GLOB)
  if(qv_program MATCHES "^rules_")
    set(glob GLOB_RECURSE)
  endif()
  file(${glob} sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_executable(${qv_program} ${sources})
  set_target_properties(${qv_program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_compile_definitions(${qv_program} PRIVATE ${ARG_DEFINES})
  target_link_libraries(${qv_program} PRIVATE qv_options ${ARG_LIBS} gtest qv_test_support)
  if(ARG_NEEDS)
    add_dependencies(${qv_program} ${ARG_NEEDS})
  endif()
  if(qv_program MATCHES "^rules_")
    add_test(NAME ${qv_program} COMMAND ${qv_program})
    set_tests_properties(${qv_program} PROPERTIES TIMEOUT 120 LABELS rules
      ENVIRONMENT "QV_TEST_RUN=rules:${QV_STAGE}"
      FAIL_REGULAR_EXPRESSION "${crash}")
  else()
    include(GoogleTest)
    gtest_discover_tests(${qv_program} TEST_PREFIX "${qv_program}/" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
      NO_PRETTY_VALUES
      PROPERTIES TIMEOUT 300 LABELS window ENVIRONMENT "QV_TEST_RUN=window:${QV_STAGE}"
      FAIL_REGULAR_EXPRESSION "${crash}")
  endif()
endfunction()

# qv_add_test_helper(FOLDER [SHARED|WIN32] [LIBS library...])
# A program or DLL that the calling folder's tests start or load: the sources of a folder below, PROGRAM_FOLDER.
function(qv_add_test_helper folder)
  cmake_parse_arguments(ARG "SHARED;WIN32" "" "LIBS" ${ARGN})
  qv_program_of_folder()
  set(name ${qv_program}_${folder})
  file(GLOB sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.rc)
  if(ARG_SHARED)
    add_library(${name} SHARED ${sources})
  elseif(ARG_WIN32)
    add_executable(${name} WIN32 ${sources})
  else()
    add_executable(${name} ${sources})
  endif()
  set_target_properties(${name} PROPERTIES PREFIX "" RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE qv_options ${ARG_LIBS})
  add_dependencies(${qv_program} ${name})
endfunction()

# qv_add_test_support([LIBS library...] [NEEDS target...])
# tests/support/FOLDER: what the tests of one DLL share, as the library qv_test_support_FOLDER.
function(qv_add_test_support)
  cmake_parse_arguments(ARG "" "" "LIBS;NEEDS" ${ARGN})
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set(name qv_test_support_${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_library(${name} STATIC EXCLUDE_FROM_ALL ${sources})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE qv_options PUBLIC ${ARG_LIBS} qv_test_support)
  # A resource inside a static library would not reach the program.
  target_sources(${name} INTERFACE ${resources})
  if(ARG_NEEDS)
    add_dependencies(${name} ${ARG_NEEDS})
  endif()
endfunction()
