// The records that a GUI receives from an application, and the effects of its commands on the back ends.
#include "egl/fixture.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <iterator>
#include <thread>
#include <unistd.h>

#include "host/platform/recording/control.h"
#include "ui/scripted_gui.h"
#include "zelvane/back_end.h"

using namespace ui::messages;

extern "C" __attribute__((visibility("default"))) uint32_t ZelvaneConfiguration;
uint32_t ZelvaneConfiguration = 0;

namespace {

class EntryLink : public EntryTest {
protected:
    // The first EGL call connects.
    void connect() {
        initialised();
        gui.accept();
    }

    // The text of the next window title; records before it must have another type.
    std::string nextTitle() { return textOf(gui.readUntil(ZV_WINDOW_TITLE)); }

    // The back ends' lines about the render mode, after there are at least that many.
    static std::vector<std::string> renderModeLines(size_t count) {
        std::vector<std::string> lines;
        while (lines.size() < count) {
            std::ranges::move(takeLines("zvSetRenderMode"), std::back_inserter(lines));
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return lines;
    }

    ScriptedGui gui;
};

// The number of modes that the process sent. The socket holds far fewer than the receiver must accept below.
std::atomic<int> modesSent = 0;

// Runs after the static objects of the libraries are destroyed, and gives their threads time to continue. A thread that
// a sanitizer holds receives no more.
void linger(int, void *) {
    const int before = modesSent;
    for (int wait = 0; before && modesSent < before + 500; ++wait) {
        if (wait == 20000) _exit(1);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

// Handlers that are registered before any library starts are called after every library has ended.
__attribute__((no_sanitize("address", "thread", "undefined"))) void lingerAtTheEnd() {
    on_exit(linger, nullptr);
}
__attribute__((section(".preinit_array"), used)) void (*const beforeLibraries)() = lingerAtTheEnd;

} // namespace

TEST_F(EntryLink, TellsOfTheHostOfItsLogAndOfItsFramesForAsLongAsAGuiIsThere) {
    connect();
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    const Message version = *gui.read(), extension = *gui.read();
    EXPECT_EQ(version.header.type, ZV_SYSTEM_REPORT_GL_VERSION);
    EXPECT_EQ(version.glVersion.glVersion, 19u);
    EXPECT_EQ(extension.header.type, ZV_SYSTEM_REPORT_EXTENSION);
    EXPECT_EQ(gui.readUntil(ZV_SYSTEM_REPORT_ES_EXTENSION_REQUIREMENT).esExtensionRequirement.esExtension, 38u);
    EXPECT_EQ(gui.readUntil(ZV_SYSTEM_REPORT_END).header.frameStamp, ZV_NO_FRAME);
    current();
    (void)eglCopyBuffers(m_display, eglGetCurrentSurface(EGL_DRAW), 0);
    EXPECT_EQ(textOf(gui.readUntil(ZV_LOG_WARNING)), "eglCopyBuffers is not currently supported by Zelvane.");
    for (uint64_t frame = 0; frame < 3; ++frame) {
        zvPostFrameMessage(backEndMarker());
        EXPECT_EQ(gui.readUntil(ZV_BACK_END_MARKER).header.frameStamp, frame);
        EXPECT_SUCCEEDS(eglSwapBuffers(m_display, eglGetCurrentSurface(EGL_DRAW)));
    }
    EXPECT_EQ(zvGuiIsAttached(), 1);
    gui.close();
    while (zvGuiIsAttached())
        std::this_thread::yield();
}

TEST_F(EntryLink, EveryBindToAWindowSendsItsTitle) {
    connect();
    const EGLContext made = context();
    const EGLSurface first = window(), small = pbuffer(), second = window(), nameless = window(78);
    useBackEnds("none");
    EXPECT_FAILS(EGL_BAD_ALLOC, eglMakeCurrent(m_display, nameless, nameless, context())); // sends nothing
    useBackEnds("back_ends");
    recordingFailNext("makeCurrent");
    EXPECT_FAILS(EGL_BAD_ALLOC, eglMakeCurrent(m_display, first, first, made));
    EXPECT_EQ(nextTitle(), "seventy-seven") << "the bind that failed has sent it";
    recordingSetWindow(77, 640, 480, "renamed");
    for (const EGLSurface surface : {small, second, nameless})
        EXPECT_SUCCEEDS(eglMakeCurrent(m_display, surface, surface, made));
    EXPECT_EQ(nextTitle(), "renamed") << "a pixel buffer sends nothing";
    EXPECT_EQ(nextTitle(), "");
}

TEST_F(EntryLink, AnEmbedderKeepsTitlesBack) {
    ZelvaneConfiguration = 8;
    connect();
    current();
    zvPostFrameMessage(backEndMarker());
    // The System Report may come before it.
    for (auto message = gui.read(); message->header.type != ZV_BACK_END_MARKER; message = gui.read())
        ASSERT_NE(message->header.type, ZV_WINDOW_TITLE);
}

TEST_F(EntryLink, RenderModeReachesDisplaysAndContextsInTheOrderOfTheirHandles) {
    connect();
    const EGLDisplay second = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(0x5150));
    EXPECT_SUCCEEDS(eglInitialize(second, nullptr, nullptr));
    EXPECT_NE(eglCreateContext(second, config(), EGL_NO_CONTEXT, nullptr), EGL_NO_CONTEXT);
    context(2);
    context(1);
    const EGLContext destroyed = context(1);
    current(3);
    EXPECT_SUCCEEDS(eglDestroyContext(m_display, destroyed));
    std::vector<std::string> backEnds{"es2", "es1", "es2"};
    backEnds.insert(second < m_display ? backEnds.begin() : backEnds.end(), "es1");
    for (std::string &line : backEnds)
        line += " zvSetRenderMode(1, 1)";
    takeLog();
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModeLines(4), backEnds);
}

TEST_F(EntryLink, ModesArriveWhileThreadsMakeAndDestroyContexts) {
    connect();
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([this] {
            for (int i = 0; i < 20; ++i)
                EXPECT_TRUE(eglDestroyContext(m_display, context()));
        });
    for (int i = 0; i < 50; ++i)
        gui.send(i % 2 ? guiRenderModeOff() : guiRenderModeOn());
    threads.clear();
    gui.send(guiDisconnect());
    while (gui.read())
        continue;
    EXPECT_TRUE(eglInitialize(m_display, nullptr, nullptr)) << "the application goes on";
}

// The threads of the link outlive the state, whose displays are destroyed while the process ends.
TEST_F(EntryLink, ProcessEndsWhileModesArrive) {
    connect();
    for (uintptr_t id = 1; id < 200; ++id)
        (void)eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(id));
    auto *client = new KZRIPC::Client(gui.release());
    std::thread([client] {
        const Message on = guiRenderModeOn();
        signal(SIGPIPE, SIG_IGN);
        while (client->send(&on, sizeof on) > 0)
            ++modesSent;
    }).detach();
    while (modesSent == 0)
        std::this_thread::yield();
}
