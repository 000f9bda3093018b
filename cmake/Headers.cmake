# Every header compiles alone: the target "headers" makes one source per header that includes
# nothing else. Headers that only Windows knows are compiled in the Windows builds, all others
# natively, so that each is compiled once.

file(GLOB_RECURSE all_headers RELATIVE "${PROJECT_SOURCE_DIR}" CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/*.h")
list(FILTER all_headers EXCLUDE REGEX "^(build|dist|out)/")
if(WIN32)
  list(FILTER all_headers INCLUDE REGEX "(^|/)win32/")
else()
  list(FILTER all_headers EXCLUDE REGEX "(^|/)win32/|^e2e/")
endif()

set(header_sources)
foreach(header ${all_headers})
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
