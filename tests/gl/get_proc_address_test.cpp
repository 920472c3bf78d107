#include <gtest/gtest.h>

#include "egl/extension_entries.h"
#include "egl/thread_record.h"
#include "fake_entries.h"
#include "gl/entry_tables.h"

TEST(GetProcAddress, ExtensionNamesGiveTheEntriesBehindThem) {
    const auto function = [](auto *entry) { return reinterpret_cast<gl::Function>(entry); };
    const struct {
        const char *name;
        gl::Function function;
    } rows[] = {
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
    for (const auto &row : rows)
        EXPECT_EQ(eglGetProcAddress(row.name), row.function) << row.name;
}

TEST(GetProcAddress, OtherNamesGiveNull) {
    const char *const names[] = {
        "eglCreateContext", // core functions are linked
        "eglCreateSync",
        "gldrawarrays", // no other case or suffix
        "glDrawArraysEXT",  "glDrawArrays ", "", nullptr,
    };
    for (const char *name : names)
        EXPECT_EQ(eglGetProcAddress(name), nullptr) << (name ? name : "null");
}

TEST(GetProcAddress, EveryLookupClearsAPendingError) {
    const struct {
        const char *name;
        bool isLoadable;
        bool isFound;
    } lookups[] = {{"glFlush", true, true}, {"glNone", true, false}, {"glFlush", false, false}};
    for (const auto &lookup : lookups) {
        SCOPED_TRACE(lookup.name);
        fake::isLoadable = lookup.isLoadable;
        egl::threadRecord.error = EGL_BAD_ALLOC;
        EXPECT_EQ(eglGetProcAddress(lookup.name) != nullptr, lookup.isFound);
        EXPECT_EQ(egl::threadRecord.error, EGL_SUCCESS);
    }
    fake::isLoadable = true;
}
