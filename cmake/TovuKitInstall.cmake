# Install rules and the exported CMake package: find_package(tovukit_io) then
# target_link_libraries(app PRIVATE tovukit::tovukit_io).
include(CMakePackageConfigHelpers)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tovukit_io)

# The targets of one group (with the object files some link whole) as an export
# set of the package, when the group has any.
function(tovukit_install_group group export)
  get_property(targets GLOBAL PROPERTY ${group})
  if(NOT targets)
    return()
  endif()
  install(TARGETS ${targets} ${ARGN}
    EXPORT ${export}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/tovukit_io/objects
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT ${export} NAMESPACE tovukit:: DESTINATION ${config_dir})
endfunction()

tovukit_install_group(TOVUKIT_LAYERS tovukit_ioTargets tovukit_io)

# Each layer installs its own headers (tovukit_add_layer).
get_property(umbrella GLOBAL PROPERTY TOVUKIT_HEADERS_umbrella)
install(FILES ${umbrella} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tovukit_io)

# The Qt Quick front end and the web path have export sets of their own, loaded by
# the package config only where their Qt modules are found:
# find_package(tovukit_io COMPONENTS quick web).
tovukit_install_group(TOVUKIT_QUICK_LAYERS tovukit_ioQuickTargets)
tovukit_install_group(TOVUKIT_WEB_LAYERS tovukit_ioWebTargets)

configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/tovukit_ioConfig.cmake.in
  ${PROJECT_BINARY_DIR}/tovukit_ioConfig.cmake
  INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/tovukit_ioConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/tovukit_ioConfig.cmake
  ${PROJECT_BINARY_DIR}/tovukit_ioConfigVersion.cmake
  DESTINATION ${config_dir})
