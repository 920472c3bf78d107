// glDrawTex: a rectangle of the enabled textures in window coordinates. The host draws a quad with the transformations
// disabled.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "desktop_names.h"
#include "fixed_function/fixed_point.h"

#include <array>
#include <list>

namespace {

struct Unit {
    GLenum name;
    // Texture coordinates at the lower left and upper right corner.
    std::array<GLfloat, 2> from, to;
};

// Saves a matrix by value, since the stack may be full.
class SavedMatrix {
public:
    SavedMatrix(GLenum mode, GLenum matrix) : m_mode(mode) {
        hostGl().getFloatv(matrix, m_numbers.data());
        load({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
    }
    ~SavedMatrix() { load(m_numbers); }
    SavedMatrix(const SavedMatrix &) = delete;
    SavedMatrix &operator=(const SavedMatrix &) = delete;

    void load(const std::array<GLfloat, 16> &numbers) const {
        hostGl().matrixMode(m_mode);
        hostGl().loadMatrixf(numbers.data());
    }

private:
    GLenum m_mode;
    std::array<GLfloat, 16> m_numbers;
};

// Saves the texture matrix of one unit, which becomes the active one.
class SavedTextureMatrix {
public:
    explicit SavedTextureMatrix(GLenum unit) : m_unit(unit), m_matrix(GL_TEXTURE, GL_TEXTURE_MATRIX) {}
    ~SavedTextureMatrix() { hostGl().activeTexture(m_unit); }
    SavedTextureMatrix(const SavedTextureMatrix &) = delete;
    SavedTextureMatrix &operator=(const SavedTextureMatrix &) = delete;

private:
    GLenum m_unit;
    SavedMatrix m_matrix;
};

struct SavedState {
    SavedState() {
        using namespace desktop;
        hostGl().pushAttrib(currentBit | enableBit | polygonBit | transformBit | viewportBit);
    }
    ~SavedState() { hostGl().popAttrib(); }
    SavedState(const SavedState &) = delete;
    SavedState &operator=(const SavedState &) = delete;
};

// The active unit; nothing without an image.
std::optional<Unit> readUnit(EsContext &context, GLenum name) {
    const HostGl &gl = hostGl();
    GLint width = 0;
    GLint height = 0;
    gl.getTexLevelParameteriv(GL_TEXTURE_2D, 0, desktop::textureWidth, &width);
    gl.getTexLevelParameteriv(GL_TEXTURE_2D, 0, desktop::textureHeight, &height);
    if (width <= 0 || height <= 0) return std::nullopt;
    const auto [left, bottom, across, up] = boundTextureCrop(context);
    const auto share = [](double texels, GLint whole) { return static_cast<GLfloat>(texels / whole); };
    return Unit{name,
                {share(left, width), share(bottom, height)},
                {share(double(left) + across, width), share(double(bottom) + up, height)}};
}

// Disables all that would change the texture coordinates; SavedState restores it.
std::vector<Unit> readUnits(EsContext &context, std::list<SavedTextureMatrix> &matrices) {
    const HostGl &gl = hostGl();
    GLint count = 0;
    gl.getIntegerv(GL_MAX_TEXTURE_UNITS, &count);
    std::vector<Unit> units;
    for (GLint index = 0; index < count; ++index) {
        const GLenum name = GL_TEXTURE0 + static_cast<GLenum>(index);
        gl.activeTexture(name);
        if (!gl.isEnabled(GL_TEXTURE_2D)) continue;
        matrices.emplace_back(name);
        for (const GLenum coordinate : {desktop::textureGenS, desktop::textureGenT, desktop::textureGenR})
            gl.disable(coordinate);
        if (const auto unit = readUnit(context, name)) units.push_back(*unit);
    }
    return units;
}

void setTransformation(const SavedMatrix &projection, double x, double y, double z, double width, double height) {
    const HostGl &gl = hostGl();
    GLint limits[2] = {1, 1};
    gl.getIntegerv(GL_MAX_VIEWPORT_DIMS, limits);
    const double left = std::floor(x);
    const double bottom = std::floor(y);
    const double across = std::clamp(std::ceil(x + width) - left, 1.0, double(limits[0]));
    const double up = std::clamp(std::ceil(y + height) - bottom, 1.0, double(limits[1]));
    gl.viewport(toInteger(left), toInteger(bottom), toInteger(across), toInteger(up));
    // The quad's corners are 0 and 1. The projection sets the depth, since fog depends on eye coordinates.
    const auto part = [](double number) { return static_cast<GLfloat>(number); };
    projection.load({part(2 * width / across), 0, 0, 0,                                  //
                     0, part(2 * height / up), 0, 0,                                     //
                     0, 0, 1, 0,                                                         //
                     part(2 * (x - left) / across - 1), part(2 * (y - bottom) / up - 1), //
                     part(2 * std::clamp(z, 0.0, 1.0) - 1), 1});
}

void drawCorners(const std::vector<Unit> &units) {
    const HostGl &gl = hostGl();
    gl.begin(desktop::quads);
    for (const auto &[right, top] : {std::array{false, false}, {true, false}, {true, true}, {false, true}}) {
        for (const Unit &unit : units)
            gl.multiTexCoord4f(unit.name, (right ? unit.to : unit.from)[0], (top ? unit.to : unit.from)[1], 0, 1);
        gl.vertex2f(right, top);
    }
    gl.end();
}

void drawRectangle(EsContext &context, double x, double y, double z, double width, double height) {
    const HostGl &gl = hostGl();
    GLint unit = GL_TEXTURE0;
    gl.getIntegerv(GL_ACTIVE_TEXTURE, &unit);
    beginDraw(context.renderMode);
    const SavedState state;
    {
        std::list<SavedTextureMatrix> textureMatrices;
        const std::vector<Unit> units = readUnits(context, textureMatrices);
        const SavedMatrix modelview(GL_MODELVIEW, GL_MODELVIEW_MATRIX);
        const SavedMatrix projection(GL_PROJECTION, GL_PROJECTION_MATRIX);
        for (const GLenum plane : {0u, 1u, 2u, 3u, 4u, 5u})
            gl.disable(GL_CLIP_PLANE0 + plane);
        for (const GLenum capability : {GL_LIGHTING, GL_CULL_FACE, GL_POLYGON_OFFSET_FILL})
            gl.disable(static_cast<GLenum>(capability));
        gl.polygonMode(GL_FRONT_AND_BACK, desktop::fill);
        setTransformation(projection, x, y, z, width, height);
        drawCorners(units);
    }
    gl.activeTexture(static_cast<GLenum>(unit));
}

void draw(double x, double y, double z, double width, double height) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    // The comparison also rejects NaN.
    if (!(width > 0 && height > 0)) return context->raise(GL_INVALID_VALUE);
    reportingMemory(*context, [&] { drawRectangle(*context, x, y, z, width, height); });
}

} // namespace

namespace overrides {

void GL_APIENTRY drawTexfOES(GLfloat x, GLfloat y, GLfloat z, GLfloat width, GLfloat height) {
    draw(x, y, z, width, height);
}

void GL_APIENTRY drawTexiOES(GLint x, GLint y, GLint z, GLint width, GLint height) {
    draw(x, y, z, width, height);
}

void GL_APIENTRY drawTexsOES(GLshort x, GLshort y, GLshort z, GLshort width, GLshort height) {
    draw(x, y, z, width, height);
}

void GL_APIENTRY drawTexxOES(GLfixed x, GLfixed y, GLfixed z, GLfixed width, GLfixed height) {
    constexpr auto precise = preciseFromFixed;
    draw(precise(x), precise(y), precise(z), precise(width), precise(height));
}

void GL_APIENTRY drawTexfvOES(const GLfloat *coords) {
    if (coords) drawTexfOES(coords[0], coords[1], coords[2], coords[3], coords[4]);
}

void GL_APIENTRY drawTexivOES(const GLint *coords) {
    if (coords) drawTexiOES(coords[0], coords[1], coords[2], coords[3], coords[4]);
}

void GL_APIENTRY drawTexsvOES(const GLshort *coords) {
    if (coords) drawTexsOES(coords[0], coords[1], coords[2], coords[3], coords[4]);
}

void GL_APIENTRY drawTexxvOES(const GLfixed *coords) {
    if (coords) drawTexxOES(coords[0], coords[1], coords[2], coords[3], coords[4]);
}

} // namespace overrides
