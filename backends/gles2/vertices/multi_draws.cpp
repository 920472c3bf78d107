// Several draws in one call: each is issued as a single one.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace {

template <typename Draw>
void forEachDraw(GLsizei count, Draw draw) {
    EsContext *const context = EsContext::current();
    if (context && count < 0) return context->raise(GL_INVALID_VALUE);
    for (GLsizei index = 0; index < count; ++index)
        draw(index);
}

} // namespace

namespace overrides {

void GL_APIENTRY multiDrawArrays(GLenum mode, const GLint *first, const GLsizei *count, GLsizei primcount) {
    forEachDraw(primcount, [&](GLsizei index) { drawArrays(mode, first[index], count[index]); });
}

void GL_APIENTRY multiDrawElements(GLenum mode, const GLsizei *count, GLenum type, const void *const *indices,
                                   GLsizei primcount) {
    forEachDraw(primcount, [&](GLsizei index) { drawElements(mode, count[index], type, indices[index]); });
}

void GL_APIENTRY multiDrawElementsBaseVertex(GLenum mode, const GLsizei *count, GLenum type, const void *const *indices,
                                             GLsizei primcount, const GLint *baseVertex) {
    forEachDraw(primcount, [&](GLsizei index) {
        drawElementsBaseVertex(mode, count[index], type, indices[index], baseVertex[index]);
    });
}

} // namespace overrides
