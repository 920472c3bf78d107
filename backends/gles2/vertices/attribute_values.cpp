// Current attribute values, and attribute indices: the host may have more attributes than the device.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace {

template <typename... Values>
void set(void(GL_APIENTRY *host)(GLuint, Values...), GLuint index, Values... values) {
    if (!isBeyondAttribs(index)) host(index, values...);
}

} // namespace

namespace overrides {

void GL_APIENTRY vertexAttrib1f(GLuint index, GLfloat x) {
    set(hostGl().vertexAttrib1f, index, x);
}

void GL_APIENTRY vertexAttrib1fv(GLuint index, const GLfloat *v) {
    set(hostGl().vertexAttrib1fv, index, v);
}

void GL_APIENTRY vertexAttrib2f(GLuint index, GLfloat x, GLfloat y) {
    set(hostGl().vertexAttrib2f, index, x, y);
}

void GL_APIENTRY vertexAttrib2fv(GLuint index, const GLfloat *v) {
    set(hostGl().vertexAttrib2fv, index, v);
}

void GL_APIENTRY vertexAttrib3f(GLuint index, GLfloat x, GLfloat y, GLfloat z) {
    set(hostGl().vertexAttrib3f, index, x, y, z);
}

void GL_APIENTRY vertexAttrib3fv(GLuint index, const GLfloat *v) {
    set(hostGl().vertexAttrib3fv, index, v);
}

void GL_APIENTRY vertexAttrib4f(GLuint index, GLfloat x, GLfloat y, GLfloat z, GLfloat w) {
    set(hostGl().vertexAttrib4f, index, x, y, z, w);
}

void GL_APIENTRY vertexAttrib4fv(GLuint index, const GLfloat *v) {
    set(hostGl().vertexAttrib4fv, index, v);
}

void GL_APIENTRY vertexAttribI4i(GLuint index, GLint x, GLint y, GLint z, GLint w) {
    set(hostGl().vertexAttribI4i, index, x, y, z, w);
}

void GL_APIENTRY vertexAttribI4iv(GLuint index, const GLint *v) {
    set(hostGl().vertexAttribI4iv, index, v);
}

void GL_APIENTRY vertexAttribI4ui(GLuint index, GLuint x, GLuint y, GLuint z, GLuint w) {
    set(hostGl().vertexAttribI4ui, index, x, y, z, w);
}

void GL_APIENTRY vertexAttribI4uiv(GLuint index, const GLuint *v) {
    set(hostGl().vertexAttribI4uiv, index, v);
}

void GL_APIENTRY bindAttribLocation(GLuint program, GLuint index, const GLchar *name) {
    if (!isBeyondAttribs(index)) hostGl().bindAttribLocation(program, index, name);
}

} // namespace overrides
