# Holds the documents against the tree below ROOT: the README's example is the smallest host letter for letter, and a
# path between back-quotes that begins with a folder of the tree is there.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/places.cmake)

file(READ ${ROOT}/README.md readme)
file(READ ${ROOT}/host/minimal/Minimal.cpp example)
string(FIND "${readme}" "```cpp\n${example}```\n" at)
if(at EQUAL -1)
  message(SEND_ERROR "README.md: the example is not host/minimal/Minimal.cpp letter for letter")
endif()

file(GLOB documents RELATIVE ${ROOT} ${ROOT}/*.md ${ROOT}/docs/*.md)
set(folders "commonwnd|platform|host|skin|lang|tests|docs|scripts|cmake")
find_lost_places(lost ROOT "`((${folders})/[A-Za-z0-9_./-]*)`" ${documents})
if(lost)
  message(FATAL_ERROR "${lost}")
endif()
