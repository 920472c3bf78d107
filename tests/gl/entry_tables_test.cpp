#include "gl/entry_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>

#include "fake_context.h"
#include "gl/gl_types.h"

using gl::baseTable;
using gl::extensionTable;
using testing::ElementsAre;

TEST(EntryTables, EveryRowHasAProxyOfItsOwn) {
    std::map<std::string, int> names;
    std::set<gl::Function> functions;
    const auto note = [&](const gl::ProcTableRow &row) {
        ++names[row.name];
        functions.insert(row.function);
    };
    std::ranges::for_each(extensionTable, note);
    std::ranges::for_each(baseTable, note);
    std::map<std::string, int> doubled;
    for (const auto &[name, count] : names)
        if (count > 1) doubled[name] = count;
    EXPECT_THAT(doubled, ElementsAre(testing::Pair("glPointSizePointerOES", 2)));
    EXPECT_EQ(functions.size(), std::size(extensionTable) + std::size(baseTable));
}

TEST(EntryTables, OrderIsFixed) {
    const struct {
        const gl::ProcTableRow *table;
        size_t index;
        const char *name;
    } samples[] = {
        {extensionTable, 0, "glBlendEquationEXT"},     {extensionTable, 9, "glRenderbufferStorageMultisampleTWG"},
        {extensionTable, 67, "glPointSizePointerOES"}, {extensionTable, 84, "glClipPlanexTWG"},
        {extensionTable, 207, "glGetFloati_vEXT"},     {baseTable, 0, "glActiveTexture"},
        {baseTable, 138, "glPointSizePointerOES"},     {baseTable, 438, "glTexStorage3DMultisample"},
    };
    for (const auto &sample : samples)
        EXPECT_STREQ(sample.table[sample.index].name, sample.name);
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

// Whatever a back end returns there, an integer or a pointer, comes through whole.
TEST(EntryTables, DebugEntriesHandBackAWholeRegister) {
    const auto toggle = reinterpret_cast<GLuint64 (*)(GLuint)>(extensionTable[208].function);
    fake::reset();
    EXPECT_EQ(toggle(1), 0u);
    EXPECT_THAT(fake::takeLog(),
                ElementsAre("error: Attempted to call 'Zelvane_ToggleWireframe', but there is no current context."));

    fake::backEnd = [](const egl::Context *, const std::string &name) -> void * {
        if (name != "Zelvane_ToggleWireframe") return nullptr;
        return reinterpret_cast<void *>(+[](GLuint enable) -> GLuint64 { return GLuint64{enable} << 40; });
    };
    egl::threadRecord.current = fake::context(0);
    EXPECT_EQ(toggle(3), GLuint64{3} << 40);
}
