#include "context/es_context.h"

#include "common/live_contexts.h"
#include "common/per_back_end/host_gl.h"

#include <algorithm>

namespace {

// Names that the headers of ES lack.
constexpr GLenum programPointSize = 0x8642;
constexpr GLenum textureCubeMapSeamless = 0x884F;
constexpr GLenum framebufferSrgb = 0x8DB9;

void deleteAbandoned(ShareGroup &shared) {
    std::vector<GLuint> buffers;
    {
        const std::lock_guard lock(shared.abandonedMutex);
        buffers.swap(shared.abandonedBuffers);
    }
    for (const GLuint buffer : buffers)
        shared.buffers.forgetHidden(buffer);
    if (!buffers.empty()) hostGl().deleteBuffers(static_cast<GLsizei>(buffers.size()), buffers.data());
}

// Only a context that lives is ours to read.
std::shared_ptr<ShareGroup> shareGroupOf(zvEsContext share) {
    return isLiveContext(share) ? static_cast<const EsContext *>(share)->shared : std::make_shared<ShareGroup>();
}

} // namespace

EsContext::EsContext(const ContextAttribs &attribs, const void *settings, zvEsContext share)
    : major(attribs.esMajor), minor(attribs.esMinor), announced(host, zvSettingsProfileText(settings), major, minor),
      shared(shareGroupOf(share)) {
    const HostGl &gl = hostGl();
    GLint attribCount = 0;
    gl.getIntegerv(GL_MAX_VERTEX_ATTRIBS, &attribCount);
    maxVertexAttribs = std::min(static_cast<GLuint>(attribCount), VertexArrayState::maxAttribs);
    gl.genVertexArrays(1, &defaultVertexArray);
    gl.bindVertexArray(defaultVertexArray);
    gl.enable(programPointSize);
    if (major >= 3) gl.enable(textureCubeMapSeamless);
    setAttribs(attribs);
    contextBegins(this);
}

EsContext::~EsContext() {
    contextEnds(this);
    const std::lock_guard lock(shared->abandonedMutex);
    for (const GLuint ring : {vertexStream.name(), indexStream.name()})
        if (ring) shared->abandonedBuffers.push_back(ring);
}

EsContext *EsContext::current() {
    return static_cast<EsContext *>(currentLiveContext());
}

void EsContext::setAttribs(const ContextAttribs &attribs) {
    isSurfaceSrgb = attribs.srgbFramebuffer != 0;
    setDrawFramebuffer(drawFramebuffer);
    deleteAbandoned(*shared);
    sweepHostErrors();
}

void EsContext::setDrawFramebuffer(GLuint framebuffer) {
    drawFramebuffer = framebuffer;
    const bool isWanted = framebuffer != 0 || isSurfaceSrgb;
    if (isWanted == writesSrgb) return;
    writesSrgb = isWanted;
    (isWanted ? hostGl().enable : hostGl().disable)(framebufferSrgb);
}
