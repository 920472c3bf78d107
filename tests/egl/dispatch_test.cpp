#include "egl/fixture.h"

#include <GLES2/gl2.h>

using Dispatch = EntryTest;

TEST_F(Dispatch, OnePointerServesContextsOfBothBackEnds) {
    const auto getString = procAddress<PFNGLGETSTRINGPROC>("glGetString");
    const auto attrib = procAddress<PFNGLVERTEXATTRIB4FPROC>("glVertexAttrib4f");
    EXPECT_EQ(errorsOf([&] { EXPECT_EQ(getString(GL_VERSION), nullptr); }),
              "(Error) Attempted to call 'glGetString', but there is no current context.\n");
    current(2);
    takeLog();
    attrib(3, 1, 2, 0.5f, -4);
    attrib(3, 1, 2, 0.5f, -4);
    EXPECT_EQ(takeLog(), "es2 zvGetExtProcAddress(glVertexAttrib4f)\n"
                         "es2 glVertexAttrib4f(3, 1, 2, 0.5, -4)\n"
                         "es2 glVertexAttrib4f(3, 1, 2, 0.5, -4)\n");
}

TEST_F(Dispatch, AnswersGoRoundWithinOneBackEndAlone) {
    // A dead context's memory was taken by one of the other version, which then got the wrong back end's functions.
    const auto getString = procAddress<PFNGLGETSTRINGPROC>("glGetString");
    for (int round = 0; round < 4; ++round) {
        const EGLint major = 1 + round % 2;
        const EGLContext made = current(major);
        EXPECT_STREQ(reinterpret_cast<const char *>(getString(GL_VERSION)), major == 1 ? "es1" : "es2");
        EXPECT_SUCCEEDS(eglDestroyContext(m_display, made));
        EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    }
    EXPECT_THAT(takeLines("zvGetExtProcAddress"), SizeIs(2)) << "the later ones inherit the answers of the first";
}
