# Shared compile settings for every TovuKit target.
include(GNUInstallDirs)

# Warnings, strict Qt defines and the optional -Werror, applied to one target.
function(tovukit_apply_settings target)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    return()
  endif()
  target_compile_features(${target} PUBLIC cxx_std_23)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_CAST_FROM_BYTEARRAY
    QT_USE_QSTRINGBUILDER
    QT_STRICT_ITERATORS)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
      -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wconversion -Wsign-conversion
      -Wnull-dereference -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
      # Designated initializers leave the other members defaulted on purpose.
      -Wno-missing-field-initializers)
    if(TOVUKIT_WERROR)
      target_compile_options(${target} PRIVATE -Werror)
    endif()
    # Each function and object in a section of its own: a host linking with
    # --gc-sections (Android's default) keeps only what it reaches.
    if(type STREQUAL "STATIC_LIBRARY" OR type STREQUAL "OBJECT_LIBRARY")
      target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-ffunction-sections -fdata-sections>)
    endif()
  endif()
endfunction()

# A QML module's target and its OUTPUT_TARGETS compile C++ that Qt writes (the
# QML files compiled ahead of time, their loader, the resources) with the
# module's warning flags. Qt's code trips some of them (shadowed lambda
# parameters; null dereferences GCC imagines in inlined QHash code at -O3), and
# it is not ours to fix, so it is compiled without warnings.
function(tovukit_quiet_generated_qml)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    return()
  endif()
  foreach(target IN LISTS ARGN)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/\\.rcc/.*\\.cpp$")
    if(sources)
      set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
    endif()
  endforeach()
endfunction()

# One layer of the library: a static target named tovukit_<layer> whose public
# headers live beside its sources and are included as <tovukit_io/<layer>/X.h>.
# GROUP names the global list the layer joins (default TOVUKIT_LAYERS, which the
# product links and installs); the web path keeps to a list of its own.
function(tovukit_add_layer layer)
  cmake_parse_arguments(ARG "" "GROUP" "SOURCES;HEADERS;PUBLIC_LINK;PRIVATE_LINK" ${ARGN})
  if(NOT ARG_GROUP)
    set(ARG_GROUP TOVUKIT_LAYERS)
  endif()
  set(target tovukit_${layer})
  # Headers keep their folder below the layer (kit/TovuBox.h) when installed.
  if(TOVUKIT_INSTALL)
    foreach(header IN LISTS ARG_HEADERS)
      get_filename_component(folder "${header}" DIRECTORY)
      install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/${header}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tovukit_io/${layer}/${folder}")
    endforeach()
  endif()
  list(TRANSFORM ARG_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  add_library(${target} STATIC ${ARG_SOURCES} ${ARG_HEADERS})
  add_library(tovukit::${target} ALIAS ${target})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON EXPORT_NAME ${target})
  target_include_directories(${target} PUBLIC
    "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LINK} PRIVATE ${ARG_PRIVATE_LINK})
  tovukit_apply_settings(${target})
  set_target_properties(${target} PROPERTIES TOVUKIT_GROUP ${ARG_GROUP})
  set_property(GLOBAL APPEND PROPERTY ${ARG_GROUP} ${target})
endfunction()

# A layer's registration: one object file that every executable linking
# tovukit_<layer> links in full, so the static initializers in it always run and
# whatever it refers to is pulled out of the static libraries (a linker drops
# the object files nothing refers to). Front ends add themselves to the manager
# this way, and QML modules make their types known. The file must need nothing
# but the TovuKit headers.
function(tovukit_add_registration layer source)
  set(target tovukit_${layer}_registration)
  add_library(${target} OBJECT ${source})
  add_library(tovukit::${target} ALIAS ${target})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON EXPORT_NAME ${target})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src")
  tovukit_apply_settings(${target})
  target_link_libraries(tovukit_${layer} INTERFACE "$<TARGET_OBJECTS:$<TARGET_NAME:${target}>>")
  get_target_property(group tovukit_${layer} TOVUKIT_GROUP)
  set_property(GLOBAL APPEND PROPERTY ${group} ${target})
endfunction()
