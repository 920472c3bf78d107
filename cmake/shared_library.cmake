# zelvane_shared_library(TARGET NAME VERSION EXPORTS)
# Names the target's file as the platform does, libNAME.so.VERSION or libNAME.dylib, and exports only the symbols in the
# version script EXPORTS. Apple's linker requires a plain list, which is generated from the script.
function(zelvane_shared_library target name version exports)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} LINK_DEPENDS ${exports})
  if(APPLE)
    zelvane_symbol_list(${exports} ${CMAKE_CURRENT_BINARY_DIR}/${name}.symbols)
    target_link_options(${target} PRIVATE -Wl,-exported_symbols_list,${CMAKE_CURRENT_BINARY_DIR}/${name}.symbols)
  else()
    set_target_properties(${target} PROPERTIES SOVERSION ${version})
    target_link_options(${target} PRIVATE -Wl,--version-script=${exports})
  endif()
endfunction()

# The symbols between "global:" and "local:", one per line with Apple's leading underscore.
function(zelvane_symbol_list script list)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${script})
  file(READ ${script} text)
  string(REGEX REPLACE ".*global:(.*)local:.*" "\\1" text "${text}")
  string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_*]*" symbols "${text}")
  list(TRANSFORM symbols PREPEND "_")
  list(JOIN symbols "\n" text)
  file(WRITE ${list} "${text}\n")
endfunction()
