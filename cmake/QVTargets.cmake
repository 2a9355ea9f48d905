# What every target of the tree shares: language level, warnings, hardening, where the results go.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN OFF)

find_program(QV_CCACHE ccache)
if(QV_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${QV_CCACHE})
endif()

# The runnable tree: copied to a Windows machine, it runs there as it stands.
set(QV_SANITIZER "" CACHE STRING "undefined, guard or empty: what watches the programs while they run")
option(QV_OWN_STAGE "The runnable tree stands in this build's folder and not in build/stage" OFF)
if(QV_SANITIZER OR QV_OWN_STAGE)
  set(QV_STAGE ${CMAKE_BINARY_DIR}/stage)
else()
  set(QV_STAGE ${CMAKE_SOURCE_DIR}/build/stage)
endif()

add_library(qv_options INTERFACE)
target_compile_definitions(qv_options INTERFACE
  UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT
  WINVER=0x0A00 _WIN32_WINNT=0x0A00 _WIN32_IE=0x0A00 NTDDI_VERSION=0x0A000000
  _GLIBCXX_ASSERTIONS)
# -Wno-restrict: GCC 12 sees overlapping copies in its own std::string operator+ (bug 105651).
target_compile_options(qv_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Werror;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Woverloaded-virtual;-Wno-unknown-pragmas;-Wno-restrict;-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.;-fstack-protector-strong>)
target_link_options(qv_options INTERFACE -Wl,--no-insert-timestamp -Wl,--disable-auto-image-base)
# The stack guard's few functions are linked in: named by the compiler's option they would be one more DLL to ship.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libssp.a
  OUTPUT_VARIABLE QV_STACK_GUARD OUTPUT_STRIP_TRAILING_WHITESPACE)
target_link_libraries(qv_options INTERFACE ${QV_STACK_GUARD})

include(QVSanitizers)
include(QVShipping)
include(CMakePackageConfigHelpers)

# qv_add_dll(NAME DESCRIPTION text [FOLDER staged-folder] [EXPORTS macro] [DEPENDS dll...] [SYSTEM_LIBS lib...])
# One DLL per folder, staged in bin unless FOLDER says another: all .cpp and .rc files below the calling folder, its
# public headers in include/. The sources are compiled once: NAME is linked from the objects, and NAME_inner is an
# archive of the same objects, from which a test or benchmark takes what the DLL does not export (an include names its
# room, "support/FileNameRules.h").
function(qv_add_dll name)
  cmake_parse_arguments(ARG "" "DESCRIPTION;FOLDER;EXPORTS" "DEPENDS;SYSTEM_LIBS" ${ARGN})
  if(NOT ARG_FOLDER)
    set(ARG_FOLDER bin)
  endif()
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  file(GLOB_RECURSE resources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_library(${name}_objects OBJECT ${sources})
  if(ARG_EXPORTS)
    target_compile_definitions(${name}_objects PUBLIC ${ARG_EXPORTS})
  endif()
  target_include_directories(${name}_objects
    PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/include ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name}_objects PUBLIC ${ARG_DEPENDS} PRIVATE qv_options)
  # Function names and lines, for whoever reads a crash; they are split off when the DLL is linked.
  target_compile_options(${name}_objects PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-g1;-gdwarf-4>)

  add_library(${name} SHARED $<TARGET_OBJECTS:${name}_objects> ${resources})
  set_target_properties(${name} PROPERTIES
    LINKER_LANGUAGE CXX PREFIX "" IMPORT_PREFIX "lib"
    RUNTIME_OUTPUT_DIRECTORY ${QV_STAGE}/${ARG_FOLDER}
    ARCHIVE_OUTPUT_DIRECTORY ${QV_STAGE}/lib)
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/include PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE qv_options ${ARG_SYSTEM_LIBS})
  qv_add_version(${name} ${ARG_DESCRIPTION})
  qv_split_symbols(${name})
  set_property(GLOBAL APPEND PROPERTY QV_PUBLIC_INCLUDE_DIRS ${CMAKE_CURRENT_SOURCE_DIR}/include)

  add_library(${name}_inner STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${name}_objects>)
  set_target_properties(${name}_inner PROPERTIES LINKER_LANGUAGE CXX)
  target_compile_definitions(${name}_inner INTERFACE ${ARG_EXPORTS})
  target_include_directories(${name}_inner
    INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/include ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name}_inner INTERFACE ${ARG_DEPENDS} ${ARG_SYSTEM_LIBS})
endfunction()

# The C++ run-time goes beside the programs: exceptions and type information cross our DLLs, so all of them must
# use the same one. Every public header goes to one include folder.
function(qv_stage_common_files)
  set(outputs)
  foreach(dll libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}.dll
      OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS ${found})
      message(FATAL_ERROR "${dll}.dll is not part of the toolchain ${CMAKE_CXX_COMPILER}")
    endif()
    qv_stage_stripped(${found} bin/${dll}.dll outputs)
  endforeach()
  qv_stage_file(${CMAKE_SOURCE_DIR}/cmake/QVCommonWndConfig.cmake
    lib/cmake/QVCommonWnd/QVCommonWndConfig.cmake outputs)
  qv_stage_file(${CMAKE_SOURCE_DIR}/cmake/mingw-w64-x86-64.cmake
    lib/cmake/QVCommonWnd/mingw-w64-x86-64.cmake outputs)
  set(version ${CMAKE_CURRENT_BINARY_DIR}/QVCommonWndConfigVersion.cmake)
  write_basic_package_version_file(${version} COMPATIBILITY SameMajorVersion)
  qv_stage_file(${version} lib/cmake/QVCommonWnd/QVCommonWndConfigVersion.cmake outputs)
  get_property(folders GLOBAL PROPERTY QV_PUBLIC_INCLUDE_DIRS)
  foreach(folder ${folders})
    file(GLOB_RECURSE headers RELATIVE ${folder} CONFIGURE_DEPENDS ${folder}/*.h)
    foreach(header ${headers})
      qv_stage_file(${folder}/${header} include/${header} outputs)
    endforeach()
  endforeach()
  add_custom_target(qv_stage ALL DEPENDS ${outputs})
endfunction()

# qv_stage_file(SOURCE TARGET LIST): one file copied to build/stage/TARGET whenever it changes.
function(qv_stage_file source target list)
  add_custom_command(OUTPUT ${QV_STAGE}/${target} DEPENDS ${source}
    COMMAND ${CMAKE_COMMAND} -E copy ${source} ${QV_STAGE}/${target})
  set(${list} ${${list}} ${QV_STAGE}/${target} PARENT_SCOPE)
endfunction()
