#include "es_context.h"

#include "host_gl.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <set>

namespace {

// Names that the headers of ES lack.
constexpr GLenum programPointSize = 0x8642;
constexpr GLenum textureCubeMapSeamless = 0x884F;
constexpr GLenum framebufferSrgb = 0x8DB9;

// Every live context. The number grows with each change, so that a thread knows when to look again.
struct LiveContexts {
    std::mutex mutex;
    std::set<const void *> contexts; // guarded by mutex
    std::atomic<uint64_t> changes = 1;
};

LiveContexts &liveContexts() {
    static LiveContexts live;
    return live;
}

std::string versionText(const HostGl &gl, GLint major, GLint minor) {
    const char *const host = reinterpret_cast<const char *>(gl.getString(GL_VERSION));
    return "OpenGL ES " + std::to_string(major) + '.' + std::to_string(minor) + " Zelvane (" + (host ? host : "") + ')';
}

// The language's version is 1.00 for ES 2.0 and that of the context ever since.
std::string shadingLanguageText(GLint major, GLint minor) {
    if (major < 3) return "OpenGL ES GLSL ES 1.00";
    return "OpenGL ES GLSL ES " + std::to_string(major) + '.' + std::to_string(minor) + '0';
}

std::string joined(const std::vector<std::string> &names) {
    std::string text;
    for (const std::string &name : names) {
        if (!text.empty()) text += ' ';
        text += name;
    }
    return text;
}

// Applications check for errors from their first call on and must not meet ours. A lost context reports one for ever,
// hence the limit.
void sweepErrors(const HostGl &gl) {
    for (int count = 0; count < 16 && gl.getError() != GL_NO_ERROR; ++count) {
    }
}

} // namespace

EsContext::EsContext(const ContextAttribs &attribs)
    : major(attribs.esMajor), minor(attribs.esMinor), version(versionText(hostGl(), major, minor)),
      shadingLanguageVersion(shadingLanguageText(major, minor)), extensionNames(host.esExtensions()),
      extensions(joined(extensionNames)), hasEsShaders(host.carries(41, "GL_ARB_ES2_compatibility")) {
    const HostGl &gl = hostGl();
    gl.genVertexArrays(1, &defaultVertexArray);
    gl.bindVertexArray(defaultVertexArray);
    gl.enable(programPointSize);
    if (major >= 3) gl.enable(textureCubeMapSeamless);
    setAttribs(attribs);

    LiveContexts &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    live.contexts.insert(this);
    ++live.changes;
}

EsContext::~EsContext() {
    LiveContexts &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    live.contexts.erase(this);
    ++live.changes;
}

EsContext *EsContext::current() {
    struct Answer {
        const void *asked = nullptr;
        uint64_t changes = 0;
        EsContext *context = nullptr;
    };
    thread_local Answer last;

    void *const asked = zvCurrentEsContext();
    LiveContexts &live = liveContexts();
    if (asked == last.asked && live.changes == last.changes) return last.context;
    const std::lock_guard lock(live.mutex);
    last = {asked, live.changes, live.contexts.contains(asked) ? static_cast<EsContext *>(asked) : nullptr};
    return last.context;
}

void EsContext::setAttribs(const ContextAttribs &attribs) {
    const HostGl &gl = hostGl();
    (attribs.srgbFramebuffer ? gl.enable : gl.disable)(framebufferSrgb);
    sweepErrors(gl);
}
