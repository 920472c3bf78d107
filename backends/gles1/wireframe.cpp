#include "wireframe.h"

#include "desktop_names.h"
#include "es_context.h"
#include "host_gl.h"

#include <atomic>

namespace {

// Written on the link's thread, beside running GL calls.
std::atomic<bool> isOnForAll = false;

} // namespace

void setWireframeOfAll(bool isOn) {
    isOnForAll.store(isOn, std::memory_order_relaxed);
}

void Wireframe::apply() {
    const bool isOn = m_isWanted || isOnForAll.load(std::memory_order_relaxed);
    if (isOn == m_isApplied) return;
    hostGl().polygonMode(GL_FRONT_AND_BACK, isOn ? desktop::line : desktop::fill);
    m_isApplied = isOn;
}

namespace debug {

GLuint64 toggleWireframe(GLuint isOn) {
    setWireframeOfAll(isOn != 0);
    return 0;
}

GLuint64 setContextWireframe(GLuint isOn) {
    if (EsContext *const context = EsContext::current()) context->wireframe.set(isOn != 0);
    return 0;
}

} // namespace debug
