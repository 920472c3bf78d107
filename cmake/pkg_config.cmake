# Writes zelvane.pc for the directories of GNUInstallDirs. Included with them set; a test runs it as a script, with
# PROJECT_VERSION and OUTPUT set too. An installation may be moved, so that paths are seen from the file wherever they
# are below the prefix.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR has_fixed_libraries)
if(has_fixed_libraries)
  set(prefix ${CMAKE_INSTALL_PREFIX})
  set(libdir ${CMAKE_INSTALL_LIBDIR})
else()
  string(REGEX REPLACE "[^/]+" ".." prefix ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  set(prefix "\${pcfiledir}/${prefix}")
  set(libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_INCLUDEDIR has_fixed_headers)
if(has_fixed_headers)
  set(includedir ${CMAKE_INSTALL_INCLUDEDIR})
else()
  set(includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/zelvane.pc.in ${OUTPUT} @ONLY)
