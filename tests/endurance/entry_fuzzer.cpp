// Calls random entries with valid, stale and invalid handles, from one thread and then from four, while a GUI sends
// random records. Links the staged library. Usage: entry_fuzzer [SECONDS [SEED]]
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <thread>
#include <vector>

#include "endurance/random.h"
#include "foundation/product.h"
#include "host/platform/recording/control.h"
#include "ui/socket.h"
#include "zelvane/messages.h"

extern "C" __attribute__((visibility("default"), used)) int __lsan_is_turned_off() {
    return 1; // terminated displays leak contexts by design
}

namespace {

constexpr EGLint attributes[] = {EGL_WIDTH,
                                 EGL_HEIGHT,
                                 EGL_LARGEST_PBUFFER,
                                 EGL_TEXTURE_FORMAT,
                                 EGL_TEXTURE_TARGET,
                                 EGL_MIPMAP_TEXTURE,
                                 EGL_RENDER_BUFFER,
                                 EGL_GL_COLORSPACE,
                                 EGL_CONFIG_ID,
                                 EGL_CONTEXT_MAJOR_VERSION,
                                 EGL_CONTEXT_MINOR_VERSION,
                                 EGL_SWAP_BEHAVIOR,
                                 EGL_RED_SIZE,
                                 EGL_SURFACE_TYPE,
                                 EGL_RENDERABLE_TYPE,
                                 EGL_SYNC_STATUS,
                                 EGL_CONTEXT_CLIENT_TYPE,
                                 EGL_BUFFER_AGE_EXT,
                                 EGL_MULTISAMPLE_RESOLVE,
                                 EGL_MATCH_NATIVE_PIXMAP};

// The last handles of a kind that threads have received, whether or not they are still valid.
class Handles {
public:
    void add(void *handle) { m_handles[m_next++ % std::size(m_handles)] = handle; }
    void *any(Random &random) {
        if (random.once(12)) return reinterpret_cast<void *>(static_cast<intptr_t>(random.number()));
        return random.of(m_handles);
    }

private:
    std::atomic<void *> m_handles[24] = {};
    std::atomic<uint32_t> m_next = 0;
};
Handles displays, configs, contexts, surfaces, syncs, images;

std::vector<EGLint> list(Random &random) {
    std::vector<EGLint> made;
    for (uint32_t pairs = random.below(5); pairs > 0; --pairs) {
        made.push_back(random.once(8) ? random.number() : random.of(attributes));
        made.push_back(random.once(2) ? static_cast<EGLint>(random.below(4)) : random.number());
        if (made.end()[-2] == EGL_NONE) break;
    }
    made.push_back(EGL_NONE);
    return made;
}

void bind(Random &random, EGLDisplay display) {
    const EGLSurface draw = surfaces.any(random), read = random.once(4) ? surfaces.any(random) : draw;
    switch (random.below(4)) {
    case 0:
        eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        break;
    case 1:
        eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, contexts.any(random));
        break;
    default:
        eglMakeCurrent(display, draw, read, contexts.any(random));
    }
}

void make(Random &random, EGLDisplay display) {
    const auto attribs = list(random);
    const EGLint *given = random.once(4) ? nullptr : attribs.data();
    const EGLConfig config = configs.any(random);
    switch (random.below(6)) {
    case 0:
        return contexts.add(eglCreateContext(display, config, random.once(3) ? contexts.any(random) : nullptr, given));
    case 1:
        return surfaces.add(eglCreateWindowSurface(display, config, 70 + random.below(9), given));
    case 2:
        return surfaces.add(eglCreatePbufferSurface(display, config, given));
    case 3:
        return surfaces.add(eglCreatePixmapSurface(display, config, random.below(3), given));
    case 4:
        return syncs.add(eglCreateSync(display, random.once(4) ? random.number() : EGL_SYNC_FENCE, nullptr));
    default:
        return images.add(eglCreateImage(display, contexts.any(random), random.number(), nullptr, nullptr));
    }
}

void end(Random &random, EGLDisplay display) {
    switch (random.below(4)) {
    case 0:
        eglDestroyContext(display, contexts.any(random));
        break;
    case 1:
        eglDestroySurface(display, surfaces.any(random));
        break;
    case 2:
        eglDestroySync(display, syncs.any(random));
        break;
    default:
        eglDestroyImage(display, images.any(random));
    }
}

void ask(Random &random, EGLDisplay display) {
    EGLint value = 0;
    EGLAttrib wide = 0;
    EGLConfig some[4];
    const auto attribs = list(random);
    const EGLint attribute = random.once(8) ? random.number() : random.of(attributes);
    switch (random.below(9)) {
    case 0:
        eglQueryContext(display, contexts.any(random), attribute, random.once(4) ? nullptr : &value);
        break;
    case 1:
        eglQuerySurface(display, surfaces.any(random), attribute, random.once(4) ? nullptr : &value);
        break;
    case 2:
        eglGetConfigAttrib(display, configs.any(random), attribute, random.once(4) ? nullptr : &value);
        break;
    case 3:
        eglChooseConfig(display, attribs.data(), some, 4, random.once(4) ? nullptr : &value);
        break;
    case 4:
        eglSurfaceAttrib(display, surfaces.any(random), attribute, random.number());
        break;
    case 5:
        eglGetSyncAttrib(display, syncs.any(random), attribute, random.once(4) ? nullptr : &wide);
        break;
    case 6:
        eglClientWaitSync(display, syncs.any(random), random.number(), random.below(2));
        break;
    case 7:
        eglQueryString(display, random.number());
        break;
    default:
        eglGetError();
    }
}

void step(Random &random) {
    const EGLDisplay display = displays.any(random);
    switch (random.below(16)) {
    case 0: {
        const uintptr_t native = random.below(3);
        const EGLDisplay made = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(native));
        EGLint count = 0;
        EGLConfig some[4];
        displays.add(made);
        if (!eglInitialize(made, nullptr, nullptr) || !eglGetConfigs(made, some, 4, &count)) return;
        for (EGLint config = 0; config < count; ++config)
            configs.add(some[config]);
        return;
    }
    case 1:
        if (random.once(40)) eglTerminate(display);
        return;
    case 2:
        eglReleaseThread();
        return;
    case 3:
        eglSwapInterval(display, random.number());
        return;
    case 4:
    case 5:
        eglSwapBuffers(display, surfaces.any(random));
        return;
    case 6:
        eglBindTexImage(display, surfaces.any(random), random.once(2) ? EGL_BACK_BUFFER : random.number());
        return;
    case 7:
    case 8:
    case 9:
        return bind(random, display);
    case 10:
    case 11:
        return make(random, display);
    case 12:
        return end(random, display);
    default:
        return ask(random, display);
    }
}

std::atomic<uint64_t> steps = 0;

void work(const Run &run, uint64_t number, std::chrono::steady_clock::time_point until) {
    Random random(run.seed + number);
    std::vector<char> log(16 << 20);
    while (std::chrono::steady_clock::now() < until) {
        for (int i = 0; i < 200; ++i, ++steps)
            step(random);
        recordingTakeLog(log.data(), log.size());
    }
    eglMakeCurrent(displays.any(random), EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
}

// Reads all records and sends random data of any length, which the application must tolerate.
void beGui(const Run &run, KZRIPC::ServerSocket &server) {
    Random random(run.seed + 99);
    KZRIPC::Client application(server);
    zvMessage message{};
    while (!run.isOver()) {
        pollfd waiting{application.descriptor(), POLLIN | POLLOUT, 0};
        if (poll(&waiting, 1, 100) <= 0) continue;
        if (waiting.revents & POLLIN && application.receive(&message, sizeof message) <= 0) return;
        if (waiting.revents & POLLOUT && random.once(50)) {
            for (auto &byte : message.bytes)
                byte = static_cast<uint8_t>(random.below(256));
            message.header.type = random.once(4) ? random.number() : 12 + random.below(2);
            application.send(&message, random.once(9) ? 1 + random.below(sizeof message) : sizeof message);
        }
    }
}

} // namespace

int main(int argc, char **argv) {
    const Run run(argc, argv);
    std::string directory = "/tmp/zelvane-fuzz.XXXXXX";
    if (!mkdtemp(directory.data())) return 1;
    for (const char *name : {"TMPDIR", "HOME"})
        setenv(name, directory.c_str(), 1);
    setenv("KZRTRACE_LIB_PATH", STAGE_DIRECTORY "/back_ends", 1);
    signal(SIGPIPE, SIG_IGN);

    KZRIPC::ServerSocket server(productName, 4);
    std::thread gui([&] { beGui(run, server); });
    displays.add(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    const auto now = std::chrono::steady_clock::now();
    work(run, 0, now + (run.end - now) / 2);
    {
        std::vector<std::jthread> threads;
        for (uint64_t number = 1; number <= 4; ++number)
            threads.emplace_back([&run, number] { work(run, number, run.end); });
    }
    gui.join();
    std::printf("%s: %llu steps, nothing found\n", argv[0], static_cast<unsigned long long>(steps));
    std::system(("rm -r " + directory).c_str());
}
