# cmake --install lays out a prefix: the libraries with the unversioned names beside them, the header for back ends, a
# pkg-config file and a CMake package. The EGL and OpenGL ES headers are Khronos' own and come with the system.
include(CMakePackageConfigHelpers)

install(TARGETS zelvane_egl zelvane_gles1 zelvane_gles2 EXPORT zelvane
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zelvane)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zelvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT zelvane NAMESPACE zelvane:: FILE zelvane-config.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zelvane-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zelvane-config-version.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)

# Manual pages, and completions where each shell looks for them.
set(ZELVANE_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING "Where zsh's completion goes")
foreach(page zelvane.1 libzelvane.7)
  configure_file(${PROJECT_SOURCE_DIR}/docs/man/${page}.in ${CMAKE_BINARY_DIR}/man/${page} @ONLY)
endforeach()
install(FILES ${CMAKE_BINARY_DIR}/man/zelvane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_BINARY_DIR}/man/libzelvane.7 DESTINATION ${CMAKE_INSTALL_MANDIR}/man7)
set(completions ${PROJECT_SOURCE_DIR}/tools/completions)
install(FILES ${completions}/zelvane.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME zelvane)
install(FILES ${completions}/_zelvane DESTINATION ${ZELVANE_ZSH_COMPLETIONS})
install(FILES ${completions}/zelvane.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

configure_file(${CMAKE_CURRENT_LIST_DIR}/zelvane.pc.in ${CMAKE_BINARY_DIR}/zelvane.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zelvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
