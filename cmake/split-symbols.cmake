# Splits FILE into RESULT without symbols, which may be the same file, and SYMBOLS, which RESULT names with a sum of its
# bytes. The same input makes the same files: their headers get no time.
cmake_minimum_required(VERSION 3.25)
set(ENV{SOURCE_DATE_EPOCH} 0)
foreach(path ${RESULT} ${SYMBOLS})
  get_filename_component(folder ${path} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
endforeach()
execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND ${OBJCOPY} --only-keep-debug ${FILE} ${SYMBOLS})
execute_process(COMMAND_ERROR_IS_FATAL ANY
  COMMAND ${OBJCOPY} --strip-all --add-gnu-debuglink=${SYMBOLS} ${FILE} ${RESULT})
