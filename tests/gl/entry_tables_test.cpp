#include "gl/entry_tables.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>
#include <utility>

#include "egl/extension_entries.h"
#include "egl/thread_record.h"

using gl::baseTable;
using gl::extensionTable;
using testing::ElementsAre;

TEST(EntryTables, EveryRowHasAProxyOfItsOwnAndIsFoundByItsName) {
    std::set<std::string> names, doubled;
    std::set<gl::Function> functions;
    const auto note = [&](const gl::ProcTableRow &row) {
        const bool isFirst = names.insert(row.name).second;
        if (!isFirst) doubled.insert(row.name);
        EXPECT_TRUE(functions.insert(row.function).second) << row.name;
        EXPECT_EQ(gl::findEntry(row.name) == row.function, isFirst) << row.name;
    };
    std::ranges::for_each(extensionTable, note);
    std::ranges::for_each(baseTable, note);
    EXPECT_THAT(doubled, ElementsAre("glPointSizePointerOES"));
}

TEST(EntryTables, OrderIsFixed) {
    EXPECT_EQ(std::pair(std::size(extensionTable), std::size(baseTable)), std::pair(size_t{226}, size_t{439}));
#define PLACE(table, index, expected) EXPECT_STREQ(table[index].name, expected);
#include "gl/data/places.def"
}

// Core EGL functions are linked and not found by name. Every lookup clears a pending error.
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
