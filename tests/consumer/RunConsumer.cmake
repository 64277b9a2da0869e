# Builds and runs the host project of MODE (installed | subdirectory), found in
# the folder HOST (default: the folder named as MODE).
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed (${result}): ${ARGN}\n${output}")
  endif()
  set(last_output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
if(NOT HOST)
  set(HOST ${MODE})
endif()
set(host_dir "${CMAKE_CURRENT_LIST_DIR}/${HOST}")
set(build_dir "${WORK_DIR}/build")
set(configure_args -S "${host_dir}" -B "${build_dir}" -G Ninja -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=Release)

if(MODE STREQUAL "installed")
  set(prefix "${WORK_DIR}/prefix")
  run(${CMAKE_COMMAND} --install "${TOVUKIT_BUILD_DIR}" --prefix "${prefix}")
  # Only the install tree may be visible to the host: no source or build paths.
  run(${CMAKE_COMMAND} ${configure_args} "-DCMAKE_PREFIX_PATH=${prefix}")
elseif(MODE STREQUAL "subdirectory")
  run(${CMAKE_COMMAND} ${configure_args} "-DTOVUKIT_SOURCE_DIR=${TOVUKIT_SOURCE_DIR}")
else()
  message(FATAL_ERROR "unknown MODE ${MODE}")
endif()

run(${CMAKE_COMMAND} --build "${build_dir}")
run("${build_dir}/tovu-host")
message("${last_output}")
# The QML host, where the host project has one.
if(EXISTS "${build_dir}/tovu-quick-host")
  run("${build_dir}/tovu-quick-host")
  message("${last_output}")
endif()
