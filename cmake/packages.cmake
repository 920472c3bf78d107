# Debian packages, one per component: zelvane for users, zelvane-dev for developers. scripts/package builds them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Zelvane maintainers <maintainers@zelvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "EGL of a handheld device on desktop OpenGL")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL zelvane zelvane-dev)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)

set(CPACK_COMPONENT_ZELVANE_DESCRIPTION
    "Runs OpenGL ES programs on the desktop's OpenGL as they would run on a handheld
device, with its configs, versions and limits, and shows what they report.
The libraries are installed in a directory of their own; zelvane run makes
programs load them.")
set(CPACK_DEBIAN_ZELVANE_PACKAGE_NAME zelvane)
set(CPACK_DEBIAN_ZELVANE_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_ZELVANE_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# Loaded at run time: libGL.so.1, and libGLX.so.0 for desktop programs. zelvane lab starts Xvfb, and zelvane monitor
# --open the user's browser.
set(CPACK_DEBIAN_ZELVANE_PACKAGE_DEPENDS "libgl1, libglx0")
set(CPACK_DEBIAN_ZELVANE_PACKAGE_RECOMMENDS "libgl1-mesa-dri, xvfb")
set(CPACK_DEBIAN_ZELVANE_PACKAGE_SUGGESTS "mesa-utils, xdg-utils")

set(CPACK_COMPONENT_ZELVANE-DEV_DESCRIPTION
    "Headers for back ends and GUIs of Zelvane, a pkg-config file and a CMake\npackage.")
set(CPACK_DEBIAN_ZELVANE-DEV_PACKAGE_NAME zelvane-dev)
set(CPACK_DEBIAN_ZELVANE-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_ZELVANE-DEV_PACKAGE_DEPENDS
    "zelvane (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), libegl-dev, libgles-dev")
include(CPack)
