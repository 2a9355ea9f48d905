# Every link of a document below ROOT to a file leads somewhere. What is built is left out, and the package's own
# documents, whose links lead from the package.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/places.cmake)
file(GLOB_RECURSE documents RELATIVE ${ROOT} ${ROOT}/*.md)
list(FILTER documents EXCLUDE REGEX "^(build|scripts/package)/")
find_lost_places(lost DOCUMENT "\\]\\(([^(): #]+)\\)" ${documents})
if(lost)
  message(FATAL_ERROR "${lost}")
endif()
