#include "fixed_function/matrix_palette.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "fixed_function/fixed_point.h"

#include <algorithm>

namespace {

constexpr GLenum stackOverflow = 0x0503;
constexpr GLenum stackUnderflow = 0x0504;
constexpr Matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

EsContext *contextInPaletteMode() {
    EsContext *const context = EsContext::current();
    return context && context->palette.isMode ? context : nullptr;
}

Matrix hostMatrix(GLenum name) {
    Matrix matrix = identity;
    hostGl().getFloatv(name, matrix.data());
    return matrix;
}

// change: changes the host's current matrix, which replaces the palette's for the call.
template <typename Change>
void changeMatrix(Change change) {
    EsContext *const context = contextInPaletteMode();
    if (!context) return change();
    Matrix &matrix = context->palette.matrices[context->palette.current];
    const OtherModelview standIn(matrix);
    change();
    matrix = modelview();
}

Matrix matrixOf(const GLfixed *numbers) {
    Matrix matrix;
    std::transform(numbers, numbers + 16, matrix.begin(), fromFixed);
    return matrix;
}

constexpr auto precise = preciseFromFixed;

} // namespace

MatrixPalette::MatrixPalette() {
    matrices.fill(identity);
}

Matrix modelview() {
    return hostMatrix(GL_MODELVIEW_MATRIX);
}

Matrix currentMatrix() {
    if (const EsContext *const context = contextInPaletteMode()) {
        return context->palette.matrices[context->palette.current];
    }
    GLint mode = GL_MODELVIEW;
    hostGl().getIntegerv(GL_MATRIX_MODE, &mode);
    if (mode == GL_PROJECTION) return hostMatrix(GL_PROJECTION_MATRIX);
    return mode == GL_TEXTURE ? hostMatrix(GL_TEXTURE_MATRIX) : modelview();
}

OtherModelview::OtherModelview(const Matrix &matrix) : m_before(modelview()) {
    hostGl().getIntegerv(GL_MATRIX_MODE, &m_mode);
    hostGl().matrixMode(GL_MODELVIEW);
    hostGl().loadMatrixf(matrix.data());
}

OtherModelview::~OtherModelview() {
    hostGl().matrixMode(GL_MODELVIEW);
    hostGl().loadMatrixf(m_before.data());
    hostGl().matrixMode(static_cast<GLenum>(m_mode));
}

namespace overrides {

void GL_APIENTRY matrixMode(GLenum mode) {
    EsContext *const context = EsContext::current();
    const bool isOfEs = mode == GL_MODELVIEW || mode == GL_PROJECTION || mode == GL_TEXTURE;
    if (!context || (!isOfEs && mode != GL_MATRIX_PALETTE_OES)) return raise(GL_INVALID_ENUM);
    context->palette.isMode = mode == GL_MATRIX_PALETTE_OES;
    hostGl().matrixMode(context->palette.isMode ? GLenum(GL_MODELVIEW) : mode);
}

void GL_APIENTRY currentPaletteMatrixOES(GLuint matrixpaletteindex) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (matrixpaletteindex >= MatrixPalette::matrixCount) return context->raise(GL_INVALID_VALUE);
    context->palette.current = matrixpaletteindex;
}

void GL_APIENTRY loadPaletteFromModelViewMatrixOES() {
    EsContext *const context = EsContext::current();
    if (context) context->palette.matrices[context->palette.current] = modelview();
}

// Palette matrices have no stack.
void GL_APIENTRY pushMatrix() {
    if (EsContext *const context = contextInPaletteMode()) return context->raise(stackOverflow);
    hostGl().pushMatrix();
}

void GL_APIENTRY popMatrix() {
    if (EsContext *const context = contextInPaletteMode()) return context->raise(stackUnderflow);
    hostGl().popMatrix();
}

void GL_APIENTRY loadIdentity() {
    changeMatrix([] { hostGl().loadIdentity(); });
}

void GL_APIENTRY loadMatrixf(const GLfloat *m) {
    changeMatrix([&] { hostGl().loadMatrixf(m); });
}

void GL_APIENTRY loadMatrixx(const GLfixed *m) {
    if (m) loadMatrixf(matrixOf(m).data());
}

void GL_APIENTRY multMatrixf(const GLfloat *m) {
    changeMatrix([&] { hostGl().multMatrixf(m); });
}

void GL_APIENTRY multMatrixx(const GLfixed *m) {
    if (m) multMatrixf(matrixOf(m).data());
}

void GL_APIENTRY rotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
    changeMatrix([&] { hostGl().rotatef(angle, x, y, z); });
}

void GL_APIENTRY rotatex(GLfixed angle, GLfixed x, GLfixed y, GLfixed z) {
    rotatef(fromFixed(angle), fromFixed(x), fromFixed(y), fromFixed(z));
}

void GL_APIENTRY scalef(GLfloat x, GLfloat y, GLfloat z) {
    changeMatrix([&] { hostGl().scalef(x, y, z); });
}

void GL_APIENTRY scalex(GLfixed x, GLfixed y, GLfixed z) {
    scalef(fromFixed(x), fromFixed(y), fromFixed(z));
}

void GL_APIENTRY translatef(GLfloat x, GLfloat y, GLfloat z) {
    changeMatrix([&] { hostGl().translatef(x, y, z); });
}

void GL_APIENTRY translatex(GLfixed x, GLfixed y, GLfixed z) {
    translatef(fromFixed(x), fromFixed(y), fromFixed(z));
}

void GL_APIENTRY frustumf(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
    changeMatrix([&] { hostGl().frustum(l, r, b, t, n, f); });
}

void GL_APIENTRY frustumx(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
    changeMatrix([&] { hostGl().frustum(precise(l), precise(r), precise(b), precise(t), precise(n), precise(f)); });
}

void GL_APIENTRY orthof(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
    changeMatrix([&] { hostGl().ortho(l, r, b, t, n, f); });
}

void GL_APIENTRY orthox(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
    changeMatrix([&] { hostGl().ortho(precise(l), precise(r), precise(b), precise(t), precise(n), precise(f)); });
}

} // namespace overrides
