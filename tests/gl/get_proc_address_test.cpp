#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "egl/extension_entries.h"
#include "egl/thread_record.h"
#include "gl/entry_tables.h"

// Core functions are linked, so that they are not found by name. Every look-up clears a pending error.
TEST(GetProcAddress, NamesGiveTheEntriesBehindThemAndOtherNamesNull) {
    const std::string home = getenv("HOME");
    const auto find = [](const char *name) {
        egl::threadRecord.error = EGL_BAD_ALLOC;
        const auto found = eglGetProcAddress(name);
        EXPECT_EQ(egl::threadRecord.error, EGL_SUCCESS);
        return found;
    };
#define ENTRY(name, entry) EXPECT_EQ(find(name), reinterpret_cast<gl::Function>(entry)) << name;
#define PROXY(name, row) EXPECT_EQ(find(name), row.function) << name;
#define OTHER(name, directory, isFound)                                                                                \
    setenv("HOME", std::string(directory).c_str(), 1);                                                                 \
    EXPECT_EQ(find(name) != nullptr, isFound) << testing::PrintToString(name);
#include "gl/data/proc_addresses.def"
}
