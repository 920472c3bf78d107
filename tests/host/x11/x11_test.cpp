// Promises of the X11 operations beyond the list.
#include "x11_fixture.h"

#include <csignal>
#include <cstdlib>
#include <malloc.h>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "host/platform/x11/connection.h"
#include "host/platform/x11/context.h"
#include "host/platform/x11/glx.h"
#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/swap_control.h"
#include "host/platform/x11/x_calls.h"

namespace {

// The results of the replaced GLX functions.
GLXFBConfig slowConfig = nullptr;
const char *glxExtensions = nullptr; // null for the host's own
bool refusesBind = false;            // makes the next bind fail, with nothing current
std::vector<GLXDrawable> paced;      // the drawables whose swap interval was set

// The host's functions, read before the platform uses them.
const x11::Glx hostGlx = [] {
    const x11::Glx host = x11::glx();
    x11::glx().fbConfigAttrib = [](Display *display, GLXFBConfig config, int attribute, int *value) {
        const int result = hostGlx.fbConfigAttrib(display, config, attribute, value);
        if (config != slowConfig) return result;
        if (attribute == GLX_CONFIG_CAVEAT) *value = GLX_SLOW_CONFIG;
        if (attribute == GLX_FBCONFIG_ID) *value = 0; // an id that the server does not have
        return result;
    };
    x11::glx().queryExtensionsString = [](Display *display, int screen) {
        return glxExtensions ? glxExtensions : hostGlx.queryExtensionsString(display, screen);
    };
    x11::glx().makeContextCurrent = [](Display *display, GLXDrawable draw, GLXDrawable read, GLXContext context) {
        if (!std::exchange(refusesBind, false)) return hostGlx.makeContextCurrent(display, draw, read, context);
        hostGlx.makeContextCurrent(display, None, None, nullptr);
        return False;
    };
    x11::glx().procAddress = [](const GLubyte *name) {
        constexpr auto pace = [](Display *, GLXDrawable drawable, int) { paced.push_back(drawable); };
        if (reinterpret_cast<const char *>(name) != std::string("glXSwapIntervalEXT")) return hostGlx.procAddress(name);
        return reinterpret_cast<void (*)()>(PFNGLXSWAPINTERVALEXTPROC(pace));
    };
    return host;
}();

} // namespace

namespace {

using OnX11 = X11Host;

TEST_F(OnX11, ContextsHaveTheProfileOfTheFormatAndGoWhenReleasedAndNoLongerCurrent) {
    const std::tuple<const uint32_t *, const char *, GLint> rows[] = {{coreList, "3.2", 1}, {legacyList, "1.4", 2}};
    for (const auto &[list, oldest, profileMask] : rows) {
        auto made = context(list);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
        made.reset();
        EXPECT_GE(std::string(glString(GL_VERSION)).substr(0, 3), oldest);
        GLint mask = 0;
        gl<void (*)(GLenum, GLint *)>("glGetIntegerv")(0x9126, &mask); // GL_CONTEXT_PROFILE_MASK
        EXPECT_EQ(mask, profileMask);
        operations.clearCurrentContext();
        EXPECT_EQ(glXGetCurrentContext(), nullptr);
    }
    EXPECT_EQ(operations.createContext(nullptr, nullptr), nullptr);
}

TEST_F(OnX11, ThreadThatEndsWithAContextCurrentLetsItGo) {
    auto made = context();
    std::thread([&] { ASSERT_TRUE(operations.makeCurrent(made.get())); }).join();
    EXPECT_TRUE(operations.makeCurrent(made.get()));
}

TEST_F(OnX11, WindowOfTheDefaultVisualIsDrawnDirectly) {
    const auto made = context();
    const Window target = window(64, 48); // not flushed: the layer must wait for the application's connection
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    EXPECT_EQ(glXGetCurrentDrawable(), target);
    ASSERT_TRUE(operations.setView(made.get(), {}));
    EXPECT_NE(glXGetCurrentDrawable(), target);
}

// In an application that tries several configs on a window, the first one's child covered all later frames.
TEST_F(OnX11, ChildIsSeenOnlyWhileItIsDrawnTo) {
    constexpr uint32_t list[] = {
        OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, SampleBuffers, 1, Samples, 4, 0};
    const auto direct = context(), sampled = context(list);
    const Window target = window(64, 48);
    for (const auto &[drawn, state] : {std::pair(sampled.get(), IsViewable), std::pair(direct.get(), IsUnmapped)}) {
        ASSERT_TRUE(operations.setView(drawn, viewOf(target)) && operations.makeCurrent(drawn));
        operations.flushBuffer(drawn);
        operations.viewSize(viewOf(target), nullptr, nullptr); // waits for the layer's connection
        Window root = 0, parent = 0, *children = nullptr;
        unsigned count = 0;
        XQueryTree(application, target, &root, &parent, &children, &count);
        if (count == 0) GTEST_SKIP() << "this server has samples in its default visual";
        XWindowAttributes attributes{};
        XGetWindowAttributes(application, children[0], &attributes);
        XFree(children);
        EXPECT_EQ(attributes.map_state, state);
    }
}

TEST_F(OnX11, PixelBuffersOutliveTheirReleaseAndLeaveTheContextCurrent) {
    const auto made = context(), other = context(legacyList);
    Buffer buffer(operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8, nullptr));
    for (const auto &context : {made.get(), other.get()})
        ASSERT_TRUE(operations.setPixelBuffer(context, buffer.get()) && operations.makeCurrent(context));
    buffer.reset();
    EXPECT_TRUE(operations.setPixelBuffer(other.get(), nullptr));
    EXPECT_EQ(operations.currentContext(), other.get());
    EXPECT_TRUE(operations.makeCurrent(made.get()));
}

// A mapping for each would be returned to the system, and faulted in, at each draw.
TEST_F(OnX11, BuffersOfASoftwareRendererComeFromTheHeap) {
    const auto made = context();
    if (!made->connection.isSoftware()) GTEST_SKIP() << "the host draws in hardware";
    const size_t mappings = mallinfo2().hblks;
    const std::unique_ptr<void, decltype(&free)> buffer(malloc(size_t(1) << 20), free);
    EXPECT_EQ(mallinfo2().hblks, mappings);
}

TEST_F(OnX11, ViewThatTheHostRefusesLeavesTheOldOne) {
    const auto made = context();
    const View old = viewOf(window(64, 48));
    ASSERT_TRUE(operations.setView(made.get(), old) && operations.makeCurrent(made.get()));
    refusesBind = true;
    EXPECT_FALSE(operations.setView(made.get(), viewOf(window(64, 48))));
    EXPECT_EQ(operations.view(made.get()), old);
    EXPECT_EQ(glXGetCurrentDrawable(), old.window);
}

// A destroyed window and the next one of the application may have the same number.
TEST_F(OnX11, WindowOfAKnownNumberIsAnother) {
    static XID number;
    number = XAllocID(application);
    reinterpret_cast<_XPrivDisplay>(application)->resource_alloc = [](Display *) { return number; };
    constexpr uint32_t list[] = {OpenGLProfile, profile3_2Core, SampleBuffers, 1, Samples, 4, 0};
    for (const auto &made : {context(), context(list)}) {
        for (const int width : {64, 32}) {
            const View view = viewOf(window(width, 48));
            XSync(application, False);
            ASSERT_TRUE(operations.setView(made.get(), view) && operations.makeCurrent(made.get())) << width;
            operations.flushBuffer(made.get());
            unsigned drawn = 0;
            glXQueryDrawable(glXGetCurrentDisplay(), glXGetCurrentDrawable(), GLX_WIDTH, &drawn);
            EXPECT_EQ(drawn, width);
            XDestroyWindow(application, view.window);
            XSync(application, False);
        }
    }
}

TEST_F(OnX11, SlowConfigGivesWayToItsEqual) {
    const x11::FormatSizes wanted = format()->config.sizes;
    const x11::ChannelSizes channels = format()->config.channels;
    const int screen = DefaultScreen(application);
    slowConfig = x11::FbConfigs(application, screen).choose(wanted)->handle;
    EXPECT_NE(x11::FbConfigs(application, screen).choose(wanted)->handle, slowConfig);
    slowConfig = x11::FbConfigs(application, screen).chooseFitting(wanted, channels, true)->handle;
    EXPECT_NE(x11::FbConfigs(application, screen).chooseFitting(wanted, channels, true)->handle, slowConfig);
    slowConfig = nullptr;
}

TEST_F(OnX11, SwapIntervalIsForViewsAlone) {
    glxExtensions = "GLX_EXT_swap_control";
    static auto &connection = *new x11::Connection(XOpenDisplay(nullptr));
    glxExtensions = nullptr;
    const auto pixels = format();
    ContextContainer container{connection, pixels->config, nullptr, 0, {}, 1};
    for (const auto &attachment : {x11::Attachment{{}, nullptr, 0}, {{}, nullptr, 8}, {{0, 7}, nullptr, 9}}) {
        container.attachment = attachment;
        x11::applySwapInterval(container);
    }
    EXPECT_EQ(paced, std::vector<GLXDrawable>{9});
}

TEST_F(OnX11, TitleIsUtf8FromWhicheverPropertyThereIs) {
    const Window target = window(8, 8);
    XStoreName(application, target, "not sent yet");
    EXPECT_EQ(operations.viewTitle(viewOf(target)), "not sent yet");
    setText(target, "WM_NAME", "STRING", "Gr\xf6\xdf\x65");
    EXPECT_EQ(operations.viewTitle({0, target}), "Gr\u00f6\u00dfe");
    setText(target, "_NET_WM_NAME", "UTF8_STRING", "\u30bf\u30a4\u30c8\u30eb");
    const Window view = XCreateSimpleWindow(application, target, 0, 0, 4, 4, 0, 0, 0);
    EXPECT_EQ(operations.viewTitle(viewOf(view)), "\u30bf\u30a4\u30c8\u30eb");
}

int applicationErrors = 0;

TEST_F(OnX11, TrapTakesItsOwnErrorsAndNoEarlierOnes) {
    XSetErrorHandler([](Display *, XErrorEvent *) { return ++applicationErrors; });
    XUnmapWindow(application, 0x12345); // still in transit when the trap is set
    x11::ErrorTrap trap(application, X_UnmapWindow);
    EXPECT_EQ(applicationErrors, 1);
    XMapWindow(application, 0x12345); // another kind of request
    EXPECT_FALSE(trap.sawError());
    EXPECT_EQ(applicationErrors, 2);
    XUnmapWindow(application, 0x12345);
    EXPECT_TRUE(trap.sawError());
    EXPECT_EQ(applicationErrors, 2);
}

int applicationLosses = 0;

// The server dies while a context draws. Xlib's own handler ended the process.
TEST(ServerThatDies, MakesEveryOperationFail) {
    const std::string before = getenv("DISPLAY");
    FILE *server = popen("echo $$; exec Xvfb -displayfd 1 -screen 0 640x480x24 -nolisten tcp 2>/dev/null", "r");
    int process = 0, display = -1;
    ASSERT_EQ(fscanf(server, "%d %d", &process, &display), 2) << "Xvfb did not start";
    setenv("DISPLAY", (":" + std::to_string(display)).c_str(), 1);

    const Format format(operations.createPixelFormat(0, coreList));
    XSetIOErrorHandler([](Display *) { return ++applicationLosses; });
    const Context made(operations.createContext(format.get(), nullptr));
    const Buffer buffer(operations.createPixelBuffer(0, 0, 0, 8, 8, nullptr));
    ASSERT_NE(made, nullptr);
    const View root{0, DefaultRootWindow(x11::Connection::open(0)->display())};
    EXPECT_TRUE(operations.setView(made.get(), root));
    EXPECT_TRUE(operations.makeCurrent(made.get()));
    Display *application = XOpenDisplay(nullptr);
    XSetIOErrorExitHandler(
        application, [](Display *, void *) {}, nullptr);
    kill(process, SIGKILL);
    pclose(server);

    operations.flushBuffer(made.get());
    EXPECT_EQ(applicationLosses, 0);
    XSync(application, False);
    XCloseDisplay(application);
    EXPECT_EQ(applicationLosses, 1) << "those of its own connections still reach the application";
    EXPECT_EQ(operations.currentContext(), nullptr) << "the host would ask the server for the size of the drawable";
    int32_t width = -1;
    operations.viewSize(root, &width, nullptr);
    EXPECT_EQ(width, -1);
    EXPECT_FALSE(operations.setView(made.get(), root));
    EXPECT_FALSE(operations.setPixelBuffer(made.get(), buffer.get()));
    EXPECT_EQ(operations.createPixelFormat(0, coreList), nullptr);
    operations.clearCurrentContext();
    EXPECT_FALSE(operations.makeCurrent(made.get()));

    setenv("DISPLAY", before.c_str(), 1);
    EXPECT_NE(Format(operations.createPixelFormat(0, coreList)), nullptr);
}

} // namespace
