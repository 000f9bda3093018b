# Libraries of the system that a program loads at the first call of one of their functions, since
# the resident program mostly needs none of them and they bring many others along.

# dorvalin_delayed_imports(<target> <files>)
# links the functions that the files declare, each with its size of arguments, as the 32-bit linker
# decorates names. A function that is used and missing there is an error of the linker.
function(dorvalin_delayed_imports target)
  foreach(declared ${ARGN})
    cmake_path(GET declared STEM name)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${declared}")
    file(READ "${declared}" text)
    set(underscore "_")
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
      set(underscore "")
      string(REGEX REPLACE "@[0-9]+" "" text "${text}")
    endif()

    set(definition "${CMAKE_CURRENT_BINARY_DIR}/${name}.def")
    # Without a path when it is made, since its symbols are named after it.
    set(library "lib${name}-delayed.a")
    file(CONFIGURE OUTPUT "${definition}" CONTENT "${text}")
    add_custom_command(OUTPUT "${library}"
      COMMAND "${CMAKE_DLLTOOL}" --kill-at --input-def "${definition}" --output-delaylib "${library}"
      DEPENDS "${definition}"
      WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}"
      COMMENT "Making ${name} load at its first call")
    add_custom_target(${target}_${name} DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/${library}")
    add_dependencies(${target} ${target}_${name})
    target_link_libraries(${target} PUBLIC "${CMAKE_CURRENT_BINARY_DIR}/${library}")

    # The linker does not see that a function's slot leads to the code that loads the library, and
    # would throw that code away as unused.
    string(REGEX MATCHALL "\n +[^\n]+" functions "${text}")
    foreach(function ${functions})
      string(STRIP "${function}" function)
      target_link_options(${target} INTERFACE "LINKER:--undefined=${underscore}${function}")
    endforeach()
  endforeach()
  target_link_libraries(${target} PUBLIC delayimp)
endfunction()
