#include "context/es_context.h"

#include "common/per_back_end/host_gl.h"

namespace {

// Names that the ES headers lack.
constexpr GLenum programPointSize = 0x8642;
constexpr GLenum textureCubeMapSeamless = 0x884F;

// Of the attributes, as EGL has them.
constexpr int32_t robustFlag = 4;
constexpr int32_t losesContext = 0x31BF;

} // namespace

EsContext::EsContext(const ContextAttribs &attribs, const void *settings, zvEsContext share)
    : major(attribs.esMajor), minor(attribs.esMinor), robustAccess(attribs.contextFlags & robustFlag ? 1 : 0),
      noError(attribs.noError != 0),
      resetStrategy(attribs.resetStrategy == losesContext ? GL_LOSE_CONTEXT_ON_RESET : GL_NO_RESET_NOTIFICATION),
      announcement(Announcement::of(m_host, zvSettingsProfileText(settings), major, minor)), shared(this, share),
      vertices(major, host, announced.most(GL_MAX_VERTEX_ATTRIBS)) {
    const GLint units = announced.most(GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS);
    if (announced.limit(GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS)) {
        textures.unitEnd = GL_TEXTURE0 + static_cast<GLenum>(units);
    }
    hostGl().enable(programPointSize);
    // ES 2 leaves it open, and programs expect it as they have it everywhere.
    hostGl().enable(textureCubeMapSeamless);
    setAttribs(attribs);
}

EsContext::~EsContext() {
    shared->buffers.abandon(vertices.stream.release());
    shared->buffers.abandon(vertices.indexStream.release());
}

void EsContext::setAttribs(const ContextAttribs &attribs) {
    framebuffers.setSurface(attribs.srgbFramebuffer != 0);
    shared->buffers.deleteAbandoned();
    deleteEndedImages(shared->textures);
    sweepHostErrors();
}
