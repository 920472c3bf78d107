#include "gl/entry_tables.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <tuple>

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
    const std::tuple<const gl::ProcTableRow *, size_t, const char *> samples[] = {
        {extensionTable, 0, "glBlendEquationEXT"},     {extensionTable, 9, "glRenderbufferStorageMultisampleTWG"},
        {extensionTable, 67, "glPointSizePointerOES"}, {extensionTable, 84, "glClipPlanexTWG"},
        {extensionTable, 207, "glGetFloati_vEXT"},     {baseTable, 0, "glActiveTexture"},
        {baseTable, 138, "glPointSizePointerOES"},     {baseTable, 438, "glTexStorage3DMultisample"},
    };
    for (const auto &[table, index, name] : samples)
        EXPECT_STREQ(table[index].name, name);
}

TEST(EntryTables, DebugEntriesEndTheExtensionTable) {
    std::vector<std::string> names;
    for (const auto &row : std::span(extensionTable).last(18))
        names.push_back(row.name);
    EXPECT_THAT(names, ElementsAre("Zelvane_ToggleWireframe", "Zelvane_GetTexImage", "Zelvane_GetCompressedTexImage",
                                   "Zelvane_GetTexLevelParameterfv", "Zelvane_GetTexLevelParameteriv",
                                   "zvToggleWireframe", "zvSetContextWireframe", "zvReadPixels", "zvBindFramebuffer",
                                   "zvBlitFramebuffer", "zvGetIntegerv", "zvDrawBuffers", "zvReadBuffer",
                                   "zvGetTexImage", "zvGetCompressedTexImage", "zvGetTexLevelParameterfv",
                                   "zvGetTexLevelParameteriv", "zvGetOpenGLShaderSource"));
}
