// ES sets the texture coordinate generation of s, t and r at once, and allows only the cube map modes.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "desktop_names.h"

namespace {

constexpr GLenum coordinates[] = {desktop::coordinateS, desktop::coordinateT, desktop::coordinateR};

bool isKnown(GLenum coord, GLenum pname) {
    if (coord == GL_TEXTURE_GEN_STR_OES && pname == GL_TEXTURE_GEN_MODE_OES) return true;
    raise(GL_INVALID_ENUM);
    return false;
}

} // namespace

namespace overrides {

void GL_APIENTRY texGenfOES(GLenum coord, GLenum pname, GLfloat param) {
    if (!isKnown(coord, pname)) return;
    if (param != GL_NORMAL_MAP_OES && param != GL_REFLECTION_MAP_OES) return raise(GL_INVALID_ENUM);
    for (const GLenum coordinate : coordinates)
        hostGl().texGenf(coordinate, pname, param);
}

void GL_APIENTRY texGenfvOES(GLenum coord, GLenum pname, const GLfloat *params) {
    if (params) texGenfOES(coord, pname, *params);
}

void GL_APIENTRY texGeniOES(GLenum coord, GLenum pname, GLint param) {
    texGenfOES(coord, pname, static_cast<GLfloat>(param));
}

void GL_APIENTRY texGenivOES(GLenum coord, GLenum pname, const GLint *params) {
    if (params) texGeniOES(coord, pname, *params);
}

void GL_APIENTRY getTexGenfvOES(GLenum coord, GLenum pname, GLfloat *params) {
    if (params && isKnown(coord, pname)) hostGl().getTexGenfv(desktop::coordinateS, pname, params);
}

void GL_APIENTRY getTexGenivOES(GLenum coord, GLenum pname, GLint *params) {
    GLfloat mode = 0;
    getTexGenfvOES(coord, pname, &mode);
    if (params && mode != 0) *params = static_cast<GLint>(mode);
}

} // namespace overrides
