# Lays out the plug-in package as a folder and zips it: the shared object and
# its fonts under Vistrel/Build Resources/<platform>/, and ReadMe.txt.
# Usage: cmake -DPLUGIN= -DFONTS=a.ttf|b.ttf -DFONT_LICENSE= -DPLATFORM= -DSTRIP= -DVERSION=
#              -DREADME= -DFOLDER= -DZIP= -P MakePluginPackage.cmake
string(REPLACE "|" ";" FONTS "${FONTS}")
get_filename_component(library ${PLUGIN} NAME)
set(platform_dir "Vistrel/Build Resources/${PLATFORM}")
set(target "${FOLDER}/${platform_dir}")

file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY "${target}/fonts")
file(COPY ${PLUGIN} DESTINATION "${target}")
if(STRIP)
  execute_process(COMMAND ${STRIP} --strip-unneeded "${target}/${library}" COMMAND_ERROR_IS_FATAL ANY)
endif()
file(COPY ${FONTS} DESTINATION "${target}/fonts")
configure_file(${FONT_LICENSE} "${target}/fonts/LICENSE-Liberation.txt" COPYONLY)

# The ReadMe lists every file with its size.
file(GLOB_RECURSE files RELATIVE ${FOLDER} ${FOLDER}/*)
list(SORT files)
set(FILE_LIST "")
foreach(file ${files})
  file(SIZE "${FOLDER}/${file}" size)
  string(APPEND FILE_LIST "  ${file}  (${size} bytes)\n")
endforeach()
set(LIBRARY ${library})
configure_file(${README} ${FOLDER}/ReadMe.txt @ONLY)

# Folders get entries of their own, as zip tools write them.
file(REMOVE ${ZIP})
execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${ZIP} --format=zip
                        "--mtime=2026-01-01 00:00:00 UTC" -- ReadMe.txt Vistrel
                WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
