#include "textures/pixel_store.h"

#include "common/per_back_end/host_gl.h"

namespace {

constexpr std::array<GLenum, PackedPixels::ruleCount> rules = {
    GL_PACK_ALIGNMENT,    GL_PACK_ROW_LENGTH,    GL_PACK_SKIP_PIXELS, GL_PACK_SKIP_ROWS,     GL_UNPACK_ALIGNMENT,
    GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_PIXELS, GL_UNPACK_SKIP_ROWS, GL_UNPACK_SKIP_IMAGES, GL_UNPACK_IMAGE_HEIGHT};

bool isAlignment(GLenum rule) {
    return rule == GL_PACK_ALIGNMENT || rule == GL_UNPACK_ALIGNMENT;
}

} // namespace

PackedPixels::PackedPixels() {
    const HostGl &gl = hostGl();
    for (size_t index = 0; index < rules.size(); ++index) {
        gl.getIntegerv(rules[index], &m_rules[index]);
        gl.pixelStorei(rules[index], isAlignment(rules[index]) ? 1 : 0);
    }
    gl.getIntegerv(GL_PIXEL_PACK_BUFFER_BINDING, &m_packBuffer);
    gl.getIntegerv(GL_PIXEL_UNPACK_BUFFER_BINDING, &m_unpackBuffer);
    gl.bindBuffer(GL_PIXEL_PACK_BUFFER, 0);
    gl.bindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
}

PackedPixels::~PackedPixels() {
    const HostGl &gl = hostGl();
    for (size_t index = 0; index < rules.size(); ++index)
        gl.pixelStorei(rules[index], m_rules[index]);
    gl.bindBuffer(GL_PIXEL_PACK_BUFFER, static_cast<GLuint>(m_packBuffer));
    gl.bindBuffer(GL_PIXEL_UNPACK_BUFFER, static_cast<GLuint>(m_unpackBuffer));
}
