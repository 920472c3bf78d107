#include "egl/standard/pbuffer_textures.h"

#include "egl/state.h"
#include "foundation/gl_types.h"

namespace egl::standard {

namespace {

constexpr uint32_t GL_DOUBLEBUFFER = 0x0C32; // the headers of OpenGL ES lack it

struct HostFunctions {
    void (*getIntegerv)(uint32_t, int32_t *);
    void (*bindFramebuffer)(uint32_t, uint32_t);
    void (*readBuffer)(uint32_t);

    explicit HostFunctions(const DynamicLibrary &library) {
        find(library, getIntegerv, "glGetIntegerv");
        find(library, bindFramebuffer, "glBindFramebuffer");
        find(library, readBuffer, "glReadBuffer");
    }
    [[nodiscard]] bool areThere() const { return getIntegerv && bindFramebuffer && readBuffer; }
    [[nodiscard]] uint32_t value(uint32_t name) const {
        int32_t value = 0;
        getIntegerv(name, &value);
        return static_cast<uint32_t>(value);
    }

private:
    template <typename Type>
    static void find(const DynamicLibrary &library, Type &function, const char *name) {
        function = reinterpret_cast<Type>(library.getSymbol(name));
    }
};

// The pbuffer as what the context reads from; the destructor restores the binding and the state of reads. What the
// context draws to stays bound: hosts may drop the contents of a window that nothing is bound to.
class ReadBinding {
public:
    ReadBinding(const Context &current, const Surface &pbuffer, const HostFunctions &host)
        : m_current(current), m_host(host), m_isBound(bind(pbuffer.hostSurface.get())) {
        if (!m_isBound) return;
        m_framebuffer = host.value(GL_READ_FRAMEBUFFER_BINDING);
        host.bindFramebuffer(GL_READ_FRAMEBUFFER, 0);
        m_buffer = host.value(GL_READ_BUFFER);
        host.readBuffer(host.value(GL_DOUBLEBUFFER) ? GL_BACK : GL_FRONT);
    }
    ReadBinding(const ReadBinding &) = delete;
    ReadBinding &operator=(const ReadBinding &) = delete;
    ~ReadBinding() {
        if (!m_isBound) return;
        m_host.readBuffer(m_buffer);
        m_host.bindFramebuffer(GL_READ_FRAMEBUFFER, m_framebuffer);
        const auto &[draw, read] = m_current.surfaces;
        if (draw) {
            (void)host::makeHostContextCurrent(hostContext(), draw->hostSurface.get(),
                                               read == draw ? nullptr : read->hostSurface.get());
        } else {
            (void)host::makeHostContextCurrentWithoutDrawable(hostContext());
        }
    }

    [[nodiscard]] bool isBound() const { return m_isBound; }

private:
    [[nodiscard]] const host::HostContextHandle *hostContext() const { return m_current.claimedHostContext(); }
    [[nodiscard]] bool bind(const glove::ISurface *pbuffer) const {
        const auto &draw = m_current.surfaces.draw;
        const auto *drawn = draw ? draw->hostSurface.get() : pbuffer;
        return host::makeHostContextCurrent(hostContext(), drawn, pbuffer) == host::HostBinding::current;
    }

    const Context &m_current;
    const HostFunctions &m_host;
    const bool m_isBound;
    uint32_t m_framebuffer = 0, m_buffer = 0;
};

} // namespace

EGLint copyPbufferToTexture(const Context &current, Surface &pbuffer) {
    static const HostFunctions host(state().openGLLibrary());
    const auto copy = state().hostEGL().glCopyTexImage2D;
    if (!host.areThere() || !copy) return EGL_BAD_ALLOC;
    const ReadBinding binding(current, pbuffer, host);
    if (!binding.isBound()) return EGL_BAD_MATCH;
    const uint32_t format = pbuffer.attribute(EGL_TEXTURE_FORMAT) == EGL_TEXTURE_RGB ? GL_RGB : GL_RGBA;
    copy(GL_TEXTURE_2D, 0, format, 0, 0, pbuffer.attribute(EGL_WIDTH), pbuffer.attribute(EGL_HEIGHT), 0);
    return EGL_SUCCESS;
}

} // namespace egl::standard
