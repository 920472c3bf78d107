#include "gl/entry_tables.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

using gl::baseTable;
using gl::extensionTable;
using testing::ElementsAre;

TEST(EntryTables, EveryRowHasAProxyOfItsOwn) {
    std::set<std::string> names, doubled;
    std::set<gl::Function> functions;
    const auto note = [&](const gl::ProcTableRow &row) {
        if (!names.insert(row.name).second) doubled.insert(row.name);
        EXPECT_TRUE(functions.insert(row.function).second) << row.name;
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
