# The library users install: libvistrel.a (the whole engine, C++ classes and
# the flat C interface), libvistrel.so (the flat C interface only), the public
# headers, the fonts, a CMake package and pkg-config files.
# Both libraries are made of the objects of VISTREL_ENGINE_LIBRARIES, so a
# subsystem library added later is in them without further ado.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The two public headers, generated from the flat interface's files.
set(VISTREL_GENERATED_INCLUDE ${PROJECT_BINARY_DIR}/include)
file(GLOB_RECURSE vistrel_api_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/api/*.h
     ${PROJECT_SOURCE_DIR}/api/*.cpp)
# Rewritten only when a file comes or goes, so that a removed header leaves the
# generated ones too.
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/vistrel_api_files.txt CONTENT "${vistrel_api_files}")
add_custom_command(
  OUTPUT ${PROJECT_BINARY_DIR}/vistrel_headers.stamp
  BYPRODUCTS ${VISTREL_GENERATED_INCLUDE}/vistrel.h ${VISTREL_GENERATED_INCLUDE}/vistrel.hpp
  COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
          -DOUTPUT_DIR=${VISTREL_GENERATED_INCLUDE} -DPROJECT_VERSION=${PROJECT_VERSION}
          -P ${PROJECT_SOURCE_DIR}/cmake/GenerateHeaders.cmake
  COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/vistrel_headers.stamp
  DEPENDS ${PROJECT_SOURCE_DIR}/cmake/GenerateHeaders.cmake ${PROJECT_SOURCE_DIR}/api/vistrel.h.in
          ${PROJECT_SOURCE_DIR}/api/vistrel.hpp.in ${vistrel_api_files}
          ${PROJECT_BINARY_DIR}/vistrel_api_files.txt
  COMMENT "Generating vistrel.h and vistrel.hpp"
  VERBATIM)
add_custom_target(vistrel_headers ALL DEPENDS ${PROJECT_BINARY_DIR}/vistrel_headers.stamp)

# The engine's outside libraries, each with its CMake package and pkg-config
# module; a dependency missing here stops the configuration.
set(VISTREL_EXTERNAL_PACKAGES "ZLIB::ZLIB|ZLIB|zlib" "PNG::PNG|PNG|libpng" "JPEG::JPEG|JPEG|libjpeg"
                              "Freetype::Freetype|Freetype|freetype2" "Threads::Threads|Threads|")
set(vistrel_objects "")
set(vistrel_external "")
foreach(lib ${VISTREL_ENGINE_LIBRARIES})
  list(APPEND vistrel_objects $<TARGET_OBJECTS:${lib}>)
  get_target_property(links ${lib} LINK_LIBRARIES)
  foreach(link ${links})
    if(link MATCHES "::")
      list(APPEND vistrel_external ${link})
    endif()
  endforeach()
endforeach()
list(REMOVE_DUPLICATES vistrel_external)
set(VISTREL_FIND_PACKAGES "")
set(VISTREL_PKG_MODULES "")
foreach(target ${vistrel_external})
  set(known "")
  foreach(entry ${VISTREL_EXTERNAL_PACKAGES})
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 name)
    if(name STREQUAL target)
      set(known ${fields})
    endif()
  endforeach()
  if(NOT known)
    message(FATAL_ERROR "${target}: add its CMake package and pkg-config module to "
                        "VISTREL_EXTERNAL_PACKAGES in cmake/Library.cmake")
  endif()
  list(GET known 1 package)
  list(APPEND VISTREL_FIND_PACKAGES ${package})
  list(LENGTH known fieldCount)
  if(fieldCount GREATER 2)
    list(GET known 2 module)
    list(APPEND VISTREL_PKG_MODULES ${module})
  endif()
endforeach()

set(vistrel_public_includes $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<BUILD_INTERFACE:${VISTREL_GENERATED_INCLUDE}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vistrel>)
# A sanitized engine needs the sanitizer runtime in every program that links it.
set(vistrel_consumer_link_options "")
set(VISTREL_PC_SANITIZE "")
if(VISTREL_SANITIZE)
  set(vistrel_consumer_link_options -fsanitize=address,undefined)
  set(VISTREL_PC_SANITIZE " -fsanitize=address,undefined")
endif()

add_library(vistrel_static STATIC ${vistrel_objects})
target_link_libraries(vistrel_static PUBLIC ${vistrel_external})
target_include_directories(vistrel_static INTERFACE ${vistrel_public_includes})
target_link_options(vistrel_static INTERFACE ${vistrel_consumer_link_options})
set_target_properties(vistrel_static PROPERTIES OUTPUT_NAME vistrel EXPORT_NAME vistrel
                                                ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
add_dependencies(vistrel_static vistrel_headers)

# Only the C functions leave the shared library.
add_library(vistrel_shared SHARED ${vistrel_objects})
target_link_libraries(vistrel_shared PRIVATE ${vistrel_external})
target_include_directories(vistrel_shared INTERFACE ${vistrel_public_includes})
target_link_options(vistrel_shared PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/vistrel.map
                    INTERFACE ${vistrel_consumer_link_options})
# Complete in itself; clang's sanitizers leave their runtime to the program.
if(NOT VISTREL_FUZZ)
  target_link_options(vistrel_shared PRIVATE -Wl,--no-undefined)
endif()
set_target_properties(vistrel_shared PROPERTIES
  OUTPUT_NAME vistrel
  EXPORT_NAME vistrel_shared
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
  LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/vistrel.map)
add_dependencies(vistrel_shared vistrel_headers)

# Installation.  The fonts sit beside libvistrel.so, where the engine looks for
# them; a program linked with libvistrel.a finds them beside itself
# (vistrel_copy_fonts in the CMake package) or through FONTPATH.
set(VISTREL_FONT_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/fonts)
install(TARGETS vistrel_static vistrel_shared EXPORT VistrelTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
set(vistrel_header_folders "")
foreach(lib ${VISTREL_ENGINE_LIBRARIES})
  get_target_property(sources ${lib} SOURCES)
  foreach(source ${sources})
    file(RELATIVE_PATH relative ${PROJECT_SOURCE_DIR} ${source})
    string(REGEX REPLACE "/.*" "" folder "${relative}")
    list(APPEND vistrel_header_folders ${folder})
  endforeach()
endforeach()
list(REMOVE_DUPLICATES vistrel_header_folders)
foreach(folder ${vistrel_header_folders})
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vistrel/${folder}
          FILES_MATCHING PATTERN "*.h")
endforeach()
# Users include <vistrel.h> and <vistrel.hpp>.
install(FILES ${VISTREL_GENERATED_INCLUDE}/vistrel.h ${VISTREL_GENERATED_INCLUDE}/vistrel.hpp
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vistrel)
install(FILES ${VISTREL_FONTS} ${VISTREL_FONT_LICENSE} DESTINATION ${VISTREL_FONT_INSTALL_DIR})

set(VISTREL_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Vistrel)
install(EXPORT VistrelTargets NAMESPACE Vistrel:: DESTINATION ${VISTREL_CMAKE_INSTALL_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VistrelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VistrelConfig.cmake
  INSTALL_DESTINATION ${VISTREL_CMAKE_INSTALL_DIR}
  PATH_VARS VISTREL_FONT_INSTALL_DIR)
# 0.x: every minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VistrelConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VistrelConfig.cmake ${PROJECT_BINARY_DIR}/VistrelConfigVersion.cmake
        DESTINATION ${VISTREL_CMAKE_INSTALL_DIR})

# pkg-config files find their prefix from where they lie, so the installed tree
# can move.
set(VISTREL_PKGCONFIG_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH VISTREL_PC_TO_PREFIX /${VISTREL_PKGCONFIG_INSTALL_DIR} /)
string(REGEX REPLACE "/$" "" VISTREL_PC_TO_PREFIX "${VISTREL_PC_TO_PREFIX}")
string(REPLACE ";" " " VISTREL_PC_REQUIRES "${VISTREL_PKG_MODULES}")
foreach(pc vistrel vistrel-static)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${pc}.pc.in ${PROJECT_BINARY_DIR}/${pc}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${pc}.pc DESTINATION ${VISTREL_PKGCONFIG_INSTALL_DIR})
endforeach()
