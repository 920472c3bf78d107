#include "common/per_back_end/pixel_store.h"

#include "common/per_back_end/host_gl.h"

namespace {

// Some ES headers lack these names.
constexpr GLenum packAlignment = 0x0D05, packRowLength = 0x0D02, packSkipPixels = 0x0D04, packSkipRows = 0x0D03;
constexpr GLenum unpackAlignment = 0x0CF5, unpackRowLength = 0x0CF2, unpackSkipPixels = 0x0CF4, unpackSkipRows = 0x0CF3;
constexpr GLenum unpackSkipImages = 0x806D, unpackImageHeight = 0x806E;
constexpr GLenum packBuffer = 0x88EB, unpackBuffer = 0x88EC;
constexpr GLenum packBinding = 0x88ED, unpackBinding = 0x88EF;

constexpr std::array<GLenum, PackedPixels::ruleCount> rules = {
    packAlignment,   packRowLength,    packSkipPixels, packSkipRows,     unpackAlignment,
    unpackRowLength, unpackSkipPixels, unpackSkipRows, unpackSkipImages, unpackImageHeight};

bool isAlignment(GLenum rule) {
    return rule == packAlignment || rule == unpackAlignment;
}

} // namespace

PackedPixels::PackedPixels() {
    const HostGl &gl = hostGl();
    for (size_t index = 0; index < rules.size(); ++index) {
        gl.getIntegerv(rules[index], &m_rules[index]);
        gl.pixelStorei(rules[index], isAlignment(rules[index]) ? 1 : 0);
    }
    gl.getIntegerv(packBinding, &m_packBuffer);
    gl.getIntegerv(unpackBinding, &m_unpackBuffer);
    gl.bindBuffer(packBuffer, 0);
    gl.bindBuffer(unpackBuffer, 0);
}

PackedPixels::~PackedPixels() {
    const HostGl &gl = hostGl();
    for (size_t index = 0; index < rules.size(); ++index)
        gl.pixelStorei(rules[index], m_rules[index]);
    gl.bindBuffer(packBuffer, static_cast<GLuint>(m_packBuffer));
    gl.bindBuffer(unpackBuffer, static_cast<GLuint>(m_unpackBuffer));
}
