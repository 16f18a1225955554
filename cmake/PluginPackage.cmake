# The Xojo plug-in package, made in the build tree on every build that changes
# the plug-in: package/Vistrel.xojo_plugin (a zip) and the same as a plain
# folder, package/unzipped/Vistrel.xojo_plugin/.  scripts/package copies them to out/.
set(VISTREL_PLUGIN_PLATFORM "Linux X86 64")
set(VISTREL_PACKAGE_DIR ${PROJECT_BINARY_DIR}/package)
set(VISTREL_PACKAGE_ZIP ${VISTREL_PACKAGE_DIR}/Vistrel.xojo_plugin)
set(VISTREL_PACKAGE_FOLDER ${VISTREL_PACKAGE_DIR}/unzipped/Vistrel.xojo_plugin)
string(JOIN "|" fonts ${VISTREL_FONTS})
add_custom_command(
  OUTPUT ${VISTREL_PACKAGE_ZIP}
  COMMAND ${CMAKE_COMMAND} -DPLUGIN=$<TARGET_FILE:vistrel_xojo> -DFONTS=${fonts}
          -DFONT_LICENSE=${VISTREL_FONT_LICENSE} -DPLATFORM=${VISTREL_PLUGIN_PLATFORM}
          -DSTRIP=${CMAKE_STRIP} -DVERSION=${PROJECT_VERSION}
          -DREADME=${PROJECT_SOURCE_DIR}/cmake/PluginReadMe.txt.in
          -DFOLDER=${VISTREL_PACKAGE_FOLDER} -DZIP=${VISTREL_PACKAGE_ZIP}
          -P ${PROJECT_SOURCE_DIR}/cmake/MakePluginPackage.cmake
  DEPENDS vistrel_xojo ${PROJECT_SOURCE_DIR}/cmake/MakePluginPackage.cmake
          ${PROJECT_SOURCE_DIR}/cmake/PluginReadMe.txt.in
  COMMENT "Packing Vistrel.xojo_plugin"
  VERBATIM)
add_custom_target(vistrel_xojo_package ALL DEPENDS ${VISTREL_PACKAGE_ZIP})
