// What a context keeps of framebuffers. Used on the context's thread.
#pragma once

#include "names/name_table.h"

class Framebuffers {
public:
    // What is drawn to: the host's name, 0 for the surface. A framebuffer of the application's always takes sRGB values
    // where its image has such a format; a surface only where it has that colour space.
    [[nodiscard]] GLuint drawn() const { return m_drawn; }
    void setDrawn(GLuint framebuffer);
    // The application's switch of EXT_sRGB_write_control.
    [[nodiscard]] bool mayWriteSrgb() const { return m_mayWriteSrgb; }
    void setMayWriteSrgb(bool may);
    // The surface may have another colour space than at the last bind.
    void setSurface(bool isSrgb);

    NameTable names;

private:
    void tellHost();

    GLuint m_drawn = 0;
    bool m_isSurfaceSrgb = false;
    bool m_mayWriteSrgb = true;
    bool m_writesSrgb = false; // what the host has been told
};
