#include "egl/fixture.h"

#include <GLES2/gl2.h>
#include <dlfcn.h>

#include <cstring>

namespace {

class Contexts : public EntryTest {
protected:
    EGLint query(EGLContext context, EGLint attribute) {
        EGLint value = -77;
        EXPECT_SUCCEEDS(eglQueryContext(initialised(), context, attribute, &value));
        return value;
    }
};

} // namespace

TEST_F(Contexts, NoAttributesGiveAnEs1Context) {
    takeLog();
    EXPECT_NE(create({}, config()), EGL_NO_CONTEXT);
    EXPECT_THAT(takeLines(" 99 4096 5 "), SizeIs(1)) << "the host is asked for a legacy context";
    EXPECT_EQ(query(create({}, nullptr), EGL_CONFIG_ID), 0) << "a null config stands for id 0";
    EXPECT_NE(create({EGL_CONTEXT_MINOR_VERSION_KHR, 7}, config()), EGL_NO_CONTEXT) << "ES 1 takes any minor version";
}

TEST_F(Contexts, BackEndGetsTheAttributes) {
    const EGLint client = EGL_CONTEXT_CLIENT_VERSION;
    const std::pair<std::vector<EGLint>, ContextAttribs> rows[] = {
#include "egl/data/context_attribs.def"
    };
    for (auto [attributes, expected] : rows) {
        const EGLContext context = create(attributes, config());
        const EGLSurface surface = window();
        EXPECT_SUCCEEDS(eglMakeCurrent(m_display, surface, surface, context));
        expected.contextHandle = reinterpret_cast<uintptr_t>(context);
        EXPECT_EQ(memcmp(&backEnd().createdWith, &expected, sizeof expected), 0);
        EXPECT_THAT(backEnd().displayAndHandle,
                    ElementsAre(reinterpret_cast<uintptr_t>(m_display), expected.contextHandle));
    }
}

TEST_F(Contexts, DestroyWaitsForTheUnbind) {
    const EGLContext context = current();
    takeLog();
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, context));
    EXPECT_EQ(query(context, EGL_CONTEXT_CLIENT_VERSION), 2);
    EXPECT_EQ(takeLog(), "");
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    EXPECT_THAT(takeLines("zvDeleteEsContext"), SizeIs(1));
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglDestroyContext(m_display, context));

    EXPECT_SUCCEEDS(eglDestroyContext(m_display, EntryTest::context()));
    EXPECT_THAT(takeLines("zvDeleteEsContext"), SizeIs(0)) << "one that never was bound goes without the back end";

    useBackEnds("no_delete");
    const EGLContext stays = current();
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    takeLog();
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, stays));
    EXPECT_THAT(takeLines("releaseContext"), SizeIs(1)) << "the host context is gone";
    EXPECT_EQ(query(stays, EGL_CONTEXT_CLIENT_VERSION), 2) << "while the handle stays";
}

TEST_F(Contexts, LibraryStaysForAsLongAsAContextIsLeft) {
    const std::string path = std::string(STAGE_DIRECTORY) + "/back_ends/libGLESv1_CM.so.1";
    const auto isLoaded = [&] {
        void *library = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
        return library && dlclose(library) == 0;
    };
    for (const auto &[destroyed, isLeft] : {std::pair(context(1), true), {context(1), false}}) {
        eglDestroyContext(m_display, destroyed);
        EXPECT_EQ(isLoaded(), isLeft);
    }
    const EGLContext last = current(1);
    procAddress<void (*)(unsigned)>("glClear")(1);
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, last));
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    EXPECT_TRUE(isLoaded()) << "once proxies remember its functions";
}

TEST_F(Contexts, MissingLibraryShowsAtTheFirstBind) {
    useBackEnds("nowhere");
    EGLContext context = nullptr;
    EXPECT_EQ(errorsOf([&] { context = EntryTest::context(); }), "(Error) failed to load library 'libGLESv2.so.2'\n");
    const EGLSurface surface = window();
    EXPECT_FAILS(EGL_BAD_ALLOC, eglMakeCurrent(m_display, surface, surface, context));
}

TEST_F(Contexts, OnePointerServesThoseOfBothBackEnds) {
    const auto getString = procAddress<PFNGLGETSTRINGPROC>("glGetString");
    EXPECT_EQ(errorsOf([&] { EXPECT_EQ(getString(GL_VERSION), nullptr); }),
              "(Error) Attempted to call 'glGetString', but there is no current context.\n");
    // A context of the other version reused a dead context's memory and got the wrong back end's functions.
    for (const EGLint major : {1, 2, 1, 2}) {
        const EGLContext made = current(major);
        EXPECT_STREQ(reinterpret_cast<const char *>(getString(GL_VERSION)), major == 1 ? "es1" : "es2");
        EXPECT_SUCCEEDS(eglDestroyContext(m_display, made));
        EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    }
    EXPECT_THAT(takeLines("zvGetExtProcAddress"), SizeIs(2)) << "the later ones inherit the answers of the first";
}
