# What a user gets: the folder Dorvalin with the program and its data, and, by the target "dist",
# the same as a zip in dist/. The folder is always there after a build, so that the program is
# tried as it is shipped.

if(TARGET Dorvalin)
  set(folder "${CMAKE_BINARY_DIR}/package/Dorvalin")
  set(zip "${PROJECT_SOURCE_DIR}/dist/Dorvalin-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR}.zip")
  file(GLOB_RECURSE data CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/app/data/Phrases/*" "${PROJECT_SOURCE_DIR}/app/data/Palettes/*")

  # The 32-bit program cannot be tried on every machine; so it is looked at before it is shipped.
  file(GLOB delayed CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/platform/win32/delayed/*.def")
  set(check_delayed "${PROJECT_SOURCE_DIR}/tools/check-delayed-imports")

  set(copy_data)
  if(data)
    set(copy_data COMMAND "${CMAKE_COMMAND}" -E copy_directory "${PROJECT_SOURCE_DIR}/app/data" "${folder}")
  endif()
  add_custom_command(OUTPUT "${folder}/Dorvalin.exe"
    COMMAND "${check_delayed}" "$<TARGET_FILE:Dorvalin>" ${delayed}
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${folder}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
    COMMAND "${CMAKE_COMMAND}" -E copy "$<TARGET_FILE:Dorvalin>" "${folder}/Dorvalin.exe"
    ${copy_data}
    DEPENDS Dorvalin ${data} ${delayed} "${check_delayed}"
    COMMENT "Putting the program and its data together")
  add_custom_target(package_folder ALL DEPENDS "${folder}/Dorvalin.exe")

  add_custom_target(dist
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_SOURCE_DIR}/dist"
    COMMAND "${CMAKE_COMMAND}" -E rm -f "${zip}"
    COMMAND "${CMAKE_COMMAND}" -E tar cf "${zip}" --format=zip Dorvalin
    WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/package"
    DEPENDS package_folder
    COMMENT "Writing ${zip}")
endif()
