# What a reader would otherwise have to look for: ctest tells of each as of a test. A check is about
# the sources, so it runs once, in the native builds; only the headers are divided between both.

set(tools "${PROJECT_SOURCE_DIR}/tools")
if(NOT CMAKE_CROSSCOMPILING)
  add_test(NAME format COMMAND "${tools}/check-format")
  add_test(NAME layers COMMAND "${tools}/check-layers")
  set_tests_properties(format layers PROPERTIES LABELS check)
endif()

if(NOT DORVALIN_SANITIZE)
  add_test(NAME headers COMMAND "${CMAKE_COMMAND}" --build "${CMAKE_BINARY_DIR}" --target headers)
  set_tests_properties(headers PROPERTIES LABELS check)
endif()

add_custom_target(tidy COMMAND "${tools}/check-tidy" "${CMAKE_BINARY_DIR}" USES_TERMINAL)
