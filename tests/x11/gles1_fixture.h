// A desktop context on a pbuffer, created without libEGL, and the ES 1 back end beside it. The fixture does libEGL's
// part: it binds the context, and reports the current back-end context and the device profile.
#pragma once

#include "es_gl.h"

#include <gtest/gtest.h>
#include <zelvane/back_end.h>

#include <array>
#include <string>
#include <vector>

class Gles1 : public testing::Test {
protected:
    static constexpr int size = 16;
    using Pixel = std::array<GLubyte, 4>;
    static constexpr Pixel red = {255, 0, 0, 255};
    static constexpr Pixel green = {0, 255, 0, 255};
    static constexpr Pixel blue = {0, 0, 255, 255};
    static constexpr Pixel white = {255, 255, 255, 255};
    static constexpr Pixel black = {0, 0, 0, 255};

    Gles1();
    ~Gles1() override;

    // Creates a host context and a back-end context on it, which shares with the last one if requested, and makes both
    // current. Null if the back end fails.
    zvEsContext start(const std::string &profile = "", bool isCore = false, zvEsContext share = nullptr);

    static zvEsContext current();

    template <typename Function>
    Function *es(const char *name) {
        return reinterpret_cast<Function *>(getExtProcAddress(name));
    }
    void *symbol(const char *name) const;

    Pixel pixel(GLint x, GLint y);
    // Clears to zero and draws the arrays.
    void clear();
    // A bound and enabled texture of one level with these texels, unfiltered.
    GLuint bindTexture(GLenum target = GL_TEXTURE_2D);
    GLint integer(GLenum pname);
    GLint error();

    decltype(&zvGetExtProcAddress) getExtProcAddress;
    decltype(&zvSetRenderMode) setRenderMode;

private:
    struct Host; // the X and GLX objects of one context
    static std::vector<Host> hosts;
    void *m_library;
};

#define ES(name) (this->es<decltype(name)>(#name))
