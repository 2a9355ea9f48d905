# Builds that watch their own programs. The toolchain has no sanitizer run-time for Windows, so ours is linked into
# every DLL and program.
if(QV_SANITIZER STREQUAL "undefined")
  add_library(qv_sanitizer STATIC ${CMAKE_SOURCE_DIR}/tests/support/sanitize/UndefinedHandlers.cpp)
  # vptr needs type information of the run-time that only the toolchain's own library has.
  target_compile_options(qv_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined;-fno-sanitize=vptr;-fno-sanitize-recover=all>)
  # The sanitizer's extra branches make the compiler see paths that are none.
  target_compile_options(qv_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-error>)
  target_link_libraries(qv_options INTERFACE qv_sanitizer)
elseif(QV_SANITIZER STREQUAL "guard")
  # An object library: operator new must win over the one of the C++ run-time, which is linked statically here so
  # that its own allocations come from ours as well.
  add_library(qv_sanitizer OBJECT ${CMAKE_SOURCE_DIR}/tests/support/sanitize/GuardedNew.cpp)
  target_link_libraries(qv_options INTERFACE qv_sanitizer $<TARGET_OBJECTS:qv_sanitizer>)
  target_link_options(qv_options INTERFACE -static-libstdc++ -static-libgcc)
elseif(QV_SANITIZER)
  message(FATAL_ERROR "QV_SANITIZER must be undefined, guard or empty")
endif()
