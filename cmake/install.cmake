# Installs the libraries with their unversioned names, the command, its manual pages and completions, and for developers
# the headers, a pkg-config file and a CMake package. Khronos' EGL and OpenGL ES headers come with the system. Files
# without a component here belong to the command.
include(CMakePackageConfigHelpers)
set(ZELVANE_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING "Where zsh's completion goes")
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME zelvane)

install(TARGETS zelvane_egl zelvane_gles1 zelvane_gles2 EXPORT zelvane
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zelvane
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET zelvane_libgl)
  install(TARGETS zelvane_libgl LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zelvane/desktop)
  install(FILES $<TARGET_FILE_DIR:zelvane_libgl>/libOpenGL.so.0 DESTINATION ${CMAKE_INSTALL_LIBDIR}/zelvane/desktop)
endif()
foreach(page zelvane.1 libzelvane.7)
  configure_file(${PROJECT_SOURCE_DIR}/docs/man/${page}.in ${CMAKE_BINARY_DIR}/man/${page} @ONLY)
endforeach()
install(FILES ${CMAKE_BINARY_DIR}/man/libzelvane.7 DESTINATION ${CMAKE_INSTALL_MANDIR}/man7)
install(FILES README.md CHANGELOG.md docs/profiles.md docs/running.md docs/journal.md docs/lab.md docs/lab.png docs/monitor.md docs/monitor.png docs/example-profile.xml
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(TARGET zelvane_command)
  set(completions ${PROJECT_SOURCE_DIR}/tools/completions)
  install(TARGETS zelvane_command RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/tools/run/profiles/Desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/zelvane/profiles)
  install(FILES ${PROJECT_SOURCE_DIR}/tools/capture/zelvane-capture.c DESTINATION ${CMAKE_INSTALL_DATADIR}/zelvane)
  install(FILES ${CMAKE_BINARY_DIR}/man/zelvane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${completions}/zelvane.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME zelvane)
  install(FILES ${completions}/_zelvane DESTINATION ${ZELVANE_ZSH_COMPLETIONS})
  install(FILES ${completions}/zelvane.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME zelvane-dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zelvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT zelvane NAMESPACE zelvane:: FILE zelvane-config.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zelvane-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zelvane-config-version.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)
set(OUTPUT ${CMAKE_BINARY_DIR}/zelvane.pc)
include(cmake/pkg_config.cmake)
install(FILES ${OUTPUT} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
