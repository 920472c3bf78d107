// What a context keeps of framebuffers. Used on the context's thread.
#pragma once

#include "framebuffers/first_surface.h"
#include "names/name_table.h"

class Framebuffers {
public:
    // What is drawn to: the host's name, 0 for the surface. A framebuffer of the application's always takes sRGB values
    // where its image has such a format; a surface only where it has that colour space.
    [[nodiscard]] GLuint drawn() const { return m_drawn; }
    void setDrawn(GLuint framebuffer);
    // What is read from, in the same way.
    [[nodiscard]] GLuint read() const { return m_read; }
    void setRead(GLuint framebuffer) { m_read = framebuffer; }
    // target: of a framebuffer.
    [[nodiscard]] GLuint bound(GLenum target) const { return target == GL_READ_FRAMEBUFFER ? m_read : m_drawn; }
    [[nodiscard]] bool isSurfaceSrgb() const { return m_isSurfaceSrgb; }
    // The application's switch of EXT_sRGB_write_control.
    [[nodiscard]] bool mayWriteSrgb() const { return m_mayWriteSrgb; }
    void setMayWriteSrgb(bool may);
    // The surface may have another colour space than at the last bind.
    void setSurface(bool isSrgb);

    // Makes the host write sRGB values or not, until tellHost() brings it back to what the context wants.
    void force(bool writesSrgb);
    void tellHost() { force(m_mayWriteSrgb && (m_drawn != 0 || m_isSurfaceSrgb)); }

    NameTable names;

private:
    FirstSurface m_firstSurface;
    GLuint m_drawn = 0;
    GLuint m_read = 0;
    bool m_isSurfaceSrgb = false;
    bool m_mayWriteSrgb = true;
    bool m_writesSrgb = false; // what the host has been told
};
