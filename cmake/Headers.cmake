# Every header compiles alone. Most are the first that their own source includes, and so are compiled
# alone there; for each of the others the target "headers" makes a source that includes nothing else.
# Headers that only Windows knows are compiled in the Windows builds, all others natively, so that
# each is compiled once.

file(GLOB_RECURSE all_headers RELATIVE "${PROJECT_SOURCE_DIR}" CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/*.h")
list(FILTER all_headers EXCLUDE REGEX "^(build|dist|out)/")
if(WIN32)
  list(FILTER all_headers INCLUDE REGEX "(^|/)win32/")
else()
  list(FILTER all_headers EXCLUDE REGEX "(^|/)win32/|^e2e/")
endif()

# In `result`: whether the first thing that the header's own source includes is the header.
function(dorvalin_stands_first header result)
  string(REGEX REPLACE "\\.h$" ".cpp" own "${PROJECT_SOURCE_DIR}/${header}")
  set(first "")
  if(EXISTS "${own}")
    file(STRINGS "${own}" first REGEX "^#include" LIMIT_COUNT 1)
  endif()
  if(first STREQUAL "#include \"${header}\"")
    set(${result} TRUE PARENT_SCOPE)
  else()
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

set(header_sources)
foreach(header ${all_headers})
  dorvalin_stands_first("${header}" compiled)
  if(compiled)
    continue()
  endif()
  set(source "${CMAKE_BINARY_DIR}/headers/${header}.cpp")
  if(NOT EXISTS "${source}")
    file(WRITE "${source}" "#include \"${header}\"\n")
  endif()
  list(APPEND header_sources "${source}")
endforeach()

if(header_sources)
  add_library(headers OBJECT EXCLUDE_FROM_ALL ${header_sources})
  target_link_libraries(headers PRIVATE dorvalin_rules dorvalin_gtest)
  target_compile_options(headers PRIVATE -O0)
else()
  add_custom_target(headers)
endif()
