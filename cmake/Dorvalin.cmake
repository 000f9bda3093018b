# The rules every folder is built by: one static library per folder, one test program per test folder.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Beyond -O2 the programs grow and the loops over pixels do not get faster.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

option(DORVALIN_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(DORVALIN_FUZZ "Build the fuzzers and what they test for libFuzzer, with clang" OFF)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER "${CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_library(dorvalin_rules INTERFACE)
target_include_directories(dorvalin_rules INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(dorvalin_rules INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)
if(DORVALIN_SANITIZE)
  target_compile_options(dorvalin_rules INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(dorvalin_rules INTERFACE -fsanitize=address,undefined)
endif()
if(DORVALIN_FUZZ)
  target_compile_options(dorvalin_rules INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  enable_language(RC)
  target_compile_definitions(dorvalin_rules INTERFACE UNICODE _UNICODE)
  target_compile_options(dorvalin_rules INTERFACE -ffunction-sections -fdata-sections)
  # Nothing of the compiler's may be missing on the user's machine, and nothing unused is shipped.
  target_link_options(dorvalin_rules INTERFACE -static -Wl,--gc-sections $<$<CONFIG:Release>:-s>)
  # With sections at page borders of the file, Wine maps the program instead of reading it whole.
  target_link_options(dorvalin_rules INTERFACE -Wl,--file-alignment=4096)
endif()

# dorvalin_library(<folder> SOURCES <files> [LINKS <folders or libraries>])
# makes the library dorvalin_<folder>; a folder in LINKS is named without the prefix.
function(dorvalin_library name)
  cmake_parse_arguments(LIB "" "" "SOURCES;LINKS" ${ARGN})
  add_library(dorvalin_${name} STATIC ${LIB_SOURCES})
  target_link_libraries(dorvalin_${name} PUBLIC dorvalin_rules)
  _dorvalin_link(dorvalin_${name} PUBLIC ${LIB_LINKS})
endfunction()

# dorvalin_program(<name> SOURCES <files> [LINKS <folders or libraries>])
# makes a Windows program without a console.
function(dorvalin_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} WIN32 ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE dorvalin_rules)
  _dorvalin_link(${name} PRIVATE ${PROGRAM_LINKS})
endfunction()

# dorvalin_test(<folder> SOURCES <files> [LINKS <folders or libraries>])
# makes the test program <folder>_tests and tells ctest of it.
function(dorvalin_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_tests ${TEST_SOURCES})
  _dorvalin_link(${name}_tests PRIVATE ${TEST_LINKS})
  target_link_libraries(${name}_tests PRIVATE dorvalin_rules dorvalin_gtest)
  add_test(NAME ${name} COMMAND ${name}_tests)
  set_tests_properties(${name} PROPERTIES LABELS gtest)
endfunction()

# dorvalin_benchmark(<name> SOURCES <files> [LINKS <folders or libraries>])
# makes the program bench_<name>; benchmarks are never run as tests.
function(dorvalin_benchmark name)
  cmake_parse_arguments(BENCH "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(bench_${name} ${BENCH_SOURCES})
  _dorvalin_link(bench_${name} PRIVATE ${BENCH_LINKS})
  target_link_libraries(bench_${name} PRIVATE dorvalin_rules)
endfunction()

# dorvalin_fuzzer(<name> SOURCES <files> [LINKS <folders or libraries>])
# makes the program fuzz_<name> if fuzzers are asked for.
function(dorvalin_fuzzer name)
  if(NOT DORVALIN_FUZZ)
    return()
  endif()
  cmake_parse_arguments(FUZZ "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(fuzz_${name} ${FUZZ_SOURCES})
  _dorvalin_link(fuzz_${name} PRIVATE ${FUZZ_LINKS})
  target_link_libraries(fuzz_${name} PRIVATE dorvalin_rules)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endfunction()

function(_dorvalin_link target scope)
  foreach(item ${ARGN})
    if(EXISTS "${PROJECT_SOURCE_DIR}/${item}/CMakeLists.txt" OR item STREQUAL "desktop")
      target_link_libraries(${target} ${scope} dorvalin_${item})
    else()
      target_link_libraries(${target} ${scope} ${item})
    endif()
  endforeach()
endfunction()

# GoogleTest comes from the system's sources, so that it can be built for Windows as well.
add_library(dorvalin_gtest INTERFACE)
if(EXISTS /usr/src/googletest/CMakeLists.txt)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
  target_link_libraries(dorvalin_gtest INTERFACE GTest::gmock_main)
endif()
