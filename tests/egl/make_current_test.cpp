#include "egl/fixture.h"

#include <thread>

#include "host/platform/recording/control.h"

namespace {

class MakeCurrent : public EntryTest {
protected:
    EGLBoolean makeCurrent(EGLSurface draw, EGLSurface read, EGLContext context) {
        return eglMakeCurrent(initialised(), draw, read, context);
    }
    EGLBoolean release() { return makeCurrent(nullptr, nullptr, nullptr); }
    void expectNothingCurrent() {
        EXPECT_FALSE(eglGetCurrentContext() || eglGetCurrentDisplay() || zvCurrentEsContext());
    }
};

} // namespace

TEST_F(MakeCurrent, BindsHostThenBackEnd) {
    const EGLContext context = EntryTest::context();
    const EGLSurface surface = window();
    takeLog();
    EXPECT_SUCCEEDS(makeCurrent(surface, surface, context));
    EXPECT_EQ(backEnd().currentDuringCreate, nullptr);
    EXPECT_SUCCEEDS(eglReleaseThread()); // which releases nothing
    EXPECT_TRUE(eglGetCurrentContext() == context && eglGetCurrentDisplay() == m_display);
    EXPECT_EQ(eglGetCurrentSurface(EGL_READ), surface);
    EXPECT_EQ(zvCurrentEsContext(), reinterpret_cast<zvEsContext>(0x100));
    EXPECT_SUCCEEDS(makeCurrent(surface, surface, context));
    EXPECT_SUCCEEDS(release());
    expectNothingCurrent();
    EXPECT_EQ(takeLog(), golden("egl/data/two_binds.txt")) << "observed once more, but not made current once more";
}

TEST_F(MakeCurrent, DrawAndReadAreToldApart) {
    const EGLSurface draw = window(77), read = window(78);
    const EGLContext context = EntryTest::context();
    takeLog();
    EXPECT_SUCCEEDS(makeCurrent(draw, read, context));
    EXPECT_THAT(takeLines("setView"), ElementsAre("setView(context2, 0:77) = true"))
        << "the host draws and reads there";
    EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), draw);
    EXPECT_EQ(eglGetCurrentSurface(EGL_READ), read);
    EXPECT_SUCCEEDS(makeCurrent(draw, draw, context));
    EXPECT_EQ(eglGetCurrentSurface(EGL_READ), draw) << "the pair counts, and not its first";
}

TEST_F(MakeCurrent, WithoutAHostContextOrSurfaceNothingIsBoundOnTheHost) {
    const EGLContext bound = current();
    const EGLSurface buffer = pbuffer(), refused = pbuffer(0, 0);
    takeLog();
    EXPECT_SUCCEEDS(makeCurrent(buffer, buffer, bound));
    EXPECT_THAT(takeLog(), StartsWith("setPixelBuffer(context2, buffer1) = true\ncurrentContext() = context2\n"));
    EXPECT_SUCCEEDS(makeCurrent(refused, refused, bound));
    EXPECT_THAT(takeLog(), StartsWith("setView(context2, null) = true\nglGetError()\n")) << "only detached";

    recordingFailNext("createContext");
    const EGLContext hostless = context(1, bound);
    EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(buffer, buffer, hostless));
    EXPECT_THAT(takeLines("Current"), ElementsAre("clearCurrentContext()"));
}

TEST_F(MakeCurrent, FailuresAndWhatSurvivesThem) {
    const EGLContext old = current(), fresh = context();
    const EGLSurface surface = window();

    EXPECT_FAILS(EGL_BAD_CONTEXT, makeCurrent(surface, surface, nullptr));
    EXPECT_EQ(eglGetCurrentContext(), old);
    EXPECT_FAILS(EGL_BAD_SURFACE, makeCurrent(nullptr, surface, old));
    EXPECT_EQ(eglGetCurrentContext(), old) << "rebinding the same context loses nothing";
    EXPECT_FAILS(EGL_BAD_SURFACE, makeCurrent(surface, unknownSurface, fresh));
    expectNothingCurrent();

    recordingFailNext("setView");
    EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(surface, surface, fresh));
    backEnd().createFailures = 1;
    EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(surface, surface, fresh));
    expectNothingCurrent();
    EXPECT_SUCCEEDS(makeCurrent(surface, surface, fresh)) << "a later bind tries again";
    recordingFailNext("setPixelBuffer");
    EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(nullptr, nullptr, old));
    expectNothingCurrent(); // a failed bind without surfaces loses the old context too

    useBackEnds("no_create");
    EXPECT_EQ(errorsOf([&] { EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(surface, surface, context())); }),
              "(Error) failed to find zvCreateEsContext in 'libGLESv2.so.2'\n");
    useBackEnds("back_ends");
    recordingFailNext("createContext");
    const EGLContext refused = context();
    for (const char *words :
         {"(Error) The host has given no OpenGL context of version 3.2 or above for OpenGL ES 2 and 3\n", ""})
        EXPECT_EQ(errorsOf([&] { EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(surface, surface, refused)); }), words);
}

TEST_F(MakeCurrent, ContextBelongsToOneThread) {
    const EGLContext context = current();
    std::thread([&] { EXPECT_FAILS(EGL_BAD_ACCESS, makeCurrent(nullptr, nullptr, context)); }).join();

    const EGLContext lost = EntryTest::context();
    const EGLSurface surface = window();
    std::thread([&] { EXPECT_TRUE(makeCurrent(surface, surface, lost)); }).join();
    EXPECT_FAILS(EGL_BAD_ACCESS, makeCurrent(surface, surface, lost));
    takeLog();
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, lost));
    EXPECT_EQ(takeLog(), "") << "still marked as bound, so only marked as doomed";
}

TEST_F(MakeCurrent, SurfacelessBindHasAPixelBufferOfItsOwnAndSrgbIsNeverForgotten) {
    const EGLint srgb[] = {EGL_GL_COLORSPACE, EGL_GL_COLORSPACE_SRGB, EGL_NONE};
    const EGLContext context = EntryTest::context();
    const auto drawHandle = [] { return reinterpret_cast<uintptr_t>(eglGetCurrentSurface(EGL_DRAW)); };
    EXPECT_SUCCEEDS(makeCurrent(nullptr, nullptr, context));
    EXPECT_EQ(backEnd().createdWith.surfaceless, 1);
    EXPECT_EQ(drawHandle(), 1u) << "numbered as any other surface";
    EXPECT_EQ(querySurface(eglGetCurrentSurface(EGL_DRAW), EGL_HEIGHT), 1);
    const EGLSurface surface = eglCreateWindowSurface(m_display, config(), 77, srgb);
    EXPECT_SUCCEEDS(makeCurrent(surface, surface, context));
    EXPECT_SUCCEEDS(makeCurrent(nullptr, nullptr, context));
    EXPECT_EQ(backEnd().setTo.srgbFramebuffer, 1);
    EXPECT_EQ(drawHandle(), 3u) << "a new one at each bind";

    recordingFailNext("setPixelBuffer");
    EXPECT_FAILS(EGL_BAD_ALLOC, makeCurrent(nullptr, nullptr, context));
    EXPECT_EQ(eglGetCurrentContext(), context);
    EXPECT_EQ(drawHandle(), 0u) << "while a failed surfaceless bind has left its mark";
}

TEST_F(MakeCurrent, ShareContextIsPrimedFirst) {
    const EGLContext grandparent = context(1), parent = context(2, grandparent), child = context(2, parent);
    const EGLContext late = context(2, parent);
    const EGLSurface surface = window();
    takeLog();
    EXPECT_EQ(outputOf([&] { EXPECT_SUCCEEDS(makeCurrent(surface, surface, child)); }),
              "(Warning) Attempting to share two contexts of differing API versions is unsupported.\n");
    EXPECT_EQ(eglGetCurrentContext(), child);
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, parent)); // since priming leaves no context bound
    EXPECT_SUCCEEDS(makeCurrent(surface, surface, late));
    EXPECT_THAT(takeLines("teEsContext("),
                ElementsAre("es1 zvCreateEsContext(share (nil)) = 0x100", "es2 zvCreateEsContext(share 0x100) = 0x100",
                            "es2 zvCreateEsContext(share 0x100) = 0x101", "es2 zvDeleteEsContext(0x100)",
                            "es2 zvCreateEsContext(share (nil)) = 0x102"))
        << "never shared with the deleted one";
}

TEST_F(MakeCurrent, CurrentObjectsSurviveTerminate) {
    const EGLContext context = current();
    const EGLSurface surface = eglGetCurrentSurface(EGL_DRAW);
    EXPECT_SUCCEEDS(eglTerminate(m_display));
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    takeLog();
    EGLint id = -77;
    EXPECT_SUCCEEDS(eglQueryContext(m_display, context, EGL_CONFIG_ID, &id)) << "its config outlives the list";
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, surface));
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(1));
    EXPECT_SUCCEEDS(release());
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglQueryContext(m_display, context, EGL_CONFIG_ID, &id));
    EXPECT_EQ(takeLog(), "clearCurrentContext()\n") << "neither the back end nor the host is told";

    const EGLContext doomed = current();
    const EGLDisplay other = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(0x1234));
    EXPECT_SUCCEEDS(eglInitialize(other, nullptr, nullptr));
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, doomed));
    EXPECT_SUCCEEDS(eglMakeCurrent(other, nullptr, nullptr, nullptr));
    EXPECT_THAT(takeLines("zvDeleteEsContext"), SizeIs(0)) << "the doomed context is in the other table";
    expectNothingCurrent();
}
