#include "framebuffers/first_surface.h"

#include "common/per_back_end/host_gl.h"
#include "framebuffers/surface_buffers.h"

bool FirstSurface::tryTake() {
    const HostGl &gl = hostGl();
    GLint drawn = 0, read = 0;
    gl.getIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawn);
    gl.getIntegerv(GL_READ_FRAMEBUFFER_BINDING, &read);
    gl.bindFramebuffer(GL_FRAMEBUFFER, 0);
    const bool hasSurface = gl.checkFramebufferStatus(GL_DRAW_FRAMEBUFFER) != GL_FRAMEBUFFER_UNDEFINED;
    if (hasSurface) {
        const GLenum buffer = hostBuffer(GL_BACK);
        gl.drawBuffers(1, &buffer);
        gl.readBuffer(buffer);
    }
    gl.bindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawn));
    gl.bindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(read));
    return hasSurface;
}
