#include "egl/standard/extensions.h"

#include <mutex>
#include <set>
#include <string>

#include "egl/standard/context_rules.h"

namespace egl::standard {

namespace {

// A blank follows every name, even the last one.
constexpr char always[] = "EGL_EXT_buffer_age "
                          "EGL_EXT_pixel_format_float "
                          "EGL_EXT_swap_buffers_with_damage "
                          "EGL_TWG_context_priority "
                          "EGL_KHR_create_context "
                          "EGL_KHR_create_context_no_error "
                          "EGL_KHR_fence_sync "
                          "EGL_KHR_get_all_proc_addresses "
                          "EGL_KHR_gl_colorspace "
                          "EGL_KHR_gl_renderbuffer_image "
                          "EGL_KHR_gl_texture_2D_image "
                          "EGL_KHR_gl_texture_cubemap_image "
                          "EGL_KHR_image "
                          "EGL_KHR_image_base "
                          "EGL_KHR_no_config_context "
                          "EGL_KHR_reusable_sync "
                          "EGL_KHR_surfaceless_context "
                          "EGL_KHR_swap_buffers_with_damage "
                          "EGL_KHR_wait_sync "
                          "EGL_MESA_configless_context ";
constexpr char whereRobust[] = "EGL_EXT_create_context_robustness ";

const char *kept(std::string text) {
    static std::mutex mutex;
    static auto &texts = *new std::set<std::string>;
    const std::lock_guard lock(mutex);
    return texts.insert(std::move(text)).first->c_str();
}

} // namespace

const char *clientExtensions() {
    return "EGL_EXT_client_extensions EGL_EXT_device_base EGL_EXT_device_enumeration EGL_EXT_device_query "
           "EGL_EXT_platform_base EGL_EXT_platform_x11 EGL_KHR_platform_x11 "
           "EGL_MESA_platform_surfaceless EGL_KHR_client_get_all_proc_addresses ";
}

const char *displayExtensions(const Display &display) {
    const auto config = display.noConfig();
    return kept(std::string(always) + (config && canBeRobust(*config) ? whereRobust : ""));
}

} // namespace egl::standard
