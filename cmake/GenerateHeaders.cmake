# Writes the two public headers from the flat interface's own files, so that a
# class added to api/ reaches them without a second list:
#   vistrel.h    every api header that declares C functions (extern "C");
#   vistrel.hpp  every engine header the flat interface's sources include,
#                implementation headers left out, and the constant headers.
# Usage: cmake -DSOURCE_DIR=... -DOUTPUT_DIR=... -DPROJECT_VERSION=... -P GenerateHeaders.cmake
# A header is rewritten only when its text changes.

# Enumerations and colour words that C++ users need beside the classes.
set(vocabulary foundation/Constants.h draw/pixel/ColorWords.h chart/symbol/ShapeWords.h)

file(GLOB_RECURSE api_files RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/api/*.h ${SOURCE_DIR}/api/*.cpp)
list(SORT api_files)

set(c_headers "")
set(cpp_headers ${vocabulary})
foreach(file ${api_files})
  file(READ ${SOURCE_DIR}/${file} text)
  if(file MATCHES "\\.h$")
    if(text MATCHES "extern \"C\"")
      list(APPEND c_headers ${file})
    endif()
    continue()
  endif()
  string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
  foreach(line ${includes})
    string(REGEX REPLACE "#include \"([^\"]+)\"" "\\1" header "${line}")
    if(NOT header MATCHES "^api/" AND NOT header MATCHES "Impl\\.h$")
      list(APPEND cpp_headers ${header})
    endif()
  endforeach()
endforeach()
list(REMOVE_DUPLICATES cpp_headers)
list(SORT cpp_headers)

function(write_header template output headers)
  set(VISTREL_INCLUDES "")
  foreach(header ${headers})
    string(APPEND VISTREL_INCLUDES "#include \"${header}\"\n")
  endforeach()
  string(STRIP "${VISTREL_INCLUDES}" VISTREL_INCLUDES)
  configure_file(${template} ${output} @ONLY)
endfunction()

write_header(${SOURCE_DIR}/api/vistrel.h.in ${OUTPUT_DIR}/vistrel.h "${c_headers}")
write_header(${SOURCE_DIR}/api/vistrel.hpp.in ${OUTPUT_DIR}/vistrel.hpp "${cpp_headers}")
