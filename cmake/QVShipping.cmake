# What makes a built file fit to be shipped: a version resource, and its symbols in a file of their own.

# The symbols of build/stage/FOLDER/NAME stand in build/symbols/FOLDER/NAME.debug, where a debugger that is given both
# trees finds them by the link in the file.
get_filename_component(QV_SYMBOLS ${QV_STAGE}/../symbols ABSOLUTE)

# qv_add_version(TARGET DESCRIPTION): the version resource of a DLL or program, from the project's version.
function(qv_add_version target description)
  get_target_property(type ${target} TYPE)
  set(QV_FILE_TYPE VFT_APP)
  set(suffix .exe)
  if(type STREQUAL "SHARED_LIBRARY")
    set(QV_FILE_TYPE VFT_DLL)
    set(suffix .dll)
  endif()
  set(QV_FILE_BASE ${target})
  set(QV_FILE_NAME ${target}${suffix})
  set(QV_FILE_DESCRIPTION ${description})
  set(QV_VERSION_DOTS ${PROJECT_VERSION}.0)
  string(REPLACE "." ", " QV_VERSION_COMMAS ${QV_VERSION_DOTS})
  file(STRINGS ${CMAKE_SOURCE_DIR}/LICENSE QV_COPYRIGHT REGEX "^Copyright")
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/Version.rc.in ${script} @ONLY)
  target_sources(${target} PRIVATE ${script})
endfunction()

# qv_split_symbols(TARGET): whenever the staged file is linked. The builds that watch their programs keep theirs.
function(qv_split_symbols target)
  if(QV_SANITIZER)
    return()
  endif()
  get_target_property(folder ${target} RUNTIME_OUTPUT_DIRECTORY)
  file(RELATIVE_PATH folder ${QV_STAGE} ${folder})
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -DFILE=$<TARGET_FILE:${target}> -DRESULT=$<TARGET_FILE:${target}>
      -DSYMBOLS=${QV_SYMBOLS}/${folder}/$<TARGET_FILE_NAME:${target}>.debug -DOBJCOPY=${CMAKE_OBJCOPY}
      -P ${CMAKE_SOURCE_DIR}/cmake/split-symbols.cmake)
endfunction()

# qv_stage_stripped(SOURCE TARGET LIST): a DLL that is not ours, staged without its symbols, which go where ours are.
function(qv_stage_stripped source target list)
  add_custom_command(OUTPUT ${QV_STAGE}/${target} DEPENDS ${source} VERBATIM
    COMMAND ${CMAKE_COMMAND} -DFILE=${source} -DRESULT=${QV_STAGE}/${target} -DSYMBOLS=${QV_SYMBOLS}/${target}.debug
      -DOBJCOPY=${CMAKE_OBJCOPY} -P ${CMAKE_SOURCE_DIR}/cmake/split-symbols.cmake)
  set(${list} ${${list}} ${QV_STAGE}/${target} PARENT_SCOPE)
endfunction()
