// Wireframe drawing: asked for by the GUI for every context, or by the application for one.
#pragma once

#include "es1_gl.h"

// For every context of this library. Any thread.
void setWireframeOfAll(bool isOn);

namespace debug {

// What the debug names give: for every context, and for the current one. They take effect at the next draw and return
// 0.
GLuint64 toggleWireframe(GLuint isOn);
GLuint64 setContextWireframe(GLuint isOn);

} // namespace debug

class Wireframe {
public:
    void set(bool isOn) { m_isWanted = isOn; }

    // Before a draw, with the host context current: brings the host to what is asked for by now.
    void apply();

private:
    bool m_isWanted = false;
    bool m_isApplied = false;
};
