// Creates, uses and destroys every kind of object on the real library, and compares the cost of a round in memory,
// descriptors and windows with the known losses. Usage: soak [MINUTES]
#include <EGL/egl.h>
#include <X11/Xlib.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <limits>
#include <malloc.h>
#include <thread>

namespace {

constexpr EGLint es2[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
constexpr EGLint es1[] = {EGL_CONTEXT_CLIENT_VERSION, 1, EGL_NONE};
constexpr EGLint small[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE};

Display *server;
EGLDisplay display;
EGLConfig config;
EGLContext context;
EGLSurface pbuffer, window;

void unbind() {
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
}

void bindOnce(EGLSurface surface, EGLContext bound) {
    if (!eglMakeCurrent(display, surface, surface, bound)) {
        std::printf("soak: a bind fails with 0x%x\n", eglGetError());
        exit(1);
    }
    unbind();
}

void useContext(const EGLint *attributes) {
    const EGLContext made = eglCreateContext(display, config, EGL_NO_CONTEXT, attributes);
    bindOnce(pbuffer, made);
    eglDestroyContext(display, made);
}

struct Kind {
    const char *name;
    long lostPerRound; // bytes
    std::function<void()> round;
};

EGLClientBuffer texture() {
    return reinterpret_cast<EGLClientBuffer>(uintptr_t(1));
}

const Kind kinds[] = {
#define KIND(name, lost, ...) {name, lost, [] __VA_ARGS__},
#include "endurance/kinds.def"
};

long heapBytes() {
    const auto info = mallinfo2();
    return static_cast<long>(info.uordblks + info.hblkhd);
}

long descriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

long windows() {
    Window root = 0, parent = 0, *children = nullptr;
    unsigned count = 0;
    XQueryTree(server, DefaultRootWindow(server), &root, &parent, &children, &count);
    if (children) XFree(children);
    return count;
}

// In multiples of 100. Kinds with a known loss end early, since an hour of them would fill the memory.
long roundsFor(const Kind &kind, std::chrono::milliseconds time) {
    constexpr long mostBytes = 1 << 30;
    const long most = kind.lostPerRound ? mostBytes / kind.lostPerRound : std::numeric_limits<long>::max();
    long rounds = 0;
    const auto end = std::chrono::steady_clock::now() + time;
    while (rounds < most && std::chrono::steady_clock::now() < end)
        for (long i = 0; i < 100; ++i, ++rounds)
            kind.round();
    return rounds;
}

bool isFlat(const Kind &kind, std::chrono::milliseconds time) {
    roundsFor(kind, time / 10); // for objects that are created once
    const long heapBefore = heapBytes(), descriptorsBefore = descriptors(), windowsBefore = windows();
    const long rounds = roundsFor(kind, time - time / 10);
    // The number of 1 MB upload buffers of Mesa's software driver varies by one or two.
    constexpr long slackBytes = 3 << 20;
    const long grown = heapBytes() - heapBefore, lost = rounds * kind.lostPerRound;
    const long more = descriptors() - descriptorsBefore, moreWindows = windows() - windowsBefore;
    const bool isGood = grown <= lost + slackBytes && more <= 0 && moreWindows <= 0;
    std::printf("%-4s %-45s %8ld rounds, %9ld bytes, %9ld lost by rule, %ld descriptors, %ld windows\n",
                isGood ? "flat" : "GROW", kind.name, rounds, grown, lost, more, moreWindows);
    std::fflush(stdout);
    return isGood;
}

} // namespace

int main(int argc, char **argv) {
    server = XOpenDisplay(nullptr);
    if (!server) return 77;
    const Window target = XCreateSimpleWindow(server, DefaultRootWindow(server), 0, 0, 64, 48, 0, 0, 0);
    XSync(server, False);
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EGLint count = 0;
    if (!eglInitialize(display, nullptr, nullptr) || !eglGetConfigs(display, &config, 1, &count)) return 1;
    context = eglCreateContext(display, config, EGL_NO_CONTEXT, es2);
    pbuffer = eglCreatePbufferSurface(display, config, small);
    window = eglCreateWindowSurface(display, config, target, nullptr);

    const std::chrono::milliseconds all(static_cast<long>((argc > 1 ? atof(argv[1]) : 5) * 60000));
    int grown = 0;
    for (const Kind &kind : kinds)
        grown += !isFlat(kind, all / std::size(kinds));
    return grown > 0;
}
