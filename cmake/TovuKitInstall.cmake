# Install rules and the exported CMake package: find_package(tovukit_io) then
# target_link_libraries(app PRIVATE tovukit::tovukit_io).
include(CMakePackageConfigHelpers)

get_property(layers GLOBAL PROPERTY TOVUKIT_LAYERS)
install(TARGETS ${layers} tovukit_io
  EXPORT tovukit_ioTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/tovukit_io/objects
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# Each layer installs its own headers (tovukit_add_layer).
get_property(umbrella GLOBAL PROPERTY TOVUKIT_HEADERS_umbrella)
install(FILES ${umbrella} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tovukit_io)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tovukit_io)
install(EXPORT tovukit_ioTargets NAMESPACE tovukit:: DESTINATION ${config_dir})

# The Qt Quick front end too: find_package(tovukit_io COMPONENTS quick).
get_property(quick_layers GLOBAL PROPERTY TOVUKIT_QUICK_LAYERS)
if(quick_layers)
  install(TARGETS ${quick_layers}
    EXPORT tovukit_ioQuickTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/tovukit_io/objects
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT tovukit_ioQuickTargets NAMESPACE tovukit:: DESTINATION ${config_dir})
endif()

# The web path has an export set of its own, loaded by the package config only
# where QtWebEngine is found: find_package(tovukit_io COMPONENTS web).
get_property(web_layers GLOBAL PROPERTY TOVUKIT_WEB_LAYERS)
if(web_layers)
  install(TARGETS ${web_layers}
    EXPORT tovukit_ioWebTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/tovukit_io/objects
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT tovukit_ioWebTargets NAMESPACE tovukit:: DESTINATION ${config_dir})
endif()
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
