# Compiles with ccache if it is installed, unless the user has set a compiler launcher. Disabled by -DZELVANE_CCACHE=.
if(DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  return()
endif()
find_program(ZELVANE_CCACHE ccache)
if(ZELVANE_CCACHE)
  # ccache requires these to cache files that use a precompiled header.
  set(ccache ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZELVANE_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${ccache})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache})
endif()
