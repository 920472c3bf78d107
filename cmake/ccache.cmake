# Compiles through ccache where it is installed, unless the user has chosen a launcher. Off: -DZELVANE_CCACHE=.
if(DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  return()
endif()
find_program(ZELVANE_CCACHE ccache)
if(ZELVANE_CCACHE)
  # Without these ccache does not take what is compiled with a precompiled header.
  set(ccache ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZELVANE_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${ccache})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache})
endif()
