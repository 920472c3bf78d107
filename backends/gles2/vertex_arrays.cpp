// A core context draws nothing while no vertex array object is bound; ES draws from object 0. An object of our own
// stands for it.
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

namespace overrides {

void GL_APIENTRY bindVertexArray(GLuint array) {
    const EsContext *const context = EsContext::current();
    hostGl().bindVertexArray(array == 0 && context ? context->defaultVertexArray : array);
}

void GL_APIENTRY deleteVertexArrays(GLsizei n, const GLuint *arrays) {
    const HostGl &gl = hostGl();
    gl.deleteVertexArrays(n, arrays);
    const EsContext *const context = EsContext::current();
    if (!context) return;
    // Deleting what is bound binds the host's 0.
    GLint bound = 0;
    gl.getIntegerv(GL_VERTEX_ARRAY_BINDING, &bound);
    if (bound == 0) gl.bindVertexArray(context->defaultVertexArray);
}

} // namespace overrides
