# cmake --install lays out a prefix: the libraries with the unversioned names beside them, the header for back ends, a
# pkg-config file and a CMake package. The EGL and OpenGL ES headers are Khronos' own and come with the system.
include(CMakePackageConfigHelpers)

set(zelvane_libraries zelvane_egl zelvane_gles2)
if(TARGET zelvane_gles1)
  list(APPEND zelvane_libraries zelvane_gles1)
endif()
install(TARGETS ${zelvane_libraries} EXPORT zelvane
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zelvane)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zelvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT zelvane NAMESPACE zelvane:: FILE zelvane-config.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zelvane-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zelvane-config-version.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zelvane)

configure_file(${CMAKE_CURRENT_LIST_DIR}/zelvane.pc.in ${CMAKE_BINARY_DIR}/zelvane.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zelvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
