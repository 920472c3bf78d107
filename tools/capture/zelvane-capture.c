/* zelvane-capture: prints the device profile of the machine that it runs on, as XML for "zelvane profiles import".

   It is one C99 file that needs the headers and libraries of EGL and OpenGL ES only. It uses a pbuffer, or no surface
   where there are none, and needs no window system.

   Desktop or board    cc -o zelvane-capture zelvane-capture.c -lEGL -lGLESv2
   without the libraries' development links, or to choose them with LD_LIBRARY_PATH
                       cc -DZELVANE_CAPTURE_DLOPEN -o zelvane-capture zelvane-capture.c -ldl
   Cross compiler      aarch64-linux-gnu-gcc --sysroot=SYSROOT -DZELVANE_CAPTURE_DLOPEN ... -ldl
   Android (NDK)       aarch64-linux-android24-clang -o zelvane-capture zelvane-capture.c -lEGL -lGLESv2
                       adb push zelvane-capture /data/local/tmp
                       adb exec-out /data/local/tmp/zelvane-capture > phone.xml

   ES 1.x is captured too: EGL returns its functions, or ZELVANE_CAPTURE_DLOPEN opens its library. */
#define EGL_NO_X11
#define MESA_EGL_NO_X11_HEADERS
#include <EGL/egl.h>
#include <GLES2/gl2.h>

#include <stdarg.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#ifdef ZELVANE_CAPTURE_DLOPEN
#include <dlfcn.h>
#endif

/* Older headers lack these. */
#ifndef EGL_OPENGL_ES3_BIT
#define EGL_OPENGL_ES3_BIT 0x0040
#endif
#ifndef EGL_CONTEXT_MINOR_VERSION
#define EGL_CONTEXT_MINOR_VERSION 0x30FB
#endif
#ifndef EGL_COLOR_COMPONENT_TYPE_EXT
#define EGL_COLOR_COMPONENT_TYPE_EXT 0x3339
#endif
#ifndef EGL_PLATFORM_SURFACELESS_MESA
#define EGL_PLATFORM_SURFACELESS_MESA 0x31DD
#endif

typedef void (*Function)(void);
#define EGL_FUNCTIONS(FUNCTION)                                                                                        \
    FUNCTION(EGLDisplay, eglGetDisplay, (EGLNativeDisplayType))                                                        \
    FUNCTION(EGLBoolean, eglInitialize, (EGLDisplay, EGLint *, EGLint *))                                              \
    FUNCTION(EGLBoolean, eglTerminate, (EGLDisplay))                                                                   \
    FUNCTION(const char *, eglQueryString, (EGLDisplay, EGLint))                                                       \
    FUNCTION(EGLBoolean, eglGetConfigs, (EGLDisplay, EGLConfig *, EGLint, EGLint *))                                   \
    FUNCTION(EGLBoolean, eglGetConfigAttrib, (EGLDisplay, EGLConfig, EGLint, EGLint *))                                \
    FUNCTION(EGLBoolean, eglBindAPI, (EGLenum))                                                                        \
    FUNCTION(EGLContext, eglCreateContext, (EGLDisplay, EGLConfig, EGLContext, const EGLint *))                        \
    FUNCTION(EGLBoolean, eglDestroyContext, (EGLDisplay, EGLContext))                                                  \
    FUNCTION(EGLSurface, eglCreatePbufferSurface, (EGLDisplay, EGLConfig, const EGLint *))                             \
    FUNCTION(EGLBoolean, eglDestroySurface, (EGLDisplay, EGLSurface))                                                  \
    FUNCTION(EGLBoolean, eglMakeCurrent, (EGLDisplay, EGLSurface, EGLSurface, EGLContext))                             \
    FUNCTION(EGLint, eglGetError, (void))                                                                              \
    FUNCTION(Function, eglGetProcAddress, (const char *))

#define COMMON_GL_FUNCTIONS(FUNCTION)                                                                                  \
    FUNCTION(const GLubyte *, glGetString, (GLenum))                                                                   \
    FUNCTION(GLenum, glGetError, (void))                                                                               \
    FUNCTION(void, glGetIntegerv, (GLenum, GLint *))                                                                   \
    FUNCTION(void, glGetFloatv, (GLenum, GLfloat *))
#define ES2_FUNCTIONS(FUNCTION) FUNCTION(void, glGetShaderPrecisionFormat, (GLenum, GLenum, GLint *, GLint *))
#define ES3_FUNCTIONS(FUNCTION)                                                                                        \
    FUNCTION(void, glGetInteger64v, (GLenum, int64_t *))                                                               \
    FUNCTION(void, glGetIntegeri_v, (GLenum, GLuint, GLint *))                                                         \
    FUNCTION(void, glGetInternalformativ, (GLenum, GLenum, GLenum, GLsizei, GLint *))

#define MEMBER(result, name, parameters) result(EGLAPIENTRY *name) parameters;
static struct { EGL_FUNCTIONS(MEMBER) } egl;
/* Of the current context. Functions of higher versions may be null, and are not called. */
static struct { COMMON_GL_FUNCTIONS(MEMBER) ES2_FUNCTIONS(MEMBER) ES3_FUNCTIONS(MEMBER) } gl;

typedef struct {
    EGLDisplay display;
    EGLSurface surface;
    EGLContext context;
    int version; /* as GL_VERSION has it: 11 for 1.1 */
} Context;

static FILE *output;

/* ---- Tables ---- */

typedef enum { NUMBER_VALUE, BOOLEAN_VALUE } ValueKind;

/* Config attributes with one value, in groups. The group "captured" has what profiles have no element for. */
static const struct {
    const char *group, *element;
    EGLint attribute;
    ValueKind kind;
} configRows[] = {
    {NULL, "buffer_size", EGL_BUFFER_SIZE, NUMBER_VALUE},
    {NULL, "red_size", EGL_RED_SIZE, NUMBER_VALUE},
    {NULL, "green_size", EGL_GREEN_SIZE, NUMBER_VALUE},
    {NULL, "blue_size", EGL_BLUE_SIZE, NUMBER_VALUE},
    {NULL, "alpha_size", EGL_ALPHA_SIZE, NUMBER_VALUE},
    {NULL, "depth_size", EGL_DEPTH_SIZE, NUMBER_VALUE},
    {NULL, "stencil_size", EGL_STENCIL_SIZE, NUMBER_VALUE},
    {NULL, "sample_buffers", EGL_SAMPLE_BUFFERS, NUMBER_VALUE},
    {NULL, "samples", EGL_SAMPLES, NUMBER_VALUE},
    {NULL, "config_caveat", EGL_CONFIG_CAVEAT, NUMBER_VALUE},
    {NULL, "level", EGL_LEVEL, NUMBER_VALUE},
    {NULL, "native_renderable", EGL_NATIVE_RENDERABLE, NUMBER_VALUE},
    {NULL, "native_visual_type", EGL_NATIVE_VISUAL_TYPE, NUMBER_VALUE},
    {NULL, "bind_to_texture_rgb", EGL_BIND_TO_TEXTURE_RGB, BOOLEAN_VALUE},
    {NULL, "bind_to_texture_rgba", EGL_BIND_TO_TEXTURE_RGBA, BOOLEAN_VALUE},
    {"max_pbuffer", "width", EGL_MAX_PBUFFER_WIDTH, NUMBER_VALUE},
    {"max_pbuffer", "height", EGL_MAX_PBUFFER_HEIGHT, NUMBER_VALUE},
    {"max_pbuffer", "pixels", EGL_MAX_PBUFFER_PIXELS, NUMBER_VALUE},
    {"swap_interval", "min", EGL_MIN_SWAP_INTERVAL, NUMBER_VALUE},
    {"swap_interval", "max", EGL_MAX_SWAP_INTERVAL, NUMBER_VALUE},
    {"transparency", "type", EGL_TRANSPARENT_TYPE, NUMBER_VALUE},
    {"transparency", "blue", EGL_TRANSPARENT_BLUE_VALUE, NUMBER_VALUE},
    {"transparency", "green", EGL_TRANSPARENT_GREEN_VALUE, NUMBER_VALUE},
    {"transparency", "red", EGL_TRANSPARENT_RED_VALUE, NUMBER_VALUE},
    {"captured", "config_id", EGL_CONFIG_ID, NUMBER_VALUE},
    {"captured", "native_visual_id", EGL_NATIVE_VISUAL_ID, NUMBER_VALUE},
    {"captured", "luminance_size", EGL_LUMINANCE_SIZE, NUMBER_VALUE},
    {"captured", "alpha_mask_size", EGL_ALPHA_MASK_SIZE, NUMBER_VALUE},
    {"captured", "color_buffer_type", EGL_COLOR_BUFFER_TYPE, NUMBER_VALUE},
    {"captured", "color_component_type", EGL_COLOR_COMPONENT_TYPE_EXT, NUMBER_VALUE},
    {"captured", "surface_type_bits", EGL_SURFACE_TYPE, NUMBER_VALUE},
    {"captured", "renderable_type_bits", EGL_RENDERABLE_TYPE, NUMBER_VALUE},
    {"captured", "conformant_bits", EGL_CONFORMANT, NUMBER_VALUE},
};

/* The bits that profiles have names for. */
static const struct {
    const char *element, *name;
    EGLint attribute, bit;
} bitRows[] = {
    {"renderable_type", "EGL_OPENGL_ES_BIT", EGL_RENDERABLE_TYPE, EGL_OPENGL_ES_BIT},
    {"renderable_type", "EGL_OPENGL_ES2_BIT", EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT},
    {"renderable_type", "EGL_OPENGL_ES3_BIT_KHR", EGL_RENDERABLE_TYPE, EGL_OPENGL_ES3_BIT},
    {"renderable_type", "EGL_OPENGL_BIT", EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT},
    {"conformant", "EGL_OPENGL_ES_BIT", EGL_CONFORMANT, EGL_OPENGL_ES_BIT},
    {"conformant", "EGL_OPENGL_ES2_BIT", EGL_CONFORMANT, EGL_OPENGL_ES2_BIT},
    {"conformant", "EGL_OPENGL_ES3_BIT_KHR", EGL_CONFORMANT, EGL_OPENGL_ES3_BIT},
    {"conformant", "EGL_OPENGL_BIT", EGL_CONFORMANT, EGL_OPENGL_BIT},
    {"surface_type", "EGL_WINDOW_BIT", EGL_SURFACE_TYPE, EGL_WINDOW_BIT},
    {"surface_type", "EGL_PBUFFER_BIT", EGL_SURFACE_TYPE, EGL_PBUFFER_BIT},
    {"surface_type", "EGL_PIXMAP_BIT", EGL_SURFACE_TYPE, EGL_PIXMAP_BIT},
};

/* The versions of the blocks, and the context that each is captured from. */
static const struct {
    const char *block;
    EGLint major, minor, renderableBit;
} versionRows[] = {
    {"1", 1, 0, EGL_OPENGL_ES_BIT},   {"2", 2, 0, EGL_OPENGL_ES2_BIT},  {"3", 3, 0, EGL_OPENGL_ES3_BIT},
    {"31", 3, 1, EGL_OPENGL_ES3_BIT}, {"32", 3, 2, EGL_OPENGL_ES3_BIT},
};

typedef enum { NUMBER, REAL, RANGE, SIZE, INDEXED } LimitForm;
#define ANY 99

/* The element is named after the queried enumerant, whose value is here because older headers lack it.
   since and until are versions of the context; an extension that is named must be there. */
static const struct {
    const char *element;
    GLenum pname;
    int since, until;
    LimitForm form;
    const char *extension;
} limitRows[] = {
    {"aliased_line_width_range", 0x846E, 11, ANY, RANGE, NULL},
    {"aliased_point_size_range", 0x846D, 11, ANY, RANGE, NULL},
    {"implementation_color_read_format", 0x8B9B, 11, ANY, NUMBER, NULL},
    {"implementation_color_read_type", 0x8B9A, 11, ANY, NUMBER, NULL},
    {"max_clip_planes", 0x0D32, 11, 11, NUMBER, NULL},
    {"max_lights", 0x0D31, 11, 11, NUMBER, NULL},
    {"max_modelview_stack_depth", 0x0D36, 11, 11, NUMBER, NULL},
    {"max_projection_stack_depth", 0x0D38, 11, 11, NUMBER, NULL},
    {"max_texture_size", 0x0D33, 11, ANY, NUMBER, NULL},
    {"max_texture_stack_depth", 0x0D39, 11, 11, NUMBER, NULL},
    {"max_texture_units", 0x84E2, 11, 11, NUMBER, NULL},
    {"max_viewport_dims", 0x0D3A, 11, ANY, SIZE, NULL},
    {"samples", 0x80A9, 11, ANY, NUMBER, NULL},
    {"sample_buffers", 0x80A8, 11, ANY, NUMBER, NULL},
    {"smooth_line_width_range", 0x0B22, 11, 11, RANGE, NULL},
    {"smooth_point_size_range", 0x0B12, 11, 11, RANGE, NULL},
    {"subpixel_bits", 0x0D50, 11, ANY, NUMBER, NULL},
    {"max_combined_texture_image_units", 0x8B4D, 20, ANY, NUMBER, NULL},
    {"max_cube_map_texture_size", 0x851C, 20, ANY, NUMBER, NULL},
    {"max_fragment_uniform_vectors", 0x8DFD, 20, ANY, NUMBER, NULL},
    {"max_renderbuffer_size", 0x84E8, 20, ANY, NUMBER, NULL},
    {"max_texture_image_units", 0x8872, 20, ANY, NUMBER, NULL},
    {"max_varying_vectors", 0x8DFC, 20, ANY, NUMBER, NULL},
    {"max_vertex_attribs", 0x8869, 20, ANY, NUMBER, NULL},
    {"max_vertex_texture_image_units", 0x8B4C, 20, ANY, NUMBER, NULL},
    {"max_vertex_uniform_vectors", 0x8DFB, 20, ANY, NUMBER, NULL},
    {"shader_compiler", 0x8DFA, 20, ANY, NUMBER, NULL},
    {"max_3d_texture_size", 0x8073, 30, ANY, NUMBER, NULL},
    {"max_array_texture_layers", 0x88FF, 30, ANY, NUMBER, NULL},
    {"max_color_attachments", 0x8CDF, 30, ANY, NUMBER, NULL},
    {"max_combined_fragment_uniform_components", 0x8A33, 30, ANY, NUMBER, NULL},
    {"max_combined_uniform_blocks", 0x8A2E, 30, ANY, NUMBER, NULL},
    {"max_combined_vertex_uniform_components", 0x8A31, 30, ANY, NUMBER, NULL},
    {"max_draw_buffers", 0x8824, 30, ANY, NUMBER, NULL},
    {"max_elements_indices", 0x80E9, 30, ANY, NUMBER, NULL},
    {"max_elements_vertices", 0x80E8, 30, ANY, NUMBER, NULL},
    {"max_element_index", 0x8D6B, 30, ANY, NUMBER, NULL},
    {"max_fragment_input_components", 0x9125, 30, ANY, NUMBER, NULL},
    {"max_fragment_uniform_blocks", 0x8A2D, 30, ANY, NUMBER, NULL},
    {"max_fragment_uniform_components", 0x8B49, 30, ANY, NUMBER, NULL},
    {"max_program_texel_offset", 0x8905, 30, ANY, NUMBER, NULL},
    {"max_samples", 0x8D57, 30, ANY, NUMBER, NULL},
    {"max_server_wait_timeout", 0x9111, 30, ANY, NUMBER, NULL},
    {"max_texture_lod_bias", 0x84FD, 30, ANY, REAL, NULL},
    {"max_transform_feedback_interleaved_components", 0x8C8A, 30, ANY, NUMBER, NULL},
    {"max_transform_feedback_separate_attribs", 0x8C8B, 30, ANY, NUMBER, NULL},
    {"max_transform_feedback_separate_components", 0x8C80, 30, ANY, NUMBER, NULL},
    {"max_uniform_block_size", 0x8A30, 30, ANY, NUMBER, NULL},
    {"max_uniform_buffer_bindings", 0x8A2F, 30, ANY, NUMBER, NULL},
    {"max_varying_components", 0x8B4B, 30, ANY, NUMBER, NULL},
    {"max_vertex_output_components", 0x9122, 30, ANY, NUMBER, NULL},
    {"max_vertex_uniform_blocks", 0x8A2B, 30, ANY, NUMBER, NULL},
    {"max_vertex_uniform_components", 0x8B4A, 30, ANY, NUMBER, NULL},
    {"min_program_texel_offset", 0x8904, 30, ANY, NUMBER, NULL},
    {"uniform_buffer_offset_alignment", 0x8A34, 30, ANY, NUMBER, NULL},
    {"max_atomic_counter_buffer_bindings", 0x92DC, 31, ANY, NUMBER, NULL},
    {"max_atomic_counter_buffer_size", 0x92D8, 31, ANY, NUMBER, NULL},
    {"max_color_texture_samples", 0x910E, 31, ANY, NUMBER, NULL},
    {"max_combined_atomic_counters", 0x92D7, 31, ANY, NUMBER, NULL},
    {"max_combined_atomic_counter_buffers", 0x92D1, 31, ANY, NUMBER, NULL},
    {"max_combined_compute_uniform_components", 0x8266, 31, ANY, NUMBER, NULL},
    {"max_combined_image_uniforms", 0x90CF, 31, ANY, NUMBER, NULL},
    {"max_combined_shader_output_resources", 0x8F39, 31, ANY, NUMBER, NULL},
    {"max_combined_shader_storage_blocks", 0x90DC, 31, ANY, NUMBER, NULL},
    {"max_compute_atomic_counters", 0x8265, 31, ANY, NUMBER, NULL},
    {"max_compute_atomic_counter_buffers", 0x8264, 31, ANY, NUMBER, NULL},
    {"max_compute_image_uniforms", 0x91BD, 31, ANY, NUMBER, NULL},
    {"max_compute_shader_storage_blocks", 0x90DB, 31, ANY, NUMBER, NULL},
    {"max_compute_shared_memory_size", 0x8262, 31, ANY, NUMBER, NULL},
    {"max_compute_texture_image_units", 0x91BC, 31, ANY, NUMBER, NULL},
    {"max_compute_uniform_blocks", 0x91BB, 31, ANY, NUMBER, NULL},
    {"max_compute_uniform_components", 0x8263, 31, ANY, NUMBER, NULL},
    {"max_compute_work_group_count", 0x91BE, 31, ANY, INDEXED, NULL},
    {"max_compute_work_group_invocations", 0x90EB, 31, ANY, NUMBER, NULL},
    {"max_compute_work_group_size", 0x91BF, 31, ANY, INDEXED, NULL},
    {"max_depth_texture_samples", 0x910F, 31, ANY, NUMBER, NULL},
    {"max_fragment_atomic_counters", 0x92D6, 31, ANY, NUMBER, NULL},
    {"max_fragment_atomic_counter_buffers", 0x92D0, 31, ANY, NUMBER, NULL},
    {"max_fragment_image_uniforms", 0x90CE, 31, ANY, NUMBER, NULL},
    {"max_fragment_shader_storage_blocks", 0x90DA, 31, ANY, NUMBER, NULL},
    {"max_framebuffer_height", 0x9316, 31, ANY, NUMBER, NULL},
    {"max_framebuffer_samples", 0x9318, 31, ANY, NUMBER, NULL},
    {"max_framebuffer_width", 0x9315, 31, ANY, NUMBER, NULL},
    {"max_image_units", 0x8F38, 31, ANY, NUMBER, NULL},
    {"max_integer_samples", 0x9110, 31, ANY, NUMBER, NULL},
    {"max_program_texture_gather_offset", 0x8E5F, 31, ANY, NUMBER, NULL},
    {"max_sample_mask_words", 0x8E59, 31, ANY, NUMBER, NULL},
    {"max_shader_storage_block_size", 0x90DE, 31, ANY, NUMBER, NULL},
    {"max_shader_storage_buffer_bindings", 0x90DD, 31, ANY, NUMBER, NULL},
    {"max_uniform_locations", 0x826E, 31, ANY, NUMBER, NULL},
    {"max_vertex_atomic_counters", 0x92D2, 31, ANY, NUMBER, NULL},
    {"max_vertex_atomic_counter_buffers", 0x92CC, 31, ANY, NUMBER, NULL},
    {"max_vertex_attrib_bindings", 0x82DA, 31, ANY, NUMBER, NULL},
    {"max_vertex_attrib_relative_offset", 0x82D9, 31, ANY, NUMBER, NULL},
    {"max_vertex_attrib_stride", 0x82E5, 31, ANY, NUMBER, NULL},
    {"max_vertex_image_uniforms", 0x90CA, 31, ANY, NUMBER, NULL},
    {"max_vertex_shader_storage_blocks", 0x90D6, 31, ANY, NUMBER, NULL},
    {"min_program_texture_gather_offset", 0x8E5E, 31, ANY, NUMBER, NULL},
    {"shader_storage_buffer_offset_alignment", 0x90DF, 31, ANY, NUMBER, NULL},
    {"fragment_interpolation_offset_bits", 0x8E5D, 32, ANY, NUMBER, NULL},
    {"max_combined_geometry_uniform_components", 0x8A32, 32, ANY, NUMBER, NULL},
    {"max_combined_tess_control_uniform_components", 0x8E1E, 32, ANY, NUMBER, NULL},
    {"max_combined_tess_evaluation_uniform_components", 0x8E1F, 32, ANY, NUMBER, NULL},
    {"max_debug_group_stack_depth", 0x826C, 32, ANY, NUMBER, NULL},
    {"max_debug_logged_messages", 0x9144, 32, ANY, NUMBER, NULL},
    {"max_debug_message_length", 0x9143, 32, ANY, NUMBER, NULL},
    {"max_fragment_interpolation_offset", 0x8E5C, 32, ANY, REAL, NULL},
    {"max_framebuffer_layers", 0x9317, 32, ANY, NUMBER, NULL},
    {"max_geometry_atomic_counters", 0x92D5, 32, ANY, NUMBER, NULL},
    {"max_geometry_atomic_counter_buffers", 0x92CF, 32, ANY, NUMBER, NULL},
    {"max_geometry_image_uniforms", 0x90CD, 32, ANY, NUMBER, NULL},
    {"max_geometry_input_components", 0x9123, 32, ANY, NUMBER, NULL},
    {"max_geometry_output_components", 0x9124, 32, ANY, NUMBER, NULL},
    {"max_geometry_output_vertices", 0x8DE0, 32, ANY, NUMBER, NULL},
    {"max_geometry_shader_invocations", 0x8E5A, 32, ANY, NUMBER, NULL},
    {"max_geometry_shader_storage_blocks", 0x90D7, 32, ANY, NUMBER, NULL},
    {"max_geometry_texture_image_units", 0x8C29, 32, ANY, NUMBER, NULL},
    {"max_geometry_total_output_components", 0x8DE1, 32, ANY, NUMBER, NULL},
    {"max_geometry_uniform_blocks", 0x8A2C, 32, ANY, NUMBER, NULL},
    {"max_geometry_uniform_components", 0x8DDF, 32, ANY, NUMBER, NULL},
    {"max_label_length", 0x82E8, 32, ANY, NUMBER, NULL},
    {"max_patch_vertices", 0x8E7D, 32, ANY, NUMBER, NULL},
    {"max_tess_control_atomic_counters", 0x92D3, 32, ANY, NUMBER, NULL},
    {"max_tess_control_atomic_counter_buffers", 0x92CD, 32, ANY, NUMBER, NULL},
    {"max_tess_control_image_uniforms", 0x90CB, 32, ANY, NUMBER, NULL},
    {"max_tess_control_input_components", 0x886C, 32, ANY, NUMBER, NULL},
    {"max_tess_control_output_components", 0x8E83, 32, ANY, NUMBER, NULL},
    {"max_tess_control_shader_storage_blocks", 0x90D8, 32, ANY, NUMBER, NULL},
    {"max_tess_control_texture_image_units", 0x8E81, 32, ANY, NUMBER, NULL},
    {"max_tess_control_total_output_components", 0x8E85, 32, ANY, NUMBER, NULL},
    {"max_tess_control_uniform_blocks", 0x8E89, 32, ANY, NUMBER, NULL},
    {"max_tess_control_uniform_components", 0x8E7F, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_atomic_counters", 0x92D4, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_atomic_counter_buffers", 0x92CE, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_image_uniforms", 0x90CC, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_input_components", 0x886D, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_output_components", 0x8E86, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_shader_storage_blocks", 0x90D9, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_texture_image_units", 0x8E82, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_uniform_blocks", 0x8E8A, 32, ANY, NUMBER, NULL},
    {"max_tess_evaluation_uniform_components", 0x8E80, 32, ANY, NUMBER, NULL},
    {"max_tess_gen_level", 0x8E7E, 32, ANY, NUMBER, NULL},
    {"max_tess_patch_components", 0x8E84, 32, ANY, NUMBER, NULL},
    {"max_texture_buffer_size", 0x8C2B, 32, ANY, NUMBER, NULL},
    {"min_fragment_interpolation_offset", 0x8E5B, 32, ANY, REAL, NULL},
    {"multisample_line_width_range", 0x9381, 32, ANY, RANGE, NULL},
    {"texture_buffer_offset_alignment", 0x919F, 32, ANY, NUMBER, NULL},
    {"max_texture_max_anisotropy", 0x84FF, 11, ANY, REAL, "GL_EXT_texture_filter_anisotropic"},
    {"max_cube_map_texture_size", 0x851C, 11, 11, NUMBER, "GL_OES_texture_cube_map"},
    {"max_renderbuffer_size", 0x84E8, 11, 11, NUMBER, "GL_OES_framebuffer_object"},
    {"max_palette_matrices", 0x8842, 11, 11, NUMBER, "GL_OES_matrix_palette"},
    {"max_vertex_units", 0x86A4, 11, 11, NUMBER, "GL_OES_matrix_palette"},
    {"max_texture_lod_bias", 0x84FD, 11, 11, REAL, "GL_EXT_texture_lod_bias"},
    {"max_3d_texture_size", 0x8073, 20, 20, NUMBER, "GL_OES_texture_3D"},
    {"max_color_attachments", 0x8CDF, 20, 20, NUMBER, "GL_EXT_draw_buffers"},
    {"max_draw_buffers", 0x8824, 20, 20, NUMBER, "GL_EXT_draw_buffers"},
    {"max_samples", 0x8D57, 20, 20, NUMBER, "GL_EXT_multisampled_render_to_texture"},
};

/* Internal formats, for which ES 3 returns the maximum number of samples. */
static const struct {
    const char *name;
    GLenum format;
} formatRows[] = {
    {"R8", 0x8229},
    {"RG8", 0x822B},
    {"RGB8", 0x8051},
    {"RGB565", 0x8D62},
    {"RGBA4", 0x8056},
    {"RGB5_A1", 0x8057},
    {"RGBA8", 0x8058},
    {"RGB10_A2", 0x8059},
    {"SRGB8_ALPHA8", 0x8C43},
    {"R16F", 0x822D},
    {"RG16F", 0x822F},
    {"RGBA16F", 0x881A},
    {"R11F_G11F_B10F", 0x8C3A},
    {"R32F", 0x822E},
    {"RG32F", 0x8230},
    {"RGBA32F", 0x8814},
    {"R8I", 0x8231},
    {"R8UI", 0x8232},
    {"R16I", 0x8233},
    {"R16UI", 0x8234},
    {"R32I", 0x8235},
    {"R32UI", 0x8236},
    {"RG8I", 0x8237},
    {"RG8UI", 0x8238},
    {"RG16I", 0x8239},
    {"RG16UI", 0x823A},
    {"RG32I", 0x823B},
    {"RG32UI", 0x823C},
    {"RGBA8I", 0x8D8E},
    {"RGBA8UI", 0x8D7C},
    {"RGB10_A2UI", 0x906F},
    {"RGBA16I", 0x8D88},
    {"RGBA16UI", 0x8D76},
    {"RGBA32I", 0x8D82},
    {"RGBA32UI", 0x8D70},
    {"DEPTH_COMPONENT16", 0x81A5},
    {"DEPTH_COMPONENT24", 0x81A6},
    {"DEPTH_COMPONENT32F", 0x8CAC},
    {"DEPTH24_STENCIL8", 0x88F0},
    {"DEPTH32F_STENCIL8", 0x8CAD},
    {"STENCIL_INDEX8", 0x8D48},
};

static const struct {
    const char *element;
    GLenum count, list;
    int since;
    const char *extension;
} listRows[] = {
    {"compressed_texture_format", 0x86A2, 0x86A3, 11, NULL},
    {"shader_binary_format", 0x8DF9, 0x8DF8, 20, NULL},
    {"program_binary_format", 0x87FE, 0x87FF, 30, NULL},
    {"program_binary_format", 0x87FE, 0x87FF, 20, "GL_OES_get_program_binary"},
};

static const char *const precisionNames[] = {"low_float", "medium_float", "high_float",
                                             "low_int",   "medium_int",   "high_int"};

#define COUNT(rows) (sizeof(rows) / sizeof(rows)[0])

/* ---- Messages and XML ---- */

static void tell(const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    fputs("zelvane-capture: ", stderr);
    vfprintf(stderr, format, arguments);
    fputc('\n', stderr);
    va_end(arguments);
}

/* The length of the UTF-8 character at the text, or 0 if it is not one that XML allows. */
static size_t characterLength(const unsigned char *text) {
    size_t length = text[0] < 0x80 ? 1 : text[0] < 0xC2 ? 0 : text[0] < 0xE0 ? 2 : text[0] < 0xF0 ? 3 : 4;
    size_t index;
    if (length == 1 && text[0] < 0x20 && text[0] != '\t' && text[0] != '\n') return 0;
    if (text[0] > 0xF4) return 0;
    for (index = 1; index < length; ++index)
        if ((text[index] & 0xC0) != 0x80) return 0;
    return length;
}

/* Escapes the text for XML. Bytes that are not UTF-8 become question marks. */
static void writeText(const char *text) {
    const unsigned char *next = (const unsigned char *)text;
    while (*next) {
        const size_t length = characterLength(next);
        if (*next == '&')
            fputs("&amp;", output);
        else if (*next == '<')
            fputs("&lt;", output);
        else if (*next == '>')
            fputs("&gt;", output);
        else if (length == 0)
            fputc('?', output);
        else
            fwrite(next, 1, length, output);
        next += length ? length : 1;
    }
}

/* Nothing for a null text. */
static void writeElement(int depth, const char *name, const char *text) {
    if (!text) return;
    fprintf(output, "%*s<%s>", depth * 2, "", name);
    writeText(text);
    fprintf(output, "</%s>\n", name);
}

static void writeNumber(int depth, const char *name, int64_t number) {
    fprintf(output, "%*s<%s>%lld</%s>\n", depth * 2, "", name, (long long)number, name);
}

static void writeReal(int depth, const char *name, double number) {
    fprintf(output, "%*s<%s>%.9g</%s>\n", depth * 2, "", name, number, name);
}

static void writeTag(int depth, const char *slash, const char *name) {
    fprintf(output, "%*s<%s%s>\n", depth * 2, "", slash, name);
}

/* Whether the name is one of the words of the list. */
static int hasWord(const char *list, const char *name) {
    const size_t length = strlen(name);
    while (list && *list) {
        const size_t end = strcspn(list, " ");
        if (end == length && strncmp(list, name, length) == 0) return 1;
        list += end + strspn(list + end, " ");
    }
    return 0;
}

/* Writes an element for each word of the list. */
static void writeWords(int depth, const char *element, const char *list) {
    char word[256];
    while (list && *list) {
        const size_t length = strcspn(list, " ");
        if (length > 0 && length < sizeof word) {
            memcpy(word, list, length);
            word[length] = '\0';
            writeElement(depth, element, word);
        }
        list += length + strspn(list + length, " ");
    }
}

/* ---- Functions ---- */

#ifdef ZELVANE_CAPTURE_DLOPEN
static void *openFirst(const char *const *names) {
    void *library = NULL;
    for (; *names && !library; ++names)
        library = dlopen(*names, RTLD_LAZY | RTLD_GLOBAL);
    return library;
}

static void copySymbol(void *library, const char *name, void *function) {
    void *const symbol = library ? dlsym(library, name) : NULL;
    memcpy(function, &symbol, sizeof symbol);
}

static int loadEgl(void) {
    static const char *const names[] = {"libEGL.so.1", "libEGL.so", NULL};
    void *const library = openFirst(names);
    int isComplete = 1;
    if (!library) tell("libEGL cannot be opened: %s", dlerror());
    if (!library) return 0;
#define LOAD(result, name, parameters)                                                                                 \
    copySymbol(library, #name, &egl.name);                                                                             \
    isComplete = isComplete && egl.name;
    EGL_FUNCTIONS(LOAD)
#undef LOAD
    if (!isComplete) tell("libEGL lacks functions of EGL 1.4");
    return isComplete;
}

/* A core function, if eglGetProcAddress returns only those of extensions. */
static void loadFromLibrary(int major, const char *name, void *function) {
    static const char *const es1Names[] = {"libGLESv1_CM.so.1", "libGLESv1_CM.so", NULL};
    static const char *const es2Names[] = {"libGLESv2.so.2", "libGLESv2.so", NULL};
    copySymbol(openFirst(major == 1 ? es1Names : es2Names), name, function);
}
#else
static int loadEgl(void) {
#define LOAD(result, name, parameters) egl.name = name;
    EGL_FUNCTIONS(LOAD)
#undef LOAD
    return 1;
}

static void loadFromLibrary(int major, const char *name, void *function) {
    (void)major;
#define LOAD(result, linked, parameters)                                                                               \
    if (strcmp(name, #linked) == 0) {                                                                                  \
        result(EGLAPIENTRY *const symbol) parameters = linked;                                                         \
        memcpy(function, &symbol, sizeof symbol);                                                                      \
    }
    COMMON_GL_FUNCTIONS(LOAD)
    ES2_FUNCTIONS(LOAD)
#undef LOAD
}
#endif

/* Whether eglGetProcAddress returns core functions too. */
static int returnsEveryFunction(EGLDisplay display, EGLint minor) {
    return minor >= 5 || hasWord(egl.eglQueryString(display, EGL_EXTENSIONS), "EGL_KHR_get_all_proc_addresses");
}

static void loadFunction(int fromEgl, int major, const char *name, void *function) {
    Function found = NULL;
    memcpy(function, &found, sizeof found);
    if (!fromEgl) loadFromLibrary(major, name, function);
    memcpy(&found, function, sizeof found);
    if (found) return;
    found = egl.eglGetProcAddress(name);
    memcpy(function, &found, sizeof found);
}

static int loadGl(int fromEgl, int major) {
#define LOAD(result, name, parameters) loadFunction(fromEgl, major, #name, &gl.name);
    COMMON_GL_FUNCTIONS(LOAD)
    ES2_FUNCTIONS(LOAD)
    ES3_FUNCTIONS(LOAD)
#undef LOAD
    return gl.glGetString && gl.glGetError && gl.glGetIntegerv && gl.glGetFloatv;
}

/* ---- Displays and contexts ---- */

/* The default display, or Mesa's surfaceless platform if there is no window system. */
static EGLDisplay openDisplay(EGLint *minor) {
    EGLint major = 0;
    EGLDisplay display = egl.eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EGLDisplay(EGLAPIENTRY * getPlatformDisplay)(EGLenum, void *, const EGLint *);
    Function function;
    if (display != EGL_NO_DISPLAY && egl.eglInitialize(display, &major, minor)) return display;
    tell("the default display cannot be initialized (EGL error 0x%04X)", (unsigned)egl.eglGetError());
    if (!hasWord(egl.eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS), "EGL_MESA_platform_surfaceless"))
        return EGL_NO_DISPLAY;
    function = egl.eglGetProcAddress("eglGetPlatformDisplayEXT");
    memcpy(&getPlatformDisplay, &function, sizeof function);
    display = function ? getPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, NULL, NULL) : EGL_NO_DISPLAY;
    if (display == EGL_NO_DISPLAY || !egl.eglInitialize(display, &major, minor)) return EGL_NO_DISPLAY;
    tell("uses the surfaceless platform");
    return display;
}

static EGLint attributeOf(EGLDisplay display, EGLConfig config, EGLint attribute) {
    EGLint value = 0;
    return egl.eglGetConfigAttrib(display, config, attribute, &value) ? value : 0;
}

static void closeContext(Context *context) {
    egl.eglMakeCurrent(context->display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    if (context->surface != EGL_NO_SURFACE) egl.eglDestroySurface(context->display, context->surface);
    if (context->context != EGL_NO_CONTEXT) egl.eglDestroyContext(context->display, context->context);
    context->surface = EGL_NO_SURFACE;
    context->context = EGL_NO_CONTEXT;
}

static int versionOf(const char *text) {
    int major = 0, minor = 0;
    text = text ? strpbrk(text, "0123456789") : NULL;
    return text && sscanf(text, "%d.%d", &major, &minor) == 2 ? major * 10 + minor : 0;
}

/* Makes a context of that version and config current. EGL 1.4 has no minor versions: 0 is not passed on. */
static int tryContext(Context *context, EGLConfig config, int row, int fromEgl) {
    static const EGLint pbufferAttributes[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE};
    const EGLint major = versionRows[row].major, minor = versionRows[row].minor;
    EGLint attributes[] = {EGL_CONTEXT_CLIENT_VERSION, 0, EGL_NONE, 0, EGL_NONE};
    attributes[1] = major;
    if (minor > 0) {
        attributes[2] = EGL_CONTEXT_MINOR_VERSION;
        attributes[3] = minor;
    }
    context->surface = EGL_NO_SURFACE;
    context->context = egl.eglCreateContext(context->display, config, EGL_NO_CONTEXT, attributes);
    if (context->context == EGL_NO_CONTEXT) return 0;
    if (attributeOf(context->display, config, EGL_SURFACE_TYPE) & EGL_PBUFFER_BIT)
        context->surface = egl.eglCreatePbufferSurface(context->display, config, pbufferAttributes);
    if (egl.eglMakeCurrent(context->display, context->surface, context->surface, context->context) &&
        loadGl(fromEgl, major)) {
        context->version = versionOf((const char *)gl.glGetString(GL_VERSION));
        if (context->version >= major * 10 + (major == 1 ? 0 : minor)) return 1;
    }
    closeContext(context);
    return 0;
}

/* Prefers common configs: some values depend on the config of the context. */
static int suitability(EGLDisplay display, EGLConfig config) {
    int points = 0;
    if (attributeOf(display, config, EGL_SURFACE_TYPE) & EGL_PBUFFER_BIT) points += 8;
    if (attributeOf(display, config, EGL_SAMPLES) == 0) points += 4;
    if (attributeOf(display, config, EGL_RED_SIZE) == 8) points += 2;
    if (attributeOf(display, config, EGL_ALPHA_SIZE) == 8) points += 1;
    return points;
}

/* Makes a context of the version current, with the most suitable config that it can be created for. */
static int openContext(Context *context, const EGLConfig *configs, EGLint count, int row, int fromEgl) {
    const int mostPoints = 15;
    int points;
    EGLint index;
    for (points = mostPoints; points >= 0; --points) {
        for (index = 0; index < count; ++index) {
            const EGLint apis = attributeOf(context->display, configs[index], EGL_RENDERABLE_TYPE);
            if (!(apis & versionRows[row].renderableBit)) continue;
            if (suitability(context->display, configs[index]) != points) continue;
            if (tryContext(context, configs[index], row, fromEgl)) return 1;
        }
    }
    return 0;
}

/* ---- Configs ---- */

static void writeConfig(EGLDisplay display, EGLConfig config, EGLint id) {
    const char *group = NULL;
    size_t row;
    EGLint value;
    fprintf(output, "    <config id=\"%d\">\n", (int)id);
    for (row = 0; row < COUNT(bitRows); ++row)
        if (attributeOf(display, config, bitRows[row].attribute) & bitRows[row].bit)
            writeElement(3, bitRows[row].element, bitRows[row].name);
    for (row = 0; row < COUNT(configRows); ++row) {
        const char *const element = configRows[row].element;
        if (!egl.eglGetConfigAttrib(display, config, configRows[row].attribute, &value)) continue;
        if (group && group != configRows[row].group) writeTag(3, "/", group);
        if (configRows[row].group && group != configRows[row].group) writeTag(3, "", configRows[row].group);
        group = configRows[row].group;
        if (configRows[row].kind == BOOLEAN_VALUE)
            writeElement(3, element, value ? "EGL_TRUE" : "EGL_FALSE");
        else
            writeNumber(group ? 4 : 3, element, value);
    }
    if (group) writeTag(3, "/", group);
    writeTag(2, "/", "config");
    egl.eglGetError();
}

/* Ids are the device's. If none is 1, which profiles must have, the configs are numbered from 1. */
static void writeEgl(EGLDisplay display, const EGLConfig *configs, EGLint count) {
    EGLint index;
    int hasOne = 0;
    for (index = 0; index < count; ++index)
        hasOne = hasOne || attributeOf(display, configs[index], EGL_CONFIG_ID) == 1;
    if (!hasOne) tell("no config has id 1: they are numbered from 1, and captured/config_id is the device's id");
    writeTag(1, "", "egl");
    for (index = 0; index < count; ++index)
        writeConfig(display, configs[index], hasOne ? attributeOf(display, configs[index], EGL_CONFIG_ID) : index + 1);
    writeTag(2, "", "captured");
    writeElement(3, "vendor", egl.eglQueryString(display, EGL_VENDOR));
    writeElement(3, "version", egl.eglQueryString(display, EGL_VERSION));
    writeElement(3, "client_apis", egl.eglQueryString(display, EGL_CLIENT_APIS));
    writeWords(3, "extension", egl.eglQueryString(display, EGL_EXTENSIONS));
    writeTag(2, "/", "captured");
    writeTag(1, "/", "egl");
}

/* ---- Blocks of ES versions ---- */

static void clearErrors(void) {
    int most = 16;
    while (most-- > 0 && gl.glGetError() != GL_NO_ERROR) {
    }
}

static const char *glText(GLenum name) {
    return (const char *)gl.glGetString(name);
}

static void writeIntegerLimit(const Context *context, const char *element, GLenum pname) {
    GLint value = 0;
    int64_t wide = 0;
    if (context->version >= 30 && gl.glGetInteger64v) {
        gl.glGetInteger64v(pname, &wide);
    } else {
        gl.glGetIntegerv(pname, &value);
        wide = value;
    }
    if (gl.glGetError() == GL_NO_ERROR) writeNumber(2, element, wide);
}

static void writeIndexedLimit(const char *element, GLenum pname) {
    static const char *const names[] = {"x", "y", "z"};
    GLint values[3] = {0, 0, 0};
    GLuint index;
    if (!gl.glGetIntegeri_v) return;
    for (index = 0; index < 3; ++index)
        gl.glGetIntegeri_v(pname, index, &values[index]);
    if (gl.glGetError() != GL_NO_ERROR) return;
    writeTag(2, "", element);
    for (index = 0; index < 3; ++index)
        writeNumber(3, names[index], values[index]);
    writeTag(2, "/", element);
}

static void writeRealLimit(const char *element, GLenum pname, LimitForm form) {
    GLfloat values[2] = {0, 0};
    gl.glGetFloatv(pname, values);
    if (gl.glGetError() != GL_NO_ERROR) return;
    if (form == REAL) {
        writeReal(2, element, values[0]);
        return;
    }
    writeTag(2, "", element);
    writeReal(3, form == SIZE ? "width" : "min", values[0]);
    writeReal(3, form == SIZE ? "height" : "max", values[1]);
    writeTag(2, "/", element);
}

static void writeLimits(const Context *context) {
    const char *const extensions = glText(GL_EXTENSIONS);
    size_t row;
    for (row = 0; row < COUNT(limitRows); ++row) {
        if (context->version < limitRows[row].since || context->version > limitRows[row].until) continue;
        if (limitRows[row].extension && !hasWord(extensions, limitRows[row].extension)) continue;
        if (limitRows[row].form == NUMBER)
            writeIntegerLimit(context, limitRows[row].element, limitRows[row].pname);
        else if (limitRows[row].form == INDEXED)
            writeIndexedLimit(limitRows[row].element, limitRows[row].pname);
        else
            writeRealLimit(limitRows[row].element, limitRows[row].pname, limitRows[row].form);
        clearErrors();
    }
}

static void writeLists(const Context *context) {
    const GLint most = 4096;
    const char *const extensions = glText(GL_EXTENSIONS);
    size_t row;
    GLint count, index;
    for (row = 0; row < COUNT(listRows); ++row) {
        GLint *values;
        if (context->version < listRows[row].since || (listRows[row].extension && context->version >= 30)) continue;
        if (listRows[row].extension && !hasWord(extensions, listRows[row].extension)) continue;
        count = 0;
        gl.glGetIntegerv(listRows[row].count, &count);
        if (gl.glGetError() != GL_NO_ERROR || count <= 0 || count > most) continue;
        values = calloc((size_t)count, sizeof *values);
        if (!values) continue;
        gl.glGetIntegerv(listRows[row].list, values);
        if (gl.glGetError() == GL_NO_ERROR)
            for (index = 0; index < count; ++index)
                writeNumber(2, listRows[row].element, values[index]);
        free(values);
    }
}

static void writeFormats(const Context *context) {
    const GLenum renderbuffer = 0x8D41, sampleCountNumber = 0x9380, sampleCounts = 0x80A9;
    size_t row;
    if (context->version < 30 || !gl.glGetInternalformativ) return;
    for (row = 0; row < COUNT(formatRows); ++row) {
        GLint count = 0, samples = 0;
        gl.glGetInternalformativ(renderbuffer, formatRows[row].format, sampleCountNumber, 1, &count);
        /* In descending order. */
        if (count > 0) gl.glGetInternalformativ(renderbuffer, formatRows[row].format, sampleCounts, 1, &samples);
        if (gl.glGetError() != GL_NO_ERROR) continue;
        writeTag(2, "", "internal_format");
        writeElement(3, "name", formatRows[row].name);
        writeNumber(3, "samples", samples);
        writeTag(2, "/", "internal_format");
    }
}

/* An element, such as vertex_high_float, has the two exponents of the range and the bits of precision. */
static void writePrecisions(const char *shader, GLenum shaderType) {
    const GLenum lowFloat = 0x8DF0;
    size_t index;
    for (index = 0; index < COUNT(precisionNames); ++index) {
        GLint range[2] = {0, 0}, precision = 0;
        const char *const name = precisionNames[index];
        gl.glGetShaderPrecisionFormat(shaderType, lowFloat + (GLenum)index, range, &precision);
        if (gl.glGetError() != GL_NO_ERROR) continue;
        fprintf(output, "      <%s_%s>%d %d %d</%s_%s>\n", shader, name, (int)range[0], (int)range[1], (int)precision,
                shader, name);
    }
}

static void writeBlock(const Context *context, const char *version) {
    clearErrors();
    fprintf(output, "  <es version=\"%s\">\n", version);
    writeWords(2, "extension", glText(GL_EXTENSIONS));
    writeLimits(context);
    writeLists(context);
    writeFormats(context);
    writeTag(2, "", "captured");
    writeElement(3, "vendor", glText(GL_VENDOR));
    writeElement(3, "renderer", glText(GL_RENDERER));
    writeElement(3, "version", glText(GL_VERSION));
    if (context->version >= 20) {
        writeElement(3, "shading_language_version", glText(GL_SHADING_LANGUAGE_VERSION));
        if (gl.glGetShaderPrecisionFormat) {
            writePrecisions("vertex", GL_VERTEX_SHADER);
            writePrecisions("fragment", GL_FRAGMENT_SHADER);
        }
    }
    writeTag(2, "/", "captured");
    writeTag(1, "/", "es");
}

/* ---- The program ---- */

/* Writes the names of the device, which are those of its highest version. */
static int writeIdentity(Context *context, const EGLConfig *configs, EGLint count, int fromEgl, const char *name) {
    int row;
    for (row = (int)COUNT(versionRows) - 1; row >= 0; --row)
        if (openContext(context, configs, count, row, fromEgl)) break;
    if (row < 0) return 0;
    fputs("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<profile>\n", output);
    writeElement(1, "device", name);
    writeElement(1, "renderer", glText(GL_RENDERER));
    writeElement(1, "vendor", glText(GL_VENDOR));
    closeContext(context);
    return 1;
}

static int writeProfile(EGLDisplay display, const EGLConfig *configs, EGLint count, int fromEgl, const char *name) {
    Context context = {EGL_NO_DISPLAY, EGL_NO_SURFACE, EGL_NO_CONTEXT, 0};
    size_t row;
    context.display = display;
    if (!writeIdentity(&context, configs, count, fromEgl, name)) {
        tell("no context can be created (EGL error 0x%04X)", (unsigned)egl.eglGetError());
        return 0;
    }
    writeEgl(display, configs, count);
    for (row = 0; row < COUNT(versionRows); ++row) {
        if (openContext(&context, configs, count, (int)row, fromEgl)) {
            writeBlock(&context, versionRows[row].block);
            closeContext(&context);
        } else {
            tell("ES %d.%d: no context can be created", (int)versionRows[row].major, (int)versionRows[row].minor);
        }
    }
    fputs("</profile>\n", output);
    return 1;
}

static int capture(const char *name) {
    EGLint minor = 0, count = 0;
    EGLConfig *configs;
    EGLDisplay display;
    int isDone;
    if (!loadEgl()) return 0;
    display = openDisplay(&minor);
    if (display == EGL_NO_DISPLAY) {
        tell("there is no EGL display");
        return 0;
    }
    egl.eglBindAPI(EGL_OPENGL_ES_API);
    if (!egl.eglGetConfigs(display, NULL, 0, &count) || count <= 0) {
        tell("the display has no configs (EGL error 0x%04X)", (unsigned)egl.eglGetError());
        return 0;
    }
    configs = calloc((size_t)count, sizeof *configs);
    isDone = configs && egl.eglGetConfigs(display, configs, count, &count) &&
             writeProfile(display, configs, count, returnsEveryFunction(display, minor), name);
    free(configs);
    egl.eglTerminate(display);
    return isDone;
}

static const char help[] =
    "usage: zelvane-capture [--name NAME] [-o FILE]\n"
    "Prints the device profile of this machine: EGL configs, ES versions, extensions and limits.\n"
    "  --name NAME  the device's name, under which \"zelvane profiles import\" installs the profile\n"
    "  -o FILE      writes to the file instead of standard output\n"
    "  --help       prints this text\n"
    "Exit status: 0 done, 1 nothing can be captured or written, 2 wrong use.\n";

int main(int argumentCount, char **arguments) {
    const char *name = NULL, *path = NULL;
    int index, isDone;
    for (index = 1; index < argumentCount; ++index) {
        const int hasValue = index + 1 < argumentCount;
        if (strcmp(arguments[index], "--help") == 0) {
            fputs(help, stdout);
            return 0;
        }
        if (strcmp(arguments[index], "--name") == 0 && hasValue) {
            name = arguments[++index];
        } else if (strcmp(arguments[index], "-o") == 0 && hasValue) {
            path = arguments[++index];
        } else {
            tell("\"%s\" is not an option, or has no value", arguments[index]);
            fputs(help, stderr);
            return 2;
        }
    }
    output = path ? fopen(path, "w") : stdout;
    if (!output) {
        tell("\"%s\" cannot be written", path);
        return 1;
    }
    isDone = capture(name);
    if (ferror(output) | fflush(output)) {
        tell("the profile cannot be written");
        isDone = 0;
    }
    if (path) fclose(output);
    if (path && !isDone) remove(path);
    return isDone ? 0 : 1;
}
