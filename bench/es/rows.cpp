#include "rows.h"

#include <cstring>

namespace {

const Scene *scene = nullptr;

void nothing(const Scene &) {}

void fromBuffers(const Scene &scene) {
    scene.gl.glBindBuffer(GL_ARRAY_BUFFER, scene.vertexBuffer);
    scene.gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, scene.indexBuffer);
    scene.pointAt(nullptr);
    scene.enableArrays(3);
}
void fromBuffersWithClientIndices(const Scene &scene) {
    fromBuffers(scene);
    scene.gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
}
void fromMemory(const Scene &scene) {
    scene.pointAt(scene.vertices.data());
    scene.enableArrays(3);
}
void fromOneArray(const Scene &scene) {
    scene.pointAt(scene.vertices.data());
    scene.enableArrays(1);
}
// The arrays are farther apart than interleaved arrays are.
void fromArraysApart(const Scene &scene) {
    for (GLuint index = 0; index < 3; ++index)
        scene.gl.glVertexAttribPointer(index, 2, GL_FLOAT, GL_FALSE, 0, &scene.vertices[index * 1000]);
    scene.enableArrays(3);
}
void bindBuffer(const Scene &scene) {
    scene.gl.glBindBuffer(GL_ARRAY_BUFFER, scene.buffers[0]);
}

template <GLuint Scene::*texture>
void bindTexture(const Scene &scene) {
    scene.gl.glBindTexture(GL_TEXTURE_2D, scene.*texture);
}

template <typename Call>
void repeat(long passes, Call call) {
    const Scene &here = *scene;
    for (long pass = 0; pass < passes; ++pass)
        call(here, static_cast<size_t>(pass & 1));
}

void upload(long passes, GLsizei size, GLenum format) {
    repeat(passes, [&](const Scene &s, size_t) {
        s.gl.glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, size, size, format, GL_UNSIGNED_BYTE, s.pixels.data());
    });
}

void ask(long passes, GLenum name) {
    GLint value = 0;
    repeat(passes, [&](const Scene &s, size_t) { s.gl.glGetIntegerv(name, &value); });
}

void drawArrays(long passes, GLsizei count) {
    repeat(passes, [&](const Scene &s, size_t) { s.gl.glDrawArrays(GL_TRIANGLES, 0, count); });
}

void drawElements(long passes, GLsizei count, const void *indices) {
    repeat(passes,
           [&](const Scene &s, size_t) { s.gl.glDrawElements(GL_TRIANGLES, count, GL_UNSIGNED_SHORT, indices); });
}

constexpr Row rows[] = {
#define ROW(name, prepare, isForHost, ...) {name, prepare, [](long passes) { __VA_ARGS__; }, isForHost},
#define CALL(...) repeat(passes, [&]([[maybe_unused]] const Scene &s, [[maybe_unused]] size_t turn) { __VA_ARGS__; })
#include "rows.def"
#undef CALL
#undef ROW
};

} // namespace

std::span<const Row> allRows() {
    return rows;
}

void setScene(const Scene &current) {
    scene = &current;
}
