#include <gtest/gtest.h>

#include <cstdlib>

#include "egl/extension_entries.h"
#include "egl/thread_record.h"
#include "gl/entry_tables.h"

TEST(GetProcAddress, ExtensionNamesGiveTheEntriesBehindThem) {
    const auto function = [](auto *entry) { return reinterpret_cast<gl::Function>(entry); };
    const std::pair<const char *, gl::Function> rows[] = {
        {"eglCreateSyncKHR", function(egl::createSyncKHR)},
        {"eglDestroySyncKHR", function(eglDestroySync)},
        {"eglClientWaitSyncKHR", function(eglClientWaitSync)},
        {"eglGetSyncAttribKHR", function(egl::getSyncAttribKHR)},
        {"eglCreateImageKHR", function(eglCreateImage)},
        {"eglDestroyImageKHR", function(eglDestroyImage)},
        {"eglSwapBuffersWithDamageEXT", function(egl::swapBuffersWithDamage)},
        {"eglSwapBuffersWithDamageKHR", function(egl::swapBuffersWithDamage)},
        {"eglSetDamageRegionKHR", function(egl::setDamageRegionKHR)},
        {"eglGetPlatformDisplayEXT", function(egl::getPlatformDisplayEXT)},
        {"eglCreatePlatformWindowSurfaceEXT", function(eglCreateWindowSurface)},
        {"eglCreatePlatformPixmapSurfaceEXT", function(eglCreatePixmapSurface)},
        {"eglWaitSyncKHR", function(eglWaitSync)},
        {"glDrawArrays", gl::baseTable[22].function},
        {"glPointSizePointerOES", gl::extensionTable[67].function},
        {"zvGetOpenGLShaderSource", gl::extensionTable[225].function},
    };
    for (const auto &[name, function] : rows)
        EXPECT_EQ(eglGetProcAddress(name), function) << name;
}

TEST(GetProcAddress, OtherNamesGiveNullAndEveryLookupClearsAPendingError) {
    const std::string home = getenv("HOME");
    const std::tuple<const char *, std::string, bool> rows[] = {
        {"glFlush", "", false},                                              // the load fails
        {"glFlush", home, true},          {"eglCreateContext", home, false}, // core functions are linked
        {"eglCreateSync", home, false},   {"gldrawarrays", home, false},     // no other case or suffix
        {"glDrawArraysEXT", home, false}, {"glDrawArrays ", home, false},    {"", home, false}, {nullptr, home, false},
    };
    for (const auto &[name, directory, isFound] : rows) {
        setenv("HOME", directory.c_str(), 1);
        egl::threadRecord.error = EGL_BAD_ALLOC;
        EXPECT_EQ(eglGetProcAddress(name) != nullptr, isFound) << (name ? name : "null");
        EXPECT_EQ(egl::threadRecord.error, EGL_SUCCESS) << (name ? name : "null");
    }
}
