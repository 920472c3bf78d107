// A desktop context on a pbuffer, made without libEGL, and the ES 1 back end opened beside it. What libEGL would do,
// the fixture does: it binds the context, tells which back-end context is current and which device profile is in force.
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

    // Makes a host context and a back-end context on it, which shares with the last one if asked, and makes them the
    // current ones. Null when the back end refuses.
    zvEsContext start(const std::string &profile = "", bool isCore = false, zvEsContext share = nullptr);

    static zvEsContext current();

    template <typename Function>
    Function *es(const char *name) {
        return reinterpret_cast<Function *>(getExtProcAddress(name));
    }
    void *symbol(const char *name) const;

    Pixel pixel(GLint x, GLint y);
    // Clears to nothing and draws what the arrays hold.
    void clear();
    // A texture of one level with these texels, bound, on and unfiltered.
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
