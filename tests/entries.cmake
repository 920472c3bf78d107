# The staged library and the files beside it:
#   stage/libEGL.so.1, stage/libGL.so.1        the library with the recording platform, and the fake host OpenGL
#   stage/back_ends, stage/no_delete, ...      fake back ends, selected by KZRTRACE_LIB_PATH
set(stage ${CMAKE_BINARY_DIR}/stage)

file(READ ${PROJECT_SOURCE_DIR}/src/egl/exports.map exports)
string(REPLACE "global:" "global:\n    recording*;" exports "${exports}")
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/stage_exports.map CONTENT "${exports}" @ONLY)

add_library(staged_egl SHARED support/private_socket_path.cpp)
target_link_libraries(staged_egl PRIVATE zelvane_core zelvane_platform_recording)
target_link_options(staged_egl PRIVATE -Wl,-z,nodelete -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/stage_exports.map)
set_target_properties(staged_egl PROPERTIES OUTPUT_NAME EGL SOVERSION 1 LIBRARY_OUTPUT_DIRECTORY ${stage})

function(zelvane_fake target directory name version sources)
  add_library(${target} SHARED ${sources})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include
                                               ${PROJECT_SOURCE_DIR}/src)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} SOVERSION ${version}
                                             LIBRARY_OUTPUT_DIRECTORY ${stage}/${directory})
  target_compile_definitions(${target} PRIVATE ${ARGN})
endfunction()

zelvane_fake(fake_gl "" GL 1 "fakes/fake_gl.cpp;fakes/fake_entry_points.cpp")
file(MAKE_DIRECTORY ${stage})
file(CREATE_LINK libGL.so.1 ${stage}/libGLX.so.0 SYMBOLIC)
zelvane_fake(fake_gl_no_stringi no_stringi GL 1 fakes/fake_gl.cpp FAKE_LACKS_STRINGI)
zelvane_fake(fake_es1 back_ends GLESv1_CM 1 fakes/fake_back_end.cpp FAKE_NAME="es1")
zelvane_fake(fake_es2 back_ends GLESv2 2 fakes/fake_back_end.cpp FAKE_NAME="es2")
zelvane_fake(fake_no_delete no_delete GLESv2 2 fakes/fake_back_end.cpp FAKE_NAME="es2" FAKE_LACKS_DELETE)
zelvane_fake(fake_no_create no_create GLESv2 2 fakes/fake_back_end.cpp FAKE_NAME="es2" FAKE_LACKS_CREATE)

# Arguments after the name are properties of its tests.
function(zelvane_entry_tests target)
  add_executable(${target})
  target_link_libraries(${target} PRIVATE staged_egl test_support ${CMAKE_DL_LIBS})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
  target_compile_definitions(${target} PRIVATE EGL_NO_X11 STAGE_DIRECTORY="${stage}")
  add_dependencies(${target} fake_gl fake_es1 fake_es2 fake_no_delete fake_no_create)
  zelvane_discover(${target} ${ARGN})
endfunction()

zelvane_entry_tests(entry_tests)
zelvane_entry_tests(entry_link_tests LABELS threads)

add_subdirectory(egl)

# Opens the library late, by itself.
target_sources(unit_tests PRIVATE client/late_library_test.cpp)
target_compile_definitions(unit_tests PRIVATE STAGED_EGL="$<TARGET_FILE:staged_egl>"
  STAGED_BACK_ENDS="${stage}/back_ends")
add_dependencies(unit_tests staged_egl fake_gl fake_es1 fake_es2)
