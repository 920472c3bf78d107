// The framebuffer state of a context. Used on the context's thread.
#pragma once

#include "framebuffers/first_surface.h"
#include "names/name_table.h"

class Framebuffers {
public:
    // The draw framebuffer: the host's name, 0 for the surface. A framebuffer of the application's always writes sRGB
    // values where its image has such a format; a surface only where it has that colour space.
    [[nodiscard]] GLuint drawn() const { return m_drawn; }
    void setDrawn(GLuint framebuffer);
    // The read framebuffer, in the same way.
    [[nodiscard]] GLuint read() const { return m_read; }
    void setRead(GLuint framebuffer) { m_read = framebuffer; }
    // target: a framebuffer target.
    [[nodiscard]] GLuint bound(GLenum target) const { return target == GL_READ_FRAMEBUFFER ? m_read : m_drawn; }
    [[nodiscard]] bool isSurfaceSrgb() const { return m_isSurfaceSrgb; }
    // The application's GL_FRAMEBUFFER_SRGB_EXT of EXT_sRGB_write_control.
    [[nodiscard]] bool mayWriteSrgb() const { return m_mayWriteSrgb; }
    void setMayWriteSrgb(bool may);
    // Called when the surface may have another colour space than at the last bind.
    void setSurface(bool isSrgb);

    // Enables or disables sRGB writes on the host, until tellHost() restores the context's state.
    void force(bool writesSrgb);
    void tellHost() { force(m_mayWriteSrgb && (m_drawn != 0 || m_isSurfaceSrgb)); }

    NameTable names;

private:
    FirstSurface m_firstSurface;
    GLuint m_drawn = 0;
    GLuint m_read = 0;
    bool m_isSurfaceSrgb = false;
    bool m_mayWriteSrgb = true;
    bool m_writesSrgb = false; // the state set on the host
};
