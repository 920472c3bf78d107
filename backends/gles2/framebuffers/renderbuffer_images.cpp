#include "framebuffers/renderbuffer_images.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"
#include "framebuffers/attachment_swaps.h"

#include <algorithm>
#include <iterator>

namespace {

struct Question {
    GLenum ofRenderbuffer, ofTexture;
};
constexpr Question questions[] = {
    {GL_RENDERBUFFER_WIDTH, GL_TEXTURE_WIDTH},
    {GL_RENDERBUFFER_HEIGHT, GL_TEXTURE_HEIGHT},
    {GL_RENDERBUFFER_INTERNAL_FORMAT, GL_TEXTURE_INTERNAL_FORMAT},
    {GL_RENDERBUFFER_RED_SIZE, GL_TEXTURE_RED_SIZE},
    {GL_RENDERBUFFER_GREEN_SIZE, GL_TEXTURE_GREEN_SIZE},
    {GL_RENDERBUFFER_BLUE_SIZE, GL_TEXTURE_BLUE_SIZE},
    {GL_RENDERBUFFER_ALPHA_SIZE, GL_TEXTURE_ALPHA_SIZE},
    {GL_RENDERBUFFER_DEPTH_SIZE, GL_TEXTURE_DEPTH_SIZE},
    {GL_RENDERBUFFER_STENCIL_SIZE, GL_TEXTURE_STENCIL_SIZE},
    {GL_RENDERBUFFER_SAMPLES, GL_TEXTURE_SAMPLES},
};

void forget(EsContext &context, GLuint renderbuffer, GLuint texture) {
    ShareGroup &shared = *context.shared;
    shared.renderbufferImages.textures.remove(renderbuffer);
    shared.renderbufferImages.renderbuffers.remove(texture);
    shared.textures.images.siblings.remove(texture);
    shared.textures.names.forgetHidden(texture);
    hostGl().deleteTextures(1, &texture);
}

} // namespace

void standFor(EsContext &context, GLuint renderbuffer, GLuint texture) {
    RenderbufferImages &images = context.shared->renderbufferImages;
    const auto old = images.textures.find(renderbuffer);
    const HostImage from = old ? HostImage{GL_TEXTURE, *old} : HostImage{GL_RENDERBUFFER, renderbuffer};
    swapAttached(context, from, {GL_TEXTURE, texture});
    if (old) forget(context, renderbuffer, *old);
    images.textures.set(renderbuffer, texture);
    images.renderbuffers.set(texture, renderbuffer);
}

void endStandIn(EsContext &context, GLuint renderbuffer) {
    const auto texture = context.shared->renderbufferImages.textures.find(renderbuffer);
    if (!texture) return;
    swapAttached(context, {GL_TEXTURE, *texture}, {GL_RENDERBUFFER, renderbuffer});
    forget(context, renderbuffer, *texture);
}

bool askStandIn(const EsContext &context, GLuint renderbuffer, GLenum pname, GLint *value) {
    const auto texture = context.shared->renderbufferImages.textures.find(renderbuffer);
    const auto question = std::ranges::find(questions, pname, &Question::ofRenderbuffer);
    if (!texture || question == std::end(questions)) return false;
    hostGl().getTextureLevelParameteriv(*texture, 0, question->ofTexture, value);
    return true;
}
