#include "render_mode.h"

#include "es_context.h"
#include "host_gl.h"

#include <zelvane/back_end.h>

#include <atomic>

namespace {

constexpr GLenum polygonLine = 0x1B01;
constexpr GLenum polygonFill = 0x1B02;

// Written on the link's thread, beside running GL calls.
std::atomic<bool> isWantedEverywhere = false;

// The frames below it have their marker, or drew nothing.
std::atomic<uint64_t> nextMarkedFrame = 0;

void postMarker() {
    const uint64_t frame = zvCurrentFrameNumber();
    uint64_t next = nextMarkedFrame.load(std::memory_order_relaxed);
    // Of the threads that draw in a frame, one posts.
    if (frame < next || !nextMarkedFrame.compare_exchange_strong(next, frame + 1)) return;
    zvMessage marker = {};
    marker.header.type = ZV_BACK_END_MARKER;
    zvPostFrameMessage(marker);
}

uint64_t GL_APIENTRY toggleWireframe(GLuint isEnabled) {
    setRenderMode(isEnabled != 0);
    return 0;
}

uint64_t GL_APIENTRY setContextWireframe(GLuint isEnabled) {
    if (EsContext *const context = EsContext::current()) context->wireframe.isWanted = isEnabled != 0;
    return 0;
}

} // namespace

void setRenderMode(uint8_t mode) {
    isWantedEverywhere.store(mode == 1, std::memory_order_relaxed);
}

void beginDraw(Wireframe &wireframe) {
    const bool isWanted = wireframe.isWanted || isWantedEverywhere.load(std::memory_order_relaxed);
    if (isWanted != wireframe.isOn) {
        hostGl().polygonMode(GL_FRONT_AND_BACK, isWanted ? polygonLine : polygonFill);
        wireframe.isOn = isWanted;
    }
    if (zvGuiIsAttached()) postMarker();
}

void *findWireframeSwitch(std::string_view name) {
    if (name == "zvToggleWireframe" || name == "Zelvane_ToggleWireframe") {
        return reinterpret_cast<void *>(toggleWireframe);
    }
    return name == "zvSetContextWireframe" ? reinterpret_cast<void *>(setContextWireframe) : nullptr;
}
